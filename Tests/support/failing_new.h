// Lets the n-th allocation fail, for every n, and counts what is left over.
//
// This header DEFINES the global operators new and delete of the program, so it is included by tests that need it, once
// in a program, and by nothing else. The operators of a program serve the shared libraries that it loads too, which is
// what makes the library's own allocations fail. Not for tests with threads.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <exception>
#include <functional>
#include <new>

namespace vecmat::test {

struct AllocationState
{
    long live = 0;             // allocations made and not yet released
    long countdown = 0;        // the allocation that brings this to 0 fails
    bool threw = false;        // a failure was thrown
    bool returnedNull = false; // a failure was returned, by the form of new that does not throw
};

inline AllocationState& allocationState()
{
    static constinit AllocationState state;
    return state;
}

inline bool nextAllocationFails()
{
    long& countdown = allocationState().countdown;
    return countdown > 0 && --countdown == 0;
}

inline void* allocateOrNull(std::size_t bytes, std::size_t alignment)
{
    if (nextAllocationFails())
        return nullptr;
    const std::size_t atLeastOne = bytes == 0 ? 1 : bytes;
    // Sizes of aligned blocks are multiples of the alignment.
    const std::size_t rounded = (atLeastOne + alignment - 1) / alignment * alignment;
    void* const block = alignment <= alignof(std::max_align_t) || rounded < atLeastOne
                            ? std::malloc(atLeastOne)
                            : std::aligned_alloc(alignment, rounded);
    if (block != nullptr)
        ++allocationState().live;
    return block;
}

inline void* allocateOrThrow(std::size_t bytes, std::size_t alignment = 1)
{
    void* const block = allocateOrNull(bytes, alignment);
    if (block == nullptr) {
        allocationState().threw = true;
        throw std::bad_alloc();
    }
    return block;
}

inline void* allocateQuietly(std::size_t bytes, std::size_t alignment = 1) noexcept
{
    void* const block = allocateOrNull(bytes, alignment);
    if (block == nullptr)
        allocationState().returnedNull = true;
    return block;
}

inline void release(void* block) noexcept
{
    if (block != nullptr)
        --allocationState().live;
    std::free(block);
}

/// What becomes of a failure: it passes out of the body as std::bad_alloc, or the body may catch it.
enum class Failure { passesOut, mayBeCaught };

/// How one run of a body ended.
enum class Ending { ranThrough, badAlloc, otherException };

inline Ending runWithFailure(const std::function<void()>& body, long failingAllocation)
{
    AllocationState& state = allocationState();
    state.threw = state.returnedNull = false;
    state.countdown = failingAllocation;
    Ending ending = Ending::ranThrough;
    try {
        body();
    } catch (const std::bad_alloc&) {
        ending = Ending::badAlloc;
    } catch (...) {
        ending = Ending::otherException;
    }
    state.countdown = 0;
    return ending;
}

/// Runs `body` with its first, second, ... allocation failing, until it runs through because it makes no more. Checks
/// each time that the exception passed out unchanged (a request by the form of new that returns null needs no
/// exception) and that the body released all it had made. Returns the number of failures tried, for the test to see
/// that there were some; stops at the first check that fails. The body should consist of the calls under test, release
/// what they hand over, and assert nothing while an allocation may fail.
inline int forEachFailingAllocation(const std::function<void()>& body, Failure failure = Failure::passesOut)
{
    body(); // buffers that are kept from call to call are made here
    const AllocationState& state = allocationState();
    for (int n = 1;; ++n) {
        const long before = state.live;
        const Ending ending = runWithFailure(body, n);
        const long leftOver = state.live - before;
        const bool passedOut = (ending == Ending::badAlloc) == state.threw;
        if (leftOver != 0)
            ADD_FAILURE() << leftOver << " allocations left over (below 0: released twice) when number " << n
                          << " failed";
        else if (ending == Ending::otherException)
            ADD_FAILURE() << "another exception than std::bad_alloc when allocation " << n << " failed";
        else if (!passedOut && failure == Failure::passesOut)
            ADD_FAILURE() << "the failure of allocation " << n << " did not pass out";
        else if (state.threw || state.returnedNull)
            continue;
        return n - 1;
    }
}

/// Asserts that `call` does without the memory that it requests by the form of new that returns null. Lets its first,
/// second, ... allocation fail, until none fails any more. `check` asserts the result after every run that ends: with a
/// null, which has to occur, that is the fallback's. A run may also end because the call catches std::bad_alloc, which
/// `check` sees in allocationState().threw; or the exception passes out, and nothing is checked. Returns the number of
/// failures tried.
inline int expectFallbackAtEachFailure(const std::function<void()>& call, const std::function<void()>& check)
{
    AllocationState& state = allocationState();
    state.threw = state.returnedNull = false; // the first run meets no failure
    int runs = 0;
    int nulls = 0;
    int endedByNull = 0;
    const auto run = [&] {
        const int failing = runs++;
        try {
            call();
        } catch (...) {
            nulls += state.returnedNull ? 1 : 0;
            endedByNull += state.threw ? 0 : 1;
            throw;
        }
        state.countdown = 0; // the allocations of the check succeed
        nulls += state.returnedNull ? 1 : 0;
        SCOPED_TRACE(testing::Message() << "where allocation " << failing << " fails (0: none)");
        check();
    };
    const int failures = forEachFailingAllocation(run, Failure::mayBeCaught);
    EXPECT_GT(nulls, 0) << "no request was answered with a null";
    EXPECT_EQ(endedByNull, 0) << "an exception came of a null";
    return failures;
}

} // namespace vecmat::test

// Every form is replaced, so that no block made here is released by a sanitizer's own operator, or the reverse.
// clang-format off
// NOLINTBEGIN(misc-definitions-in-headers)
void* operator new(std::size_t bytes) { return vecmat::test::allocateOrThrow(bytes); }
void* operator new[](std::size_t bytes) { return vecmat::test::allocateOrThrow(bytes); }
void* operator new(std::size_t bytes, std::align_val_t alignment) { return vecmat::test::allocateOrThrow(bytes, std::size_t(alignment)); }
void* operator new[](std::size_t bytes, std::align_val_t alignment) { return vecmat::test::allocateOrThrow(bytes, std::size_t(alignment)); }
void* operator new(std::size_t bytes, const std::nothrow_t&) noexcept { return vecmat::test::allocateQuietly(bytes); }
void* operator new[](std::size_t bytes, const std::nothrow_t&) noexcept { return vecmat::test::allocateQuietly(bytes); }
void* operator new(std::size_t bytes, std::align_val_t alignment, const std::nothrow_t&) noexcept { return vecmat::test::allocateQuietly(bytes, std::size_t(alignment)); }
void* operator new[](std::size_t bytes, std::align_val_t alignment, const std::nothrow_t&) noexcept { return vecmat::test::allocateQuietly(bytes, std::size_t(alignment)); }
void operator delete(void* block) noexcept { vecmat::test::release(block); }
void operator delete[](void* block) noexcept { vecmat::test::release(block); }
void operator delete(void* block, std::size_t) noexcept { vecmat::test::release(block); }
void operator delete[](void* block, std::size_t) noexcept { vecmat::test::release(block); }
void operator delete(void* block, std::align_val_t) noexcept { vecmat::test::release(block); }
void operator delete[](void* block, std::align_val_t) noexcept { vecmat::test::release(block); }
void operator delete(void* block, std::size_t, std::align_val_t) noexcept { vecmat::test::release(block); }
void operator delete[](void* block, std::size_t, std::align_val_t) noexcept { vecmat::test::release(block); }
void operator delete(void* block, const std::nothrow_t&) noexcept { vecmat::test::release(block); }
void operator delete[](void* block, const std::nothrow_t&) noexcept { vecmat::test::release(block); }
void operator delete(void* block, std::align_val_t, const std::nothrow_t&) noexcept { vecmat::test::release(block); }
void operator delete[](void* block, std::align_val_t, const std::nothrow_t&) noexcept { vecmat::test::release(block); }
// NOLINTEND(misc-definitions-in-headers)
// clang-format on
