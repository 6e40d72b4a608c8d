#include "guard.h"

#include <cstdio>
#include <exception>
#include <new>
#include <stdexcept>

namespace {

// Of a fixed size: a text of the heap's would need memory just when there is none. Longer reasons are cut.
constexpr std::size_t errorSize = 256;
thread_local constinit char lastError[errorSize] = {};

int failed(const char* function, const char* reason, int status)
{
    std::snprintf(lastError, errorSize, "%s: %s", function, reason);
    return status;
}

} // namespace

int vecmat::statusOfException(const char* function) noexcept
{
    try {
        throw;
    } catch (const std::bad_alloc&) {
        return failed(function, "out of memory", VECMAT_CALL_OUT_OF_MEMORY);
    } catch (const std::length_error&) {
        return failed(function, "out of memory", VECMAT_CALL_OUT_OF_MEMORY);
    } catch (const std::exception& failure) {
        return failed(function, failure.what(), VECMAT_CALL_FAILED);
    } catch (...) {
        return failed(function, "an exception of unknown type", VECMAT_CALL_FAILED);
    }
}

void vecmat::forgetError() noexcept
{
    lastError[0] = '\0';
}

const char* vecmat_guarded_error(void)
{
    return lastError;
}
