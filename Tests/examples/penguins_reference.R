# Prints penguins_reference.inc, the statistics of the penguins by R, from the repository's root:
#     Rscript Tests/examples/penguins_reference.R > Tests/examples/penguins_reference.inc
penguins <- read.csv("Examples/survey/penguins.csv")

# Skewness and kurtosis in the forms G1 and G2 of Joanes and Gill (1998), from central moments of divisor n.
moment <- function(x, k) mean((x - mean(x))^k)
g1 <- function(x) moment(x, 3) / moment(x, 2)^1.5
g2 <- function(x) moment(x, 4) / moment(x, 2)^2 - 3
G1 <- function(x) { n <- length(x); g1(x) * sqrt(n * (n - 1)) / (n - 2) }
G2 <- function(x) { n <- length(x); (n - 1) / ((n - 2) * (n - 3)) * ((n + 1) * g2(x) + 6) }

# Quantiles at position (n-1)p + 1/2 up to p = 0.5 and (n-1)p + 1 above, counted from 1.
shifted <- function(x, p) {
    x <- sort(x)
    h <- pmax((length(x) - 1) * p + ifelse(p <= 0.5, 0.5, 1), 1)
    approx(seq_along(x), x, h)$y
}
thirteen <- c(0.05, 0.1, 0.2, 0.25, 0.3, 0.4, 0.5, 0.6, 0.7, 0.75, 0.8, 0.9, 0.95)

digits <- function(values) paste(sprintf("%.17g", values), collapse = ", ")

cat("// Made by penguins_reference.R with R ", as.character(getRversion()), ". Per column and group: cells, missing\n",
    "// cells; min, max, mean, sd, G1, G2; quantile(type = 7) at 0.25, 0.5, 0.75; the thirteen quantiles.\n", sep = "")
for (column in c("bill_length_mm", "bill_depth_mm", "flipper_length_mm", "body_mass_g"))
    for (species in c("Adelie", "Chinstrap", "Gentoo", "all")) {
        cells <- if (species == "all") penguins[[column]] else penguins[[column]][penguins$species == species]
        x <- cells[!is.na(cells)]
        cat(sprintf('{"%s", "%s", %d, %d,\n', column, species, length(x), sum(is.na(cells))),
            " {", digits(c(min(x), max(x), mean(x), sd(x), G1(x), G2(x))), "},\n",
            " {", digits(quantile(x, c(0.25, 0.5, 0.75), type = 7, names = FALSE)), "},\n",
            " {", digits(shifted(x, thirteen)), "}},\n", sep = "")
    }
