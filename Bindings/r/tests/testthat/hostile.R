# hostile.R DUMP: calls every flat function with arguments that do not fit, each in turn. Run by test-flat-hostile.R in a
# process of its own, which has to survive. Prints what should have been an error that names the argument and was none.
library(vecmat, lib.loc = strsplit(Sys.getenv("VECMAT_TEST_LIBRARY"), .Platform$path.sep)[[1L]])
source("helper-flat.R")
source("helper-hostile.R")
skip_if <- function(...) NULL
skip_if_not_installed <- function(...) NULL

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
