#include "correlation_order.h"

#include "../frame/detail/borrowed_handles.h"
#include "../frame/detail/handles.h"
#include "detail/borrowed_labels.h"

using namespace vecmat;

int Cpp_ReOrderCorrelations(double* R, int n, int mode, wchar_t** labels, double* second, int* third)
{
    const TableHandle correlations = copied(R, n, n);
    const BorrowedHandle texts = borrowedCopy(labels, n, 1);
    const TableHandle companion = copied(second, n, n);
    const IntTableHandle intCompanion = copied(third, n, n);
    const int status = ReOrderCorrelations(correlations, n, mode, texts, companion, intCompanion);
    handBack(texts, labels); // before the numbers, since making strings may fail
    handBack(correlations, R);
    handBack(companion, second);
    handBack(intCompanion, third);
    return status;
}
