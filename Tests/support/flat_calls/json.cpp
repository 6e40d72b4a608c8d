// Calls written down for programs in other languages.
#include "support/flat_calls/snapshots.h"

#include <cstring>
#include <ostream>

namespace vecmat::flat {

namespace {

/// The numbers in hexadecimal digits, whatever the state of a stream.
void writeHex(std::ostream& out, std::uint64_t number, int digits)
{
    for (int k = digits - 1; k >= 0; --k)
        out << "0123456789abcdef"[(number >> (4 * k)) & 15];
}

void writeBits(std::ostream& out, double number)
{
    std::uint64_t bits = 0;
    std::memcpy(&bits, &number, sizeof(bits));
    writeHex(out, bits, 16);
}

void writeText(std::ostream& out, const Text& text)
{
    if (!text) {
        out << "null";
        return;
    }
    out << '"';
    for (const wchar_t character : *text) {
        const auto code = static_cast<std::uint32_t>(character);
        if (code >= 0x20 && code < 0x7F && code != '"' && code != '\\') {
            out << static_cast<char>(code);
        } else {
            out << "\\u";
            writeHex(out, code, 4); // a text is made of 16-bit units
        }
    }
    out << '"';
}

template <class Number>
Number cellAt(const Cells& cells, std::size_t k)
{
    Number number{};
    std::memcpy(&number, &cells.bytes[k * sizeof(Number)], sizeof(Number));
    return number;
}

void writeColumn(std::ostream& out, const Cells& cells, std::size_t first, std::size_t count)
{
    if (cells.type == Type::numbers) {
        out << '"';
        for (std::size_t k = first; k < first + count; ++k)
            writeBits(out, cellAt<double>(cells, k));
        out << '"';
        return;
    }
    out << '[';
    for (std::size_t k = first; k < first + count; ++k) {
        if (k > first)
            out << ", ";
        if (cells.type == Type::strings)
            writeText(out, cells.texts[k]);
        else
            out << (cells.type == Type::flags ? cellAt<short>(cells, k) : cellAt<int>(cells, k));
    }
    out << ']';
}

void writeCells(std::ostream& out, const Cells& cells, bool isArrayOfColumns)
{
    if (!isArrayOfColumns) {
        writeColumn(out, cells, 0, cells.size());
        return;
    }
    out << '[';
    std::size_t first = 0;
    for (std::size_t j = 0; j < cells.lengths.size(); ++j) {
        out << (j > 0 ? ", " : "");
        writeColumn(out, cells, first, cells.lengths[j]);
        first += cells.lengths[j];
    }
    out << ']';
}

void writeSlot(std::ostream& out, Type type, Slot slot)
{
    if (type == Type::number) {
        out << '"';
        writeBits(out, slot.number);
        out << '"';
    } else if (type == Type::nothing) {
        out << "null";
    } else {
        out << (type == Type::flag ? slot.flag : slot.integer);
    }
}

/// A string that is passed by itself: 32-bit characters up to a 0, or a BSTR.
Text singleText(const Argument& argument, Slot slot)
{
    const auto* const characters = static_cast<const wchar_t*>(slot.pointer);
    if (argument.type == Type::bstr)
        return textOf(characters);
    return std::wstring(characters);
}

void writeArgument(std::ostream& out, const Arguments& arguments, std::size_t k, const Cells& before)
{
    const Argument& argument = arguments.call().arguments[k];
    out << "{\"name\": \"" << argument.name << "\", ";
    if (argument.role == Role::value) {
        out << "\"value\": ";
        writeSlot(out, argument.type, arguments.slots()[k]);
    } else if (arguments.isNull(k)) {
        out << "\"before\": null";
    } else if (argument.shape.layout == Layout::value) {
        out << "\"before\": ";
        writeText(out, singleText(argument, arguments.slots()[k]));
    } else {
        const bool columns = argument.type == Type::columns;
        out << "\"before\": ";
        writeCells(out, before, columns);
        out << ", \"after\": ";
        writeCells(out, cellsOf(arguments, k), columns);
    }
    out << '}';
}

} // namespace

void writeCall(std::ostream& out, const Arguments& arguments, const std::vector<Cells>& before, const Result& result)
{
    const Call& call = arguments.call();
    out << "{\"call\": \"" << call.name << "\", \"arguments\": [";
    for (std::size_t k = 0; k < call.arguments.size(); ++k) {
        out << (k > 0 ? ", " : "");
        writeArgument(out, arguments, k, before[k]);
    }
    out << "], \"returns\": ";
    if (call.returns == Type::bstr)
        writeText(out, result.text);
    else
        writeSlot(out, call.returns, result.slot);
    out << "}\n";
}

} // namespace vecmat::flat
