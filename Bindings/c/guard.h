// What every guarded call runs in. Not installed.
#pragma once

#include "VecMatGuarded.h"

namespace vecmat {

/// To be called where an exception was caught: its status, and its text for `vecmat_guarded_error`.
int statusOfException(const char* function) noexcept;

void forgetError() noexcept;

template <class Call>
int guarded(const char* function, const Call& call) noexcept
{
    try {
        call();
    } catch (...) {
        return statusOfException(function);
    }
    forgetError();
    return VECMAT_CALL_DONE;
}

template <class Result, class Call>
int guarded(const char* function, Result* returned, const Call& call) noexcept
{
    return guarded(function, [&] {
        const Result result = call();
        if (returned != nullptr)
            *returned = result;
    });
}

} // namespace vecmat
