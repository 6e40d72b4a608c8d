# The functions in R's manner: names, missing values both ways, forms, and errors that name the argument.

test_that("missing values go both ways", {
  expect_equal(vm_mean(c(4, NA, 5)), 4.5)
  expect_equal(vm_mean(c(4, NaN, 5)), 4.5)
  expect_equal(vm_mean(c(4L, NA, 5L)), 4.5)
  expect_equal(vm_mean(c(TRUE, NA, FALSE)), 0.5)
  expect_identical(vm_mean(c(NA_real_, NA)), NA_real_)
  expect_identical(vm_mean(double()), NA_real_)
  expect_identical(vm_mean(matrix(NA_real_, 3, 2), weights = 1:3), c(NA_real_, NA_real_))
  expect_identical(is.na(vm_center(c(1, NA, 3))), c(FALSE, TRUE, FALSE))
  expect_equal(vm_max(c(1, Inf, NA)), Inf)
})

test_that("the columns of a matrix have the bits of the vectors, of each type", {
  of_vectors <- function(x) vapply(seq_len(ncol(x)), function(j) vm_var(x[, j], weights = counts), 0)
  whole <- matrix(as.integer(gappy), 60)
  expect_true(same_bits(vm_var(gappy, weights = counts), of_vectors(gappy)))
  expect_true(same_bits(vm_var(whole, weights = counts), of_vectors(whole)))
  expect_true(same_bits(vm_var(whole > 20L, weights = counts), of_vectors(whole > 20L)))
})

test_that("names stay, and forms", {
  frame <- vm_penguins[3:6]
  expect_named(vm_mean(frame), names(frame))
  expect_identical(vm_mean(frame), vm_mean(as.matrix(frame)))
  expect_identical(dimnames(vm_cor(frame)), list(names(frame), names(frame)))
  expect_s3_class(vm_center(frame), "data.frame")
  expect_identical(dim(vm_impute_mean(frame)), dim(frame))
  expect_named(vm_rank(c(a = 2, b = 1)), c("a", "b"))
  expect_s3_class(vm_impute_mode(vm_penguins$sex), "factor")
  expect_false(anyNA(vm_impute_mode(vm_penguins$sex)))
  z <- vm_standardize(frame)
  expect_equal(predict(z, frame), z$scores)
})

test_that("what is excluded does not count, and zero weights may", {
  x <- c(1, 2, 3, 100)
  expect_equal(vm_mean(x, exclude = x > 50), 2)
  expect_equal(vm_sd(x, exclude = x > 50), 1)
  w <- c(1, 1, 1, 0)
  expect_equal(vm_var(x, w, divisor = "reliability", zero_weights = "skipped"), 1)
  expect_equal(vm_var(x, w, divisor = "reliability"), 2 / (3 - 3 / 4))
})

test_that("labels, categories and dummies know what is missing", {
  labels <- factor(c("b", "a", NA, "b"))
  found <- vm_categories(labels)
  expect_identical(found$names, c("a", "b"))
  expect_identical(found$weights, c(1, 2))
  expect_identical(vm_mode(labels), "b")
  expect_identical(vm_mode(c(NA_character_, "")), NA_character_)
  dummies <- vm_dummies(labels)
  expect_identical(dummies, matrix(c(0, 1, NA, 0, 1, 0, NA, 1), 4, dimnames = list(NULL, c("a", "b"))))
  expect_identical(vm_codes(labels)$codes, c(2L, 1L, NA, 2L))
  expect_identical(vm_codes(c("\u00e9", "\U0001F600"))$names, vm_categories(c("\u00e9", "\U0001F600"))$names)
  expect_identical(vm_make_unique(c("a", "b", "a"))[1:2], c("a", "b"))
  expect_identical(vm_unique_rows(cbind(c(1, 2, 1), 5))$counts, c(2L, 1L))
})

test_that("series of random numbers repeat and go on", {
  a <- vm_permutation(10, seed = 3)
  expect_identical(a$values, vm_permutation(10, seed = 3)$values)
  expect_setequal(a$values, 1:10)
  expect_false(identical(a$values, vm_permutation(10, seed = a$next_seed)$values))
  unseeded <- vm_random()
  expect_identical(vm_random(seed = unseeded$seed)$values, unseeded$values)
  drawn <- vm_sample_stratified(vm_penguins$species, 34, seed = 1)$values
  expect_length(unique(drawn), 34L)
  expect_length(vm_subset(10, 3, seed = 1)$values, 3L)
})

test_that("imputed cells are filled and others stay", {
  filled <- vm_impute_nearest(gappy)
  expect_false(anyNA(filled))
  expect_identical(filled[!is.na(gappy)], gappy[!is.na(gappy)])
  by_components <- vm_nipals(gappy)
  expect_false(anyNA(by_components))
  expect_identical(by_components[!is.na(gappy)], gappy[!is.na(gappy)])
  expect_identical(vm_drop_missing(gappy), gappy[stats::complete.cases(gappy), ])
})

test_that("letters tell which groups differ", {
  p <- rbind(c(1, 0.8, 0), c(0.8, 1, 0), c(0, 0, 1))
  letters <- vm_letters(c(a = 5, b = 5.2, c = 9), p)$letters
  expect_identical(letters[["a"]], letters[["b"]])
  expect_false(letters[["a"]] == letters[["c"]])
})

test_that("the memory of what is handed over is not written", {
  x <- c(3, 1, 2)
  y <- x
  flat$VB_SortQVectorDbl(x, 3, 1, 3, 0)
  vm_center(x)
  expect_identical(x, c(3, 1, 2))
  expect_identical(y, c(3, 1, 2))
  m <- cbind(1:3 + 0, 4:6 + 0)
  vm_standardize(m)
  expect_identical(m, cbind(1:3 + 0, 4:6 + 0))
  # A function may hand the constant itself back: it stays what it is.
  expect_identical(vm_quantile(NA_real_, 0.5, missing = "count")[[1]], NA_real_)
  expect_identical(vm_missing, -0x1.fffffffffffe2p+1023)
})

test_that("what does not fit is an error that names the argument", {
  expect_error(vm_mean("a"), "^x: expected numbers, got a character vector of length 1")
  expect_error(vm_mean(vm_penguins), "species")
  expect_error(vm_mean(Sys.Date()), "^x: expected numbers, got a vector of the class Date")
  expect_error(vm_mean(1:3, weights = 1:2), "^weights: expected 3 values, got 2")
  expect_error(vm_mean(1:3, weights = c(1, -1, 1)), "^weights: a weight is negative")
  expect_error(vm_mean(1:3, exclude = 1:3), "^exclude: expected logical values")
  expect_error(vm_var(1:3, divisor = "n"), "^divisor: expected one of")
  expect_error(vm_quantile(1:3, 2), "^probs: ")
  expect_error(vm_eigen(matrix(c(1, 2, NA, 1), 2)), "^a: a cell is missing")
  expect_error(vm_inverse(matrix(1, 2, 2)), "singular")
  expect_error(vm_solve(diag(2), 1:3), "^b: expected 2 rows")
  expect_error(vm_permutation(2.5), "^n: expected a whole number")
  expect_error(vm_rank(list(1)), "^x: expected numbers")
  expect_error(vm_contract("VB_None"), "no flat function")
})

STRANGE <- list(NULL, NA, "a", sum, list(1), factor("a"), 3i, globalenv(), quote(a), double(), matrix(1, 0, 0), matrix("a", 1, 1),
                array(1, c(1, 1, 1)), data.frame(), data.frame(a = "b"), Inf, -1, 1e300, NaN, vm_missing, as.Date("2020-01-01"))

test_that("no argument of a function ends the process, and errors come from here", {
  names <- setdiff(grep("^vm_", getNamespaceExports("vecmat"), value = TRUE), c("vm_missing", "vm_penguins"))
  expect_gt(length(names), 80L)
  for (name in names) {
    call <- get(name, envir = asNamespace("vecmat"))
    for (strange in STRANGE)
      for (count in 1:2) {
        given <- rep(list(strange), min(count, length(formals(call))))
        message <- tryCatch({ suppressWarnings(do.call(call, given, quote = TRUE)); NULL }, error = conditionMessage)
        if (!is.null(message)) expect_false(grepl("^VB_|^Cpp_|subscript out of bounds|internal error", message), paste(name, message))
      }
  }
  succeed()
})
