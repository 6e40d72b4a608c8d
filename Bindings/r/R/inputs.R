# What comes in: vectors, matrices, data frames and factors become cells; what goes out gets its names back.

wrong <- function(name, ...) stop(name, ": ", ..., call. = FALSE)

described <- function(x) {
  if (is.null(x)) return("NULL")
  if (is.factor(x)) return("a factor")
  if (inherits(x, NO_NUMBERS)) return(paste("a vector of the class", class(x)[1L]))
  if (is.data.frame(x)) return(sprintf("a data frame of %d by %d", nrow(x), ncol(x)))
  if (!is.null(dim(x))) return(paste("a", typeof(x), "array of", paste(dim(x), collapse = " by ")))
  if (is.atomic(x) || is.list(x)) return(sprintf("a %s vector of length %d", typeof(x), length(x)))
  paste("a", class(x)[1L])
}

# Dates and the like have an order, but no sums that mean something here.
NO_NUMBERS <- c("factor", "Date", "POSIXt", "difftime", "integer64")

is_number <- function(x) typeof(x) %in% c("double", "integer", "logical") && !inherits(x, NO_NUMBERS)

numbers <- function(x, name) {
  if (!is_number(x)) wrong(name, "expected numbers, got ", described(x))
  if (is.object(x)) unclass(x) else x
}

# A column's cells, with the missing value for NA; the caller's own memory where it fits.
vector_of <- function(x, name = "x", length = NULL) {
  x <- numbers(x, name)
  if (length(dim(x)) > 1L && !(length(dim(x)) == 2L && ncol(x) == 1L))
    wrong(name, "expected a vector, got ", described(x))
  if (!is.null(length) && base::length(x) != length)
    wrong(name, "expected ", length, " values, got ", base::length(x))
  .Call(C_vecmat_cells, x)
}

is_table <- function(x) is.data.frame(x) || length(dim(x)) == 2L

# A table's cells, with the missing value for NA: a matrix.
table_of <- function(x, name = "x", square = FALSE, rows = NULL, cols = NULL) {
  if (is.data.frame(x)) {
    bad <- !vapply(x, function(column) is_number(column) && is.null(dim(column)), NA)
    if (any(bad)) wrong(name, "expected numbers, but these columns hold others: ", paste(names(x)[bad], collapse = ", "))
    cells <- .Call(C_vecmat_frame_cells, x, nrow(x))
  } else {
    if (length(dim(x)) != 2L) wrong(name, "expected a matrix or a data frame, got ", described(x))
    cells <- .Call(C_vecmat_cells, numbers(x, name))
  }
  if (square && nrow(cells) != ncol(cells)) wrong(name, "expected a square matrix, got ", described(x))
  if (!is.null(rows) && nrow(cells) != rows) wrong(name, "expected ", rows, " rows, got ", nrow(cells))
  if (!is.null(cols) && ncol(cells) != cols) wrong(name, "expected ", cols, " columns, got ", ncol(cells))
  cells
}

# A square table all of whose cells are finite numbers.
complete_of <- function(x, name = "a", square = TRUE) {
  cells <- table_of(x, name, square)
  if (any(cells == vm_missing)) wrong(name, "a cell is missing; a decomposition needs all of them")
  if (!all(is.finite(cells))) wrong(name, "a cell is infinite; a decomposition needs finite ones")
  cells
}

weights_of <- function(weights, n) {
  if (is.null(weights)) return(rep(1, n))
  weights <- numbers(weights, "weights")
  if (length(weights) != n) wrong("weights", "expected ", n, " values, got ", length(weights))
  if (anyNA(weights) || any(weights < 0) || any(is.infinite(weights)))
    wrong("weights", "a weight is negative, missing or infinite")
  as.double(weights)
}

flags_of <- function(x, n, name) {
  if (!is.logical(x)) wrong(name, "expected logical values, got ", described(x))
  if (length(x) != n) wrong(name, "expected ", n, " logical values, got ", length(x))
  if (anyNA(x)) wrong(name, "a value is NA")
  x
}

mask_of <- function(exclude, n) if (is.null(exclude)) NULL else flags_of(exclude, n, "exclude")

# For the functions that take no null mask.
full_mask_of <- function(exclude, n) if (is.null(exclude)) logical(n) else flags_of(exclude, n, "exclude")

one_number <- function(x, name, low = -Inf, high = Inf) {
  if (!is_number(x) || length(x) != 1L || is.na(x)) wrong(name, "expected a number, got ", described(x))
  if (x < low || x > high) wrong(name, "expected a number from ", low, " to ", high, ", got ", x)
  as.double(x)
}

one_whole <- function(x, name, low = -2147483647, high = 2147483647) {
  if (!is_number(x) || length(x) != 1L || is.na(x) || x != floor(x))
    wrong(name, "expected a whole number, got ", if (is_number(x) && length(x) == 1L) x else described(x))
  if (x < low || x > high) wrong(name, "expected a whole number from ", low, " to ", high, ", got ", x)
  as.integer(x)
}

one_flag <- function(x, name) {
  if (!is.logical(x) || length(x) != 1L || is.na(x)) wrong(name, "expected TRUE or FALSE, got ", described(x))
  x
}

one_string <- function(x, name) {
  if (!is.character(x) || length(x) != 1L || is.na(x)) wrong(name, "expected a string, got ", described(x))
  x
}

choice <- function(x, choices, name) {
  if (identical(x, choices)) return(choices[1L])
  if (!is.character(x) || length(x) != 1L || !(x %in% choices))
    wrong(name, "expected one of ", paste0('"', choices, '"', collapse = ", "))
  x
}

# One column of strings; NA where one is missing.
labels_of <- function(x, name = "x", length = NULL) {
  if (is_table(x) && ncol(x) == 1L) x <- x[[1L]]
  if (!is.atomic(x) || length(dim(x)) > 1L) wrong(name, "expected a factor or a character vector, got ", described(x))
  cells <- enc2utf8(as.character(x))
  if (!is.null(length) && base::length(cells) != length)
    wrong(name, "expected ", length, " labels, got ", base::length(cells))
  cells[!is.na(cells) & !nzchar(cells)] <- NA
  cells
}

# A table of strings as a character matrix.
label_table_of <- function(x, name = "x") {
  if (is.data.frame(x)) {
    cells <- vapply(x, labels_of, character(nrow(x)), name = name)
    return(matrix(cells, nrow(x), ncol(x), dimnames = list(NULL, names(x))))
  }
  if (length(dim(x)) == 2L) {
    cells <- matrix(labels_of(as.vector(x), name), nrow(x), ncol(x), dimnames = dimnames(x))
    return(cells)
  }
  matrix(labels_of(x, name), ncol = 1L)
}

# Rows, and names of columns and rows.
rows_of <- function(x) if (is_table(x)) nrow(x) else length(x)
row_names_of <- function(x) if (is.data.frame(x)) (if (.row_names_info(x) > 0L) row.names(x)) else rownames(x)
column_names_of <- function(x) if (is.data.frame(x)) names(x) else colnames(x)

# NA for the missing value.
values <- function(x) .Call(C_vecmat_values, x)

named <- function(x, names) {
  names(x) <- names
  x
}

square_of <- function(x, names) table_named(x, names, names)

table_named <- function(x, rows, columns) {
  dimnames(x) <- if (!is.null(rows) || !is.null(columns)) list(rows, columns)
  x
}

# A table with the form and the names of the one it was made of.
like <- function(cells, x) {
  if (is.data.frame(x)) {
    result <- as.data.frame(cells)
    names(result) <- names(x)
    attr(result, "row.names") <- attr(x, "row.names")
    return(result)
  }
  if (is_table(x)) {
    dim(cells) <- dim(x)
    dimnames(cells) <- dimnames(x)
    return(cells)
  }
  dim(cells) <- NULL
  named(cells, names(x))
}

# `one` of a vector, or of each column of a table; names kept, NA where the library has the missing value.
by_column <- function(x, one) {
  if (is.data.frame(x))
    return(values(named(vapply(seq_along(x), function(j) one(vector_of(x[[j]], names(x)[j])), 0), names(x))))
  if (length(dim(x)) == 2L) {
    x <- numbers(x, "x")
    buffer <- double(nrow(x))
    return(values(named(vapply(seq_len(ncol(x)), function(j) one(.Call(C_vecmat_column, x, j, buffer)), 0), colnames(x))))
  }
  values(one(vector_of(x)))
}

# The library's `sample` and `freqWeights` for a divisor by its name.
DIVISORS <- c("frequency", "reliability", "population")
divisor_codes <- function(divisor) {
  switch(choice(divisor, DIVISORS, "divisor"), frequency = c(-1L, -1L), reliability = c(-1L, 0L), population = c(0L, 0L))
}
