// The functions that count and look up texts, over `TableTexts` or `CallerTexts`: the exported ones call them with their
// tables, and the flat forms with the caller's texts where they lie. The contracts are those of the exported functions.
// Internal to the library.
#pragma once

#include "../../Smatrix.h"
#include "../../base/detail/outgoing_texts.h"
#include "../../elementary/detail/texts.h"
#include "../../matrix.h"
#include "../../matrixInt.h"

#include <string>
#include <vector>

namespace vecmat {

template <class Texts>
void infoQuali(const Texts& table, int nRows, int nCols, Smatrix*& modes, matrix*& modeWeights, matrixInt*& nCats,
               Smatrix*& categories, matrix*& catWeights, matrix* weights, int* total, short sortCats);
/// The modes that `infoQuali` finds, without its lists of categories: strings, or the caller's texts themselves.
std::vector<std::wstring> modesOfColumns(const TableTexts& table, int nRows, int nCols, matrix* weights);
std::vector<wchar_t*> modesOfColumns(const CallerTexts& table, int nRows, int nCols, matrix* weights);
template <class Texts>
void infoQuali2(const Texts& table, int nRows, int nCols, int maxCats, matrixInt* nCats, Smatrix*& modes,
                matrix*& modeWeights, Smatrix*& categories, matrix*& catWeights, matrix* weights, int* total,
                short sortCats);
template <class Texts>
void infoQualiValid(const Texts& table, int nRows, int nCols, int maxCats, matrixInt* nCats, const Texts& categories,
                    matrix*& catWeights, short* invalid, matrix* weights);
template <class Texts>
int getMaxCat(const Texts& table, int nRows, int nCols, matrixInt* counts);

/// Is one of the counts[i] labels of a row i at one place of a row and at a later place of any row?
template <class Texts>
bool labelsRepeat(const Texts& labels, int nRows, int nCols, const int* counts);

template <class Texts>
void buildDisjunctiveTable(const Texts& table, int nRows, int nCols, int totalCats, matrixInt* nCats,
                           const Texts& categories, matrix* freq, matrix*& out, int coding, int keepBaseline);

template <class Texts>
std::wstring mode(const Texts& x, int n, matrix* weights);
template <class Texts>
int nbDistinct(const Texts& x, int n);

template <class Texts>
void replaceCatByCodes(const Texts& table, int nRows, int nCols, int* nCats, const Texts& categories, matrix*& out);
template <class Texts>
void replaceStrByCodes(const Texts& table, int nRows, int nCols, int* nCats, const Texts& categories, short* mask,
                       int firstCode, matrix*& out);

/// The labels of an array of the call's own, which is changed, as new texts for `out`.
void replaceDoubles(wchar_t** x, int n, OutgoingTexts& texts, wchar_t** out);
void mergeStringsByRow(const CallerTexts& table, int nRows, int nCols, const std::wstring& separator,
                       OutgoingTexts& texts, wchar_t** out);

double freqStr(const CallerTexts& x, int n, matrix* weights, const std::wstring& value);
void recodeToBinary(const CallerTexts& x, int n, const std::wstring& value, matrix* out);

} // namespace vecmat
