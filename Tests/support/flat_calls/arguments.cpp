#include "support/flat_calls/arguments.h"

#include "support/flat_calls/anything.h"
#include "support/flat_calls/contents.h"
#include "support/flat_calls/scalars.h"

#include "CompanionRuntime/CompanionRuntime.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <utility>

namespace vecmat::flat {

namespace {

template <class Number, class Drawn>
Block blockOf(const std::vector<Drawn>& cells, Placement placement, const Argument& argument)
{
    Block block(cells.size() * sizeof(Number), placement, std::string(argument.name));
    std::transform(cells.begin(), cells.end(), block.as<Number>(),
                   [](Drawn cell) { return static_cast<Number>(cell); });
    return block;
}

template <class... Visits>
struct Overloaded : Visits...
{
    using Visits::operator()...;
};
template <class... Visits>
Overloaded(Visits...) -> Overloaded<Visits...>;

} // namespace

Arguments::Arguments(const Call& call, const Plan& plan, Placement placement)
    : call_(call), plan_(plan), slots_(call.arguments.size()), holders_(call.arguments.size())
{
    drawScalars(call, plan, slots_);
    for (const bool sizes : {true, false}) // what the shapes of others are read from comes first
        for (std::size_t k = 0; k < slots_.size(); ++k)
            if (call.arguments[k].role != Role::value && call.arguments[k].sizes == sizes)
                make(k, placement);
}

void Arguments::make(std::size_t k, Placement placement)
{
    const Argument& argument = call_.arguments[k];
    slots_[k].pointer = nullptr;
    if (plan_.null == k && argument.mayBeNull != nullptr && argument.mayBeNull(slots()))
        return;
    Steps steps(seedFor(plan_.seed + (plan_.altered == k ? 0x5EED : 0), argument.name),
                argument.role != Role::out ? plan_.bytes : nullptr);
    if (argument.shape.layout == Layout::value)
        holders_[k] = makeSingle(argument, steps, placement);
    else if (argument.shape.layout == Layout::table)
        holders_[k] = makeArray(argument, steps, extentAsked(argument), placement);
    else
        holders_[k] = makeColumns(argument, steps, extentAsked(argument), placement);
    const bool isRead = argument.role == Role::in;
    slots_[k].pointer = std::visit(Overloaded{[](std::monostate) -> void* { return nullptr; },
                                              [=](Block& block) {
                                                  if (isRead)
                                                      block.forbidWriting();
                                                  return block.data();
                                              },
                                              [=](Bstrs& strings) {
                                                  if (isRead)
                                                      strings.forbidWriting();
                                                  return static_cast<void*>(strings.data());
                                              },
                                              [=](ColumnArray& columns) {
                                                  if (isRead)
                                                      columns.forbidWriting();
                                                  return columns.data();
                                              }},
                                   holders_[k]);
    if (argument.type == Type::bstr) // behind its length
        slots_[k].pointer = static_cast<unsigned char*>(slots_[k].pointer) + 4;
}

Extent Arguments::extentAsked(const Argument& argument) const
{
    const Extent extent = argument.shape.extent(slots());
    if (extent.cols > plan_.mostCells || (extent.cols > 0 && extent.rows > plan_.mostCells / extent.cols))
        throw std::length_error(std::string(call_.name) + ": " + std::string(argument.name) + " is too large");
    return extent;
}

Arguments::Holder Arguments::makeArray(const Argument& argument, Steps& steps, Extent extent, Placement placement) const
{
    if (argument.type == Type::strings)
        return Bstrs(texts(argument, steps, extent.rows, extent.cols), placement, std::string(argument.name));
    if (argument.type == Type::numbers)
        return blockOf<double>(numbers(argument, steps, extent.rows, extent.cols), placement, argument);
    const std::vector<int> cells = integers(argument, steps, extent.rows, extent.cols);
    if (argument.type == Type::flags)
        return blockOf<short>(cells, placement, argument);
    return blockOf<int>(cells, placement, argument);
}

Arguments::Holder Arguments::makeColumns(const Argument& argument, Steps& steps, Extent extent,
                                         Placement placement) const
{
    std::vector<std::vector<double>> numberColumns;
    std::vector<std::vector<Text>> textColumns;
    for (long long k = 0; k < extent.cols; ++k) {
        const long long rows = std::max(extent.rows - (argument.shape.layout == Layout::falling ? k : 0), 0LL);
        if (argument.shape.strings)
            textColumns.push_back(texts(argument, steps, rows, 1));
        else
            numberColumns.push_back(numbers(argument, steps, rows, 1));
    }
    if (argument.shape.strings)
        return ColumnArray(textColumns, placement, std::string(argument.name));
    return ColumnArray(numberColumns, placement, std::string(argument.name));
}

Arguments::Holder Arguments::makeSingle(const Argument& argument, Steps& steps, Placement placement) const
{
    const std::wstring text = repeated(plan_.style == Style::any ? anyText(steps) : drawText(steps), plan_.textRepeats);
    if (argument.type == Type::text) {
        Block block((text.size() + 1) * sizeof(wchar_t), placement, std::string(argument.name));
        std::copy(text.begin(), text.end(), block.as<wchar_t>());
        return block;
    }
    const std::vector<unsigned char> bytes = bstrBytes(text);
    Block block((bytes.size() + 3) / 4 * 4, placement, std::string(argument.name));
    std::copy(bytes.begin(), bytes.end(), block.as<unsigned char>());
    return block;
}

std::vector<double> Arguments::numbers(const Argument& argument, Steps& steps, long long rows, long long cols) const
{
    if (argument.role != Role::out)
        return drawNumbers(steps, {argument, plan_, slots(), rows, cols});
    std::vector<double> cells;
    for (long long cell = 0; cell < rows * cols; ++cell)
        cells.push_back(prefilledNumber(steps, cell));
    return cells;
}

std::vector<int> Arguments::integers(const Argument& argument, Steps& steps, long long rows, long long cols) const
{
    if (argument.role != Role::out)
        return drawIntegers(steps, {argument, plan_, slots(), rows, cols});
    std::vector<int> cells;
    for (long long cell = 0; cell < rows * cols; ++cell)
        cells.push_back(prefilledInteger(steps, cell));
    return cells;
}

std::vector<Text> Arguments::texts(const Argument& argument, Steps& steps, long long rows, long long cols) const
{
    if (argument.role != Role::out)
        return drawTexts(steps, {argument, plan_, slots(), rows, cols});
    std::vector<Text> cells;
    for (long long cell = 0; cell < rows * cols; ++cell)
        cells.emplace_back(L"was " + std::to_wstring(prefilledInteger(steps, cell)));
    return cells;
}

bool Arguments::shareArray(std::size_t argument, std::size_t with)
{
    const Argument& one = call_.arguments[argument];
    const Argument& other = call_.arguments[with];
    const auto isArray = [](const Argument& each) {
        return each.shape.layout == Layout::table && !each.sizes && each.domain != Domain::counts;
    };
    if (argument == with || !isArray(one) || !isArray(other) || one.type != other.type || isNull(argument) ||
        isNull(with))
        return false;
    const Extent needed = extent(argument);
    const Extent held = extent(with);
    if (needed.rows * needed.cols > held.rows * held.cols)
        return false;
    slots_[argument].pointer = slots_[with].pointer;
    return true;
}

bool Arguments::isNull(std::size_t argument) const
{
    return call_.arguments[argument].role != Role::value && slots_[argument].pointer == nullptr;
}

Extent Arguments::extent(std::size_t argument) const
{
    const Shape& shape = call_.arguments[argument].shape;
    return shape.layout == Layout::value || isNull(argument) ? Extent{} : shape.extent(slots());
}

Result Arguments::invoke()
{
    Result result;
    result.slot = call_.invoke(slots());
    if (call_.returns == Type::bstr) {
        // held, as a test may let the copy fail
        const std::unique_ptr<wchar_t, decltype(&SysFreeString2)> string(
            static_cast<wchar_t*>(std::exchange(result.slot.pointer, nullptr)), SysFreeString2);
        result.text = textOf(string.get());
    }
    return result;
}

const Block* Arguments::blockNear(const void* address) const
{
    const Block* found = nullptr;
    const auto look = [&](const Block& block) {
        if (block.isNear(address))
            found = &block;
    };
    for (const Holder& holder : holders_)
        std::visit(Overloaded{[](std::monostate) {}, [&](const Block& block) { look(block); },
                              [&](const Bstrs& strings) {
                                  look(strings.pointers());
                                  look(strings.characters());
                              },
                              [&](const ColumnArray& columns) { columns.forEachBlock(look); }},
                   holder);
    return found;
}

std::string Arguments::text() const
{
    std::string text(call_.name);
    const char* separator = "(";
    for (std::size_t k = 0; k < slots_.size(); ++k) {
        const Argument& argument = call_.arguments[k];
        if (argument.role != Role::value && !isNull(k))
            continue;
        text += separator + std::string(argument.name) + " ";
        separator = ", ";
        if (argument.role != Role::value)
            text += "null";
        else if (argument.type == Type::number)
            text += std::to_string(slots_[k].number);
        else
            text += std::to_string(argument.type == Type::flag ? slots_[k].flag : slots_[k].integer);
    }
    return text + (*separator == '(' ? "(): " : "): ") + textOf(plan_);
}

std::string textOf(const Plan& plan)
{
    constexpr const char* styles[] = {"plain", "gaps", "ties", "constant", "special", "digits", "any"};
    return "count " + std::to_string(plan.size.count) + ", rows " + std::to_string(plan.size.rows) + ", columns " +
           std::to_string(plan.size.columns) + (plan.size.mixed ? ", mixed" : "") + ", seed " +
           std::to_string(plan.seed) + ", " + styles[static_cast<int>(plan.style)] + (plan.outside ? ", outside" : "");
}

} // namespace vecmat::flat
