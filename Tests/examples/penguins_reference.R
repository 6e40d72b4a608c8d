# Prints penguins_reference.inc, the statistics of the penguins by R, from the repository's root:
#     Rscript Tests/examples/penguins_reference.R > Tests/examples/penguins_reference.inc
penguins <- read.csv("Examples/survey/penguins.csv")

# Skewness and kurtosis in the forms G1 and G2 of Joanes and Gill (1998), from central moments of divisor n.
moment <- function(x, k) mean((x - mean(x))^k)
g1 <- function(x) moment(x, 3) / moment(x, 2)^1.5
g2 <- function(x) moment(x, 4) / moment(x, 2)^2 - 3
G1 <- function(x) { n <- length(x); g1(x) * sqrt(n * (n - 1)) / (n - 2) }
G2 <- function(x) { n <- length(x); (n - 1) / ((n - 2) * (n - 3)) * ((n + 1) * g2(x) + 6) }

thirteen <- c(0.05, 0.1, 0.2, 0.25, 0.3, 0.4, 0.5, 0.6, 0.7, 0.75, 0.8, 0.9, 0.95)

digits <- function(values) paste(sprintf("%.17g", values), collapse = ", ")
texts <- function(values) paste(sprintf('"%s"', values), collapse = ", ")

measurements <- c("bill_length_mm", "bill_depth_mm", "flipper_length_mm", "body_mass_g")
qualities <- c("species", "island", "sex")

cat("// Made by penguins_reference.R with R ", as.character(getRversion()), ".\n", sep = "")

cat("\n// Per column and group: cells, missing cells; min, max, mean, sd, G1, G2; quantile(type = 7) at 0.25, 0.5, 0.75;\n",
    "// the thirteen quantiles.\n",
    "inline const GroupReference groupReferences[] = {\n", sep = "")
for (column in measurements)
    for (species in c("Adelie", "Chinstrap", "Gentoo", "all")) {
        cells <- if (species == "all") penguins[[column]] else penguins[[column]][penguins$species == species]
        x <- cells[!is.na(cells)]
        cat(sprintf('{"%s", "%s", %d, %d,\n', column, species, length(x), sum(is.na(cells))),
            " {", digits(c(min(x), max(x), mean(x), sd(x), G1(x), G2(x))), "},\n",
            " {", digits(quantile(x, c(0.25, 0.5, 0.75), type = 7, names = FALSE)), "},\n",
            " {", digits(quantile(x, thirteen, type = 7, names = FALSE)), "}},\n", sep = "")
    }
cat("};\n")

# Missing cells. In the file a missing text is an empty cell.
gaps <- cbind(is.na(penguins[measurements]), penguins[qualities] == "")[, names(penguins)]
cat("\n// Missing cells: of each column, and the rows (from 1) that have any, with their number.\n",
    "inline const std::vector<int> missingByColumn = {", paste(colSums(gaps), collapse = ", "), "};\n",
    "inline const std::map<int, int> missingByRow = {",
    paste(sprintf("{%d, %d}", which(rowSums(gaps) > 0), rowSums(gaps)[rowSums(gaps) > 0]), collapse = ", "), "};\n",
    sep = "")

cat("\n// Per text column and category, in the order of appearance: rows, and the means of the four measurements.\n",
    "inline const CategoryReference categoryReferences[] = {\n", sep = "")
for (column in qualities) {
    categories <- unique(penguins[[column]])
    for (category in c(categories[categories != ""], if ("" %in% categories) "")) {
        rows <- penguins[penguins[[column]] == category, ]
        cat(sprintf('{"%s", "%s", %d,\n', column, category, nrow(rows)),
            " {", digits(colMeans(rows[measurements], na.rm = TRUE)), "}},\n", sep = "")
    }
}
cat("};\n")

r <- cor(penguins[measurements], use = "pairwise")
cat("\n// cor(use = \"pairwise\"), row by row.\n",
    "inline const double correlationReferences[4][4] = {\n", sep = "")
for (j in 1:4) cat("{", digits(r[j, ]), "},\n", sep = "")
cat("};\n")

# Completion by nearest neighbours: complete rows are the candidates, and column j of its block never takes from row j.
# A candidate wins only from the first row on in which anything was compared: a text that is the same is not.
completed <- penguins
candidates <- which(rowSums(gaps) == 0)
variances <- sapply(penguins[measurements], var, na.rm = TRUE)
compared <- FALSE
nearest <- function(target, passedOver) {
    best <- NA
    least <- Inf
    for (c in setdiff(candidates, passedOver)) {
        x <- unlist(completed[target, measurements])
        terms <- ((x - unlist(completed[c, measurements]))^2 / variances)[!is.na(x)]
        s <- unlist(completed[target, qualities])
        differing <- sum(s != "" & s != unlist(completed[c, qualities]))
        compared <<- compared || length(terms) > 0 || differing > 0
        distance <- sum(terms) + differing
        if (compared && distance < least) {
            best <- c
            least <- distance
        }
    }
    best
}
cat("\n// Cells filled from the nearest neighbour: row and column (from 1), and what it holds.\n",
    "inline const FilledReference filledReferences[] = {\n", sep = "")
for (t in which(rowSums(gaps) > 0)) {
    for (block in list(measurements, qualities))
        for (j in seq_along(block))
            if (gaps[t, block[j]])
                completed[t, block[j]] <- completed[nearest(t, j), block[j]]
    for (column in names(penguins))
        if (gaps[t, column])
            cat(sprintf('{%d, %d, "%s"},\n', t, match(column, names(penguins)), completed[t, column]))
}
cat("};\n")

# What follows is of the completed table.
rows <- c(1, 4, 9, 150, 200, 254, 340, 344)
species <- unique(penguins$species)

components <- prcomp(completed[measurements], scale. = TRUE)
signs <- apply(components$rotation, 2, function(v) sign(v[which.max(abs(v))]))
rotation <- sweep(components$rotation, 2, signs, "*")
scores <- sweep(components$x, 2, signs, "*")
table4 <- function(name, values)
    cat("inline const double ", name, "[][", ncol(values), "] = {\n",
        paste0("{", apply(values, 1, digits), "},\n"), "};\n", sep = "")

cat("\n// prcomp(scale. = TRUE): variances, and the rotation, each vector with its largest coefficient positive.\n",
    "inline const std::array<double, 4> componentVariances = {", digits(components$sdev^2), "};\n", sep = "")
table4("rotationReferences", rotation)

# Scores of variance 1, so that what is left to the columns is the rotation times the standard deviations.
map <- sweep(scores, 2, components$sdev, "/")[, 1:2]
cat("\n// The biplot on the first two: the columns, the means of the species, and some rows (from 1); the row farthest\n",
    "// out.\n", sep = "")
table4("biplotColumns", sweep(rotation, 2, components$sdev, "*")[, 1:2])
table4("biplotGroups", t(sapply(species, function(s) colMeans(map[penguins$species == s, ]))))
table4("biplotRows", cbind(rows, map[rows, ]))
cat("inline const int farthestRow = ", which.max(rowSums(map^2)), ";\n", sep = "")

fit <- summary(lm(body_mass_g ~ ., completed[measurements]))
cat("\n// summary(lm(body_mass_g ~ .)): coefficients and standard errors, the intercept first; R squared, sigma, degrees\n",
    "// of freedom.\n", sep = "")
table4("regressionReferences", fit$coefficients[, 1:2])
cat("inline const std::array<double, 3> regressionQuality = {", digits(c(fit$r.squared, fit$sigma, fit$df[2])), "};\n",
    sep = "")

cat("\n// summary(lm(...)), confint(lm(...)): p values and 95 % intervals, the intercept first; F of the fit.\n", sep = "")
model <- lm(body_mass_g ~ ., completed[measurements])
table3 <- cbind(fit$coefficients[, 4], confint(model))
table4("regressionIntervals", table3)
f <- fit$fstatistic
cat("inline const std::array<double, 2> regressionF = {",
    digits(c(f[1], pf(f[1], f[2], f[3], lower.tail = FALSE))), "};\n", sep = "")

# Weights that differ: relative ones, as lm takes them.
weights <- 1 + seq_len(nrow(completed)) %% 3
weighted <- lm(body_mass_g ~ ., completed[measurements], weights = weights)
summarised <- summary(weighted)
cat("\n// The same fit with weights 2, 3, 1, 2, 3, 1, ...: coefficients, errors, p values, 95 % intervals; R squared and\n",
    "// sigma with the weights brought to a mean of 1.\n", sep = "")
table4("weightedRegression", cbind(summarised$coefficients[, c(1, 2, 4)], confint(weighted)))
cat("inline const std::array<double, 2> weightedQuality = {",
    digits(c(summarised$r.squared, summarised$sigma / sqrt(mean(weights)))), "};\n", sep = "")

# Analyses of variance and all comparisons: pooled, with each correction.
compared <- list(c("Adelie", "Chinstrap"), c("Adelie", "Gentoo"), c("Chinstrap", "Gentoo"))
cat("\n// Per measurement: F and p of oneway.test(var.equal = TRUE).\n",
    "inline const double varianceReferences[4][2] = {\n", sep = "")
for (column in measurements) {
    test <- oneway.test(penguins[[column]] ~ penguins$species, var.equal = TRUE)
    cat("{", digits(c(test$statistic, test$p.value)), "},\n", sep = "")
}
cat("};\n")
cat("\n// Per measurement and two species (Chinstrap - Adelie, Gentoo - Adelie, Gentoo - Chinstrap): difference, standard\n",
    "// error, 95 % interval by the variance within all three; pairwise.t.test without correction, by Bonferroni, Holm, BH.\n",
    "inline const double comparisonReferences[12][8] = {\n", sep = "")
for (column in measurements) {
    p <- lapply(c("none", "bonferroni", "holm", "BH"), function(method)
        pairwise.t.test(penguins[[column]], penguins$species, p.adjust.method = method)$p.value)
    for (pair in compared) {
        releveled <- lm(penguins[[column]] ~ relevel(factor(penguins$species), ref = pair[1]))
        row <- grep(pair[2], rownames(summary(releveled)$coefficients))
        cat("{", digits(c(summary(releveled)$coefficients[row, 1:2], confint(releveled)[row, ],
                          sapply(p, function(m) m[pair[2], pair[1]]))), "},\n", sep = "")
    }
}
cat("};\n")

cat("\n// p.adjust of 0.01, 0.04, 0.03, 0.005, 0.2 by Bonferroni, Holm, BH.\n",
    "inline const double correctedReferences[3][5] = {\n", sep = "")
for (method in c("bonferroni", "holm", "BH"))
    cat("{", digits(p.adjust(c(0.01, 0.04, 0.03, 0.005, 0.2), method)), "},\n", sep = "")
cat("};\n")

