#' Random numbers, permutations and samples
#'
#' The library's own series of random numbers, which is the same on every machine and has nothing to do with `set.seed`.
#' @param n how many rows there are.
#' @param size how many are drawn.
#' @param x a vector, or a table whose rows are shuffled.
#' @param strata a factor or character vector with the stratum of each row.
#' @shared seed
#' @return A list of the class `vm_drawn`: `values` (a number from 0 to 1; the rows that were drawn; the shuffled vector or table),
#'   `seed`, and `next_seed`, by which another call goes on in the series.
#' @contract GenerateRandom01 Cpp_Random1toNLng Cpp_V_Shuffle VB_GenerateRandomIndicator VB_M_SamplingWithReplacement
#' @examples
#' vm_random(seed = 7)$values
#' drawn <- vm_permutation(5, seed = 7)
#' drawn$values
#' vm_permutation(5, seed = drawn$next_seed)$values
#' vm_subset(10, 3, seed = 1)$values
#' vm_bootstrap(5, seed = 1)$values
#' vm_sample_systematic(100, 5, seed = 1)$values
#' table(vm_penguins$species[vm_sample_stratified(vm_penguins$species, 34, seed = 1)$values])
#' @export
vm_random <- function(seed = NULL) draw(seed, function(...) flat$GenerateRandom01(...), function(told) told$result)

# Calls `call` with the start of the series, and picks the values out of what it gives.
draw <- function(seed, call, picked) {
  start <- if (is.null(seed)) 0L else one_whole(seed, "seed")
  told <- call(start, if (is.null(seed)) 0L else -1L)
  structure(list(values = picked(told), seed = told$seed, next_seed = told$seedOut), class = "vm_drawn")
}

#' @rdname vm_random
#' @export
vm_permutation <- function(n, seed = NULL) {
  n <- one_whole(n, "n", 0)
  draw(seed, function(...) flat$Cpp_Random1toNLng(n, NULL, ...), function(told) told$out)
}

#' @rdname vm_random
#' @export
vm_shuffle <- function(x, seed = NULL) {
  if (is_table(x)) {
    rows <- vm_permutation(nrow(x), seed)
    rows$values <- x[rows$values, , drop = FALSE]
    return(rows)
  }
  v <- vector_of(x)
  draw(seed, function(...) flat$Cpp_V_Shuffle(v, length(v), ...), function(told) values(told$v))
}

#' @rdname vm_random
#' @export
vm_subset <- function(n, size, seed = NULL) {
  n <- one_whole(n, "n", 0)
  size <- one_whole(size, "size", 0, n)
  draw(seed, function(...) flat$VB_GenerateRandomIndicator(double(n), n, size, ...), function(told) which(told$out != 0))
}

#' @rdname vm_random
#' @export
vm_bootstrap <- function(n, size = n, seed = NULL) {
  n <- one_whole(n, "n", 1)
  size <- one_whole(size, "size", 0)
  draw(seed, function(...) flat$VB_M_SamplingWithReplacement(rep("", n), n, 1, size, NULL, NULL, ...),
       function(told) as.integer(told$ids))
}

#' @rdname vm_random
#' @export
vm_sample_systematic <- function(n, size, seed = NULL) {
  n <- one_whole(n, "n", 1)
  size <- one_whole(size, "size", 1, n)
  draw(seed, function(...) flat$VB_M_SamplingSystematicRdStart(rep("", n), n, 1, size, NULL, as.double(seq_len(n)), ...),
       function(told) as.integer(told$ids[told$ids <= n]))
}

#' @rdname vm_random
#' @export
vm_sample_stratified <- function(strata, size, seed = NULL) {
  labels <- labels_of(strata, "strata")
  if (anyNA(labels)) wrong("strata", "a row has none")
  n <- length(labels)
  size <- one_whole(size, "size", 1, n)
  codes <- factor(labels)
  sizes <- as.double(tabulate(codes, nlevels(codes)))
  draw(seed, function(...) flat$Cpp_M_SamplingRandomStratifiedByStr(
    rep("", n), n, 1, size, NULL, as.double(seq_len(n)), double(size), as.double(unclass(codes)), sizes * size / n, sizes,
    nlevels(codes), ...), function(told) as.integer(told$outIds))
}

#' @rdname vm_random
#' @shared dots
#' @export
print.vm_drawn <- function(x, ...) {
  print(x$values, ...)
  cat("seed", x$seed, "- next", x$next_seed, "\n")
  invisible(x)
}

#' Triangular distribution from two quantiles and the mode
#'
#' @param low,mode,high the two quantiles, and the mode between them.
#' @param p_low,p_high the probabilities of the quantiles.
#' @return The two ends of the distribution, `NA` where there is none.
#' @contract TriangularQFindAB
#' @examples
#' vm_triangular(2, 5, 10)
#' @export
vm_triangular <- function(low, mode, high, p_low = 0.1, p_high = 0.9) {
  p_low <- one_number(p_low, "p_low", 0, 1)
  p_high <- one_number(p_high, "p_high", 0, 1)
  if (p_low <= 0 || p_high >= 1 || p_low >= p_high) wrong("p_low", "expected probabilities between 0 and 1, p_low below p_high")
  low <- one_number(low, "low")
  mode <- one_number(mode, "mode")
  high <- one_number(high, "high")
  if (!(low < high && low <= mode && mode <= high)) wrong("mode", "expected ascending numbers: ", low, ", ", mode, ", ", high)
  width <- high - low
  found <- flat$TriangularQFindAB(1, 1 + (mode - low) / width, 2, p_low, p_high)
  ends <- low + (c(low = found$a, high = found$b) - 1) * width
  if (all(is.finite(ends)) && ends[1L] <= mode && mode <= ends[2L]) ends else c(low = NA_real_, high = NA_real_)
}
