# Times R and its packages over the data written by vecmat_benchmarks --export.
#
#     Rscript peers.R DATA RESULTS.csv REGEX quick|full
#
# A result is a row: workload, contender, seconds, deviation from the library's result in units of its largest number,
# tolerance. A tolerance of -1 marks a result that differs by the peer's own rules.

suppressPackageStartupMessages({
    library(data.table)
    library(matrixStats)
})
setDTthreads(1)

arguments <- commandArgs(trailingOnly = TRUE)
data_directory <- arguments[1]
results_file <- arguments[2]
only <- arguments[3]
repetitions <- if (arguments[4] == "quick") 2 else 5

incomparable <- -1
missing_value <- -1.79769313486231e308

# ---- data and results ------------------------------------------------------------------------------------------------

read_cells <- function(workload, name) {
    path <- file.path(data_directory, workload, name)
    readBin(path, "double", file.size(path) / 8)
}
read_table <- function(workload, name) {
    matrix(read_cells(workload, name), nrow = read_cells(workload, "size"))
}
read_texts <- function(workload, name) readLines(file.path(data_directory, workload, name))

with_gaps <- function(x) {
    x[x < -1.7e308] <- NA
    x
}

deviation <- function(expected, actual) {
    actual <- as.double(actual)
    if (length(expected) != length(actual)) return(Inf)
    max(abs(expected - actual)) / max(abs(expected))
}

# Processor time of the shortest of several runs, each long enough for the clock.
shortest <- function(run) {
    seconds <- function(times) {
        before <- proc.time()
        for (k in seq_len(times)) run()
        sum((proc.time() - before)[1:2]) / times
    }
    times <- max(1, ceiling(0.1 / max(seconds(1), 1e-4)))
    min(vapply(seq_len(repetitions), function(k) seconds(times), 0))
}

cat("workload,contender,seconds,deviation,tolerance\n", file = results_file)

# `result` converts what `run` returns to the form of the library's result.
peer <- function(workload, contender, tolerance, run, result = identity) {
    difference <- if (tolerance == incomparable) 0 else deviation(read_cells(workload, "ours"), result(run()))
    cat(sprintf("%s,\"%s\",%.9g,%.3g,%.3g\n", workload, contender, shortest(run), difference, tolerance),
        file = results_file, append = TRUE)
}

workload <- function(name, body) {
    if (grepl(only, name, perl = TRUE)) {
        body(name)
        invisible(gc())
    }
}

# ---- workloads -------------------------------------------------------------------------------------------------------

workload("sort-vector", function(name) {
    x <- read_cells(name, "x")
    peer(name, "R sort, radix", 0, function() sort(x, method = "radix"))
})

workload("sort-rows", function(name) {
    key <- read_cells(name, "key")
    data <- read_table(name, "data")
    peer(name, "R order, radix, and rows", 0, function() {
        rows <- order(key, method = "radix")
        list(data[rows, ], key[rows], rows)
    }, unlist)
})

workload("sort-apply", function(name) {
    data <- read_table(name, "data")
    order <- as.integer(read_cells(name, "order"))
    peer(name, "R rows", 0, function() data[order, ])
})

workload("ranks", function(name) {
    x <- read_cells(name, "x")
    peer(name, "data.table frank", 0, function() frank(x, ties.method = "average"))
    peer(name, "R rank", 0, function() rank(x, ties.method = "average"))
})

workload("product", function(name) {
    a <- read_table(name, "a")
    b <- read_table(name, "b")
    peer(name, "R", 1e-13, function() a %*% b)
})

workload("cross-product", function(name) {
    a <- read_table(name, "a")
    peer(name, "R crossprod", 1e-13, function() crossprod(a))
})

workload("column-means", function(name) {
    x <- read_table(name, "x")
    w <- read_cells(name, "w")
    peer(name, "R matrixStats", 1e-9, function() colWeightedMeans(x, w))
})

workload("column-deviations", function(name) {
    x <- read_table(name, "x")
    w <- read_cells(name, "w")
    # Its divisor is W - 1.
    ratio <- sqrt((sum(w) - 1) / (sum(w) - sum(w) / length(w)))
    peer(name, "R matrixStats", 1e-9, function() list(colWeightedMeans(x, w), colWeightedSds(x, w)),
         function(found) c(found[[1]], found[[2]] * ratio))
})

workload("column-variances", function(name) {
    x <- read_table(name, "x")
    w <- read_cells(name, "w")
    ratio <- (sum(w) - 1) / (sum(w) - sum(w) / length(w))
    peer(name, "R matrixStats", 1e-9, function() list(colWeightedMeans(x, w), colWeightedVars(x, w)),
         function(found) c(found[[1]], found[[2]] * ratio))
})

workload("quantile", function(name) {
    x <- read_cells(name, "x")
    peer(name, "R quantile", 1e-14, function() quantile(x, 0.3, type = 7, names = FALSE))
})

workload("weighted-quantile", function(name) {
    x <- read_cells(name, "x")
    w <- read_cells(name, "w")
    peer(name, "R matrixStats weightedMedian", 1e-14,
         function() weightedMedian(x, w, interpolate = FALSE, ties = "mean"))
})

workload("covariance", function(name) {
    x <- read_table(name, "x")
    peer(name, "R cov", 1e-12, function() cov(x))
})

workload("correlation-with-gaps", function(name) {
    x <- with_gaps(read_table(name, "x"))
    # Its variances, too, are over the rows of a pair; the library's are over those of a column.
    peer(name, "R cor, pairwise", 0.02, function() cor(x, use = "pairwise.complete.obs"))
})

workload("eigen", function(name) {
    a <- read_table(name, "a")
    peer(name, "R eigen", 1e-12, function() eigen(a, symmetric = TRUE), function(found) found$values)
})

workload("nearest-correlation", function(name) {
    a <- read_table(name, "a")
    peer(name, "R nearPD", 1e-3,
         function() Matrix::nearPD(a, corr = TRUE, do2eigen = FALSE, conv.tol = 1e-6, conv.norm.type = "I",
                                   maxit = 100000),
         function(found) as.matrix(found$mat))
})

workload("singular-values", function(name) {
    x <- read_table(name, "x")
    peer(name, "R svd", 1e-12, function() svd(x), function(found) found$d)
})

workload("determinant", function(name) {
    a <- read_table(name, "a")
    peer(name, "R det", 1e-10, function() det(a))
})

workload("inverse", function(name) {
    a <- read_table(name, "a")
    peer(name, "R solve", 1e-9, function() solve(a))
})

workload("cholesky", function(name) {
    a <- read_table(name, "a")
    peer(name, "R chol", 1e-12, function() chol(a), t)
})

workload("least-squares", function(name) {
    design <- cbind(read_table(name, "x"), 1)
    y <- read_cells(name, "y")
    peer(name, "R .lm.fit", 1e-10, function() .lm.fit(design, y), function(found) found$coefficients)
})

workload("group-means", function(name) {
    cells <- read_table(name, "data")
    data <- data.table(group = cells[, 1], value = cells[, 2])
    peer(name, "R data.table", 1e-12, function() data[, .(value = mean(value)), by = group],
         function(found) found$value[order(found$group)])
})

for (name in c("categories-10", "categories-1000", "categories-100000"))
    workload(name, function(name) {
        data <- data.table(x = read_texts(name, "x"))
        peer(name, "R data.table .N", 0, function() data[, .N, by = x], function(found) found$N)
    })

workload("disjunctive-table", function(name) {
    x <- matrix(read_texts(name, "x"), nrow = read_cells(name, "size"))
    categories <- paste("category", 0:9)
    peer(name, "R model.matrix", 0, function() do.call(cbind, lapply(seq_len(ncol(x)), function(j) {
        variable <- factor(x[, j], levels = categories)
        model.matrix(~ variable - 1)
    })))
})

workload("census", function(name) {
    x <- with_gaps(read_table(name, "x"))
    peer(name, "R colSums(is.na(x))", 0, function() colSums(is.na(x)))
    peer(name, "R matrixStats colCounts", 0, function() colCounts(x, value = NA_real_))
})

workload("shuffle", function(name) {
    x <- read_cells(name, "x")
    peer(name, "R sample", incomparable, function() sample(x))
})

workload("sample", function(name) {
    n <- read_cells(name, "size")
    x <- matrix(read_texts(name, "x"), nrow = n)
    peer(name, "R sample and rows", incomparable, function() {
        rows <- sort(sample.int(n, n, replace = TRUE))
        x[rows, ]
    })
})
