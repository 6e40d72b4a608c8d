#include "support/flat_calls/snapshots.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <numeric>
#include <utility>

namespace vecmat::flat {

namespace {

void append(Cells& cells, const Block& block)
{
    const auto* const first = block.as<unsigned char>();
    cells.bytes.insert(cells.bytes.end(), first, first + block.size());
    cells.lengths.push_back(block.size() / cellBytes(cells.type));
}

void append(Cells& cells, const Bstrs& strings)
{
    for (Text& text : strings.texts())
        cells.texts.push_back(std::move(text));
    cells.lengths.push_back(strings.size());
}

std::uint64_t mixed(std::uint64_t hash, const void* data, std::size_t bytes)
{
    const auto* const first = static_cast<const unsigned char*>(data);
    for (std::size_t k = 0; k < bytes; ++k)
        hash = (hash ^ first[k]) * 0x100000001B3u;
    return hash;
}

std::uint64_t mixedNumber(std::uint64_t hash, double number)
{
    const double one = std::isnan(number) ? std::numeric_limits<double>::quiet_NaN() : number;
    return mixed(hash, &one, sizeof(one));
}

std::uint64_t mixedText(std::uint64_t hash, const Text& text)
{
    const auto length = static_cast<std::int32_t>(text ? static_cast<std::int32_t>(text->size()) : -1);
    hash = mixed(hash, &length, sizeof(length));
    for (const wchar_t character : text.value_or(L"")) {
        const auto code = static_cast<std::uint32_t>(character);
        hash = mixed(hash, &code, sizeof(code));
    }
    return hash;
}

} // namespace

std::size_t cellBytes(Type type)
{
    return type == Type::numbers ? sizeof(double) : type == Type::integers ? sizeof(int) : sizeof(short);
}

std::size_t Cells::size() const
{
    return std::accumulate(lengths.begin(), lengths.end(), std::size_t{0});
}

bool Cells::sameAt(const Cells& other, std::size_t k) const
{
    if (type == Type::strings)
        return texts.at(k).value_or(L"") == other.texts.at(k).value_or(L"");
    const std::size_t bytesOfOne = cellBytes(type);
    return std::memcmp(&bytes.at(k * bytesOfOne), &other.bytes.at(k * bytesOfOne), bytesOfOne) == 0;
}

bool Cells::operator==(const Cells& other) const
{
    return type == other.type && bytes == other.bytes && texts == other.texts && lengths == other.lengths;
}

Cells cellsOf(const Arguments& arguments, std::size_t k)
{
    Cells cells;
    const Argument& argument = arguments.call().arguments[k];
    if (argument.shape.layout == Layout::value || arguments.isNull(k))
        return cells;
    cells.type = argument.type;
    const Arguments::Holder& holder = arguments.holder(k);
    if (const auto* const block = std::get_if<Block>(&holder)) {
        append(cells, *block);
    } else if (const auto* const strings = std::get_if<Bstrs>(&holder)) {
        append(cells, *strings);
    } else if (const auto* const columns = std::get_if<ColumnArray>(&holder)) {
        cells.type = argument.shape.strings ? Type::strings : Type::numbers;
        for (const Block& column : columns->numbers())
            append(cells, column);
        for (const Bstrs& column : columns->strings())
            append(cells, column);
    }
    return cells;
}

std::vector<Cells> snapshotOf(const Arguments& arguments)
{
    std::vector<Cells> all;
    for (std::size_t k = 0; k < arguments.call().arguments.size(); ++k)
        all.push_back(cellsOf(arguments, k));
    return all;
}

std::uint64_t digestOf(const Cells& cells, std::uint64_t hash)
{
    for (const std::size_t length : cells.lengths) {
        const auto wide = static_cast<std::uint64_t>(length);
        hash = mixed(hash, &wide, sizeof(wide));
    }
    if (cells.type == Type::numbers) {
        for (std::size_t k = 0; k < cells.bytes.size(); k += sizeof(double)) {
            double number = 0.0;
            std::memcpy(&number, &cells.bytes[k], sizeof(number));
            hash = mixedNumber(hash, number);
        }
        return hash;
    }
    for (const Text& text : cells.texts)
        hash = mixedText(hash, text);
    return mixed(hash, cells.bytes.data(), cells.bytes.size());
}

std::uint64_t digestOf(const Arguments& arguments, const Result& result)
{
    std::uint64_t hash = 0xCBF29CE484222325u;
    const Call& call = arguments.call();
    if (call.returns == Type::number)
        hash = mixedNumber(hash, result.slot.number);
    else if (call.returns == Type::integer)
        hash = mixed(hash, &result.slot.integer, sizeof(int));
    else if (call.returns == Type::flag)
        hash = mixed(hash, &result.slot.flag, sizeof(short));
    else if (call.returns == Type::bstr)
        hash = mixedText(hash, result.text);
    for (std::size_t k = 0; k < call.arguments.size(); ++k)
        if (call.arguments[k].role != Role::value && call.arguments[k].role != Role::in)
            hash = digestOf(cellsOf(arguments, k), hash);
    return hash;
}

} // namespace vecmat::flat
