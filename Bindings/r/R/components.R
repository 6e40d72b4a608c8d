#' Principal components
#'
#' Of the correlations, or the covariances, of the columns.
#'
#' `prcomp` takes no weights and refuses missing cells. Here correlations go pair by pair, and a row with a missing cell has no scores.
#' @shared table weights
#' @param scale whether to take correlations, or else covariances.
#' @param object what `vm_components` gave.
#' @shared dots
#' @return A list of the class `vm_components`: `eigenvalues`, `percent`, `loadings` and `scores`. `summary` makes a table of the axes; for
#'   `plot` see \code{\link{plot.vm_components}}.
#' @contract VB_M_Eigen VB_M_CovCorr
#' @examples
#' components <- vm_components(vm_penguins[3:6])
#' components
#' summary(components)
#' @export
vm_components <- function(x, weights = NULL, scale = TRUE) {
  X <- table_of(x)
  names <- column_names_of(x)
  one_flag(scale, "scale")
  matrix <- if (scale) unclass(vm_cor(X, weights)) else vm_cov(X, weights)
  if (anyNA(matrix)) wrong("x", "a column has no spread, or two have no row in common")
  found <- vm_eigen(matrix)
  fitted <- vm_standardize(X, weights)
  if (!scale) fitted$sd[] <- 1
  Z <- predict(fitted, X)
  kept <- rowSums(is.na(Z)) == 0
  axes <- paste0("PC", seq_len(ncol(X)))
  scores <- base::matrix(NA_real_, nrow(X), ncol(X), dimnames = list(row_names_of(x), axes))
  if (any(kept)) scores[kept, ] <- vm_product(unname(Z[kept, , drop = FALSE]), unname(found$vectors))
  structure(list(eigenvalues = named(found$values, axes), percent = named(100 * found$values / sum(found$values), axes),
                 loadings = `dimnames<-`(found$vectors, list(names, axes)), scores = scores), class = "vm_components")
}

#' @rdname vm_components
#' @export
print.vm_components <- function(x, ...) {
  cat("Principal components of", nrow(x$loadings), "variables over", sum(stats::complete.cases(x$scores)), "rows\n")
  print(summary(x), ...)
  invisible(x)
}

#' @rdname vm_components
#' @export
summary.vm_components <- function(object, ...) {
  rbind(eigenvalue = object$eigenvalues, percent = object$percent, cumulative = cumsum(object$percent))
}

#' How many axes to keep
#'
#' @param eigenvalues a vector of eigenvalues, largest first.
#' @param floor an eigenvalue below this share counts as 0.
#' @param percent how much of the sum the axes must reach, in per cent; 0 asks for nothing.
#' @param most at most so many; `NULL` for all.
#' @param above only eigenvalues above this number.
#' @return A whole number.
#' @contract VB_FilterEigen
#' @examples
#' vm_axes_to_keep(c(2.5, 1.2, 0.2, 0.1), above = 1)
#' @export
vm_axes_to_keep <- function(eigenvalues, floor = 1e-12, percent = 0, most = NULL, above = 0) {
  v <- vector_of(eigenvalues, "eigenvalues")
  n <- length(v)
  if (!n) return(0L)
  limit <- if (is.null(most)) n else min(one_whole(most, "most", 0), n)
  flat$VB_FilterEigen(unname(v), n, -1, one_number(floor, "floor"), one_number(percent, "percent"), limit,
                      one_number(above, "above"))$selected
}

#' Fill missing cells from components
#'
#' By the iterative algorithm NIPALS.
#' @shared table weights
#' @param components how many components are drawn.
#' @param tolerance when a component has settled.
#' @param most_in_column,most_in_table the shares of cells that may be missing in a column, and in the table.
#' @return The table with the form of `x`, in which no cell is missing.
#' @contract Cpp_NIPALS
#' @examples
#' filled <- vm_nipals(vm_penguins[3:6])
#' filled[4, ]
#' @export
vm_nipals <- function(x, components = 2, weights = NULL, tolerance = 1e-6, most_in_column = 0.5, most_in_table = 0.5) {
  X <- table_of(x)
  components <- one_whole(components, "components", 0)
  missing <- X == vm_missing
  exponent <- if (any(!missing)) exponent_of(max(abs(X[!missing]))) else 0
  scaled <- X
  scaled[!missing] <- X[!missing] * 2^-exponent
  found <- flat$Cpp_NIPALS(nrow(X), ncol(X), scaled, weights_of(weights, nrow(X)), one_number(tolerance, "tolerance", 0), components,
                           one_number(most_in_column, "most_in_column", 0, 1), one_number(most_in_table, "most_in_table", 0, 1))
  if (found$result == -6L) wrong("x", "more cells are missing than most_in_column or most_in_table allows")
  if (found$result != 0L) wrong("x", "a column is constant, or the table carries fewer components")
  X[missing] <- found$X[missing] * 2^exponent
  like(values(X), x)
}

#' Coordinates of a biplot, and squared cosines
#'
#' @param x what \code{\link{vm_components}} gave; of `vm_squared_cosines` a numeric matrix or data frame of scores.
#' @param axes how many axes, or which.
#' @param alpha how much of the spread goes to the observations, from 0 to 1; the rest goes to the variables.
#' @param factor by which the variables are drawn out.
#' @return `vm_biplot` gives a list of the class `vm_biplot`, `observations` and `variables`, for `plot`; `vm_squared_cosines` a matrix with
#'   the share of each axis in the square of a row.
#' @contract VB_BiplotTransData ComputeCosines
#' @examples
#' components <- vm_components(vm_penguins[3:6])
#' vm_biplot(components)$variables
#' head(vm_squared_cosines(components$scores[, 1:2]), 3)
#' @export
vm_biplot <- function(x, axes = 2, alpha = 1, factor = 1) {
  if (!inherits(x, "vm_components")) wrong("x", "expected what vm_components() gives, got ", described(x))
  axes <- numbers(axes, "axes")
  if (length(axes) == 1L) axes <- seq_len(one_whole(axes, "axes", 1, length(x$eigenvalues)))
  if (anyNA(axes) || any(axes < 1 | axes > length(x$eigenvalues))) wrong("axes", "expected numbers from 1 to ", length(x$eigenvalues))
  eigenvalues <- x$eigenvalues[axes]
  if (any(eigenvalues <= 0)) wrong("axes", "an eigenvalue is not above 0")
  kept <- stats::complete.cases(x$scores)
  A <- x$scores[kept, axes, drop = FALSE]
  V <- x$loadings[, axes, drop = FALSE]
  k <- length(axes)
  found <- flat$VB_BiplotTransData(A, matrix(0, 0L, k), V, nrow(A), 0, nrow(V), k, unname(eigenvalues), one_number(factor, "factor"),
                                   one_number(alpha, "alpha", 0, 1), matrix(0, nrow(A), k), matrix(0, nrow(V), k))
  dimnames(found$obs) <- dimnames(A)
  dimnames(found$var) <- dimnames(V)
  structure(list(observations = values(found$obs), variables = values(found$var), percent = x$percent[axes], rows = which(kept)),
            class = "vm_biplot")
}

#' @rdname vm_biplot
#' @export
vm_squared_cosines <- function(x) {
  X <- table_of(x)
  sizes <- apply(X, 1L, function(row) {
    row <- row[row != vm_missing]
    if (length(row)) exponent_of(max(abs(row))) else 0
  })
  present <- X != vm_missing
  X[present] <- (X * 2^-sizes)[present]
  like(values(flat$ComputeCosines(X, nrow(X), ncol(X), matrix(vm_missing, nrow(X), ncol(X)))$out), x)
}

#' Letters of groups that do not differ
#'
#' The compact display of comparisons in pairs: groups that share a letter do not differ.
#' @param means the means of at most 255 groups, named by these.
#' @param differ a symmetric logical matrix, `TRUE` where two groups differ; or a symmetric matrix of p values.
#' @param level below which a p value tells a difference.
#' @shared dots
#' @return An object of the class `vm_letters`: a list of `means` and `letters`; for `plot` see \code{\link{plot.vm_letters}}.
#' @contract Cpp_GetCompMatrices
#' @examples
#' groups <- vm_group_by(vm_penguins$body_mass_g, vm_penguins$species)
#' p <- pairwise.t.test(vm_penguins$body_mass_g, vm_penguins$species)$p.value
#' differ <- matrix(FALSE, 3, 3)
#' differ[lower.tri(differ)] <- p[lower.tri(p, diag = TRUE)] < 0.05
#' vm_letters(setNames(groups$x, groups$group), differ | t(differ))
#' @export
vm_letters <- function(means, differ, level = 0.05) {
  v <- vector_of(means, "means")
  n <- length(v)
  if (n > 255L) wrong("means", "expected at most 255 groups, got ", n)
  if (is.numeric(differ)) differ <- !is.na(differ) & differ < one_number(level, "level", 0, 1) & row(differ) != col(differ)
  if (!is.logical(differ) || !identical(dim(differ), c(n, n)) || anyNA(differ) || any(differ != t(differ)))
    wrong("differ", "expected a symmetric logical matrix of ", n, " by ", n, ", got ", described(differ))
  letters <- character()
  if (n) {
    found <- flat$Cpp_GetCompMatrices(matrix(v, ncol = 1L), n, 0, differ + 0L, -1, integer(n), character(256L * n))
    held <- matrix(trimws(found$labels[seq_len(n * n)]), n, n)
    letters <- apply(held, 1L, paste, collapse = "")
  }
  structure(list(means = values(v + 0), letters = named(letters, names(means))), class = "vm_letters")
}

#' @rdname vm_letters
#' @param x what `vm_letters` gave.
#' @export
print.vm_letters <- function(x, ...) {
  print(data.frame(mean = x$means, letters = x$letters, row.names = names(x$letters)), ...)
  invisible(x)
}
