#' Count what is missing
#'
#' @param x a numeric vector, matrix or data frame.
#' @return A number, or for a table a named vector with one for each column; `vm_complete_rows` a logical vector with `TRUE` for each
#'   row without a missing cell.
#' @contract VB_V_NbMissing VB_M_NbMissing VB_V_NbNonMissing VB_M_NbNonMissing
#' @examples
#' vm_count_missing(vm_penguins[3:6])
#' vm_count_present(c(1, NA, 3))
#' sum(vm_complete_rows(vm_penguins[3:6]))
#' @export
vm_count_missing <- function(x) {
  if (!is_table(x)) {
    v <- vector_of(x)
    return(flat$VB_V_NbMissing(v, length(v)))
  }
  cells <- table_of(x)
  named(flat$VB_M_NbMissing(cells, nrow(cells), ncol(cells))$counts, column_names_of(x))
}

#' @rdname vm_count_missing
#' @export
vm_count_present <- function(x) {
  if (!is_table(x)) {
    v <- vector_of(x)
    return(flat$VB_V_NbNonMissing(v, length(v)))
  }
  cells <- table_of(x)
  named(flat$VB_M_NbNonMissing(cells, nrow(cells), ncol(cells))$counts, column_names_of(x))
}

#' @rdname vm_count_missing
#' @export
vm_complete_rows <- function(x) rowSums(as_cells(x) == vm_missing) == 0

#' Drop rows, fill cells, and empty them
#'
#' @param x a numeric matrix or data frame; of `vm_fill_missing` also a vector.
#' @param value the number that takes the place of missing cells.
#' @param where a logical matrix of the form of `x`, `TRUE` for each cell that becomes missing.
#' @param whole_row whether the whole row becomes missing.
#' @return The table, with the form and the names of `x`.
#' @contract VB_RemoveRowsWithMissing VB_M_ReplaceMissingByVal Cpp_M_ReplaceByMissing
#' @examples
#' nrow(vm_drop_missing(vm_penguins[3:6]))
#' vm_fill_missing(c(1, NA), 0)
#' vm_set_missing(cbind(1:2, 3:4), cbind(c(TRUE, FALSE), FALSE))
#' @export
vm_drop_missing <- function(x) {
  complete <- vm_complete_rows(x)
  x[complete, , drop = FALSE]
}

#' @rdname vm_drop_missing
#' @export
vm_fill_missing <- function(x, value) {
  cells <- as_cells(x)
  like(values(flat$VB_M_ReplaceMissingByVal(cells, nrow(cells), ncol(cells), one_number(value, "value"))$a), x)
}

#' @rdname vm_drop_missing
#' @export
vm_set_missing <- function(x, where, whole_row = FALSE) {
  cells <- table_of(x)
  if (!is.logical(where) || !identical(dim(where), dim(cells)) || anyNA(where))
    wrong("where", "expected logical values of ", nrow(cells), " by ", ncol(cells), ", got ", described(where))
  whole_row <- if (one_flag(whole_row, "whole_row")) -1L else 0L
  found <- flat$Cpp_M_ReplaceByMissing(cells, nrow(cells), ncol(cells), where + 0L, ncol(where), whole_row)
  like(values(found$a), x)
}

#' Weights that leave out rows with missing cells
#'
#' @shared table weights
#' @return The weights, 0 for each row in which a cell is missing.
#' @contract VB_M_SetWeightsToZeroForMissing
#' @examples
#' table(vm_zero_weights(vm_penguins[3:6]))
#' @export
vm_zero_weights <- function(x, weights = NULL) {
  cells <- table_of(x)
  flat$VB_M_SetWeightsToZeroForMissing(cells, nrow(cells), ncol(cells), weights_of(weights, nrow(cells)), 1)$weights
}

#' Fill missing cells by means and modes
#'
#' @param x of `vm_impute_mean` a numeric matrix or data frame; of `vm_impute_mode` labels: a factor, a character vector, or a data frame
#'   or matrix of these.
#' @shared weights
#' @param reference a table with the same columns, from whose rows means or modes are taken; weights are those of its rows.
#' @return The table with the form of `x`; a column in which nothing is present stays as it is. Factors stay factors.
#' @contract VB_EstimateRowsWithMissingMean VB_EstimateRowsWithMissingMeanPred VB_EstimateRowsWithMissingMode
#' @examples
#' vm_impute_mean(cbind(c(1, NA, 3), c(4, 5, NA)))
#' summary(vm_impute_mode(vm_penguins$sex))
#' @export
vm_impute_mean <- function(x, weights = NULL, reference = NULL) {
  cells <- table_of(x)
  n <- nrow(cells)
  p <- ncol(cells)
  source <- if (is.null(reference)) cells else table_of(reference, "reference", cols = p)
  w <- weights_of(weights, nrow(source))
  mask <- rep(TRUE, n)
  filled <- cells
  if (n && p)
    filled <- if (is.null(reference)) flat$VB_EstimateRowsWithMissingMean(cells, n, p, mask, w)$X
      else flat$VB_EstimateRowsWithMissingMeanPred(source, nrow(source), cells, n, p, mask, w)$X
  without <- colSums(source != vm_missing) == 0
  filled[cells == vm_missing & rep(without, each = n)] <- NA
  like(filled, x)
}

#' @rdname vm_impute_mean
#' @export
vm_impute_mode <- function(x, weights = NULL, reference = NULL) {
  cells <- label_table_of(x)
  n <- nrow(cells)
  p <- ncol(cells)
  source <- if (is.null(reference)) cells else label_table_of(reference, "reference")
  if (ncol(source) != p) wrong("reference", "expected ", p, " columns, got ", ncol(source))
  w <- weights_of(weights, nrow(source))
  filled <- cells
  if (n && p)
    filled <- if (is.null(reference)) flat$VB_EstimateRowsWithMissingMode(cells, n, p, NULL, w)$S
      else flat$VB_EstimateRowsWithMissingModePred(source, nrow(source), cells, n, p, NULL, w)$S
  filled <- matrix(filled, n, p)
  filled[, colSums(!is.na(source)) == 0] <- NA
  labels_like(filled, x)
}

# Labels in the form of what they were made of; a factor keeps its levels, and gets those that are new.
labels_like <- function(cells, x) {
  as_before <- function(column, before) {
    if (!is.factor(before)) return(column)
    factor(column, levels = union(levels(before), column[!is.na(column)]))
  }
  if (is.data.frame(x)) {
    for (j in seq_along(x)) x[[j]] <- as_before(cells[, j], x[[j]])
    return(x)
  }
  if (is_table(x)) return(structure(cells, dimnames = dimnames(x)))
  named(as_before(cells[, 1L], x), names(x))
}

#' Fill missing cells from the most similar rows
#'
#' @shared table weights
#' @param categories labels of the same rows, which are compared and filled, too.
#' @return The table with the form of `x`; where `categories` were given, a list of `x` and `categories`.
#' @contract VB_EstimateRowsWithMissingNN
#' @examples
#' filled <- vm_impute_nearest(vm_penguins[3:6])
#' anyNA(filled)
#' @export
vm_impute_nearest <- function(x, categories = NULL, weights = NULL) {
  cells <- table_of(x)
  n <- nrow(cells)
  texts <- if (!is.null(categories)) label_table_of(categories, "categories")
  if (!is.null(texts) && nrow(texts) != n) wrong("categories", "expected ", n, " rows, got ", nrow(texts))
  incomplete <- rowSums(cells == vm_missing) > 0
  if (!is.null(texts)) incomplete <- incomplete | rowSums(is.na(texts)) > 0
  w <- weights_of(weights, n)
  columns <- if (is.null(texts)) 0L else ncol(texts)
  found <- list(X = cells, S = texts)
  if (n) found <- flat$VB_EstimateRowsWithMissingNN(cells, n, ncol(cells), incomplete, NULL, 0, texts, columns, w)
  filled <- found$X
  filled[, colSums(cells != vm_missing) == 0] <- vm_missing
  filled <- like(values(filled), x)
  if (is.null(texts)) return(filled)
  labels <- matrix(found$S, n, columns)
  labels[!nzchar(labels)] <- NA
  list(x = filled, categories = labels_like(labels, categories))
}

#' Product of matrices with missing cells
#'
#' @param a,b numeric matrices or data frames.
#' @return The product; a pair of cells in which one is missing is left out of its sum.
#' @contract VB_M_ProductABMissing
#' @examples
#' vm_product_missing(cbind(1, NA), rbind(2, 3))
#' @export
vm_product_missing <- function(a, b) {
  A <- table_of(a, "a")
  B <- table_of(b, "b", rows = ncol(A))
  found <- flat$VB_M_ProductABMissing(A, nrow(A), ncol(A), B, ncol(B))$c
  table_named(values(found), row_names_of(a), column_names_of(b))
}
