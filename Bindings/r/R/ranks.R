#' Ranks
#'
#' Ranks of what is present; missing values have none.
#'
#' With `ties = "average"`, equal values share the mean of their places, as in `rank`. Weights are no frequencies: they weigh the
#' places within a run of ties, and values that are not tied keep theirs. With `"dense"`, equal values have one rank and the next
#' takes the next number.
#' @shared vector weights
#' @param ties `"average"` or `"dense"`.
#' @return A vector of ranks with the names of `x`.
#' @contract VB_V_GetRanksTiesDbl VB_V_GetRanksDbl
#' @examples
#' vm_rank(c(10, 20, NA, 10))
#' vm_rank(c(10, 20, 20, 30), weights = c(1, 1, 3, 1))
#' vm_rank(c(10, 20, 20, 30), ties = "dense")
#' @export
vm_rank <- function(x, weights = NULL, ties = c("average", "dense")) {
  v <- vector_of(x)
  n <- length(v)
  if (choice(ties, c("average", "dense"), "ties") == "average") {
    w <- weights_of(weights, n)
    ranks <- if (n) flat$VB_V_GetRanksTiesDbl(v, n, w)$ranks else double()
  } else {
    if (!is.null(weights)) wrong("weights", "only with ties = \"average\"")
    present <- v != vm_missing
    ranks <- rep(NA_real_, n)
    ranks[present] <- flat$VB_V_GetRanksDbl(v[present], sum(present))$ranks
  }
  like(values(ranks), x)
}

#' Sort values and rows
#'
#' Missing values come last, whatever the direction. Rows are sorted by a run of columns, the first one first.
#' @shared vector
#' @param descending whether the largest comes first.
#' @param by the first and the last column to sort by; `NULL` takes all.
#' @return `vm_sort` gives the sorted values, `vm_order` their places in `x`, `vm_sort_rows` the sorted table.
#' @contract VB_SortQVectorDbl VB_SortQDbl VB_SortMatrixSeqQP1toP2Dbl
#' @examples
#' vm_sort(c(3, NA, 1, 2))
#' vm_order(c(3, NA, 1, 2))
#' vm_sort_rows(cbind(a = c(2, 1, 2), b = c(1, 5, 0)))
#' @export
vm_sort <- function(x, descending = FALSE) {
  v <- vector_of(x)
  kept <- v[v != vm_missing]
  direction <- if (one_flag(descending, "descending")) -1L else 0L
  if (length(kept)) kept <- flat$VB_SortQVectorDbl(kept, length(kept), 1, length(kept), direction)$x
  c(kept, rep(NA_real_, length(v) - length(kept)))
}

#' @rdname vm_sort
#' @export
vm_order <- function(x, descending = FALSE) {
  v <- vector_of(x)
  present <- which(v != vm_missing)
  direction <- if (one_flag(descending, "descending")) -1L else 0L
  n <- length(present)
  rows <- as.double(present)
  if (n) rows <- flat$VB_SortQDbl(rows, n, 1, 1, n, v[present], double(n), 0, direction, 0)$data
  c(as.integer(rows), which(v == vm_missing))
}

#' @rdname vm_sort
#' @export
vm_sort_rows <- function(x, by = NULL) {
  cells <- table_of(x)
  n <- nrow(cells)
  p <- ncol(cells)
  if (is.null(by)) by <- c(1L, p)
  if (length(by) != 2L) wrong("by", "expected the first and the last column, got ", described(by))
  first <- one_whole(by[1L], "by", 1, max(p, 1L))
  last <- one_whole(by[2L], "by", first, max(p, 1L))
  order <- seq_len(n)
  if (n && p) order <- flat$VB_SortMatrixSeqQP1toP2Dbl(cbind(cells, order), n, p + 1L, first, last, -1)$table[, p + 1L]
  x[order, , drop = FALSE]
}

#' Whether values ascend, and the size of their steps
#'
#' @shared vector
#' @param t a vector of times.
#' @param strict whether equal neighbours are not in order.
#' @return `vm_is_sorted` gives `TRUE` or `FALSE`, `vm_step_size` a number: the largest one of which all steps between the times are
#'   multiples, `NA` where there is none.
#' @contract VB_V_IsSorted VB_V_TimeIntervalSize
#' @examples
#' vm_is_sorted(c(1, 2, 2))
#' vm_is_sorted(c(1, 2, 2), strict = TRUE)
#' vm_step_size(c(0, 0.5, 2))
#' @export
vm_is_sorted <- function(x, strict = FALSE) {
  v <- vector_of(x)
  strict <- if (one_flag(strict, "strict")) -1L else 0L
  !length(v) || flat$VB_V_IsSorted(v, length(v), strict) != 0L
}

#' @rdname vm_is_sorted
#' @export
vm_step_size <- function(t) {
  v <- vector_of(t, "t")
  if (length(v) < 2L) wrong("t", "expected at least 2 times, got ", length(v))
  if (any(v == vm_missing) || !all(is.finite(v))) return(NA_real_)
  ordered <- sort(v)
  size <- ordered[2L] - ordered[1L]
  if (size <= 0) return(NA_real_)
  exponent <- exponent_of(size)
  found <- flat$VB_V_TimeIntervalSize(ordered * 2^-exponent, length(v), -1)
  if (found > 0 && found != vm_missing) found * 2^exponent else NA_real_
}

#' Errors of a forecast
#'
#' The mean absolute percentage error, the mean percentage error, the mean absolute error and the root of the mean squared
#' error. Rows in which either number is missing are left out.
#' @param y what came.
#' @param forecast what was forecast, of the same length.
#' @shared weights
#' @param first the first row that counts.
#' @param divisor by what the sum of squares is divided; `NULL` takes the number of rows that enter.
#' @return A number, `NA` where no row enters.
#' @contract VB_MAPE VB_MPE VB_MAE VB_RMSE
#' @examples
#' y <- c(10, 12, NA, 20)
#' f <- c(11, 12, 15, 18)
#' c(vm_mape(y, f), vm_mpe(y, f), vm_mae(y, f), vm_rmse(y, f))
#' @export
vm_mape <- function(y, forecast, weights = NULL, first = 1) forecast_error(flat$VB_MAPE, y, forecast, weights, first)

#' @rdname vm_mape
#' @export
vm_mpe <- function(y, forecast, weights = NULL, first = 1) forecast_error(flat$VB_MPE, y, forecast, weights, first)

#' @rdname vm_mape
#' @export
vm_mae <- function(y, forecast, weights = NULL, first = 1) forecast_error(flat$VB_MAE, y, forecast, weights, first)

#' @rdname vm_mape
#' @export
vm_rmse <- function(y, forecast, divisor = NULL) {
  actual <- vector_of(y, "y")
  predicted <- vector_of(forecast, "forecast", length(actual))
  kept <- actual != vm_missing & predicted != vm_missing
  count <- if (is.null(divisor)) sum(kept) else one_whole(divisor, "divisor", 1)
  if (!any(kept)) return(NA_real_)
  flat$VB_RMSE(actual[kept], sum(kept), 1, predicted[kept], count)
}

forecast_error <- function(error, y, forecast, weights, first) {
  actual <- vector_of(y, "y")
  n <- length(actual)
  predicted <- vector_of(forecast, "forecast", n)
  if (!n) return(NA_real_)
  first <- one_whole(first, "first", 1, n)
  rows <- first:n
  if (!any(actual[rows] != vm_missing & predicted[rows] != vm_missing)) return(NA_real_)
  values(error(actual, predicted, n, weights_of(weights, n), first))
}
