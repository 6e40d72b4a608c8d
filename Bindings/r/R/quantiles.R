#' Quantiles and medians
#'
#' By interpolation (type 7 of `quantile`); with unequal weights by a step rule.
#'
#' Weights that are all equal give the interpolated quantile, unequal ones a step rule: the result can jump when the last two
#' weights become equal. The library's plain quantile counts missing cells as values in front of all others;
#' `missing = "count"` asks for it.
#' @shared x weights exclude
#' @param probs probabilities, from 0 to 1.
#' @param missing `"omit"` leaves missing cells out, `"count"` lets them stand in front of all others.
#' @return Of a vector a vector with the quantiles, named as `quantile` does; of a table a matrix with a column for each of its
#'   columns. `vm_median` gives a number, or one for each column. `NA` where no value is left, and where a counted missing
#'   value is the quantile or next to it.
#' @contract VB_V_QuantileM VB_V_QuantileMW VB_V_Quantile VB_V_QuantileW
#' @examples
#' vm_quantile(vm_penguins$body_mass_g)
#' vm_quantile(c(1, 2, 3), 0.5, weights = c(1, 1, 5))
#' vm_quantile(c(1, 2, 3, NA), 0.5)
#' vm_quantile(c(1, 2, 3, NA), 0.5, missing = "count")
#' vm_median(vm_penguins[3:6])
#' @export
vm_quantile <- function(x, probs = c(0, 0.25, 0.5, 0.75, 1), weights = NULL, exclude = NULL, missing = c("omit", "count")) {
  probs <- numbers(probs, "probs")
  if (anyNA(probs) || any(probs < 0 | probs > 1)) wrong("probs", "expected probabilities from 0 to 1")
  counted <- choice(missing, c("omit", "count"), "missing") == "count"
  n <- rows_of(x)
  w <- if (!is.null(weights)) weights_of(weights, n)
  mask <- mask_of(exclude, n)
  one <- function(p) by_column(x, function(v) if (counted) counting_quantile(v, w, mask, p) else present_quantile(v, w, mask, p))
  found <- lapply(probs, one)
  shown <- if (length(probs)) paste0(format(100 * probs, trim = TRUE, digits = 7L), "%") else character()
  if (!is_table(x)) return(named(as.double(unlist(found)), shown))
  matrix(unlist(found), length(probs), ncol(x), byrow = TRUE, dimnames = list(shown, column_names_of(x)))
}

present_quantile <- function(v, w, mask, p) {
  if (is.null(w)) flat$VB_V_QuantileM(v, length(v), mask, p) else flat$VB_V_QuantileMW(v, length(v), mask, w, p)
}

counting_quantile <- function(v, w, mask, p) {
  kept <- if (is.null(mask)) rep(TRUE, length(v)) else !mask
  v <- v[kept]
  if (!length(v)) return(vm_missing)
  found <- if (is.null(w)) flat$VB_V_Quantile(v, length(v), p) else flat$VB_V_QuantileW(v, length(v), w[kept], p)
  # A neighbour that is the missing value draws the interpolated result down to its size: no number is there.
  if (found < -1e300 && any(v == vm_missing)) vm_missing else found
}

#' @rdname vm_quantile
#' @export
vm_median <- function(x, weights = NULL, exclude = NULL) {
  n <- rows_of(x)
  w <- if (!is.null(weights)) weights_of(weights, n)
  mask <- mask_of(exclude, n)
  by_column(x, function(v) present_quantile(v, w, mask, 0.5))
}

#' Clip a vector to its own quantiles
#'
#' @shared vector
#' @param low,high the probabilities of the two quantiles, from 0 to 1.
#' @return The vector; missing values stay, and do not count in the quantiles.
#' @contract Cpp_V_Winsorize2
#' @examples
#' vm_winsorize(c(1, 2, 3, 4, 100), 0.25, 0.75)
#' @export
vm_winsorize <- function(x, low = 0.05, high = 0.95) {
  low <- one_number(low, "low", 0, 1)
  high <- one_number(high, "high", 0, 1)
  v <- vector_of(x)
  present <- v != vm_missing
  result <- rep(NA_real_, length(v))
  result[present] <- flat$Cpp_V_Winsorize2(v[present], sum(present), low, high)$v
  like(result, x)
}
