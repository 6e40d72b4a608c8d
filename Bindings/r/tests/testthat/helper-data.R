# Data without gaps, with gaps, and weights.
measures <- as.matrix(vm_penguins[3:6])
complete <- unname(measures[stats::complete.cases(measures), ])
set.seed(1)
gappy <- complete[1:60, ]
gappy[sample(length(gappy), 20L)] <- NA
counts <- rep(1:4, 15)

same_bits <- function(a, b) identical(writeBin(as.double(a), raw()), writeBin(as.double(b), raw()))
