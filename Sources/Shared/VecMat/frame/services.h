// Small services of the library: number conversions of whole arrays, memory status, column labels.
#pragma once

#include "../base/api.h"

#include <string>
#include <vector>

extern "C" {

/// Truncates each of `n` doubles towards zero; numbers outside the range become the lowest int.
/// @missing becomes the lowest int
/// @empty nothing is copied
VECMAT_API void Cpp_V_CopyDoubleToLong(double* src, int n, int* dst);
/// Widens each of `n` ints.
/// @missing ints are never missing
/// @empty nothing is copied
VECMAT_API void Cpp_V_CopyLongToDouble(int* src, int n, double* dst);

/// Kept names that do nothing.
VECMAT_API void Cpp_WriteMatrixDbl();
VECMAT_API void Cpp_WriteMatrixLng();

/// Does nothing; returns 0.
VECMAT_API int TestMemory();
/// Does nothing; returns -1.
VECMAT_API short Cpp_TestMemory();
/// 1 where `a` is 0 or negative, otherwise 0. Reads nothing else.
VECMAT_API int PrepareTest(int a, int b, std::vector<void*>& v);
/// Returns 1.
VECMAT_API int TestAllocMatrix(int a1, int a2, int a3, int a4, int a5, int a6, int a7, int a8, int a9, int a10, int a11,
                               int a12, int a13, int a14, int a15, int a16, int a17, int a18, int a19, int a20);

/// 1 when 1.2 times `bytes` is not above the resident size of the process, otherwise 0; also 0 where the operating
/// system does not provide it. This compares with what the process holds, not with what is free.
VECMAT_API int GetStatusMemory(int bytes);
/// The same as a Boolean: -1 or 0.
VECMAT_API short Cpp_GetStatusMemory(int bytes);

/// Debug print of a labelled value.
/// @missing printed like an ordinary number
/// @empty an empty label is printed
/// @weak the finished line is itself the format string of `printf`, so a per cent sign in the label is interpreted
VECMAT_API void dprint(double value, const char* label);

/// Column label of a spreadsheet for a character code: 65 is A, 90 Z, 91 AA. A code below 91 gives the one character
/// with that number. Labels of three characters begin at code 741 with A@A.
VECMAT_API std::wstring ChrSp(int code);

} // extern "C"
