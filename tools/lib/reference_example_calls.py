"""Examples of the flat functions in Python, made up from the table of arguments: see reference_examples.py.

    example_of(call, tags)      the lines to type; what they print is added by running them

The data are few and plain: a table of four rows and two columns, a vector of five cells, one cell missing where the
contract has a treatment of its own for it.
"""

import keyword

from shapes import evaluate, names_of

NUMBERS = ([4, 1, 7, 2, 9, 3], [3, 8, 5, 6, 2, 4], [1, 2, 2, 5, 3, 6], [2, 0, 1, 4, 6, 5], [5, 3, 8, 1, 4, 2])
SYMMETRIC = ([4, 2, 1, 0, 0], [2, 3, 0.5, 0, 0], [1, 0.5, 2, 0, 0], [0, 0, 0, 1, 0], [0, 0, 0, 0, 1])
SQUARE = ([4, 1, 2, 0], [1, 3, 0, 1], [2, 1, 5, 1], [0, 2, 1, 6])
WEIGHTS = [1, 2, 1, 1, 3, 1, 2, 1]
WORDS = (["oak", "fir", "oak", "ash", "fir", "elm"], ["wet", "dry", "dry", "wet", "dry", "wet"])
TEXT = "oak"
# Data that has no treatment of its own for a missing cell begins its tag like this.
PLAIN = ("an ordinary number", "not read", "copied", "moves", "overwritten", "takes no", "no ", "an integer", "none")
COUNTS = {"count": 5, "rows": 4, "columns": 2}
DTYPES = {"int*": "np.int32", "short*": "np.int16"}


def example_of(call, tags):
    return _Example(call, tags).lines()


def python_name(name):
    return name + "_" if keyword.iskeyword(name) else name


class _Example:
    def __init__(self, call, tags):
        self.call, self.values, self.texts = call, {}, {}
        self.with_missing = not tags.get("missing", "no ").startswith(PLAIN)
        self.tables = 0   # data so far, so that two tables differ
        self.given = []   # lines that make arrays
        self.order = self._order_of_square()

    def lines(self):
        first = {name for argument in self.call.arguments for tree in argument.shape.expressions()
                 for name in names_of(tree)[1]}
        numbers = [argument for argument in self.call.arguments if argument.role == "value"]
        for argument in numbers:
            if argument.domain.kind not in ("position", "within"):
                self._number(argument)
        for argument in numbers:
            if argument.domain.kind in ("position", "within"):
                self._number(argument)
        arrays = [argument for argument in self.call.arguments if argument.role != "value"]
        for argument in sorted(arrays, key=lambda argument: argument.name not in first):
            self._array(argument)
        call = f"flat.{self.call.name}({', '.join(self.texts[argument.name] for argument in self.call.arguments)})"
        seeds = [name for name in self.texts if name in ("seed", "seedOut")]
        shown = [argument.name for argument in self.call.arguments
                 if argument.role in ("out", "inout") and argument.name not in seeds]
        return [*self.given, call, *(python_name(name) for name in shown)]

    def _order_of_square(self):
        """The names of dimensions of square tables, which are smaller than other counts."""
        names = set()
        for argument in self.call.arguments:
            if argument.shape.layout == "table" and argument.shape.rows == argument.shape.cols != ("number", 1) \
                    or argument.shape.layout == "falling" or argument.domain.kind == "symmetric":
                names |= names_of(argument.shape.rows)[0]
        return names

    # ---- numbers

    def _number(self, argument):
        value = self._value(argument)
        self.values[argument.name] = value
        self.texts[argument.name] = repr(value)

    def _value(self, argument):
        kind, name = argument.domain.kind, argument.name.lower()
        if kind in COUNTS:
            return 3 if argument.name in self.order else COUNTS[kind]
        if kind in ("position", "within"):
            low, high = (evaluate(end, self.values) for end in (argument.domain.low, argument.domain.high))
            if name.startswith(("first", "from", "r1", "c1", "row1", "col1", "start")):
                return low
            if name.startswith(("last", "to", "r2", "c2", "row2", "col2", "end")):
                return high
            return min(low + 1, high) if high >= low else low
        if kind in ("option", "flags"):
            options = argument.domain.options
            return -1 if name in ("sample", "freqweights", "lower", "ascending") and -1 in options else \
                0 if 0 in options and set(options) <= {0, -1} else options[0]
        if kind == "probability":
            return 0.1 if name.endswith(("low", "1")) else 0.9 if name.endswith(("high", "2")) else 0.5
        if kind == "tolerance":
            return 1e-9
        if kind == "seed flag":
            return -1
        if kind == "ignored":
            return 0.0 if argument.type == "double" else 0
        if argument.type == "double":
            return 0.0 if name in ("low", "lo") else 1.0 if name in ("high", "hi") else 2.0
        return 2

    # ---- arrays

    def _array(self, argument):
        name = python_name(argument.name)
        layout = argument.shape.layout
        if layout in ("text", "bstr"):
            self.texts[argument.name] = repr(TEXT)
            return
        text, value = self._columns(argument) if layout in ("columns", "falling") else self._table(argument)
        self.values[argument.name] = value
        self.texts[argument.name] = name
        self.given.append(f"{name} = {text}")

    def _table(self, argument):
        rows, cols = (max(evaluate(tree, self.values), 0) for tree in (argument.shape.rows, argument.shape.cols))
        is_vector = argument.shape.cols == ("number", 1)
        if argument.type == "wchar_t**":
            cells = [""] * (rows * cols) if argument.role == "out" else self._words(rows * cols, argument)
            return repr(cells), cells
        if argument.role == "out" or argument.role == "scratch":
            return self._zeros(argument, rows, cols, is_vector)
        columns = self._cells(argument, rows, cols)
        flat = [cell for column in columns for cell in column]
        if is_vector:
            text = self._list(columns[0] if columns else [], argument)
            if argument.is_written() or argument.type != "double*":
                text = f"np.array({text}{self._dtype(argument)})"
            return text, flat
        across = [[column[i] for column in columns] for i in range(rows)]
        text = f"[{', '.join(self._list(row, argument) for row in across)}]"
        return f"np.array({text}{self._dtype(argument)}, order=\"F\")", flat

    def _zeros(self, argument, rows, cols, is_vector):
        size = f"{rows}" if is_vector else f"({rows}, {cols})"
        order = "" if is_vector else ", order=\"F\""
        return f"np.zeros({size}{self._dtype(argument)}{order})", [0] * (rows * cols)

    def _columns(self, argument):
        lengths = argument.shape.lengths(self.values)
        if argument.shape.strings:
            columns = [[""] * n if argument.role == "out" else self._words(n, argument) for n in lengths]
            return repr(columns), columns
        if argument.role == "out":
            return f"[{', '.join(f'np.zeros({n})' for n in lengths)}]", [[0.0] * n for n in lengths]
        if argument.shape.layout == "falling":
            columns = [list(SYMMETRIC[k][k:k + n]) for k, n in enumerate(lengths)]
        else:
            columns = self._cells(argument, max(lengths, default=0), len(lengths))
        return f"[{', '.join(f'np.array({self._list(column, argument)})' for column in columns)}]", columns

    def _cells(self, argument, rows, cols):
        """Columns of numbers for what the argument stands for."""
        kind = argument.domain.kind
        if kind == "seed":
            return [[20]]
        if kind == "weights":
            return self._repeated(WEIGHTS, rows, cols)
        if kind == "mask":
            return self._repeated([0, 0, 0, -1, 0], rows, cols)
        if kind == "flags":
            return self._repeated([argument.domain.options[k] for k in (1, 0, 1, 1, 0)]
                                  if len(argument.domain.options) == 2 else argument.domain.options, rows, cols)
        if kind in ("positions", "codes", "counts"):
            low, high = (evaluate(end, self.values) for end in (argument.domain.low, argument.domain.high))
            span = max(min(high, low + 2) - low + 1, 1)
            return [[low + (i + j) % span for i in range(rows)] for j in range(cols)]
        if kind == "symmetric" and rows == cols:
            return [list(SYMMETRIC[j % 5][:rows]) for j in range(cols)]
        if kind == "symmetric" or (argument.shape.rows[0] == "call" and argument.shape.rows[1] == "packed"):
            packed = [SYMMETRIC[i % 5][j % 5] for i in range(rows) for j in range(i + 1)]
            return self._repeated(packed[:rows] if rows else [], rows, cols)
        return self._data(argument, rows, cols)

    def _data(self, argument, rows, cols):
        pool = SQUARE if rows == cols > 1 and rows <= len(SQUARE) else NUMBERS
        shift = self.tables
        self.tables += 1
        columns = []
        for j in range(cols):
            column = pool[(j + shift) % len(pool)]
            columns.append([column[i % len(column)] for i in range(rows)])
        if self.with_missing and shift == 0 and argument.type == "double*" and rows > 2 and pool is NUMBERS:
            columns[0][1] = "MISSING"
        return columns

    def _words(self, count, argument):
        words = WORDS[self.tables % 2]
        self.tables += 1
        cells = [words[k % len(words)] for k in range(count)]
        if self.with_missing and count > 2:
            cells[2] = ""
        return cells

    @staticmethod
    def _repeated(cells, rows, cols):
        return [[cells[i % len(cells)] for i in range(rows)] for _ in range(cols)]

    @staticmethod
    def _list(cells, argument):
        if argument.type in DTYPES:
            return f"[{', '.join(str(cell) for cell in cells)}]"
        return f"[{', '.join(cell if isinstance(cell, str) else str(float(cell)) for cell in cells)}]"

    @staticmethod
    def _dtype(argument):
        return f", {DTYPES[argument.type]}" if argument.type in DTYPES else ""
