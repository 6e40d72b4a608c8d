// What the library takes for a column of an array of columns.
#pragma once

#include <frame/super_matrices.h>

#include <cstddef>
#include <cstdint>

namespace vecmat::binding {

inline SAFEARRAY columnDescriptor(void* data, std::size_t count, std::size_t bytes)
{
    SAFEARRAY array{};
    array.cDims = 1;
    array.cbElements = static_cast<std::uint32_t>(bytes);
    array.pvData = data;
    array.rgsabound[0].cElements = static_cast<std::uint32_t>(count);
    return array;
}

} // namespace vecmat::binding
