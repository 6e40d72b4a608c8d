# compare.R [ROWS]: the package's functions beside R's own, matrixStats and data.table over the same data, as a table. Also what a
# call on a matrix of ROWS by 10 without missing cells takes of memory.
#
#   Rscript -e 'source(system.file("benchmarks", "compare.R", package = "vecmat"))'

library(vecmat)

rows <- as.integer(c(commandArgs(TRUE), "1000000")[1L])
set.seed(1)
has <- function(package) requireNamespace(package, quietly = TRUE)

# Processor time, which other work on the machine changes least: the shortest of three runs, each of as many calls as take long
# enough to be measured. All work on one thread.
if (has("data.table")) data.table::setDTthreads(1L)
seconds <- function(call) {
  timed <- function(calls) sum(system.time(for (i in seq_len(calls)) call())[c("user.self", "sys.self")])
  calls <- 1L
  while ((time <- timed(calls)) < 0.05) calls <- 4L * calls
  min(time, timed(calls), timed(calls)) / calls
}

ten <- as.double(1:10)
long <- rnorm(rows)
gappy <- replace(long, sample(rows, rows %/% 20L), NA)
weights <- runif(rows)
wide <- matrix(rnorm(10 * rows), rows)
table <- matrix(rnorm(20000 * 60), 20000)
holes <- replace(table, sample(length(table), length(table) %/% 20L), NA)
keys <- sample(letters, rows, TRUE)
square <- crossprod(matrix(rnorm(1e4), 100))

workloads <- list(
  "mean of 10" = list(function() vm_mean(ten), "mean" = function() mean(ten)),
  "mean, 5 % missing" = list(function() vm_mean(gappy), "mean" = function() mean(gappy, na.rm = TRUE),
                             matrixStats = function() matrixStats::mean2(gappy, na.rm = TRUE)),
  "weighted mean" = list(function() vm_mean(long, weights), "weighted.mean" = function() weighted.mean(long, weights),
                         matrixStats = function() matrixStats::weightedMean(long, weights)),
  "variance, 5 % missing" = list(function() vm_var(gappy), "var" = function() var(gappy, na.rm = TRUE)),
  "median, 5 % missing" = list(function() vm_median(gappy), "median" = function() median(gappy, na.rm = TRUE)),
  "weighted column means, by 10" = list(
    function() vm_mean(wide, weights), "apply, weighted.mean" = function() apply(wide, 2L, weighted.mean, w = weights),
    matrixStats = function() matrixStats::colWeightedMeans(wide, weights)),
  "weighted column means, by 10, in one pass" = list(
    function() flat$VB_M_Mean(wide, rows, 10, NULL, 0, weights)$mean,
    matrixStats = function() matrixStats::colWeightedMeans(wide, weights)),
  "covariance, 20000 by 60" = list(function() vm_cov(table), "cov" = function() cov(table)),
  "correlation, 20000 by 60, 5 % missing, pairwise" = list(
    function() vm_cor(holes), "cor" = function() cor(holes, use = "pairwise")),
  "correlation, 20000 by 60, 5 % missing, by columns" = list(
    function() vm_cor(holes, missing = "columns"), "cor" = function() cor(holes, use = "pairwise")),
  "ranks" = list(function() vm_rank(long), "rank" = function() rank(long), data.table = function() data.table::frank(long),
                 matrixStats = function() matrixStats::rowRanks(matrix(long, 1L), ties.method = "average")),
  "sort" = list(function() vm_sort(long), "sort" = function() sort(long)),
  "means of 26 groups" = list(
    function() vm_group_by(long, keys), "tapply" = function() tapply(long, keys, mean),
    data.table = function() data.table::data.table(x = long, g = keys)[, list(mean = mean(x)), by = "g"]),
  "eigenvalues, order 100" = list(function() vm_eigen(square), "eigen" = function() eigen(square)),
  "inverse, order 100" = list(function() vm_inverse(square), "solve" = function() solve(square)))

shown <- function(time) if (time < 1e-3) sprintf("%.3g \u00b5s", 1e6 * time) else sprintf("%.3g ms", 1e3 * time)

cat("| workload,", format(rows, big.mark = ","), "rows | vecmat | peers (vecmat over peer) |\n| --- | --- | --- |\n")
for (name in names(workloads)) {
  calls <- workloads[[name]]
  own <- tryCatch(seconds(calls[[1L]]), error = function(error) stop(name, ": ", conditionMessage(error), call. = FALSE))
  peers <- vapply(names(calls)[-1L], function(peer) {
    if (peer %in% c("matrixStats", "data.table") && !has(peer)) return(NA_character_)
    time <- seconds(calls[[peer]])
    sprintf("%s %s (%.2g)", shown(time), peer, own / time)
  }, "")
  cat("|", name, "|", shown(own), "|", paste(peers[!is.na(peers)], collapse = "; "), "|\n")
}

# The most that R and the library take beyond the matrix itself, in megabytes, as the system counts it.
resident <- function() {
  lines <- grep("^VmHWM", readLines("/proc/self/status"), value = TRUE)
  as.numeric(gsub("[^0-9]", "", lines)) / 1024
}
grown <- function(call) {
  invisible(gc())
  if (!file.exists("/proc/self/clear_refs")) return(NA_real_)
  cat("5", file = "/proc/self/clear_refs")
  before <- resident()
  call()
  resident() - before
}
if (file.exists("/proc/self/status")) {
  cat("\nThe matrix has", round(object.size(wide) / 2^20), "MB. Peak memory beyond it, in MB:\n")
  for (one in list(list("flat$VB_M_Mean", function() flat$VB_M_Mean(wide, rows, 10, NULL, 0, weights)),
                   list("flat$VB_M_NbMissing", function() flat$VB_M_NbMissing(wide, rows, 10)),
                   list("vm_count_missing", function() vm_count_missing(wide)),
                   list("vm_cov", function() vm_cov(wide, weights)), list("vm_mean", function() vm_mean(wide, weights)),
                   list("colMeans", function() colMeans(wide)), list("cov", function() cov(wide))))
    cat(sprintf("  %-22s %6.1f\n", one[[1L]], grown(one[[2L]])))
}
