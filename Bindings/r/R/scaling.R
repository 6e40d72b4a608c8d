#' Centre and scale columns
#'
#' Subtracts the means of the columns, divides by their spreads, or both.
#'
#' `scale` has no weights. Missing cells stay missing and enter neither mean nor spread. A column without spread is centred
#' and not divided.
#' @param x a numeric vector, matrix or data frame; the result has its form and its names.
#' @shared weights exclude divisor
#' @param object,newdata what `vm_standardize` gave, and a table with the same columns.
#' @shared dots
#' @return `vm_center` and `vm_scale` give the table; `vm_standardize` a list of the class `vm_standardized` with `scores`, `mean`
#'   and `sd`, by which `predict` standardizes other rows.
#' @contract VB_M_CenterW VB_M_ReduceW VB_M_StandardizeW3 Cpp_M_StandardizeApply2
#' @examples
#' vm_center(c(1, 2, NA, 6))
#' z <- vm_standardize(vm_penguins[3:6])
#' z
#' head(predict(z, vm_penguins[3:6]), 3)
#' @export
vm_center <- function(x, weights = NULL) {
  cells <- as_cells(x)
  n <- nrow(cells)
  like(keeping_missing(flat$VB_M_CenterW(cells, n, ncol(cells), weights_of(weights, n))$Z, cells), x)
}

#' @rdname vm_center
#' @export
vm_scale <- function(x, weights = NULL, divisor = c("frequency", "reliability", "population")) {
  cells <- as_cells(x)
  n <- nrow(cells)
  codes <- divisor_codes(divisor)
  scaled <- flat$VB_M_ReduceW(cells, n, ncol(cells), weights_of(weights, n), NULL, codes[1L], codes[2L])$Z
  like(keeping_missing(scaled, cells), x)
}

#' @rdname vm_center
#' @export
vm_standardize <- function(x, weights = NULL, exclude = NULL, divisor = c("frequency", "reliability", "population")) {
  cells <- as_cells(x)
  n <- nrow(cells)
  p <- ncol(cells)
  w <- weights_of(weights, n)
  mask <- mask_of(exclude, n)
  codes <- divisor_codes(divisor)
  if (is.null(mask)) {
    found <- flat$VB_M_StandardizeW3(cells, n, p, w, NULL, NULL, codes[1L], codes[2L])
    scores <- found$X
  } else {
    found <- flat$VB_M_MeanStDev(cells, n, p, NULL, double(p), mask, w, codes[1L], codes[2L], 0)
    scores <- flat$Cpp_M_StandardizeApply2(cells, n, p, found$mean, found$stdev)$X
  }
  names <- if (is_table(x)) column_names_of(x)
  structure(list(scores = like(keeping_missing(scores, cells), x), mean = values(named(found$mean, names)),
                 sd = values(named(found$stdev, names))), class = "vm_standardized")
}

#' @rdname vm_center
#' @export
predict.vm_standardized <- function(object, newdata, ...) {
  cells <- as_cells(newdata, "newdata")
  p <- length(object$mean)
  if (ncol(cells) != p) wrong("newdata", "expected ", p, " columns, got ", ncol(cells))
  mean <- .Call(C_vecmat_cells, object$mean)
  scores <- flat$Cpp_M_StandardizeApply2(cells, nrow(cells), p, mean, .Call(C_vecmat_cells, object$sd))$X
  scores[, mean == vm_missing] <- vm_missing
  like(keeping_missing(scores, cells), newdata)
}

#' @rdname vm_center
#' @export
print.vm_standardized <- function(x, ...) {
  cat("Standardized,", rows_of(x$scores), "rows\n")
  print(rbind(mean = x$mean, sd = x$sd), ...)
  invisible(x)
}

as_cells <- function(x, name = "x") if (is_table(x)) table_of(x, name) else matrix(vector_of(x, name), ncol = 1L)

keeping_missing <- function(result, cells) {
  result[cells == vm_missing] <- vm_missing
  values(result)
}

#' Standardize within groups
#'
#' @param x a numeric vector, matrix or data frame.
#' @param groups a factor or character vector with the group of each row.
#' @param scale whether to divide by the standard deviation of the group, too.
#' @param divisor `"frequency"` divides by the size of a group less 1, `"population"` by its size.
#' @return The table, with the form and the names of `x`.
#' @contract Cpp_M_StandardizeByGroup
#' @examples
#' z <- vm_standardize_by_group(vm_penguins[3:6], vm_penguins$species)
#' tapply(z$body_mass_g, vm_penguins$species, mean, na.rm = TRUE)
#' @export
vm_standardize_by_group <- function(x, groups, scale = TRUE, divisor = c("frequency", "population")) {
  cells <- as_cells(x)
  codes <- factor(labels_of(groups, "groups", nrow(cells)), exclude = NULL)
  sample <- if (choice(divisor, c("frequency", "population"), "divisor") == "frequency") -1L else 0L
  found <- flat$Cpp_M_StandardizeByGroup(cells, nrow(cells), ncol(cells), as.double(unclass(codes)), nlevels(codes),
                                         if (one_flag(scale, "scale")) -1L else 0L, sample)
  like(keeping_missing(found$X, cells), x)
}

#' Bring columns to the length 1, and a vector between two numbers
#'
#' @param x of `vm_normalize` a numeric vector, matrix or data frame; of `vm_rescale` a vector.
#' @param low,high the numbers that the smallest and the largest value become.
#' @shared weights exclude
#' @return The table, or the vector.
#' @contract VB_M_Normalize VB_V_Rescale
#' @examples
#' vm_normalize(cbind(c(3, 4), c(1, 0)))
#' vm_rescale(c(1, 2, NA, 5))
#' @export
vm_normalize <- function(x, weights = NULL, exclude = NULL) {
  cells <- as_cells(x)
  n <- nrow(cells)
  found <- flat$VB_M_Normalize(cells, n, ncol(cells), NULL, mask_of(exclude, n), weights_of(weights, n))
  like(values(found$X), x)
}

#' @rdname vm_normalize
#' @export
vm_rescale <- function(x, low = 0, high = 1, exclude = NULL) {
  v <- vector_of(x)
  mask <- full_mask_of(exclude, length(v)) | v == vm_missing
  found <- flat$VB_V_Rescale(v, length(v), one_number(low, "low"), one_number(high, "high"), mask)
  like(values(found$out), x)
}

#' Standard scores of a vector
#'
#' By mean and standard deviation, or robust ones by median and median absolute deviation.
#' @shared vector
#' @param robust whether to take the deviation from the median, times 0.6745, over the median absolute deviation.
#' @return The vector of scores; missing values stay. Without spread all are `NA`.
#' @contract Cpp_V_ZScores
#' @examples
#' vm_zscores(c(1, 2, 6))
#' vm_zscores(c(1, 2, 3, 100), robust = TRUE)
#' @export
vm_zscores <- function(x, robust = FALSE) {
  kind <- if (one_flag(robust, "robust")) 1L else 0L
  v <- vector_of(x)
  present <- v != vm_missing
  result <- rep(vm_missing, length(v))
  result[present] <- flat$Cpp_V_ZScores(v[present], sum(present), kind, vm_missing, vm_missing)$out
  like(values(result), x)
}
