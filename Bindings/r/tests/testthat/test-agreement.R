# What agrees with R and its packages where the definitions do.

test_that("means, variances and deviations are those of R", {
  expect_equal(vm_mean(gappy), colMeans(gappy, na.rm = TRUE))
  expect_equal(vm_mean(gappy, weights = counts), apply(gappy, 2, weighted.mean, w = counts, na.rm = TRUE))
  expect_equal(vm_var(gappy), apply(gappy, 2, var, na.rm = TRUE))
  expect_equal(vm_sd(gappy, weights = counts), apply(gappy, 2, function(v) sd(rep(v, counts), na.rm = TRUE)))
  expect_equal(vm_mad(gappy), apply(gappy, 2, mad, constant = 1, na.rm = TRUE))
  expect_equal(vm_range(gappy[, 1]), range(gappy[, 1], na.rm = TRUE))
  expect_equal(vm_sum(gappy), colSums(gappy, na.rm = TRUE))
})

test_that("covariances are those of cov.wt, cov and cor", {
  expect_equal(vm_cov(complete), cov(complete))
  expect_equal(vm_cov(gappy, missing = "complete"), cov(gappy, use = "complete"))
  expect_equal(unclass(vm_cor(gappy)), cor(gappy, use = "pairwise"))
  w <- rep(1 / 60, 60)
  expect_equal(vm_cov(complete[1:60, ], weights = w, divisor = "reliability"), cov.wt(complete[1:60, ], w)$cov)
  w <- counts / sum(counts)
  expect_equal(vm_cov(complete[1:60, ], weights = w, divisor = "population"), cov.wt(complete[1:60, ], w, method = "ML")$cov)
  expect_equal(unclass(vm_cor(complete[1:60, ], weights = w)), cov.wt(complete[1:60, ], w, cor = TRUE)$cor)
  expect_equal(vm_cross_cor(complete[, 1:2], complete[, 3:4]), cor(complete[, 1:2], complete[, 3:4]))
  expect_equal(vm_pearson(complete[, 1], complete[, 2]), cor(complete[, 1], complete[, 2]))
  expect_equal(vm_cor_of_cov(cov(complete)), cov2cor(cov(complete)))
})

test_that("quantiles are those of type 7, and matrixStats' with equal weights", {
  p <- c(0, 0.1, 0.25, 0.5, 0.9, 1)
  expect_equal(vm_quantile(gappy[, 1], p), quantile(gappy[, 1], p, na.rm = TRUE))
  expect_equal(vm_median(gappy), apply(gappy, 2, median, na.rm = TRUE))
  skip_if_not_installed("matrixStats")
  expect_equal(unname(t(vm_quantile(gappy, p))), unname(matrixStats::colQuantiles(gappy, probs = p, na.rm = TRUE)))
  expect_equal(vm_mean(gappy, weights = counts), matrixStats::colWeightedMeans(gappy, counts, na.rm = TRUE))
  expect_equal(vm_sd(complete), matrixStats::colSds(complete))
})

test_that("ranks, orders and sorted values are those of R", {
  v <- round(gappy[, 4], -2)
  expect_equal(vm_rank(v), rank(v, na.last = "keep"))
  expect_equal(vm_sort(v), sort(v, na.last = TRUE))
  expect_equal(v[vm_order(v, descending = TRUE)], sort(v, decreasing = TRUE, na.last = TRUE))
  expect_equal(vm_sort_rows(gappy[, 4:3], by = c(1, 1))[, 1], sort(gappy[, 4], na.last = FALSE))
})

test_that("groups are those of aggregate and tapply", {
  birds <- na.omit(vm_penguins)
  expect_equal(vm_group_by(birds[3:6], birds$species)$body_mass_g, aggregate(birds[3:6], birds["species"], mean)$body_mass_g)
  expect_equal(vm_group_by(birds$body_mass_g, birds$species, "sd")$x, as.vector(tapply(birds$body_mass_g, birds$species, sd)))
  expect_equal(vm_group_by(birds$body_mass_g, birds$species)$rows, as.vector(table(birds$species)))
  expect_equal(unclass(vm_cross_table(birds$species, birds$island)), unclass(table(birds$species, birds$island)), ignore_attr = TRUE)
  expect_equal(vm_standardize(complete)$scores, scale(complete), ignore_attr = TRUE)
})

test_that("least squares are those of lm, with weights that sum to n and without", {
  x <- complete[, 1:3]
  y <- complete[, 4]
  fit <- vm_ols(x, y)
  theirs <- summary(lm(y ~ x))$coefficients
  expect_equal(unname(coef(fit)), unname(theirs[c(2:4, 1), 1]), tolerance = 1e-9)
  expect_equal(unname(fit$standard_errors), unname(theirs[c(2:4, 1), 2]), tolerance = 1e-8)
  expect_equal(unname(summary(fit)[, "p"]), unname(theirs[c(2:4, 1), 4]), tolerance = 1e-6)
  expect_equal(fit$r_squared, summary(lm(y ~ x))$r.squared)
  w <- rep(c(0.5, 1.5), length.out = length(y))
  fit <- vm_ols(x, y, weights = w)
  theirs <- summary(lm(y ~ x, weights = w))$coefficients
  expect_equal(unname(coef(fit)), unname(theirs[c(2:4, 1), 1]), tolerance = 1e-9)
  expect_equal(unname(fit$standard_errors), unname(theirs[c(2:4, 1), 2]), tolerance = 1e-8)
  expect_equal(predict(fit, x[1:5, ]), unname(fitted(lm(y ~ x, weights = w))[1:5]), tolerance = 1e-9)
})

test_that("decompositions are those of R", {
  s <- cov(complete) + diag(4)
  expect_equal(vm_eigen(s)$values, eigen(s)$values)
  expect_equal(vm_svd(complete)$d, svd(complete)$d)
  expect_equal(vm_inverse(s), solve(s))
  expect_equal(vm_det(s), det(s))
  expect_equal(vm_log_det(s), log(det(s)))
  expect_equal(vm_cholesky(s), t(chol(s)))
  expect_equal(vm_solve(s, 1:4), solve(s, 1:4))
  expect_equal(vm_product(s, s), s %*% s)
  expect_equal(vm_kronecker(s, diag(2)), s %x% diag(2))
  expect_equal(as.vector(vm_distances(complete[1:5, ])), as.vector(dist(complete[1:5, ])))
  expect_equal(vm_sqrtm(s) %*% vm_sqrtm(s), s)
  expect_equal(with(vm_lu(s), lower %*% upper), s[vm_lu(s)$rows, ])
  expect_equal(vm_norm2(s), norm(s, "2"))
  expect_equal(vm_frobenius(s), norm(s, "F"))
  swept <- vm_sweep(vm_sweep(s, 1:4), 1:4)
  expect_equal(swept, s)
})

test_that("components are those of prcomp", {
  ours <- vm_components(complete)
  theirs <- prcomp(complete, scale. = TRUE)
  expect_equal(unname(ours$eigenvalues), theirs$sdev^2)
  expect_equal(abs(unname(ours$scores)), abs(unname(theirs$x)), tolerance = 1e-8)
  expect_equal(unname(vm_components(complete, scale = FALSE)$eigenvalues), prcomp(complete)$sdev^2)
})

test_that("generalised inverses and nearest correlations are those of MASS and Matrix", {
  a <- crossprod(cbind(complete[, 1:3], complete[, 1] + complete[, 2])) / 1e4
  skip_if_not_installed("MASS")
  expect_equal(vm_pinv(a), MASS::ginv(a), tolerance = 1e-6)
  g <- vm_g2_inverse(a)
  expect_equal(a %*% g %*% a, a, tolerance = 1e-6)
  skip_if_not_installed("Matrix")
  r <- rbind(c(1, 0.9, -0.9), c(0.9, 1, 0.9), c(-0.9, 0.9, 1))
  near <- as.matrix(Matrix::nearPD(r, corr = TRUE, posd.tol = 0, do2eigen = FALSE)$mat)
  expect_equal(vm_nearest_correlation(r), near, tolerance = 1e-5)
})
