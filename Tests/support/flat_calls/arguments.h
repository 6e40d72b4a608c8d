// The arguments of one call, made by a plan and held in memory of a chosen kind.
//
//     Arguments arguments(*findCall("VB_M_CovCorr"), {.size = {7, 7, 3}, .seed = 11}, Placement::beforeGuard);
//     const Result result = arguments.invoke();
//     const std::uint64_t digest = digestOf(arguments, result);     // snapshots.h
//
// Equal plans make equal arguments, on every machine. An array that the call only reads is read-only in guarded memory.
// Nothing here is shared between objects: each thread can have calls of its own.
#pragma once

#include "support/flat_calls/bstrs.h"
#include "support/flat_calls/calls.h"
#include "support/flat_calls/column_arrays.h"
#include "support/flat_calls/memory.h"
#include "support/flat_calls/plans.h"
#include "support/flat_calls/steps.h"

#include <optional>
#include <variant>
#include <vector>

namespace vecmat::flat {

/// What a call has returned. A string is taken over, and freed.
struct Result
{
    Slot slot{};
    Text text;
};

class Arguments
{
public:
    /// The memory of one argument: nothing for a number and for a null pointer.
    using Holder = std::variant<std::monostate, Block, Bstrs, ColumnArray>;

    Arguments(const Call& call, const Plan& plan, Placement placement = Placement::plain);

    const Call& call() const { return call_; }
    const Plan& plan() const { return plan_; }
    const Slot* slots() const { return slots_.data(); }
    const Holder& holder(std::size_t argument) const { return holders_[argument]; }
    bool isNull(std::size_t argument) const;

    /// The number of cells that the argument has; nothing where it is a number, a string or null.
    Extent extent(std::size_t argument) const;

    /// Hands the second array over in place of the first, too, if it is large enough. What they hold is no longer what
    /// the contract promises of two, but nothing else may be touched.
    bool shareArray(std::size_t argument, std::size_t with);

    /// Calls the function. What the library throws passes.
    Result invoke();

    /// The block that an address lies in or beside, or null.
    const Block* blockNear(const void* address) const;

    /// "VB_V_Mean(n 7, mask 0x0): count 7, ...": what a report needs to make the call again.
    std::string text() const;

private:
    void make(std::size_t argument, Placement placement);
    Extent extentAsked(const Argument& argument) const;
    Holder makeArray(const Argument& argument, Steps& steps, Extent extent, Placement placement) const;
    Holder makeColumns(const Argument& argument, Steps& steps, Extent extent, Placement placement) const;
    Holder makeSingle(const Argument& argument, Steps& steps, Placement placement) const;
    std::vector<double> numbers(const Argument& argument, Steps& steps, long long rows, long long cols) const;
    std::vector<int> integers(const Argument& argument, Steps& steps, long long rows, long long cols) const;
    std::vector<Text> texts(const Argument& argument, Steps& steps, long long rows, long long cols) const;

    const Call& call_;
    Plan plan_;
    std::vector<Slot> slots_;
    std::vector<Holder> holders_;
};

} // namespace vecmat::flat
