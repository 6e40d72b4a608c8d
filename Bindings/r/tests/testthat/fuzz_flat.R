# fuzz_flat.R SEED [--seconds S | --calls N] [--first K] [--note FILE]: calls of flat functions in which several arguments
# at once do not fit, drawn from the seed. Case k is the same whatever came before it, so `--first k --calls 1` repeats one.
#
# R has to survive, with its memory collected all the time in some cases, and no argument may be changed. What happens
# otherwise is printed, and the exit status is 1. FILE holds the number of the case that runs.
library(vecmat, lib.loc = strsplit(Sys.getenv("VECMAT_TEST_LIBRARY"), .Platform$path.sep)[[1L]])
skip_if <- function(...) NULL
skip_if_not_installed <- function(...) NULL
source("helper-flat.R")
source("helper-hostile.R")

options(warn = -1)
words <- commandArgs(trailingOnly = TRUE)
option <- function(name, otherwise) {
  at <- match(paste0("--", name), words)
  if (is.na(at)) otherwise else if (is.numeric(otherwise)) as.numeric(words[at + 1L]) else words[at + 1L]
}
seed <- as.numeric(words[1L])

pick <- function(list) list[[sample.int(length(list), 1L)]]
chance <- function(p) stats::runif(1L) < p

random_doubles <- function(n) readBin(as.raw(sample.int(256L, 8L * n, replace = TRUE) - 1L), "double", n)

# The value in another shape, class or representation.
dressed <- function(value) {
  n <- length(value)
  ways <- list(
    function() structure(value, dim = c(1L, n)), function() structure(value, dim = c(n, 1L)), function() array(value, c(n, 1L, 1L)),
    function() stats::setNames(value, rep("a", n)), function() structure(value, class = "odd"), function() factor(unlist(value)),
    function() as.Date(as.numeric(unlist(value)), origin = "1970-01-01"), function() seq_len(n), function() as.character(seq_len(n)),
    function() as.list(value), function() data.frame(unlist(value)), function() value[rep(NA_integer_, n)], function() rev(value),
    function() as.logical(unlist(value)), function() as.complex(unlist(value)), function() I(value), function() value[0L],
    function() c(value, value), function() as.pairlist(value), function() structure(list(), names = character()),
    function() rep(list(value), n), function() if (is.list(value)) lapply(value, `[`, -1L) else value[-1L],
    function() if (is.list(value)) c(value[-1L], list(NULL)) else c(value[-1L], NA))
  pick(ways)()
}

odd <- function(kind, value) {
  if (chance(0.3) && length(value)) return(dressed(value))
  pick(Filter(length, list(wrong_types(kind, value), wrong_sizes(kind, value), odd_values(kind, value), list(NULL))))
}

with_random_cells <- function(kind, value) {
  if (kind != "doubles" || !length(value) || !chance(0.3)) return(value)
  ifelse(stats::runif(length(value)) < 0.3, random_doubles(length(value)), value)
}

arguments_for <- function(line) {
  kinds <- arguments_of(line$call)$kind
  values <- unname(Map(with_random_cells, kinds, given_to(line)))
  for (change in seq_len(sample(c(0L, 1L, 1L, 2L, 3L), 1L))) {
    if (!length(values)) break
    k <- sample.int(length(values), 1L)
    if (!is.null(values[[k]])) values[k] <- list(odd(kinds[k], values[[k]]))
  }
  if (length(values) > 1L && chance(0.1)) values[sample.int(length(values), 1L)] <- values[sample.int(length(values), 1L)]
  if (chance(0.02)) values <- utils::head(values, sample.int(length(values) + 1L, 1L) - 1L)
  values
}

is_plain <- function(value) is.numeric(value) || is.character(value) || (is.list(value) && all(vapply(value, is.atomic, TRUE)))
same <- function(a, b) identical(a, b, num.eq = FALSE, single.NA = FALSE)

# The complaint about case k; nothing where there is none.
attempt <- function(k) {
  set.seed((seed * 1000003 + k) %% 2147483647)
  line <- pick(calls)
  values <- tryCatch(arguments_for(line), error = function(e) NULL)
  if (is.null(values)) return(NULL) # there is no such argument
  held <- Filter(is_plain, values)
  copies <- unserialize(serialize(held, NULL))
  if (chance(0.01)) gctorture2(sample.int(20L, 1L))
  tryCatch(do.call(get(line$call, envir = flat), values, quote = TRUE), error = identity)
  gctorture(FALSE)
  if (!same(held, copies)) paste0("case ", k, ": ", line$call, ": an argument was changed")
}

calls <- Filter(function(line) !line$call %in% LONG, dumped_calls())
first <- option("first", 0)
end <- proc.time()[["elapsed"]] + option("seconds", Inf)
note <- option("note", "")
complaints <- character()
k <- first
while (k < first + option("calls", Inf) && proc.time()[["elapsed"]] < end) {
  if (nzchar(note)) writeLines(sprintf("seed %.0f, case %.0f", seed, k), note)
  complaints <- c(complaints, attempt(k))
  k <- k + 1
}
writeLines(complaints)
cat(sprintf("r_arguments: %.0f calls, seed %.0f, %s\n", k - first, seed,
            if (length(complaints)) paste(length(complaints), "findings") else "no finding"))
if (length(complaints) || k == first) quit(status = 1L)
