# guide_session.R FILE...: runs the statements of the files in one session and writes each file with `#> ` before what its
# statements print, as FILE with the ending .out. Called by guide.py.
options(width = 78, digits = 7)
session <- new.env(parent = globalenv())

printed <- function(statement) {
  run <- function() withVisible(eval(statement, session))
  told <- function(kind) function(condition) cat(kind, ": ", conditionMessage(condition), "\n", sep = "")
  lines <- capture.output({
    result <- tryCatch(
      withCallingHandlers(run(), warning = function(condition) {
        told("Warning")(condition)
        invokeRestart("muffleWarning")
      }),
      error = told("Error")
    )
    if (isTRUE(result$visible)) print(result$value)
  })
  sub("[ \t]+$", "", paste("#>", lines, recycle0 = TRUE))
}

for (file in commandArgs(trailingOnly = TRUE)) {
  lines <- readLines(file)
  statements <- parse(text = lines, keep.source = TRUE)
  out <- character()
  last <- 0
  for (i in seq_along(statements)) {
    end <- attr(statements, "srcref")[[i]][3]
    out <- c(out, lines[seq_len(end - last) + last], printed(statements[[i]]))
    last <- end
  }
  out <- c(out, lines[seq_len(length(lines) - last) + last])
  writeLines(out, sub("[.]R$", ".out", file))
}
