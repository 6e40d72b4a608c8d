"""Writes Bindings/gambas: VecMat.module, the flat functions in Gambas, and the declarations that it uses.

Each function calls its guarded form, and a failure raises an error in Gambas. Before the call the length of every
array is checked against arguments.tsv: an array that is too short is an error that names the argument.
"""

from arguments import read_calls

# How an argument is declared: for the user, and for the library.
TYPES = {
    "double": ("Float", "Float"),
    "int": ("Integer", "Integer"),
    "short": ("Short", "Short"),
    "double*": ("Float[]", "Float[]"),
    "int*": ("Integer[]", "Integer[]"),
    "short*": ("Boolean[]", "Short[]"),
    "const wchar_t*": ("String", "String"),
    "const void*": ("String", "Pointer"),
    "wchar_t**": ("String[]", "Pointer[]"),
    "SAFEARRAY**": ("VecMatColumns", "Pointer"),
}
RESULTS = {"double": "Float", "int": "Integer", "short": "Short", "wchar_t*": "String"}
PLACES = {"double": "Float", "int": "Integer", "short": "Short", "wchar_t*": "Pointer"}

# Parameter names with a meaning in Gambas or in the module (case is ignored).
TAKEN = set("""
    to in is if then else for next step select case default do while until repeat wend loop break continue return quit
    stop goto sub function procedure property public private static const dim as new null true false me super last with
    end try catch finally raise error event inherits use class enum extern library exec print input output read write
    open close seek lock unlock flush pipe memory move copy delete kill link mkdir rmdir rename shell wait sleep swap
    inc dec and or xor not mod div like begins ends each byref optional let min max abs sgn int fix round sqr exp log
    sin cos tan len left right mid string float integer long short byte boolean date object pointer variant count value
    returned status position text len sum rnd bit free alloc save load file dir system user application temp pi
    flags components missing done need packed wide bstr textof within
    """.split())

# The most external functions that a module can have.
MOST_EXTERNALS = 200

EXTERNALS_HEAD = """\
' Gambas module file

' What VecMat.module calls: the guarded calls of the library. Written by tools/bindings, as that.

Library "libVecMatGuarded:1"
"""

HEAD = """\
' Gambas module file

' The functions of VecMat that take plain arrays. Written by tools/bindings from exports.tsv and arguments.tsv: change
' those, not this module. Docs/contracts describes what each function does; Docs/hosts/gambas.md shows a first
' call.
'
'   tables      A Float[] of one dimension holds a table column after column: cell (i, j), from 0, is at i + rows * j.
'   Booleans    Masks are Boolean[]. A single one is passed and returned as -1 or 0.
'   results     A function writes them to arrays created by the caller: an Integer[1] for a single number.
'   strings     are strings, and String[].
'   columns     A table of columns is a VecMatColumns, the class that comes with this module.
'   Null        may be passed where the contract allows an argument to be absent.
'
' An array that is missing or too short raises an error that names it; running out of memory raises an error, too.

Library "libVecMatGuarded:1"

Private Extern vecmat_guarded_error() As Pointer
Private Extern SysAllocString2(text As String) As Pointer In "libCompanionRuntime:1"
Private Extern SysFreeString2(bstr As Pointer) In "libCompanionRuntime:1"

' A cell without a value holds exactly this number.
Public Const Missing As Float = -1.79769313486231E+308
"""

TAIL = """
' ---- what the functions above need ----

Private Sub Done(status As Integer)

  If status <> 0 Then Error.Raise(String@(vecmat_guarded_error()))

End

' An array as an argument: it is there, or need not be, and has the cells that the function goes through.
Private Sub Need(cells As Object, needed As Long, mayBeNull As Boolean, what As String)

  If IsNull(cells) Then
    If mayBeNull Then Return
    Error.Raise(what & " is Null")
  Endif
  If cells.Count < needed Then Error.Raise(what & " has " & CStr(cells.Count) & " cells instead of " & CStr(needed))

End

Private Sub NeedColumns(columns As VecMatColumns, rows As Long, cols As Long, falling As Boolean, ofStrings As Boolean, mayBeNull As Boolean, what As String)

  Dim k As Integer

  If IsNull(columns) Then
    If mayBeNull Then Return
    Error.Raise(what & " is Null")
  Endif
  If columns.Count < cols Then Error.Raise(what & " has " & CStr(columns.Count) & " columns instead of " & CStr(cols))
  For k = 0 To cols - 1
    If columns.IsOfStrings(k) <> ofStrings Then Error.Raise(what & ": column " & CStr(k) & " is not of " & If(ofStrings, "strings", "numbers"))
    Need(columns.Cells(k), AtLeast0(rows - If(falling, k, 0)), False, what & ": column " & CStr(k))
  Next

End

Private Sub NeedWithin(number As Long, low As Long, high As Long, what As String)

  If number < low Or If number > high Then Error.Raise(what & " is " & CStr(number) & ", not from " & CStr(low) & " to " & CStr(high))

End

Private Function AtLeast0(number As Long) As Long

  If number < 0 Then Return 0
  Return number

End

' The cells of a triangle of this order.
Private Function Packed(order As Long) As Long

  If order <= 0 Then Return 0
  Return (order * (order + 1)) Div 2

End

Private Function FirstOf(cells As Integer[]) As Long

  If IsNull(cells) Then Return 0
  If cells.Count = 0 Then Return 0
  Return cells[0]

End

Private Function LargestOf(cells As Integer[], n As Long) As Long

  Dim k As Integer, largest As Long

  If IsNull(cells) Then Return 0
  For k = 0 To Min(n, cells.Count) - 1
    If cells[k] > largest Then largest = cells[k]
  Next
  Return largest

End

Private Function SumOf(cells As Float[], n As Long) As Long

  Dim k As Integer, total As Float

  If IsNull(cells) Then Return 0
  For k = 0 To Min(n, cells.Count) - 1
    If cells[k] <> Missing Then total += cells[k]
  Next
  If total > 2147483647 Then Return 2147483647
  Return CLong(Fix(total))

End

Private Function ClampedSumOf(cells As Float[], n As Long, most As Long) As Long

  Dim k As Integer, total As Long

  If IsNull(cells) Or If most <= 0 Then Return 0
  For k = 0 To Min(n, cells.Count) - 1
    If cells[k] >= 1 Then total += CLong(Min(Int(cells[k]), most))
  Next
  Return total

End

Private Function Flags(values As Boolean[]) As Short[]

  Dim made As Short[], k As Integer

  If IsNull(values) Then Return Null
  made = New Short[values.Count]
  For k = 0 To values.Max
    made[k] = If(values[k], -1, 0)
  Next
  Return made

End

Private Sub TakeFlags(values As Boolean[], made As Short[])

  Dim k As Integer

  If IsNull(values) Then Return
  For k = 0 To values.Max
    values[k] = made[k] <> 0
  Next

End

' The characters of a text as the library reads a single string: 32 bits each, with a 0 behind the last.
Private Function Wide(characters As String) As String

  If characters Then Return Conv$(characters, "UTF-8", "UTF-32LE") & String$(4, Chr$(0))
  Return String$(4, Chr$(0))

End

' A string as the library reads it in arrays. The empty one is no string at all.
Public Function Bstr(characters As String) As Pointer

  If characters Then Return SysAllocString2(Wide(characters))
  Return Null

End

Public Sub FreeBstr(made As Pointer)

  If made <> Null Then SysFreeString2(made)

End

Public Function TextOf(made As Pointer) As String

  Dim bytes As Integer, source As Stream, characters As String

  If made = Null Then Return ""
  bytes = Integer@(made - 4)
  If bytes = 0 Then Return ""
  source = Memory made For Read
  characters = Read #source, bytes
  Close #source
  Return Conv$(characters, "UTF-16LE", "UTF-8")

End

Private Function TakenText(made As Pointer) As String

  Dim characters As String = TextOf(made)

  FreeBstr(made)
  Return characters

End

Public Function Bstrs(texts As String[]) As Pointer[]

  Dim made As Pointer[], k As Integer

  If IsNull(texts) Then Return Null
  made = New Pointer[texts.Count]
  For k = 0 To texts.Max
    made[k] = Bstr(texts[k])
  Next
  Return made

End

' Frees the strings that went in, reads those that the library has put in their place, and frees them.
Public Sub TakeBstrs(texts As String[], given As Pointer[], current As Pointer[])

  Dim k As Integer, own As New Collection

  If IsNull(texts) Then Return
  For k = 0 To texts.Max
    If given[k] <> Null Then own[CStr(given[k])] = True
  Next
  For k = 0 To texts.Max
    If current[k] <> given[k] Then texts[k] = TextOf(current[k])
  Next
  For k = 0 To texts.Max
    If current[k] <> given[k] And If current[k] <> Null And If Not own.Exist(CStr(current[k])) Then FreeBstr(current[k])
  Next
  For k = 0 To texts.Max
    FreeBstr(given[k])
  Next

End
"""


class Module:
    """One function: its names in Gambas, and the lines of its body."""

    def __init__(self, call):
        self.call = call
        self.names = {}
        for argument in call.arguments:
            name = argument.name + ("Arg" if argument.name.lower() in TAKEN else "")
            while name.lower() in [other.lower() for other in self.names.values()]:
                name += "2"
            self.names[argument.name] = name

    def expression(self, tree):
        if tree[0] == "number":
            return str(tree[1])
        if tree[0] == "name":
            return f"CLong({self.names[tree[1]]})"
        if tree[0] == "binary":
            sign = {"/": "Div", "%": "Mod", "==": "=", "!=": "<>"}.get(tree[1], tree[1])
            return f"({self.expression(tree[2])} {sign} {self.expression(tree[3])})"
        function, arguments = tree[1], tree[2]
        if function in ("value", "largest", "sum", "clamped_sum"):
            name = {"value": "FirstOf", "largest": "LargestOf", "sum": "SumOf", "clamped_sum": "ClampedSumOf"}[function]
            return f"{name}({', '.join([self.names[arguments[0][1]]] + [self.expression(a) for a in arguments[1:]])})"
        parts = [self.expression(argument) for argument in arguments]
        if function == "span":
            return f"AtLeast0({parts[1]} - {parts[0]} + 1)"
        if function == "if":
            return f"CLong(If({parts[0]}, {parts[1]}, {parts[2]}))"
        return f"CLong({ {'min': 'Min', 'max': 'Max', 'packed': 'Packed'}[function] }({', '.join(parts)}))"

    def cells(self, shape):
        rows, cols = (self.expression(tree) for tree in (shape.rows, shape.cols))
        if cols == "1":
            return rows if rows.isdigit() else f"AtLeast0({rows})"
        return f"AtLeast0({rows}) * AtLeast0({cols})"

    def need(self, argument):
        shape, name = argument.shape, self.names[argument.name]
        what = f'"{self.call.name}: {argument.name}"'
        null = argument.null
        null = str(null) if isinstance(null, bool) else self.expression(null)
        if argument.type == "SAFEARRAY**":
            return [f"  NeedColumns({name}, {self.expression(shape.rows)}, {self.expression(shape.cols)}, "
                    f"{shape.layout == 'falling'}, {shape.strings}, {null}, {what})"]
        if shape.rows is not None:
            return [f"  Need({name}, {self.cells(shape)}, {null}, {what})"]
        if argument.domain.kind == "within":
            low, high = self.expression(argument.domain.low), self.expression(argument.domain.high)
            return [f"  NeedWithin({name}, {low}, {high}, {what})"]
        return []

    def turned(self):
        """What is passed for each argument, and the lines before and after the call."""
        passed, before, behind, variables = [], [], [], []
        for argument in self.call.arguments:
            name = self.names[argument.name]
            other = f"{name}_"
            if argument.type == "short*" and argument.name != "status":
                variables.append(f"{other} As Short[]")
                before.append(f"  {other} = Flags({name})")
                behind += [f"  TakeFlags({name}, {other})"] if argument.is_written() else []
            elif argument.type == "const wchar_t*":
                other = f"Wide({name})"
            elif argument.type == "const void*":
                variables.append(f"{other} As Pointer")
                before.append(f"  {other} = Bstr({name})")
                behind.append(f"  FreeBstr({other})")
            elif argument.type == "wchar_t**":
                variables += [f"{other} As Pointer[]", f"{other}now As Pointer[]"]
                before += [f"  {other} = Bstrs({name})", f"  {other}now = If(IsNull({other}), Null, {other}.Copy())"]
                behind.append(f"  TakeBstrs({name}, {other}, {other}now)")
                other += "now"
            elif argument.type == "SAFEARRAY**":
                variables.append(f"{other} As Pointer")
                before.append(f"  If Not IsNull({name}) Then {other} = {name}.Lend()")
                behind.append(f"  If Not IsNull({name}) Then {name}.TakeBack()")
            else:
                other = name
            passed.append(other)
        return passed, before, behind, variables

    def user_type(self, argument):
        return "Short[]" if (argument.type, argument.name) == ("short*", "status") else TYPES[argument.type][0]

    def external(self):
        call = self.call
        native = [f"{self.names[a.name]} As {TYPES[a.type][1]}" for a in call.arguments]
        if call.returns != "void":
            native.append(f"returned As {PLACES[call.returns]}[]")
        return f'Public Extern {call.name}({", ".join(native)}) As Integer Exec "vecmat_guarded_{call.name}"'

    def text(self, externals):
        call = self.call
        user = [f"{self.names[a.name]} As {self.user_type(a)}" for a in call.arguments]
        has_result = call.returns != "void"
        passed, before, behind, variables = self.turned()
        sizing = {name for a in call.arguments for tree in a.shape.expressions() for name in arrays_in(tree)}
        ordered = sorted(call.arguments, key=lambda a: a.name not in sizing)
        lines = [f"Public {'Function' if has_result else 'Sub'} {call.name}({', '.join(user)})"
                 + (f" As {RESULTS[call.returns]}" if has_result else ""), ""]
        place = [f"returned As New {PLACES[call.returns]}[1]"] if has_result else []
        declared = variables + place + ["status As Integer"]
        lines += [f"  Dim {', '.join(declared)}", ""]
        lines += [line for argument in ordered for line in self.need(argument)]
        lines += before
        lines += [f"  status = {externals}.{call.name}({', '.join(passed + ['returned'] * has_result)})"]
        lines += behind + ["  Done(status)"]
        if has_result:
            lines.append("  Return " + ("TakenText(returned[0])" if call.returns == "wchar_t*" else "returned[0]"))
        return "\n".join(lines + ["", "End", ""])


def arrays_in(tree):
    if tree[0] == "binary":
        return arrays_in(tree[2]) + arrays_in(tree[3])
    if tree[0] != "call":
        return []
    own = [tree[2][0][1]] if tree[1] in ("value", "largest", "sum", "clamped_sum") else []
    return own + [name for argument in tree[2] for name in arrays_in(argument)]


def modules():
    """The texts of the modules, by name."""
    calls = [Module(call) for call in read_calls().values()]
    texts, lines, unit = {}, [HEAD], None
    for first in range(0, len(calls), MOST_EXTERNALS):
        part = calls[first:first + MOST_EXTERNALS]
        externals = f"VecMatCalls{len(texts) + 1}"
        texts[externals] = "\n".join([EXTERNALS_HEAD] + [module.external() for module in part]) + "\n"
        for module in part:
            if module.call.unit != unit:
                unit = module.call.unit
                lines.append(f"' ---- {unit} ----\n")
            lines.append(module.text(externals))
    texts["VecMat"] = "\n".join(lines).rstrip("\n") + "\n" + TAIL
    return texts
