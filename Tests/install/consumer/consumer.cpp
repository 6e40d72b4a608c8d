// Uses a table, a flat form and a string that the library makes.
#include "frame/services.h"
#include "matrix.h"

#include <cstdio>

int main()
{
    int counts[] = {4, 5};
    double numbers[2];
    Cpp_V_CopyLongToDouble(counts, 2, numbers);
    matrix table(2, 1, numbers, true);
    std::printf("%.1f %ls\n", (table.vbget(1, 1) + table.vbget(2, 1)) / 2.0, ChrSp(91).c_str());
}
