# Arguments that do not fit.

# These take as much memory as they are told to.
LONG <- c("TestAllocMatrix", "GetStatusMemory", "Cpp_GetStatusMemory")

STRANGE <- list(sum, globalenv(), quote(x), 3 + 4i, as.raw(1), factor("a"), list(), expression(a), new.env(), ~a)

wrong_types <- function(kind, value) {
  more <- switch(kind,
    integer = , flag = list("1", 1.5, NULL, list(1), c(1, 2), NA, NA_integer_, NaN, integer(), 3e9, Inf),
    number = list("1", NULL, list(1), c(1, 2), double()),
    doubles = list("abc", c("a", "b"), array(1, c(1, 1, 1)), if (length(value)) list(1)),
    ints = , flags = list("abc", array(1, c(1, 1, 1)), if (length(value)) rep(1.5, length(value)),
                          if (length(value)) rep(NaN, length(value)), if (length(value)) rep(1e300, length(value))),
    strings = list(1, TRUE, list("a")),
    columns = , stringColumns = list(1, "abc", list(sum), list(NULL)),
    text = , bstr = list(1, c("a", "b"), NA_character_, character()))
  if (length(value) == 0L && kind %in% c("doubles", "ints", "flags", "columns", "stringColumns")) STRANGE[-7L] else
    c(STRANGE[if (kind %in% c("columns", "stringColumns")) -7L else seq_along(STRANGE)], Filter(Negate(is.null), more))
}

wrong_sizes <- function(kind, value) {
  if (!kind %in% c("doubles", "ints", "flags", "strings", "columns", "stringColumns") || !length(value)) return(list())
  list(value[-1L], value[0L])
}

odd_values <- function(kind, value) {
  n <- length(value)
  switch(kind,
    integer = list(0, -1, 2, 2147483647, -2147483647, -2147483648, TRUE, FALSE),
    flag = list(0, -1, 1, 32767, -32768, TRUE, FALSE),
    number = list(0, -1, 1e308, -1e308, NaN, Inf, -Inf, NA, vm_missing, 5e-324, 1L),
    doubles = lapply(c(NaN, Inf, -Inf, 1e308, -1, 0, 1e9, vm_missing), rep, n),
    ints = c(lapply(c(0, -1, 2147483647, -2147483648), rep, n), list(rep(TRUE, n), rep(NA_integer_, n))),
    flags = c(lapply(c(0, -1, 32767, -32768), rep, n), list(rep(TRUE, n))),
    strings = lapply(c(NA, "", strrep("x", 5000), "\U0001F600", iconv("\u00e9", to = "latin1"), "\xff\xfe"), rep, n),
    columns = list(lapply(value, function(column) rep(NaN, length(column))), lapply(value, as.integer)),
    stringColumns = list(lapply(value, function(column) rep("\U0001F600", length(column)))),
    text = , bstr = list("", strrep("x", 5000), "\U0001F600"))
}

# The arguments of a call that was recorded, as they were before it.
given_to <- function(line) {
  Map(function(kind, entry) given_of(kind, if ("value" %in% names(entry)) entry$value else entry$before),
      arguments_of(line$call)$kind, line$arguments)
}
