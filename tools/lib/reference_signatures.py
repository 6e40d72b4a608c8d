"""How each language calls a function, read from what is shipped for that language: see reference.py."""

import ast
import importlib.util
import re
import sys
import textwrap
from dataclasses import dataclass

from arguments import read_calls
from reference_signatures_r_js import PackageFunction, read_js_flat, read_r_flat, read_r_functions

WIDTH = 84


@dataclass(frozen=True)
class Signature:
    language: str   # the title of its tab
    lexer: str
    text: str


def wrapped(start, parts, end):
    """`start(` and the parts, broken below the first of them."""
    text = f"{start}{', '.join(parts)}{end}"
    if len(text) <= WIDTH:
        return text
    hidden = [part.replace(" ", "\0") for part in parts]
    return start + textwrap.fill(", ".join(hidden), WIDTH - len(start), break_long_words=False).replace(
        "\n", "\n" + " " * len(start)).replace("\0", " ") + end


def cpp(function):
    lines = []
    for declaration in function.declarations:
        parts = [f"{kind} {name}".strip() for kind, name in zip(declaration.types, declaration.names)]
        start = f"{declaration.returns} {declaration.name}(".lstrip()
        lines.append(wrapped(start, parts, ");"))
    return Signature("C++", "cpp", "\n".join(dict.fromkeys(lines)))


def read_c(root):
    """The declarations of VecMatFlat.h by name."""
    text = (root / "Bindings/c/VecMatFlat.h").read_text(encoding="utf-8")
    text = re.sub(r"/\*.*?\*/", "", text, flags=re.S)
    return {match.group(2): wrapped(f"{match.group(1)}{match.group(2)}(", " ".join(match.group(3).split()).split(", "), ");")
            for match in re.finditer(r"^(\w[\w *]*?)\b(\w+)\(([^;{}]*)\);", text, flags=re.M)}


def read_vba(root):
    """The declarations for 64-bit Windows by name, without the path of the library."""
    found = {}
    for path in sorted((root / "Bindings/vba").glob("VecMatCalls*.bas")):
        text = path.read_text(encoding="ascii")
        block = text.partition("#ElseIf Win64 Then")[2].partition("#ElseIf Mac Then")[0]
        block = block.replace(" _\n", " ")
        for match in re.finditer(r"Declare PtrSafe (Function|Sub) (\w+) Lib \"[^\"]*\"(?: Alias \"\w+\")? \((.*?)\)"
                                 r"( As \w+)?$", block, flags=re.M):
            kind, name, parameters, returns = match.groups()
            parts = [" ".join(part.split()) for part in parameters.split(",") if part.strip()]
            found[name] = wrapped(f"{kind} {name}(", parts, f"){returns or ''}")
    return found


def read_python_flat(root):
    """The stubs of the flat functions by name, with the short names of types."""
    path = root / "Bindings/python/generate/flat.py"
    kept = list(sys.path)
    spec = importlib.util.spec_from_file_location("python_flat_generator", path)
    module = importlib.util.module_from_spec(spec)
    spec.loader.exec_module(module)
    sys.path[:] = kept
    found = {}
    for line in list(module.stub(module.read_calls(root)))[1:]:
        match = re.fullmatch(r"def (\w+)\((.*)\) -> (\w+): \.\.\.", line)
        if match:
            name, parameters, returns = match.groups()
            names = [re.match(r"\w+", part).group() for part in re.split(r", (?=\w+: )", parameters) if part]
            found[name] = wrapped(f"vecmat.flat.{name}(", names, ")" + (f" -> {returns}" if returns != "None" else ""))
    return found


def read_python_functions(root):
    """For each flat function, the functions of the package that call it."""
    found = {}
    for path in sorted((root / "Bindings/python/src/vecmat").glob("[a-z]*.py")):
        tree = ast.parse(path.read_text(encoding="utf-8"))
        for node in tree.body:
            if not isinstance(node, ast.FunctionDef) or node.name.startswith("_"):
                continue
            called = {part.attr for part in ast.walk(node)
                      if isinstance(part, ast.Attribute) and isinstance(part.value, ast.Name) and part.value.id == "flat"}
            for decorator in node.decorator_list:
                if isinstance(decorator, ast.Call) and getattr(decorator.func, "id", "") == "documented":
                    called |= {argument.value for argument in decorator.args if isinstance(argument, ast.Constant)}
            text = (ast.get_docstring(node) or "").split("\n\n")[0].replace("\n", " ")
            function = PackageFunction(f"vecmat.{node.name}", python_signature(node), text)
            for name in called:
                found.setdefault(name, []).append(function)
    return found


def python_signature(node):
    """The signature without types."""
    arguments = node.args
    plain = [*arguments.posonlyargs, *arguments.args]
    defaults = [None] * (len(plain) - len(arguments.defaults)) + list(arguments.defaults)
    parts = [argument.arg + (f"={ast.unparse(value)}" if value else "") for argument, value in zip(plain, defaults)]
    if arguments.vararg:
        parts.append("*" + arguments.vararg.arg)
    elif arguments.kwonlyargs:
        parts.append("*")
    parts += [argument.arg + (f"={ast.unparse(value)}" if value else "")
              for argument, value in zip(arguments.kwonlyargs, arguments.kw_defaults)]
    return wrapped(f"vecmat.{node.name}(", parts, ")")


class Signatures:
    """The signatures of all functions in all languages that are in the tree."""

    def __init__(self, root):
        self.c, self.vba = read_c(root), read_vba(root)
        calls = read_calls(root)
        self.python, self.r, self.js = read_python_flat(root), read_r_flat(root, calls, wrapped), read_js_flat(root, calls, wrapped)
        self.callers = {"Python": read_python_functions(root), "R": read_r_functions(root)}

    def of_name(self, function):
        """The signatures under the function's own name."""
        found = [] if function.name.startswith("VB_") and function.linkage == "C" else [cpp(function)]
        name = function.name
        if name in self.c:
            found.append(Signature("C", "c", self.c[name]))
        if name in self.vba:
            found.append(Signature("VBA", "vb", self.vba[name]))
        if name in self.python:
            found.append(Signature("Python", "python", self.python[name]))
        if name in self.r:
            found.append(Signature("R", "r", self.r[name]))
        if name in self.js:
            found.append(Signature("JavaScript", "js", self.js[name]))
        return found

    def of(self, function, functions):
        """The signatures, those of the flat forms where the function itself cannot be called from a language."""
        found = self.of_name(function)
        languages = {signature.language for signature in found}
        for form in function.flat_forms:
            for signature in self.of_name(functions[form]):
                if signature.language not in languages:
                    found.append(signature)
        merged = {}
        for signature in found:
            merged.setdefault(signature.language, []).append(signature)
        return [Signature(language, group[0].lexer, "\n".join(one.text for one in group))
                for language, group in merged.items()]

    def callers_in(self, language, function):
        """The functions of a language's package that call a function, or a flat form of it."""
        names = [function.name, *function.flat_forms]
        found = [caller for name in names for caller in self.callers.get(language, {}).get(name, [])]
        return list(dict.fromkeys(found))
