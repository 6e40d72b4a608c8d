# No argument of a flat function may end the process, and what does not fit is an error that names the argument.

test_that("every function survives, and names the argument", {
  skip_if(Sys.getenv("VECMAT_DUMPED_CALLS") == "", "VECMAT_DUMPED_CALLS names no file: tools/test r makes one")
  skip_on_os("windows")
  log <- tempfile()
  script <- paste("ulimit -v 4000000; exec", shQuote(file.path(R.home("bin"), "Rscript")), "--vanilla hostile.R 2>", shQuote(log))
  Sys.setenv(VECMAT_TEST_LIBRARY = paste(.libPaths(), collapse = .Platform$path.sep))
  told <- suppressWarnings(system2("sh", c("-c", shQuote(script)), stdout = TRUE))
  last <- utils::tail(readLines(log, warn = FALSE), 3L)
  expect(is.null(attr(told, "status")), paste("ended in:", paste(last, collapse = "; ")))
  survived <- utils::tail(told, 1L)
  expect_match(survived, "^survived: 515 functions")
  wrong <- utils::head(told, -1L)
  expect(!length(wrong), paste(length(wrong), "calls:", paste(utils::head(wrong, 15L), collapse = "; ")))
  expect_gt(as.integer(sub(".*, (\\d+) calls", "\\1", survived)), 40000L)
})

test_that("memory that is not there is an error", {
  skip_on_os(c("windows", "mac"))
  library <- paste(.libPaths(), collapse = .Platform$path.sep)
  script <- tempfile(fileext = ".R")
  writeLines(c(sprintf("library(vecmat, lib.loc = strsplit(%s, .Platform$path.sep)[[1L]])", dQuote(library, FALSE)),
               "x <- as.double(4e7:1)",
               "cat(tryCatch(flat$VB_V_QuantileM(x, length(x), NULL, 0.5), error = conditionMessage))"), script)
  told <- system2("sh", c("-c", shQuote(paste("ulimit -v 900000; exec", file.path(R.home("bin"), "Rscript"), "--vanilla", script))),
                  stdout = TRUE)
  expect_match(paste(told, collapse = " "), "VB_V_QuantileM\\(\\): there is not enough memory")
})

test_that("more columns than R's stack of protected objects has room for", {
  columns <- rep(list(c(1L, NA)), 60000L)
  done <- flat$VB_M_ReplaceMissingByValSPV(columns, 2, 60000, 7)
  expect_identical(unique(done$a), list(c(1, 7)))
})
