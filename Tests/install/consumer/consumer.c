/* C declares the flat forms that it calls: those take plain arrays and numbers. */
#include <stdio.h>

extern void Cpp_V_CopyLongToDouble(int* src, int n, double* dst);
extern short Cpp_TestMemory(void);

int main(void)
{
    int counts[] = {4, 5};
    double numbers[2];
    Cpp_V_CopyLongToDouble(counts, 2, numbers);
    printf("%.1f %s\n", (numbers[0] + numbers[1]) / 2.0, Cpp_TestMemory() == -1 ? "AA" : "not -1");
    return 0;
}
