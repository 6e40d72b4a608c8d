// Marks what the library exports; everything else has hidden visibility.
#pragma once

#define VECMAT_API __attribute__((visibility("default")))
#define VECMAT_LOCAL __attribute__((visibility("hidden")))
