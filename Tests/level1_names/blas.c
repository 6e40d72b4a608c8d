/* A stand-in of a BLAS whose names have no underscore: five of them are VecMat's, too, with other arguments. It counts
   its calls and tells which library its own references to these names reach. */
#include "home.h"

static int calls = 0;

int blas_calls(void)
{
    return calls;
}

double ddot(const int* n, const double* x, const int* incx, const double* y, const int* incy)
{
    double sum = 0.0;
    ++calls;
    for (int i = 0; i < *n; ++i)
        sum += x[i * *incx] * y[i * *incy];
    return sum;
}

void daxpy(const int* n, const double* a, const double* x, const int* incx, double* y, const int* incy)
{
    ++calls;
    for (int i = 0; i < *n; ++i)
        y[i * *incy] += *a * x[i * *incx];
}

void dscal(const int* n, const double* a, double* x, const int* incx)
{
    ++calls;
    for (int i = 0; i < *n; ++i)
        x[i * *incx] *= *a;
}

void drot(const int* n, double* x, const int* incx, double* y, const int* incy, const double* c, const double* s)
{
    ++calls;
    for (int i = 0; i < *n; ++i) {
        const double turned = *c * x[i * *incx] + *s * y[i * *incy];
        y[i * *incy] = *c * y[i * *incy] - *s * x[i * *incx];
        x[i * *incx] = turned;
    }
}

void drotg(double* a, double* b, double* c, double* s)
{
    ++calls;
    *c = *a >= *b ? 1.0 : 0.0;
    *s = 1.0 - *c;
}

/* How many of its own references to the five names reach this library. */
int blas_reaches_itself(void)
{
    return lies_in("libblas", (void*)ddot) + lies_in("libblas", (void*)daxpy) + lies_in("libblas", (void*)dscal) +
           lies_in("libblas", (void*)drot) + lies_in("libblas", (void*)drotg);
}
