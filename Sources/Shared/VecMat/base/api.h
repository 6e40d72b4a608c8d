// Marks what the library exports; everything else has hidden visibility.
#pragma once

#ifdef _WIN32 // where a list that the build makes from exports.tsv tells the linker
#define VECMAT_API
#define VECMAT_LOCAL
#else
#define VECMAT_API __attribute__((visibility("default")))
#define VECMAT_LOCAL __attribute__((visibility("hidden")))
#endif
