#' Statistics that know what is missing, weigh rows, and give the same digits everywhere
#'
#' Functions over vectors, matrices, data frames and factors, and the flat functions of the library below them.
#'
#' All names begin with `vm_`, so that nothing of R is masked. `NA` and `NaN` are missing, infinities are numbers. `weights` weighs rows,
#' `exclude` leaves rows out, `divisor` says by what a variance is divided. Names of rows and columns stay.
#'
#' \code{\link{flat}} has the library's own functions. `vignette("vecmat")` goes through the penguins, side by side with R's functions.
#' @docType package
#' @name vecmat
#' @aliases vecmat-package
NULL

#' Penguins of the Palmer archipelago
#'
#' Measurements of 344 penguins of three species; 19 cells are missing.
#' @docType data
#' @format A data frame of 344 rows with the columns `species`, `island`, `bill_length_mm`, `bill_depth_mm`, `flipper_length_mm`,
#'   `body_mass_g` and `sex`.
#' @source K. B. Gorman, T. D. Williams and W. R. Fraser (2014), Ecological Sexual Dimorphism and Environmental Variability within a
#'   Community of Antarctic Penguins (Genus Pygoscelis), PLoS ONE 9(3): e90081.
#' @examples
#' summary(vm_penguins)
"vm_penguins"
