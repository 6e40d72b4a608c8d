#include "square_root.h"

#include "../frame/detail/handles.h"

using namespace vecmat;

int Cpp_M_SquareRoot(double* a, int n, double* out)
{
    auto root = viewed(out, n, n);
    return M_SquareRoot(viewed(a, n, n), n, root.reference());
}
