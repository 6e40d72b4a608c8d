#include "level1_routines.h"

#include "detail/strided_vector.h"

using namespace vecmat;

double DNRM2(int count, matrix* x, int inc, int row, int col)
{
    return inc < 1 ? 0.0 : norm(count, TableStore(x).from(row, col, count, inc));
}

double DNRM2SPV(int count, matrix** x, int inc, int row, int col)
{
    return inc < 1 ? 0.0 : norm(count, ColumnStore(x).from(row, col, count, inc));
}

void dscal(int count, double a, matrix* x, int inc, int row, int col)
{
    multiply(count, a, TableStore(x).from(row, col, count, inc));
}

void dscalSPV(int count, double a, matrix** x, int inc, int row, int col)
{
    multiply(count, a, ColumnStore(x).from(row, col, count, inc));
}

void drotg(double* a, double* b, double* c, double* s)
{
    const Rotation rotation = makeRotation(*a, *b);
    *c = rotation.c;
    *s = rotation.s;
}

double ddot(int count, matrix* x, int incx, matrix* y, int incy, int rowx, int colx, int rowy, int coly)
{
    return innerProduct(count, TableStore(x).from(rowx, colx, count, incx),
                        TableStore(y).from(rowy, coly, count, incy));
}

double ddotSPV(int count, matrix** x, int incx, matrix** y, int incy, int rowx, int colx, int rowy, int coly)
{
    return innerProduct(count, ColumnStore(x).from(rowx, colx, count, incx),
                        ColumnStore(y).from(rowy, coly, count, incy));
}

void daxpy(int count, double a, matrix* x, int incx, matrix* y, int incy, int rowx, int colx, int rowy, int coly)
{
    addMultiple(count, a, TableStore(x).from(rowx, colx, count, incx), TableStore(y).from(rowy, coly, count, incy));
}

void daxpySPV(int count, double a, matrix** x, int incx, matrix** y, int incy, int rowx, int colx, int rowy, int coly)
{
    addMultiple(count, a, ColumnStore(x).from(rowx, colx, count, incx), ColumnStore(y).from(rowy, coly, count, incy));
}

void drot(int count, matrix* x, int incx, matrix* y, int incy, double c, double s, int colx, int coly)
{
    rotate(count, TableStore(x).from(1, colx, count, incx), TableStore(y).from(1, coly, count, incy), c, s);
}

void drotSPV(int count, matrix** x, int incx, matrix** y, int incy, double c, double s, int colx, int coly)
{
    rotate(count, ColumnStore(x).from(1, colx, count, incx), ColumnStore(y).from(1, coly, count, incy), c, s);
}

void M_SwapVectors(int count, matrix* x, int incx, matrix* y, int incy, int colx, int coly)
{
    exchange(count, TableStore(x).from(1, colx, count, incx), TableStore(y).from(1, coly, count, incy));
}

void M_SwapVectorsSPV(int count, matrix** x, int incx, matrix** y, int incy, int colx, int coly)
{
    exchange(count, ColumnStore(x).from(1, colx, count, incx), ColumnStore(y).from(1, coly, count, incy));
}
