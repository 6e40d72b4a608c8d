#' Means
#'
#' The arithmetic mean, the mean of the absolute values, the harmonic mean and the sum of what is present.
#'
#' Missing cells are left out together with their weights; so are excluded rows. Sums run in row order, so that the digits
#' are the same on every machine; `mean` adds in long double, which not every machine has.
#' @shared x weights exclude
#' @return A number, or for a table a named vector with one for each column; `NA` where no value enters (of `vm_sum`, 0).
#' @contract VB_V_Mean2 VB_V_Mean VB_V_MeanAbs Cpp_V_HarmonicMean
#' @seealso \code{\link{vm_var}}, \code{\link{vm_quantile}}, \code{\link{vm_geometric_mean}}
#' @examples
#' vm_mean(c(4, NA, 5))
#' vm_mean(c(4, NA, 5), weights = c(1, 7, 3))
#' vm_mean(vm_penguins[3:6])
#' vm_mean_abs(c(-1, 2, NA))
#' vm_harmonic_mean(c(1, 2, 4))
#' vm_sum(c(1, NA, 2.5))
#' @export
vm_mean <- function(x, weights = NULL, exclude = NULL) {
  n <- rows_of(x)
  if (is.null(weights) && is.null(exclude)) return(by_column(x, function(v) flat$VB_V_Mean2(v, n)))
  w <- weights_of(weights, n)
  mask <- mask_of(exclude, n)
  by_column(x, function(v) flat$VB_V_Mean(v, n, mask, w))
}

#' @rdname vm_mean
#' @export
vm_mean_abs <- function(x, weights = NULL, exclude = NULL) {
  n <- rows_of(x)
  w <- weights_of(weights, n)
  mask <- mask_of(exclude, n)
  by_column(x, function(v) flat$VB_V_MeanAbs(v, n, mask, w))
}

#' @rdname vm_mean
#' @export
vm_harmonic_mean <- function(x, weights = NULL, exclude = NULL) {
  n <- rows_of(x)
  w <- weights_of(weights, n)
  mask <- mask_of(exclude, n)
  by_column(x, function(v) flat$Cpp_V_HarmonicMean(v, n, mask, w))
}

#' @rdname vm_mean
#' @export
vm_sum <- function(x, weights = NULL, exclude = NULL) {
  n <- rows_of(x)
  w <- weights_of(weights, n)
  kept <- !full_mask_of(exclude, n)
  by_column(x, function(v) {
    kept <- kept & v != vm_missing
    flat$VB_V_ProductTrV1V2(v[kept], sum(kept), w[kept])
  })
}

#' Geometric mean and geometric standard deviation
#'
#' Of positive values; both are `NA` where one is 0 or below.
#' @shared vector weights exclude
#' @return A list of `mean` and `sd`.
#' @contract Cpp_V_GMeanGSD
#' @examples
#' vm_geometric_mean(vm_penguins$body_mass_g)
#' @export
vm_geometric_mean <- function(x, weights = NULL, exclude = NULL) {
  v <- vector_of(x)
  n <- length(v)
  found <- flat$Cpp_V_GMeanGSD(v, n, mask_of(exclude, n), weights_of(weights, n))
  list(mean = values(found$gmean), sd = values(found$gsd))
}

#' Mean and variance where a condition holds
#'
#' @shared vector weights
#' @param where a logical vector, `TRUE` for the rows that enter.
#' @param divisor `"frequency"` divides by the sum of weights less 1, `"population"` by the sum of weights.
#' @return A number, `NA` where no row is selected, or where the divisor is not above 0.
#' @details Rows of weight 0 are left out of `vm_var_where`.
#' @contract VB_V_MeanIf VB_V_MeanIfW VB_V_VarIf VB_V_VarIfW
#' @examples
#' birds <- subset(vm_penguins, !is.na(sex))
#' vm_mean_where(birds$body_mass_g, birds$sex == "male")
#' vm_var_where(c(1, 2, 4, 99), c(TRUE, TRUE, TRUE, FALSE))
#' @export
vm_mean_where <- function(x, where, weights = NULL) {
  v <- vector_of(x)
  group <- as.double(flags_of(where, length(v), "where"))
  if (is.null(weights)) return(values(flat$VB_V_MeanIf(v, length(v), group, 1)))
  values(flat$VB_V_MeanIfW(v, length(v), group, weights_of(weights, length(v)), 1))
}

#' @rdname vm_mean_where
#' @export
vm_var_where <- function(x, where, weights = NULL, divisor = c("frequency", "population")) {
  v <- vector_of(x)
  group <- as.double(flags_of(where, length(v), "where"))
  sample <- if (choice(divisor, c("frequency", "population"), "divisor") == "frequency") -1L else 0L
  if (is.null(weights)) return(values(flat$VB_V_VarIf(v, length(v), group, 1, sample)))
  w <- weights_of(weights, length(v))
  group[w == 0] <- 0
  values(flat$VB_V_VarIfW(v, length(v), group, w, 1, sample))
}
