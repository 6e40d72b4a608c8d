#include "square_root.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

int Cpp_M_SquareRoot(double* a, int n, double* out)
{
    return M_SquareRoot(viewed(a, n, n), n, viewed(out, n, n).reference());
}
