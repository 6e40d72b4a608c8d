# Every flat function gives in R the bits that it gives in C++, and leaves what it is handed as it is.

# Where C++ is silent and R tells: an option that is none, and a position in nothing.
is_refused <- function(message, arguments, given) {
  name <- sub(".*argument '([^']*)'.*", "\\1", message)
  domain <- arguments$domain[arguments$part == name]
  if (startsWith(domain, "option "))
    return(!(given[[name]] %in% as.numeric(strsplit(sub("option ", "", domain), "|", fixed = TRUE)[[1L]])))
  range <- regmatches(message, regexec("\\((-?[0-9]+) to (-?[0-9]+)\\)$", message))[[1L]]
  length(range) == 3L && as.numeric(range[3L]) < as.numeric(range[2L])
}

differences <- function(line) {
  arguments <- arguments_of(line$call)
  given <- Map(function(kind, entry) given_of(kind, if ("value" %in% names(entry)) entry$value else entry$before),
               arguments$kind, line$arguments)
  names(given) <- arguments$part
  held <- Map(comparable, arguments$kind, given)
  call_of <- get(line$call, envir = flat)
  result <- tryCatch(do.call(call_of, unname(given), quote = TRUE), error = function(error) error)
  if (inherits(result, "error"))
    return(if (is_refused(conditionMessage(result), arguments, given)) "refused" else conditionMessage(result))
  written <- arguments$role %in% c("out", "inout")
  wrong <- character()
  for (k in which(written)) {
    after <- given_of(arguments$kind[k], line$arguments[[k]]$after)
    own <- if (is.null(given[[k]])) NULL else result[[arguments$part[k]]]
    if (!identical(comparable(arguments$kind[k], own), comparable(arguments$kind[k], after)))
      wrong <- c(wrong, paste(arguments$part[k], "differs"))
  }
  own <- if (any(written)) result$result else result
  expected <- line$returns
  if (is.character(expected) && is.numeric(own)) expected <- doubles_of(expected)
  kind <- if (is.double(own)) "number" else "integer"
  same <- if (is.character(own)) identical(own, if (is.null(expected)) "" else expected)
    else identical(comparable(kind, own), comparable(kind, expected))
  if (!same) wrong <- c(wrong, "returns another value")
  if (!identical(held, Map(comparable, arguments$kind, given))) wrong <- c(wrong, "an argument was changed")
  wrong
}

test_that("every call has the bits that it has in C++", {
  calls <- dumped_calls()
  found <- lapply(calls, differences)
  names <- vapply(calls, `[[`, "", "call")
  refused <- vapply(found, identical, NA, "refused")
  wrong <- lengths(found) > 0L & !refused
  expect(!any(wrong), paste0(sum(wrong), " calls differ: ", paste(utils::head(
    paste0(names[wrong], ": ", vapply(found[wrong], paste, "", collapse = ", ")), 10L), collapse = "; ")))
  expect_setequal(names[!refused], ls(flat))
  expect_lt(mean(refused), 0.1)
})

test_that("there is a function for each of the library's, and no other", {
  expect_setequal(ls(flat), unique(vecmat:::flat_table()[["function"]]))
  expect_true(environmentIsLocked(flat))
})
