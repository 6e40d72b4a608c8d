#' What a flat function does
#'
#' The contract of one of the functions in \code{\link{flat}}: what it computes, its arguments, and what becomes of
#' missing cells, masks, weights, divisors and empty input.
#' @param name the name of the function.
#' @param x what `vm_contract` gave.
#' @shared dots
#' @return A data frame of the class `vm_contract`, with the columns `part` and `text`, which prints as a page.
#' @examples
#' vm_contract("VB_V_Mean2")
#' @importFrom utils read.delim
#' @export
vm_contract <- function(name) {
  name <- one_string(name, "name")
  contracts <- flat_table()
  rows <- contracts[contracts[["function"]] == name, c("part", "text")]
  if (!nrow(rows))
    stop("name: there is no flat function ", sQuote(name, FALSE), call. = FALSE)
  row.names(rows) <- NULL
  structure(rows, class = c("vm_contract", "data.frame"), name = name)
}

#' @rdname vm_contract
#' @export
print.vm_contract <- function(x, ...) {
  cat(attr(x, "name"), "\n", sep = "")
  for (i in seq_len(nrow(x))) {
    text <- if (nzchar(x$part[i])) paste0(x$part[i], ": ", x$text[i]) else x$text[i]
    cat(strwrap(text, 78, indent = 2, exdent = if (nzchar(x$part[i])) 6 else 2), sep = "\n")
  }
  invisible(x)
}

cache <- new.env(parent = emptyenv())

# A row for each function, argument, and subject of its contract; read when it is asked for.
flat_table <- function() {
  if (is.null(cache$flat))
    cache$flat <- read.delim(system.file("flat.tsv", package = "vecmat"), quote = "", colClasses = "character",
                             check.names = FALSE)
  cache$flat
}
