#' Variance and standard deviation
#'
#' With weights, the divisor says what these mean: how often a row was seen, or how much it counts.
#'
#' `var` and `sd` have no weights and no divisor. `cov.wt` makes weights sum to 1 and divides by
#' \eqn{1 - \sum w^2}{1 - sum(w^2)}; `"reliability"` divides by \eqn{W - W/m}{W - W/m}, which is the same where all weights
#' are equal.
#' @shared x weights exclude divisor zero_weights
#' @return A number, or for a table a named vector with one for each column; `NA` where the divisor is not above 0.
#' @contract VB_V_Var VB_V_Stdev
#' @examples
#' vm_var(vm_penguins$body_mass_g)
#' vm_sd(vm_penguins[3:6])
#' vm_var(c(1, 2, 4), weights = c(2, 1, 1))
#' var(c(1, 1, 2, 4))
#' @export
vm_var <- function(x, weights = NULL, exclude = NULL, divisor = c("frequency", "reliability", "population"),
                   zero_weights = c("counted", "skipped")) {
  spread_by_column(flat$VB_V_Var, x, weights, exclude, divisor, zero_weights)
}

#' @rdname vm_var
#' @export
vm_sd <- function(x, weights = NULL, exclude = NULL, divisor = c("frequency", "reliability", "population"),
                  zero_weights = c("counted", "skipped")) {
  spread_by_column(flat$VB_V_Stdev, x, weights, exclude, divisor, zero_weights)
}

spread_by_column <- function(spread, x, weights, exclude, divisor, zero_weights) {
  n <- rows_of(x)
  w <- weights_of(weights, n)
  mask <- mask_of(exclude, n)
  if (choice(zero_weights, c("counted", "skipped"), "zero_weights") == "skipped")
    mask <- (w == 0) | if (is.null(mask)) FALSE else mask
  codes <- divisor_codes(divisor)
  by_column(x, function(v) spread(v, n, mask, w, codes[1L], codes[2L]))
}

#' Moments: mean, variance, skewness and kurtosis
#'
#' Both forms of skewness and excess kurtosis, with the standard errors of the sample forms.
#' @shared vector weights exclude divisor
#' @param object what `vm_moments` gave.
#' @shared dots
#' @return A list of the class `vm_moments`: `mean`, `var`, `population_skewness`, `population_kurtosis`, `skewness`,
#'   `kurtosis`, `skewness_error` and `kurtosis_error`. `summary` makes a data frame of it, a row for each.
#' @contract VB_V_MeanVarSkewPKurtP
#' @examples
#' vm_moments(vm_penguins$body_mass_g)
#' summary(vm_moments(vm_penguins$body_mass_g))
#' @export
vm_moments <- function(x, weights = NULL, exclude = NULL, divisor = c("population", "frequency", "reliability")) {
  divisor <- choice(divisor, c("population", "frequency", "reliability"), "divisor")
  v <- vector_of(x)
  n <- length(v)
  w <- weights_of(weights, n)
  mask <- full_mask_of(exclude, n)
  codes <- divisor_codes(divisor)
  found <- flat$VB_V_MeanVarSkewPKurtP(v, n, mask = mask, w = w, sample = codes[1L], freqWeights = codes[2L])
  if (!any(v != vm_missing & !mask)) found$mean <- NA_real_
  found <- lapply(found, values)
  names(found) <- c("mean", "var", "population_skewness", "population_kurtosis", "skewness", "kurtosis", "skewness_error",
                    "kurtosis_error")
  structure(found, class = "vm_moments")
}

#' @rdname vm_moments
#' @export
print.vm_moments <- function(x, ...) {
  print(unlist(unclass(x)), ...)
  invisible(x)
}

#' @rdname vm_moments
#' @export
summary.vm_moments <- function(object, ...) {
  data.frame(estimate = c(object$mean, object$var, object$skewness, object$kurtosis),
             error = c(NA, NA, object$skewness_error, object$kurtosis_error),
             row.names = c("mean", "var", "skewness", "kurtosis"))
}

#' Skewness and excess kurtosis
#'
#' The sample forms \eqn{G_1}{G1} and \eqn{G_2}{G2}, or the population forms.
#' @shared x weights exclude
#' @param population whether to give the form divided by powers of the variance with divisor \eqn{W}{W}.
#' @return A number, or for a table a named vector with one for each column.
#' @contract VB_V_MeanVarSkewPKurtP
#' @examples
#' vm_skewness(c(1, 2, 3, 10))
#' vm_kurtosis(vm_penguins[3:6])
#' @export
vm_skewness <- function(x, weights = NULL, exclude = NULL, population = FALSE) {
  part <- if (one_flag(population, "population")) "population_skewness" else "skewness"
  by_column(x, function(v) as.double(vm_moments(v, weights, exclude)[[part]]))
}

#' @rdname vm_skewness
#' @export
vm_kurtosis <- function(x, weights = NULL, exclude = NULL, population = FALSE) {
  part <- if (one_flag(population, "population")) "population_kurtosis" else "kurtosis"
  by_column(x, function(v) as.double(vm_moments(v, weights, exclude)[[part]]))
}

#' Median and mean of the absolute deviations
#'
#' From the median and from the mean, or from a centre of one's own. `mad` multiplies by 1.4826 and has no weights.
#' @shared x weights exclude
#' @param centre a number; `NULL` takes the median of the values, or their mean.
#' @return A number, or for a table a named vector with one for each column.
#' @contract Cpp_V_MedianAbsDev Cpp_V_MeanAbsDev
#' @examples
#' vm_mad(vm_penguins$bill_length_mm)
#' mad(vm_penguins$bill_length_mm, constant = 1, na.rm = TRUE)
#' vm_mean_deviation(c(1, 2, 6))
#' @export
vm_mad <- function(x, centre = NULL, weights = NULL, exclude = NULL) {
  n <- rows_of(x)
  deviation_by_column(x, centre, n, mask_of(exclude, n), weights_of(weights, n),
                      function(v, n, mask, w) flat$VB_V_QuantileMW(v, n, mask, w, 0.5), flat$Cpp_V_MedianAbsDev)
}

#' @rdname vm_mad
#' @export
vm_mean_deviation <- function(x, centre = NULL, weights = NULL, exclude = NULL) {
  n <- rows_of(x)
  deviation_by_column(x, centre, n, mask_of(exclude, n), weights_of(weights, n), flat$VB_V_Mean, flat$Cpp_V_MeanAbsDev)
}

deviation_by_column <- function(x, centre, n, mask, w, middle, deviation) {
  if (!is.null(centre)) centre <- one_number(centre, "centre")
  by_column(x, function(v) {
    from <- if (is.null(centre)) middle(v, n, mask, w) else centre
    if (from == vm_missing) vm_missing else deviation(v, n, from, mask, w)
  })
}

#' Smallest and largest values
#'
#' Of what is present. Where there is none they are `NA`; `min` and `max` give infinities and warn.
#' @shared x exclude
#' @return Of `vm_range` two numbers, of a vector; of `vm_min` and `vm_max` a number, or for a table a named vector with one
#'   for each column.
#' @contract VB_V_MinMax
#' @examples
#' vm_range(vm_penguins$body_mass_g)
#' vm_min(vm_penguins[3:6])
#' vm_max(c(3, NA, 1))
#' @export
vm_range <- function(x, exclude = NULL) {
  v <- vector_of(x)
  found <- flat$VB_V_MinMax(v, length(v), mask = full_mask_of(exclude, length(v)))
  c(values(found$min), values(found$max))
}

#' @rdname vm_range
#' @export
vm_min <- function(x, exclude = NULL) {
  mask <- full_mask_of(exclude, rows_of(x))
  by_column(x, function(v) flat$VB_V_MinMax(v, length(v), mask = mask)$min)
}

#' @rdname vm_range
#' @export
vm_max <- function(x, exclude = NULL) {
  mask <- full_mask_of(exclude, rows_of(x))
  by_column(x, function(v) flat$VB_V_MinMax(v, length(v), mask = mask)$max)
}
