#include "distances.h"

#include "../access/adaptors.h"
#include "../access/cells.h"
#include "../base/detail/companions.h"
#include "../base/missing_value.h"

using namespace vecmat;

namespace {

// Here a point is a column of `points`, and its coordinates are the rows.

template <class Points>
void pairDistances(Points points, int coordinates, int count, matrix* w, matrix* out)
{
    onBlocks(
        [coordinates, count](auto x, auto weight, auto distance) {
            for (int j = 0; j < count; ++j) {
                distance.set(j, j, 0.0);
                for (int k = j + 1; k < count; ++k) {
                    double sum = 0.0;
                    for (int i = 0; i < coordinates; ++i) {
                        const double difference = x.get(i, j) - x.get(i, k);
                        sum += weight.get(i) * (difference * difference);
                    }
                    const double root = squareRoot(sum);
                    distance.set(j, k, root);
                    distance.set(k, j, root);
                }
            }
        },
        block(points, coordinates, count), block(linear(w), coordinates), block(cells(out), count, count));
}

template <class Points>
void distancesToVector(Points points, int coordinates, int count, matrix* v, matrix* out)
{
    onBlocks(
        [coordinates, count](auto x, auto centre, auto distance) {
            for (int j = 0; j < count; ++j) {
                double sum = 0.0;
                int used = 0;
                for (int i = 0; i < coordinates; ++i)
                    if (x.get(i, j) > missingValue && centre.get(i) > missingValue) {
                        const double difference = x.get(i, j) - centre.get(i);
                        sum += difference * difference;
                        ++used;
                    }
                distance.set(j, used > 0 ? squareRoot(sum / used) : missingValue);
            }
        },
        block(points, coordinates, count), block(linear(v), coordinates), block(linear(out), count));
}

} // namespace

void M_EuclidDist2(matrix* a, int rows, int cols, matrix* out, matrix* w, short betweenRows, int nRowsAgain)
{
    if (betweenRows == -1)
        pairDistances(transposed(cells(a)), cols, nRowsAgain, w, out);
    else
        pairDistances(cells(a), rows, cols, w, out);
}

void M_EuclidDistToVector(matrix* a, int rows, int cols, matrix* v, short byRow, matrix* out)
{
    if (byRow == -1)
        distancesToVector(transposed(cells(a)), cols, rows, v, out);
    else
        distancesToVector(cells(a), rows, cols, v, out);
}
