# Tables come to the scale 1 before the library's absolute tolerances apply; a power of two changes no digit.
scale_of <- function(cells) if (length(cells)) exponent_of(max(abs(cells))) else 0
scaled_by <- function(cells, exponent) if (exponent == 0) cells else cells * 2^-exponent

singular <- function() stop("a: the matrix is singular, or nearly so", call. = FALSE)
unsettled <- function(what) stop("the ", what, " do not settle", call. = FALSE)

#' Eigenvalues, singular values and rank
#'
#' @shared square
#' @param x a numeric matrix or data frame without missing cells.
#' @return `vm_eigen` gives a list of `values`, largest first, and `vectors` of a symmetric matrix, as `eigen` does; `vm_svd` a list of
#'   `d`, `u` and `v`, as `svd` does; `vm_matrix_rank` a whole number.
#' @contract VB_M_Eigen VB_M_SVDecomp VB_M_Rank
#' @examples
#' vm_eigen(cbind(c(2, 1), c(1, 2)))
#' vm_svd(cbind(1:3, c(1, 0, 1)))$d
#' vm_matrix_rank(cbind(1:3, 2 * (1:3)))
#' @export
vm_eigen <- function(a) {
  A <- complete_of(a)
  n <- nrow(A)
  exponent <- scale_of(A)
  if (!n) return(list(values = double(), vectors = A))
  found <- flat$VB_M_Eigen(scaled_by(A, exponent), n = n, sort = -1)
  if (found$result != 0L) unsettled("eigenvalues")
  vectors <- found$vectors
  if (!is.null(column_names_of(a))) rownames(vectors) <- column_names_of(a)
  list(values = found$values * 2^exponent, vectors = vectors)
}

#' @rdname vm_eigen
#' @export
vm_svd <- function(x) {
  X <- complete_of(x, "x", square = FALSE)
  n <- nrow(X)
  p <- ncol(X)
  if (n < p) {
    found <- vm_svd(t(X))
    return(list(d = found$d, u = found$v, v = found$u))
  }
  if (!p) return(list(d = double(), u = matrix(0, n, 0L), v = matrix(0, 0L, 0L)))
  exponent <- scale_of(X)
  found <- flat$VB_M_SVDecomp(scaled_by(X, exponent), n, p, NULL, matrix(0, n, p), n, matrix(0, p, p), p, 21)
  if (found$info != 0L) unsettled("singular values")
  list(d = found$s[seq_len(p)] * 2^exponent, u = found$u, v = found$v)
}

#' @rdname vm_eigen
#' @export
vm_matrix_rank <- function(x) {
  X <- complete_of(x, "x", square = FALSE)
  if (nrow(X) < ncol(X)) X <- t(X)
  if (!length(X)) return(0L)
  found <- flat$VB_M_Rank(scaled_by(X, scale_of(X)), nrow(X), ncol(X))
  if (found < 0L) unsettled("singular values")
  found
}

#' Determinant and trace
#'
#' @shared square
#' @return A number; `vm_log_det` is `NA` where the matrix is not positive definite.
#' @contract VB_M_Determinant Cpp_M_LogDeterminant VB_M_Trace
#' @examples
#' a <- cbind(c(2, 1), c(1, 2))
#' c(vm_det(a), vm_log_det(a), vm_trace(a))
#' @export
vm_det <- function(a) {
  A <- complete_of(a)
  n <- nrow(A)
  if (!n) return(1)
  exponent <- scale_of(A)
  found <- flat$VB_M_Determinant(scaled_by(A, exponent), n)$result
  if (found != 0 && abs(found) < 1e-15 && vm_matrix_rank(A) < n) return(0)
  found * 2^(n * exponent)
}

#' @rdname vm_det
#' @export
vm_log_det <- function(a) {
  A <- complete_of(a)
  exponent <- scale_of(A)
  found <- flat$Cpp_M_LogDeterminant(scaled_by(A, exponent), nrow(A))
  if (found == vm_missing) NA_real_ else found + nrow(A) * exponent * log(2)
}

#' @rdname vm_det
#' @export
vm_trace <- function(a) {
  A <- table_of(a, "a", square = TRUE)
  values(flat$VB_M_Trace(A, nrow(A)))
}

#' Inverses and linear equations
#'
#' The inverse, that of a triangle, generalised inverses, and the solution of linear equations.
#'
#' A singular matrix is an error. Where an inverse has fewer than four digits left, there is a warning. `vm_pinv` agrees with
#' `MASS::ginv` up to the tolerance, which is absolute on the matrix at scale 1 there and relative to the largest singular value here.
#' @shared square
#' @param lower whether the lower triangle is inverted.
#' @param tolerance below which a singular value, or a pivot, is 0, of the matrix at scale 1.
#' @param symmetric whether the matrix is taken for symmetric, which is quicker.
#' @param b a vector, or a matrix with a column for each right-hand side.
#' @return A matrix, with the names of `a` exchanged; of `vm_solve` a vector where `b` is one.
#' @contract VB_M_Inverse1 VB_M_InverseTriang VB_M_InvGeneralized VB_M_InvGeneralizedSym Cpp_M_InverseG2 VB_M_Gauss
#' @examples
#' a <- cbind(c(2, 1), c(1, 2))
#' vm_inverse(a)
#' vm_solve(a, c(3, 3))
#' vm_pinv(cbind(c(1, 2), c(2, 4)))
#' @export
vm_inverse <- function(a) {
  A <- complete_of(a)
  n <- nrow(A)
  if (!n) return(A)
  exponent <- scale_of(A)
  scaled <- scaled_by(A, exponent)
  found <- flat$VB_M_Inverse1(scaled, n, NULL, 0)
  if (found$result != 0L) singular()
  if (max(rowSums(abs(scaled))) * max(rowSums(abs(found$out))) > 1e12)
    warning("the matrix is nearly singular: its inverse has fewer than four digits", call. = FALSE)
  exchanged(found$out * 2^-exponent, a)
}

exchanged <- function(result, a) table_named(result, column_names_of(a), row_names_of(a))

#' @rdname vm_inverse
#' @export
vm_inverse_triangular <- function(a, lower = TRUE) {
  A <- complete_of(a)
  n <- nrow(A)
  if (!n) return(A)
  exponent <- scale_of(A)
  found <- flat$VB_M_InverseTriang(scaled_by(A, exponent), n, if (one_flag(lower, "lower")) -1L else 0L, matrix(0, n, n), 1e-15)
  if (found$result != 0L) singular()
  found$out * 2^-exponent
}

#' @rdname vm_inverse
#' @export
vm_pinv <- function(a, tolerance = 1e-12, symmetric = FALSE) {
  A <- complete_of(a)
  n <- nrow(A)
  if (!n) return(A)
  exponent <- scale_of(A)
  inverse <- if (one_flag(symmetric, "symmetric")) flat$VB_M_InvGeneralizedSym else flat$VB_M_InvGeneralized
  found <- inverse(scaled_by(A, exponent), n, NULL, one_number(tolerance, "tolerance", 0))
  if (found$result != 0L) unsettled("singular values")
  exchanged(found$out * 2^-exponent, a)
}

#' @rdname vm_inverse
#' @export
vm_g2_inverse <- function(a, tolerance = 1e-12) {
  A <- complete_of(a)
  exponent <- scale_of(A)
  found <- flat$Cpp_M_InverseG2(scaled_by(A, exponent), nrow(A), one_number(tolerance, "tolerance", 0), matrix(0, nrow(A), ncol(A)))
  exchanged(found$out * 2^-exponent, a)
}

#' @rdname vm_inverse
#' @export
vm_solve <- function(a, b) {
  A <- complete_of(a)
  n <- nrow(A)
  B <- complete_of(if (is_table(b)) b else matrix(vector_of(b, "b"), ncol = 1L), "b", square = FALSE)
  if (nrow(B) != n) wrong("b", "expected ", n, " rows, got ", nrow(B))
  if (!n) return(b)
  exponent <- scale_of(A)
  found <- flat$VB_M_Gauss(scaled_by(A, exponent), n, ncol(B), B)
  if (found$result != 0L) singular()
  like(found$b * 2^-exponent, b)
}

#' Factors of a matrix
#'
#' The Cholesky factor, with and without pivots, the factors of Crout, and the symmetric square root.
#' @shared square
#' @return `vm_cholesky` gives the lower triangle L with \eqn{A = LL'}{A = L L'} (`chol` gives its transpose); `vm_cholesky_pivoted` a list
#'   of `lower` and `order`; `vm_lu` a list of `lower`, `upper`, `rows` and `parity`; `vm_sqrtm` the symmetric square root.
#' @contract VB_M_CholDecomp VB_M_CholDecompPrinc VB_M_LUDecomp
#' @examples
#' a <- cbind(c(4, 2), c(2, 3))
#' vm_cholesky(a)
#' with(vm_lu(a), lower %*% upper - a[rows, ])
#' vm_sqrtm(a) %*% vm_sqrtm(a)
#' @export
vm_cholesky <- function(a) {
  A <- complete_of(a)
  n <- nrow(A)
  if (!n) return(A)
  exponent <- scale_of(A)
  exponent <- exponent + exponent %% 2
  found <- flat$VB_M_CholDecomp(scaled_by(A, exponent), n, matrix(0, n, n))
  if (found$result != 0L || !all(is.finite(found$l))) stop("a: the matrix is not positive definite", call. = FALSE)
  square_of(found$l * 2^(exponent / 2), column_names_of(a))
}

#' @rdname vm_cholesky
#' @export
vm_cholesky_pivoted <- function(a) {
  A <- complete_of(a)
  n <- nrow(A)
  if (!n) return(list(lower = A, order = integer()))
  exponent <- scale_of(A)
  exponent <- exponent + exponent %% 2
  found <- flat$VB_M_CholDecompPrinc(scaled_by(A, exponent), n, matrix(0, n, n), NULL, 0)
  if (found$result != 0L) stop("a: the matrix is not positive definite", call. = FALSE)
  list(lower = found$l * 2^(exponent / 2), order = found$perm)
}

#' @rdname vm_cholesky
#' @export
vm_lu <- function(a) {
  A <- complete_of(a)
  n <- nrow(A)
  exponent <- scale_of(A)
  found <- flat$VB_M_LUDecomp(scaled_by(A, exponent), n, integer(n), 1)
  if (n && found$status != 0L) singular()
  rows <- seq_len(n)
  for (j in seq_len(n)) {
    k <- found$index[j]
    rows[c(j, k)] <- rows[c(k, j)]
  }
  upper <- found$a
  lower <- found$a
  upper[lower.tri(upper)] <- 0
  lower[!lower.tri(lower)] <- 0
  diag(lower) <- 1
  list(lower = unname(lower), upper = unname(upper) * 2^exponent, rows = rows, parity = found$d)
}

#' @rdname vm_cholesky
#' @export
vm_sqrtm <- function(a) {
  A <- complete_of(a)
  found <- vm_eigen(A)
  n <- nrow(A)
  if (n && found$values[n] < -1e-12 * 2^scale_of(A)) stop("a: the matrix has a negative eigenvalue", call. = FALSE)
  vectors <- unname(found$vectors)
  root <- vm_product(vectors * rep(sqrt(pmax(found$values, 0)), each = n), t(vectors))
  square_of((root + t(root)) / 2, column_names_of(a))
}

#' Sweep a symmetric matrix
#'
#' @shared square
#' @param columns the columns by which it is swept, one after the other.
#' @return The swept matrix.
#' @contract VB_M_Sweep
#' @examples
#' vm_sweep(cbind(c(2, 1), c(1, 2)), 1)
#' @export
vm_sweep <- function(a, columns) {
  A <- complete_of(a)
  n <- nrow(A)
  # The library's triangle goes row by row: the upper one column by column.
  packed <- A[upper.tri(A, diag = TRUE)]
  for (k in columns) packed <- flat$VB_M_Sweep(packed, n, one_whole(k, "columns", 1, n))$a
  A[upper.tri(A, diag = TRUE)] <- packed
  A[lower.tri(A)] <- t(A)[lower.tri(A)]
  square_of(A, column_names_of(a))
}

#' The nearest matrix of correlations, and the order of correlations
#'
#' `vm_nearest_correlation` projects onto the positive semi-definite matrices and onto those with a unit diagonal in turn, as
#' `Matrix::nearPD(corr = TRUE)` does, which then raises the smallest eigenvalues, too.
#' @param a,r a symmetric matrix of correlations.
#' @param by `"eigenvector"` puts variables next to each other that load alike on the first eigenvector, `"largest"` and `"variance"`
#'   sort by the largest and by the spread of the correlations.
#' @return A matrix of correlations; `vm_reorder_correlations` a list of `matrix` and `order`.
#' @contract Cpp_M_CorrMatFromSymMat Cpp_ReOrderCorrelations
#' @examples
#' r <- rbind(c(1, 0.9, -0.9), c(0.9, 1, 0.9), c(-0.9, 0.9, 1))
#' vm_nearest_correlation(r)
#' vm_reorder_correlations(vm_cor(vm_penguins[3:6]))$order
#' @export
vm_nearest_correlation <- function(a) {
  A <- complete_of(a)
  square_of(flat$Cpp_M_CorrMatFromSymMat(A, nrow(A))$a, column_names_of(a))
}

#' @rdname vm_nearest_correlation
#' @export
vm_reorder_correlations <- function(r, by = c("eigenvector", "largest", "variance")) {
  mode <- match(choice(by, c("eigenvector", "largest", "variance"), "by"), c("largest", "variance", "eigenvector"))
  R <- unclass(table_of(r, "r", square = TRUE))
  n <- nrow(R)
  found <- flat$Cpp_ReOrderCorrelations(R, n, mode, as.character(seq_len(n)), matrix(0, n, n), matrix(0L, n, n))
  order <- as.integer(found$labels)
  list(matrix = square_of(values(found$R), column_names_of(r)[order]), order = order)
}

#' Norms, products and distances
#'
#' @param a,b numeric matrices or data frames without missing cells.
#' @shared weights
#' @param x a numeric matrix or data frame without missing cells.
#' @param by `"rows"` gives the distances between rows, `"columns"` those between columns.
#' @return A number; `vm_product` and `vm_kronecker` a matrix; `vm_distances` an object of the class `dist`.
#' @contract Cpp_M_Norm2 VB_M_FrobeniusNorm VB_M_ProductAB Cpp_KroneckerTensorProduct VB_M_EuclidDist2
#' @examples
#' a <- cbind(c(3, 0), c(0, 4))
#' c(vm_norm2(a), vm_frobenius(a))
#' vm_product(a, a)
#' vm_distances(rbind(c(0, 0), c(3, 4)))
#' @export
vm_norm2 <- function(a) {
  A <- complete_of(a)
  exponent <- scale_of(A)
  flat$Cpp_M_Norm2(scaled_by(A, exponent), nrow(A), ncol(A)) * 2^exponent
}

#' @rdname vm_norm2
#' @export
vm_frobenius <- function(a, b = NULL) {
  A <- complete_of(a, square = FALSE)
  if (!is.null(b)) {
    B <- complete_of(b, "b", square = FALSE)
    if (!identical(dim(A), dim(B))) wrong("b", "expected ", nrow(A), " by ", ncol(A), ", got ", described(b))
    A <- A - B
  }
  exponent <- scale_of(A)
  scaled <- scaled_by(A, exponent)
  sqrt(flat$VB_M_FrobeniusNorm(scaled, nrow(A), ncol(A), scaled)) * 2^exponent
}

#' @rdname vm_norm2
#' @export
vm_product <- function(a, b) {
  A <- complete_of(a, square = FALSE)
  B <- complete_of(b, "b", square = FALSE)
  if (nrow(B) != ncol(A)) wrong("b", "expected ", ncol(A), " rows, got ", nrow(B))
  table_named(flat$VB_M_ProductAB(A, nrow(A), ncol(A), B, ncol(B))$out, row_names_of(a), column_names_of(b))
}

#' @rdname vm_norm2
#' @export
vm_kronecker <- function(a, b) {
  A <- complete_of(a, square = FALSE)
  B <- complete_of(b, "b", square = FALSE)
  rows <- nrow(A) * nrow(B)
  cols <- ncol(A) * ncol(B)
  if (rows == 0L || cols == 0L) return(matrix(0, rows, cols))
  flat$Cpp_KroneckerTensorProduct(A, nrow(A), ncol(A), B, nrow(B), ncol(B), NULL, rows, cols)$C
}

#' @rdname vm_norm2
#' @export
vm_distances <- function(x, weights = NULL, by = c("rows", "columns")) {
  X <- complete_of(x, "x", square = FALSE)
  rows <- choice(by, c("rows", "columns"), "by") == "rows"
  w <- weights_of(weights, if (rows) ncol(X) else nrow(X))
  size <- if (rows) nrow(X) else ncol(X)
  found <- flat$VB_M_EuclidDist2(X, nrow(X), ncol(X), matrix(0, size, size), w, if (rows) -1L else 0L)$out
  stats::as.dist(square_of(found, if (rows) row_names_of(x) else column_names_of(x)))
}
