#' Covariances and correlations
#'
#' Of the columns of a table, pair by pair.
#'
#' With missing cells each covariance takes the rows in which both columns are present. A correlation does the same with its
#' two variances (`missing = "pairwise"`), so that it never leaves -1 to 1, or divides by the variances of the whole columns
#' (`"columns"`), as the library's matrix of correlations does; then variances come from other rows than the covariance.
#' `"complete"` leaves out every row with a missing cell.
#' @shared table weights exclude divisor
#' @param missing how missing cells are treated, see below.
#' @param object what `vm_cor` gave.
#' @shared dots
#' @return A symmetric matrix with the names of the columns. That of `vm_cor` has the class `vm_cor`, with methods for
#'   `print`, `summary` (the pairs as a data frame, the strongest first) and `plot` (see \code{\link{plot.vm_cor}}).
#' @contract VB_M_CovCorr VB_CorrelPearson
#' @examples
#' vm_cov(vm_penguins[3:6])
#' r <- vm_cor(vm_penguins[3:6])
#' r
#' summary(r)
#' @export
vm_cov <- function(x, weights = NULL, exclude = NULL, divisor = c("frequency", "reliability", "population"),
                   missing = c("pairwise", "complete")) {
  missing <- choice(missing, c("pairwise", "complete"), "missing")
  cov_matrix(table_of(x), column_names_of(x), weights, exclude, missing, 0L, divisor_codes(divisor))
}

# A correlation divides its covariance and its variances alike; by the sum of weights this holds for weights that sum to 1, too.
BY_SUM <- c(0L, 0L)

cov_matrix <- function(cells, names, weights, exclude, missing, corr, codes) {
  n <- nrow(cells)
  mask <- mask_of(exclude, n)
  if (missing == "complete") {
    incomplete <- rowSums(cells == vm_missing) > 0
    mask <- if (is.null(mask)) incomplete else mask | incomplete
  }
  found <- flat$VB_M_CovCorr(cells, n, ncol(cells), NULL, corr, mask, weights_of(weights, n), codes[1L], codes[2L])
  square_of(values(found$C), names)
}

#' @rdname vm_cov
#' @export
vm_cor <- function(x, weights = NULL, exclude = NULL, missing = c("pairwise", "complete", "columns")) {
  missing <- choice(missing, c("pairwise", "complete", "columns"), "missing")
  cells <- table_of(x)
  if (missing == "pairwise" && any(cells == vm_missing))
    found <- square_of(cor_by_pairs(cells, weights, exclude), column_names_of(x))
  else
    found <- cov_matrix(cells, column_names_of(x), weights, exclude, missing, -1L, BY_SUM)
  structure(found, class = c("vm_cor", "matrix", "array"))
}

cor_by_pairs <- function(cells, weights, exclude) {
  n <- nrow(cells)
  p <- ncol(cells)
  w <- weights_of(weights, n)
  mask <- mask_of(exclude, n)
  columns <- lapply(seq_len(p), function(j) cells[, j])
  found <- matrix(0, p, p)
  for (j in seq_len(p))
    for (i in j:p)
      found[i, j] <- found[j, i] <- flat$VB_CorrelPearson(columns[[i]], columns[[j]], n, mask, w, 0, -1)
  values(found)
}

#' @rdname vm_cov
#' @export
print.vm_cor <- function(x, ...) {
  print(unclass(x), ...)
  invisible(x)
}

#' @rdname vm_cov
#' @export
summary.vm_cor <- function(object, ...) {
  names <- rownames(object)
  if (is.null(names)) names <- as.character(seq_len(nrow(object)))
  pairs <- which(lower.tri(object), arr.ind = TRUE)
  found <- data.frame(first = names[pairs[, 2L]], second = names[pairs[, 1L]], correlation = unclass(object)[pairs])
  found <- found[order(-abs(found$correlation)), ]
  row.names(found) <- NULL
  found
}

#' Covariances together with means and spreads
#'
#' @shared table weights exclude divisor
#' @param correlation whether to give correlations instead of covariances.
#' @return A list of `matrix`, `mean`, `sd` and `var`.
#' @contract VB_M_CovCorrAndMeanStDevVar
#' @examples
#' vm_cov_moments(vm_penguins[3:6])$sd
#' @export
vm_cov_moments <- function(x, weights = NULL, exclude = NULL, divisor = c("frequency", "reliability", "population"),
                           correlation = FALSE) {
  cells <- table_of(x)
  n <- nrow(cells)
  codes <- divisor_codes(divisor)
  corr <- if (one_flag(correlation, "correlation")) -1L else 0L
  found <- flat$VB_M_CovCorrAndMeanStDevVar(cells, n, ncol(cells), corr = corr, mask = mask_of(exclude, n),
                                            w = weights_of(weights, n), sample = codes[1L], freqWeights = codes[2L],
                                            center = 0, reduce = 0)
  names <- column_names_of(x)
  list(matrix = square_of(values(found$C), names), mean = values(named(found$mean, names)),
       sd = values(named(found$stdev, names)), var = values(named(found$var, names)))
}

#' Covariances and correlations between two tables
#'
#' @shared table weights exclude divisor
#' @param y a table with the same rows.
#' @return A matrix with a row for each column of `x` and a column for each of `y`.
#' @contract VB_M_CorrMatMat
#' @examples
#' vm_cross_cov(vm_penguins[3:4], vm_penguins[5:6])
#' vm_cross_cor(vm_penguins[3:4], vm_penguins[5:6])
#' @export
vm_cross_cov <- function(x, y, weights = NULL, exclude = NULL, divisor = c("frequency", "reliability", "population")) {
  cross(table_of(x), table_of(y, "y", rows = rows_of(x)), x, y, weights, exclude, 0L, divisor_codes(divisor))
}

#' @rdname vm_cross_cov
#' @export
vm_cross_cor <- function(x, y, weights = NULL, exclude = NULL) {
  cross(of_unit_size(table_of(x)), of_unit_size(table_of(y, "y", rows = rows_of(x))), x, y, weights, exclude, -1L,
        BY_SUM)
}

cross <- function(X, Y, x, y, weights, exclude, corr, codes) {
  n <- nrow(X)
  found <- flat$VB_M_CorrMatMat(X, n, ncol(X), Y, ncol(Y), NULL, mask_of(exclude, n), weights_of(weights, n), corr, 0,
                                codes[1L], codes[2L])$C
  table_named(values(found), column_names_of(x), column_names_of(y))
}

# The power of two below a positive number, and 0 where there is none: to scale by it changes no digit.
exponent_of <- function(size) if (length(size) == 1L && is.finite(size) && size > 0) floor(log2(size)) + 1 else 0

# Each column brought to the size 1: the library's tolerances are absolute.
of_unit_size <- function(cells) {
  for (j in seq_len(ncol(cells))) {
    present <- cells[, j] != vm_missing
    if (any(present)) {
      held <- cells[present, j]
      cells[present, j] <- held * 2^-exponent_of(max(held) - min(held))
    }
  }
  cells
}

#' Correlation of two vectors, and correlations of covariances
#'
#' @shared vector weights exclude
#' @param y a vector of the same length.
#' @param s a symmetric matrix of covariances.
#' @return Of `vm_pearson` a number, `NA` where one vector has no spread; of `vm_cor_of_cov` a matrix, in which variables without
#'   variance have `NA`.
#' @contract VB_CorrelPearson VB_M_CorrMatFromCovMat
#' @examples
#' vm_pearson(c(1, 2, NA, 4), c(2, 1, 5, 7))
#' vm_cor_of_cov(cov(trees))
#' @export
vm_pearson <- function(x, y, weights = NULL, exclude = NULL) {
  u <- vector_of(x)
  n <- length(u)
  v <- vector_of(y, "y", n)
  values(flat$VB_CorrelPearson(u, v, n, mask_of(exclude, n), weights_of(weights, n), 0, -1))
}

#' @rdname vm_pearson
#' @export
vm_cor_of_cov <- function(s) {
  S <- table_of(s, "s", square = TRUE)
  variances <- diag(S)
  sizes <- vapply(variances, function(d) exponent_of(d) %/% 2, 0)
  kept <- S != vm_missing
  S[kept] <- (S * 2^-outer(sizes, sizes, `+`))[kept]
  square_of(values(flat$VB_M_CorrMatFromCovMat(S, nrow(S))$R), column_names_of(s))
}
