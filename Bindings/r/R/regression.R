#' Least squares
#'
#' With weights, powers and products of the columns, and a settled treatment of columns that depend on others.
#'
#' Rows with a missing cell are left out. In the standard error of the intercept, the variance of the mean has
#' \eqn{W - m - 1}{W - m - 1} degrees of freedom: it is that of `lm` where the weights sum to the number of rows. Through the origin the errors have \eqn{n - m - 1}{n - m - 1} degrees of freedom for m terms, as with an intercept; `lm` has
#' \eqn{n - m}{n - m}.
#' @param x a numeric vector, matrix or data frame of the explaining variables.
#' @param y a numeric vector, what is explained.
#' @shared weights
#' @param degree 1, 2 or 3: the powers of each column that enter.
#' @param interactions whether the products of pairs of columns enter, too; with a degree above 1.
#' @param intercept whether there is one.
#' @param tolerance the share of a column that others must leave unexplained for it to enter.
#' @param object,newdata what `vm_ols` gave, and a table with the same columns.
#' @shared dots
#' @return A list of the class `vm_ols`: `coefficients`, `standard_errors`, `fitted`, `residuals`, `r_squared` and `rows`, with the methods
#'   `print`, `summary` (a table of coefficients), `coef`, `fitted`, `residuals`, `predict` (of degree 1) and `plot` (residuals over
#'   fitted values).
#' @contract RunOLSBasic2
#' @examples
#' fit <- vm_ols(vm_penguins["flipper_length_mm"], vm_penguins$body_mass_g)
#' fit
#' summary(fit)
#' predict(fit, data.frame(flipper_length_mm = 200))
#' @export
vm_ols <- function(x, y, weights = NULL, degree = 1, interactions = FALSE, intercept = TRUE, tolerance = 1e-8) {
  names <- if (is_table(x)) column_names_of(x) else "x"
  X <- as_cells(x)
  n <- nrow(X)
  p <- ncol(X)
  response <- vector_of(y, "y", n)
  degree <- one_whole(degree, "degree", 1, 3)
  interactions <- one_flag(interactions, "interactions")
  intercept <- one_flag(intercept, "intercept")
  if (interactions && degree == 1L) wrong("interactions", "only with a degree above 1")
  w <- weights_of(weights, n)
  kept <- rowSums(X == vm_missing) == 0 & response != vm_missing
  z <- response[kept]
  if (is.null(names)) names <- paste0("x", seq_len(p))
  terms <- terms_of(names, degree, interactions)
  found <- flat$RunOLSBasic2(length(z), p, X[kept, , drop = FALSE], z, w[kept], degree, if (interactions) -1L else 0L,
                             if (intercept) 0L else -1L, one_number(tolerance, "tolerance", 0))
  used <- seq_along(terms)
  fitted <- rep(NA_real_, n)
  fitted[kept] <- found$fitted
  fit <- structure(list(
    coefficients = named(found$beta[used], terms), standard_errors = named(found$se[used], terms), fitted = fitted,
    residuals = replace(rep(NA_real_, n), kept, z - found$fitted), r_squared = r_squared(z, found$fitted, w[kept], intercept),
    rows = length(z), degree = degree, intercept = intercept, columns = names), class = "vm_ols")
  warn_of_precision(fit)
  fit
}

terms_of <- function(names, degree, interactions) {
  terms <- unlist(lapply(seq_len(degree), function(power) if (power == 1L) names else paste0(names, "^", power)))
  if (interactions && length(names) > 1L) terms <- c(terms, utils::combn(names, 2L, paste, collapse = ":"))
  c(terms, "(Intercept)")
}

r_squared <- function(y, fitted, w, intercept) {
  if (!length(y)) return(NA_real_)
  around <- if (intercept && sum(w) > 0) sum(w * y) / sum(w) else 0
  of_y <- sum(w * (y - around)^2)
  if (of_y > 0) 1 - sum(w * (y - fitted)^2) / of_y else NA_real_
}

warn_of_precision <- function(fit) {
  if (!is.na(fit$r_squared) && 1 - fit$r_squared < 1e-12)
    warning("1 - R2 is below 1e-12: the standard errors are rounding errors", call. = FALSE)
  else if (fit$rows <= length(fit$coefficients) - !fit$intercept)
    warning("no degree of freedom is left: the standard errors mean nothing", call. = FALSE)
}

#' @rdname vm_ols
#' @export
print.vm_ols <- function(x, ...) {
  cat("Least squares over", x$rows, "rows\n")
  print(x$coefficients, ...)
  cat("R2:", format(x$r_squared, digits = 4L), "\n")
  invisible(x)
}

#' @rdname vm_ols
#' @importFrom stats pt coef fitted residuals predict
#' @export
summary.vm_ols <- function(object, ...) {
  shown <- if (object$intercept) seq_along(object$coefficients) else seq_len(length(object$coefficients) - 1L)
  estimate <- object$coefficients[shown]
  error <- object$standard_errors[shown]
  freedom <- object$rows - length(object$coefficients)
  t <- estimate / error
  cbind(estimate = estimate, error = error, t = t, p = 2 * pt(-abs(t), max(freedom, 1)))
}

#' @rdname vm_ols
#' @export
coef.vm_ols <- function(object, ...) object$coefficients

#' @rdname vm_ols
#' @export
fitted.vm_ols <- function(object, ...) object$fitted

#' @rdname vm_ols
#' @export
residuals.vm_ols <- function(object, ...) object$residuals

#' @rdname vm_ols
#' @export
predict.vm_ols <- function(object, newdata, ...) {
  if (object$degree > 1L) stop("predict: only fits of degree 1 predict", call. = FALSE)
  cells <- as_cells(newdata, "newdata")
  slopes <- object$coefficients[-length(object$coefficients)]
  if (ncol(cells) != length(slopes)) wrong("newdata", "expected ", length(slopes), " columns, got ", ncol(cells))
  cells[cells == vm_missing] <- NA
  as.vector(cells %*% slopes) + object$coefficients[["(Intercept)"]]
}

#' @rdname vm_ols
#' @importFrom graphics plot abline
#' @export
plot.vm_ols <- function(x, ...) {
  arguments <- utils::modifyList(list(x = x$fitted, y = x$residuals, xlab = "fitted", ylab = "residual", pch = 20), list(...))
  do.call(plot, arguments)
  abline(h = 0, col = "grey")
  invisible(x)
}

#' Collinearity
#'
#' @param r a matrix of correlations without missing cells.
#' @param tolerance below which a variable is left out.
#' @return A data frame with a row for each variable: `tolerance` (the share that the others leave unexplained), `vif` and `kept`.
#' @contract VB_CheckTolerance
#' @examples
#' vm_collinearity(vm_cor(vm_penguins[3:6]))
#' @export
vm_collinearity <- function(r, tolerance = 1e-8) {
  R <- complete_of(unclass(r), "r")
  p <- nrow(R)
  found <- flat$VB_CheckTolerance(R, p, 1, 1, 0, rep(1, p), one_number(tolerance, "tolerance", 0), 0, -1, 0, 0)
  names <- column_names_of(r)
  data.frame(tolerance = values(found$tolerance), vif = values(found$vif),
             kept = found$status == -1L & found$tolerance >= tolerance,
             row.names = if (is.null(names)) NULL else names)
}
