// The strings of tables on their way to the caller's arrays.
#pragma once

#include "../../base/detail/outgoing_texts.h"
#include "../super_matrices.h"

namespace vecmat {

/// All cells of a table of strings or of borrowed texts; nothing if either is null.
template <class Table>
void addTexts(OutgoingTexts& texts, const Table& table, wchar_t** out)
{
    if (table != nullptr && out != nullptr)
        texts.add(table->X, table->nElems, out);
}

/// The cells of each table, to the string column of the same number, if there is one.
template <class Tables>
void addTexts(OutgoingTexts& texts, const Tables& tables, int nCols, SAFEARRAY** out)
{
    if (*out == nullptr)
        return;
    const auto* const elements = static_cast<const SAFEARRAYColumn*>((*out)->pvData);
    for (int j = 0; j < nCols; ++j)
        if (elements[j].strings != nullptr)
            addTexts(texts, tables[j], static_cast<wchar_t**>(elements[j].strings->pvData));
}

} // namespace vecmat
