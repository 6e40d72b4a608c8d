#' Categories of a column of labels
#'
#' The distinct labels with the sums of their weights, and the one that weighs most.
#' @shared weights
#' @param x a factor or a character vector; `NA` and empty strings are missing.
#' @param sort whether the categories are sorted; otherwise they come as they appear.
#' @param object what `vm_categories` gave.
#' @shared dots
#' @return `vm_categories` gives a list of the class `vm_categories`: `names`, `weights` and `mode`; `summary` a data frame of it.
#'   `vm_mode` gives the label that weighs most, `NA` where there is none; `vm_frequency` the weight of one.
#' @contract VB_M_InfoQuali VB_V_Mode VB_V_FreqStr VB_V_Freq
#' @examples
#' vm_categories(vm_penguins$species)
#' vm_mode(vm_penguins$island)
#' vm_frequency(vm_penguins$island, "Dream")
#' vm_frequency(c(1, 2, 2, NA), 2)
#' @export
vm_categories <- function(x, weights = NULL, sort = TRUE) {
  cells <- labels_of(x)
  n <- length(cells)
  w <- weights_of(weights, n)
  sorted <- if (one_flag(sort, "sort")) -1L else 0L
  found <- list(names = character(), weights = double(), mode = NA_character_)
  if (!all(is.na(cells))) {
    told <- flat$VB_M_InfoQuali(cells, n, 1, ignored = 0, weights = w, sortCats = sorted)
    kept <- seq_len(told$nCats)
    found <- list(names = told$categories[kept], weights = told$catWeights[kept], mode = told$modes)
  }
  structure(found, class = "vm_categories")
}

#' @rdname vm_categories
#' @export
print.vm_categories <- function(x, ...) {
  print(named(x$weights, x$names), ...)
  cat("mode:", x$mode, "\n")
  invisible(x)
}

#' @rdname vm_categories
#' @export
summary.vm_categories <- function(object, ...) {
  data.frame(category = object$names, weight = object$weights, share = object$weights / sum(object$weights))
}

#' @rdname vm_categories
#' @export
vm_mode <- function(x, weights = NULL) {
  cells <- labels_of(x)
  found <- flat$VB_V_Mode(cells, length(cells), 0, weights_of(weights, length(cells)))
  if (nzchar(found)) found else NA_character_
}

#' @rdname vm_categories
#' @param value a label, or a number where `x` holds numbers.
#' @param tolerance how far a number may be away.
#' @export
vm_frequency <- function(x, value, weights = NULL, tolerance = 1e-12) {
  if (is.character(value)) {
    cells <- labels_of(x)
    return(flat$VB_V_FreqStr(cells, length(cells), weights_of(weights, length(cells)), one_string(value, "value")))
  }
  v <- vector_of(x)
  flat$VB_V_Freq(v, length(v), weights_of(weights, length(v)), one_number(value, "value"), one_number(tolerance, "tolerance"))
}

#' Dummy columns of labels
#'
#' @param x a factor, a character vector, or a data frame or matrix of these.
#' @param coding `"indicator"` gives a column of 0 and 1 for each category; `"baseline"` leaves out the first one, `"effect"` gives
#'   -1 in all columns where the first one stands, `"weighted_effect"` a ratio of sizes.
#' @return A matrix with a column for each category, named by the column and the category; a row has `NA` where the label is
#'   missing.
#' @contract VB_BuildDisjunctiveTable
#' @examples
#' vm_dummies(c("b", "a", NA, "b"))
#' head(vm_dummies(vm_penguins[c("species", "sex")], coding = "effect"), 3)
#' @export
vm_dummies <- function(x, coding = c("indicator", "baseline", "effect", "weighted_effect")) {
  codings <- c("indicator", "baseline", "effect", "weighted_effect")
  number <- match(choice(coding, codings, "coding"), codings) - 1L
  cells <- label_table_of(x)
  n <- nrow(cells)
  p <- ncol(cells)
  found <- lapply(seq_len(p), function(j) vm_categories(cells[, j]))
  counts <- vapply(found, function(column) length(column$names), 0L)
  prefixes <- if (is.null(colnames(cells))) rep("", p) else paste0(colnames(cells), "_")
  names <- unlist(Map(function(prefix, column) if (length(column$names)) paste0(prefix, column$names), prefixes, found),
                  use.names = FALSE)
  width <- sum(counts)
  result <- matrix(0, n, width)
  if (n && width) {
    most <- max(counts)
    texts <- matrix("", p, most)
    sizes <- matrix(0, p, most)
    for (j in seq_len(p)) {
      texts[j, seq_len(counts[j])] <- found[[j]]$names
      sizes[j, seq_len(counts[j])] <- found[[j]]$weights
    }
    result <- flat$VB_BuildDisjunctiveTable(cells, n, p, width, counts, texts, sizes, most, result, number,
                                            if (number == 0L) 2L else 0L)$out
  }
  colnames(result) <- names
  if (number > 0L) result <- result[, setdiff(seq_len(width), cumsum(c(1L, counts))[seq_len(p)]), drop = FALSE]
  values(result)
}

#' Codes of labels
#'
#' Each label becomes the number of its category, in the order of the sorted categories.
#' @param x a factor or a character vector.
#' @param first the code of the first category.
#' @return A list of `codes`, `NA` where a label is missing, and `names`.
#' @contract VB_M_ReplaceStrByCodes
#' @examples
#' vm_codes(c("b", "a", NA, "b"))
#' @export
vm_codes <- function(x, first = 1) {
  cells <- labels_of(x)
  first <- one_whole(first, "first")
  names <- vm_categories(cells)$names
  codes <- rep(NA_real_, length(cells))
  if (length(names))
    codes <- flat$VB_M_ReplaceStrByCodes(cells, length(cells), 1, length(names), names, NULL, first)$out[, 1L]
  codes[is.na(cells)] <- NA
  list(codes = as.integer(codes), names = names)
}

#' Distinct values and rows
#'
#' @shared vector
#' @return `vm_unique` gives the distinct values that are present, sorted; `vm_count_unique` how many they are, also of labels;
#'   `vm_unique_rows` a list of `rows`, `counts`, and `first`, the row in which each stands first.
#' @contract VB_V_ExtractDistinct VB_V_NbDistinct Cpp_V_NbDistinctStr VB_M_Dedupe
#' @examples
#' vm_unique(c(3, NA, 1, 3))
#' vm_count_unique(vm_penguins$species)
#' vm_unique_rows(cbind(c(1, 2, 1), c(5, 6, 5)))
#' @export
vm_unique <- function(x) {
  v <- vector_of(x)
  v <- v[v != vm_missing]
  if (!length(v)) return(v)
  found <- flat$VB_V_ExtractDistinct(v, length(v))
  sort(found$distinct[seq_len(found$count)])
}

#' @rdname vm_unique
#' @export
vm_count_unique <- function(x) {
  if (is.factor(x) || is.character(x)) {
    cells <- labels_of(x)
    cells <- cells[!is.na(cells)]
    return(if (length(cells)) flat$Cpp_V_NbDistinctStr(cells, length(cells)) else 0L)
  }
  v <- vector_of(x)
  v <- v[v != vm_missing]
  if (length(v)) flat$VB_V_NbDistinct(v, length(v)) else 0L
}

#' @rdname vm_unique
#' @export
vm_unique_rows <- function(x) {
  cells <- table_of(x)
  n <- nrow(cells)
  p <- ncol(cells)
  if (!n) return(list(rows = x, counts = integer(), first = integer()))
  found <- flat$VB_M_Dedupe(cbind(cells, seq_len(n)), n, p)
  kept <- found$out[seq_len(found$nKept), , drop = FALSE]
  first <- as.integer(kept[, p + 2L])
  list(rows = x[as.integer(kept[, p + 2L]), , drop = FALSE], counts = as.integer(kept[, p + 1L]), first = first)
}

#' Statistics by group
#'
#' One of the statistics of this package for each group of rows.
#'
#' `aggregate` leaves out all rows with a missing cell before it groups the others; here each column leaves out its own.
#' @param x a numeric vector, matrix or data frame.
#' @param by a factor or character vector with the group of each row; rows without one belong to none.
#' @param statistic `"mean"`, `"sum"`, `"median"`, `"sd"`, `"var"`, `"min"` or `"max"`.
#' @shared weights
#' @param object what `vm_group_by` gave.
#' @shared dots
#' @return A data frame of the class `vm_groups`, with the columns `group` and `rows` and one for each column of `x`. `plot` draws
#'   it, see \code{\link{plot.vm_groups}}.
#' @contract VB_M_GroupBy
#' @examples
#' vm_group_by(vm_penguins[3:6], vm_penguins$species)
#' aggregate(vm_penguins[3:6], vm_penguins["species"], mean)
#' @export
vm_group_by <- function(x, by, statistic = c("mean", "sum", "median", "sd", "var", "min", "max"), weights = NULL) {
  statistics <- list(mean = vm_mean, sum = vm_sum, median = vm_median, sd = vm_sd, var = vm_var, min = vm_min, max = vm_max)
  name <- choice(statistic, names(statistics), "statistic")
  if (name %in% c("min", "max") && !is.null(weights)) wrong("weights", "have no meaning for \"min\" and \"max\"")
  if (!is_table(x)) x <- data.frame(x = numbers(x, "x"))
  n <- nrow(x)
  labels <- labels_of(by, "by", n)
  w <- if (!is.null(weights)) weights_of(weights, n)
  rows <- split(seq_len(n), factor(labels, levels = if (is.factor(by)) intersect(levels(by), labels) else sort(unique(labels))))
  one <- function(at) {
    part <- x[at, , drop = FALSE]
    if (is.null(w)) statistics[[name]](part) else statistics[[name]](part, weights = w[at])
  }
  found <- matrix(vapply(rows, one, double(ncol(x))), ncol = length(rows))
  names <- column_names_of(x)
  columns <- as.data.frame(t(found))
  names(columns) <- if (is.null(names)) paste0("x", seq_len(ncol(x))) else names
  structure(cbind(data.frame(group = names(rows), rows = lengths(rows), row.names = NULL), columns),
            class = c("vm_groups", "data.frame"), statistic = name)
}

#' @rdname vm_group_by
#' @export
summary.vm_groups <- function(object, ...) summary(as.data.frame(unclass(object))[-1L], ...)

#' Cross table of two columns of labels
#'
#' @param x,y factors or character vectors of the same length; a row counts where both are present.
#' @return A matrix of counts with the names of the categories.
#' @contract VB_M_ProductTrAB
#' @examples
#' vm_cross_table(vm_penguins$species, vm_penguins$island)
#' @export
vm_cross_table <- function(x, y) {
  first <- labels_of(x)
  second <- labels_of(y, "y", length(first))
  A <- vm_dummies(first)
  B <- vm_dummies(second)
  kept <- !is.na(first) & !is.na(second)
  names <- list(colnames(A), colnames(B))
  A <- A[kept, , drop = FALSE]
  B <- B[kept, , drop = FALSE]
  counts <- flat$VB_M_ProductTrAB(A, nrow(A), ncol(A), B, ncol(B))$out
  structure(as.integer(counts), dim = dim(counts), dimnames = names)
}

#' Join and number labels
#'
#' @param x a data frame or matrix of labels; its columns are joined row by row.
#' @param separator a string between them.
#' @param labels a character vector, whose repetitions get numbers.
#' @return A character vector.
#' @contract Cpp_M_MergeStringsByRow VB_V_ReplaceDoubles
#' @examples
#' vm_join_labels(head(vm_penguins[1:2], 3), "/")
#' vm_make_unique(c("a", "b", "a"))
#' @export
vm_join_labels <- function(x, separator = " ") {
  cells <- label_table_of(x)
  flat$Cpp_M_MergeStringsByRow(cells, nrow(cells), ncol(cells), one_string(separator, "separator"))$out
}

#' @rdname vm_join_labels
#' @export
vm_make_unique <- function(labels) {
  cells <- labels_of(labels, "labels")
  flat$VB_V_ReplaceDoubles(cells, length(cells))$x
}

#' What the library takes for weights and for indicators
#'
#' @shared vector
#' @return `TRUE` or `FALSE`. `vm_binarize` gives the table with 1 for each cell that is not 0.
#' @contract VB_V_IsWeights VB_V_IsIndicator VB_M_Binarize
#' @examples
#' vm_is_weights(c(1, 0.5, 0))
#' vm_is_indicator(c(1, 0, 1))
#' vm_binarize(cbind(c(0, 2), c(-1, 5)))
#' @export
vm_is_weights <- function(x) {
  v <- vector_of(x)
  flat$VB_V_IsWeights(v, length(v)) != 0L
}

#' @rdname vm_is_weights
#' @export
vm_is_indicator <- function(x) {
  v <- vector_of(x)
  flat$VB_V_IsIndicator(v, length(v)) != 0L
}

#' @rdname vm_is_weights
#' @export
vm_binarize <- function(x) {
  cells <- as_cells(x)
  like(values(flat$VB_M_Binarize(cells, nrow(cells), ncol(cells))$out), x)
}
