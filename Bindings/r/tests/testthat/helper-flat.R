# Calls of the flat functions as C++ has made them, a line of JSON for each: `tools/test r` writes the file.

arguments_of <- function(call) {
  table <- vecmat:::flat_table()
  table[table[["function"]] == call & nzchar(table$kind), ]
}

dumped_calls <- function() {
  path <- Sys.getenv("VECMAT_DUMPED_CALLS")
  skip_if(path == "", "VECMAT_DUMPED_CALLS names no file: tools/test r makes one")
  skip_if_not_installed("jsonlite")
  lapply(readLines(path, encoding = "UTF-8"), jsonlite::fromJSON, simplifyVector = FALSE)
}

doubles_of <- function(digits) {
  first <- seq.int(1L, by = 2L, length.out = nchar(digits) %/% 2L)
  bytes <- strtoi(substring(digits, first, first + 1L), 16L)
  readBin(as.raw(bytes), "double", nchar(digits) %/% 16L, endian = "big")
}

texts_of <- function(held) vapply(held, function(text) if (is.null(text)) NA_character_ else enc2utf8(text), "")

# What R hands over for an argument that held this.
given_of <- function(kind, held) {
  if (is.null(held)) return(NULL)
  switch(kind,
    doubles = if (nzchar(held)) doubles_of(held) else double(),
    ints = , flags = as.numeric(unlist(held)),
    strings = texts_of(held),
    columns = lapply(held, function(column) given_of("doubles", column)),
    stringColumns = lapply(held, texts_of),
    text = , bstr = held,
    number = doubles_of(held),
    held)
}

# The same cells, in a form that compares to the last bit: one NaN is like another, a missing string like an empty one.
comparable <- function(kind, cells) {
  if (is.null(cells)) return(NULL)
  switch(kind,
    doubles = , number = {
      cells <- as.vector(cells)
      cells[is.nan(cells)] <- NaN
      writeBin(as.double(cells), raw())
    },
    ints = , flags = , integer = , flag = {
      cells <- as.numeric(as.vector(cells))
      cells[is.na(cells)] <- -2147483648
      cells
    },
    strings = ifelse(is.na(cells), "", as.vector(cells)),
    columns = lapply(cells, function(column) comparable("doubles", column)),
    stringColumns = lapply(cells, function(column) comparable("strings", column)),
    cells)
}
