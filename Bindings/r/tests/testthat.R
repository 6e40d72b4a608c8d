library(testthat)
library(vecmat)

test_check("vecmat")
