# hostile.R DUMP: calls every flat function with arguments that do not fit, each in turn. Run by test-flat-hostile.R in a
# process of its own, which has to survive. Prints what should have been an error that names the argument and was none.
library(vecmat, lib.loc = strsplit(Sys.getenv("VECMAT_TEST_LIBRARY"), .Platform$path.sep)[[1L]])
source("helper-flat.R")
skip_if <- function(...) NULL
skip_if_not_installed <- function(...) NULL

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

count <- 0L
attempt <- function(call, values, note, names = NULL) {
  count <<- count + 1L
  cat(note, "\n", file = stderr())
  message <- tryCatch({
    do.call(get(call, envir = flat), unname(values), quote = TRUE)
    NULL
  }, error = conditionMessage)
  if (!is.null(names) && is.null(message)) cat(note, ": no error\n", sep = "")
  if (!is.null(names) && !is.null(message) && !grepl(paste0("'", names, "'"), message, fixed = TRUE))
    cat(note, ": the message does not name the argument: ", message, "\n", sep = "")
}

given_to <- function(line) {
  Map(function(kind, entry) given_of(kind, if ("value" %in% names(entry)) entry$value else entry$before),
      arguments_of(line$call)$kind, line$arguments)
}

fits <- function(line) {
  !inherits(try(do.call(get(line$call, envir = flat), unname(given_to(line)), quote = TRUE), silent = TRUE), "try-error")
}

besiege <- function(line) {
  arguments <- arguments_of(line$call)
  given <- given_to(line)
  held <- Map(comparable, arguments$kind, given)
  for (k in seq_along(given)) {
    kind <- arguments$kind[k]
    name <- arguments$part[k]
    if (is.null(given[[k]])) next
    try_each <- function(odds, what, named) {
      for (j in seq_along(odds)) {
        values <- given
        values[k] <- list(odds[[j]])
        attempt(line$call, values, paste(line$call, name, what, j), if (named) name)
      }
    }
    try_each(wrong_types(kind, given[[k]]), "type", TRUE)
    # Longer vectors may be what a position asks for; shorter ones never are.
    sized <- grepl("^[^()]*\\((n|m|p|rows|rows, cols|n, p)\\)", arguments$text[k])
    try_each(wrong_sizes(kind, given[[k]]), "size", sized && !grepl("position|within", paste(arguments$domain, collapse = " ")))
    try_each(odd_values(kind, given[[k]]), "value", FALSE)
    if (arguments$role[k] != "out" && !grepl("or NULL", arguments$text[k])) try_each(list(NULL), "NULL", TRUE)
  }
  attempt(line$call, given[-length(given)], paste(line$call, "too few"))
  attempt(line$call, c(given, list(1)), paste(line$call, "too many"))
  if (!identical(held, Map(comparable, arguments$kind, given))) cat(line$call, ": an argument was changed\n", sep = "")
}

calls <- dumped_calls()
names <- vapply(calls, `[[`, "", "call")
for (name in setdiff(unique(names), LONG)) besiege(Find(fits, calls[names == name]))
cat("survived:", length(setdiff(unique(names), LONG)), "functions,", count, "calls\n")
