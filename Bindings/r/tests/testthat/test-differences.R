# Where the definitions differ from R's, on purpose. The vignette ends with the table; each of its lines is held here.

test_that("the intercept's error has W - m - 1 degrees of freedom", {
  x <- complete[, 1]
  y <- complete[, 4]
  w <- rep(2, length(y))
  ours <- vm_ols(x, y, weights = w)
  theirs <- summary(lm(y ~ x, weights = w))$coefficients
  slope <- unname(ours$standard_errors[1])
  expect_equal(slope, theirs[2, 2], tolerance = 1e-9)
  left <- sum(w * residuals(lm(y ~ x, weights = w))^2)
  own <- sqrt(left / (sum(w) - 2) / sum(w) + weighted.mean(x, w)^2 * slope^2)
  expect_equal(unname(ours$standard_errors[2]), own, tolerance = 1e-9)
  expect_gt(abs(own / theirs[1, 2] - 1), 1e-3)
})

test_that("through the origin there are n - m - 1 degrees of freedom", {
  x <- complete[, 1:2]
  y <- complete[, 4]
  ours <- vm_ols(x, y, intercept = FALSE)
  theirs <- summary(lm(y ~ x + 0))$coefficients
  n <- length(y)
  expect_equal(unname(coef(ours)[1:2]), unname(theirs[, 1]), tolerance = 1e-9)
  expect_equal(unname(ours$standard_errors[1:2]), unname(theirs[, 2]) * sqrt((n - 2) / (n - 3)), tolerance = 1e-9)
})

test_that("correlations of the library's matrix take variances of the whole columns", {
  a <- gappy[, 1]
  b <- gappy[, 2]
  both <- !is.na(a) & !is.na(b)
  n <- sum(both)
  population_sd <- function(v) sqrt(mean((v - mean(v, na.rm = TRUE))^2, na.rm = TRUE))
  ours <- unclass(vm_cor(cbind(a, b), missing = "columns"))[1, 2]
  expect_false(isTRUE(all.equal(ours, cor(a, b, use = "complete"), tolerance = 1e-4)))
  covariance <- mean((a[both] - mean(a[both])) * (b[both] - mean(b[both])))
  whole <- mean((a[both] - mean(a, na.rm = TRUE)) * (b[both] - mean(b, na.rm = TRUE)))
  by_columns <- c(covariance, whole) / (population_sd(a) * population_sd(b))
  expect_true(any(abs(ours - by_columns) < 1e-12))
})

test_that("weights weigh the places of a tie, and are no frequencies", {
  expect_equal(vm_rank(c(10, 20, 20, 30), weights = c(1, 1, 3, 1)), c(1, 2.75, 2.75, 4))
  expect_equal(vm_rank(c(10, 20, 30), weights = c(1, 3, 1)), c(1, 2, 3))
})

test_that("plain quantiles count missing cells as the smallest values", {
  v <- c(1, 2, 3, NA)
  expect_equal(unname(vm_quantile(v, 0.75, missing = "count")), unname(quantile(c(-Inf, 1, 2, 3), 0.75)))
  expect_equal(unname(vm_quantile(v, 0.75)), unname(quantile(v, 0.75, na.rm = TRUE)))
})

test_that("weighted quantiles go by steps, but interpolate where all weights are equal", {
  expect_equal(unname(vm_quantile(1:4, 0.5, weights = rep(2, 4))), 2.5)
  expect_true(vm_quantile(1:4, 0.5, weights = c(1, 2, 1, 1)) %in% 1:4)
})

test_that("reliability weights are not those of cov.wt where they are unequal", {
  w <- counts / sum(counts)
  x <- complete[1:60, ]
  m <- nrow(x)
  expect_equal(vm_cov(x, weights = w, divisor = "reliability"), cov.wt(x, w)$cov * (1 - sum(w^2)) / (1 - 1 / m))
})

test_that("groups drop missing cells column by column", {
  ours <- vm_group_by(cbind(a = c(1, NA), b = c(NA, 4)), c("g", "g"))
  expect_equal(c(ours$a, ours$b), c(1, 4))
})
