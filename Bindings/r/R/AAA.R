# The first file to be loaded: the environment that the flat functions are put into (flat_functions.R).

#' The library's flat functions
#'
#' An environment with each of the library's flat functions under its own name and with its own arguments: plain vectors,
#' tables column after column, and their dimensions.
#'
#' This layer is the library's contract to the bit. A missing cell is `vm_missing`, not `NA`; a flag is `TRUE` or -1. A
#' table is a matrix or a vector of its cells; an array of columns is a list, as a data frame is. Arguments are matched by
#' name and place as in any function of R.
#'
#' Nothing that is handed over is changed. Vectors that are only read go in without a copy where their type fits; what
#' the function writes is a copy, or is made by the call where the argument is left out, with `vm_missing` in the cells
#' that are not written. A result that may be absent (see \code{\link{vm_contract}}) is absent unless a vector is handed
#' over for it.
#'
#' Lengths, types, and cells that address memory are checked before the call. What does not fit is an error that names
#' the function, the argument, what came and what was expected.
#' @docType data
#' @format An environment of functions, which is locked.
#' @return A function that writes gives a list: `result`, if it has one, and each argument that it wrote under its name.
#'   Any other gives its result.
#' @seealso \code{\link{vm_contract}} tells what each of them does.
#' @examples
#' flat$VB_V_Mean2(c(4, vm_missing, 5), 3)
#'
#' x <- cbind(c(1, 3), c(2, vm_missing))
#' flat$VB_M_NbMissing(x, 2, 2)
#'
#' try(flat$VB_V_Mean2(c(4, 5), 3))
#' @export
flat <- new.env(parent = emptyenv())

#' The missing value
#'
#' The number that stands for a missing cell in the library, and in \code{\link{flat}}. The other functions of this package
#' take and give `NA`.
#' @docType data
#' @format One number, -1.79769313486231e308.
#' @examples
#' vm_missing
#' @export
vm_missing <- -0x1.fffffffffffe2p+1023
