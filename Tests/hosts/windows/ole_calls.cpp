// Repeats calls with the arrays and strings of OLE Automation, as a macro host has them. Reads calls, one word after
// the other, and writes what the arguments hold afterwards; ole_calls.py speaks with it. The strings that the library
// has made are freed as a host frees them, and the heap is looked over after every call.
#include "support/flat_calls/calls.h"

#include <windows.h>

#include <oleauto.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

using namespace vecmat::flat;

namespace {

// ---- words ----------------------------------------------------------------------------------------------------------

std::string word()
{
    std::string text;
    if (!(std::cin >> text))
        throw std::runtime_error("the input ends within a call");
    return text;
}

std::size_t count()
{
    return std::stoul(word());
}

/// A string as four hexadecimal digits for each 16-bit unit behind an x; a dash is no string.
BSTR bstrOf(const std::string& text)
{
    if (text == "-")
        return nullptr;
    std::wstring units;
    for (std::size_t k = 1; k < text.size(); k += 4)
        units.push_back(static_cast<wchar_t>(std::stoul(text.substr(k, 4), nullptr, 16)));
    return SysAllocStringLen(units.data(), static_cast<UINT>(units.size()));
}

void write(BSTR text)
{
    if (text == nullptr) {
        std::cout << " -";
        return;
    }
    std::cout << " x";
    for (UINT k = 0; k < SysStringLen(text); ++k) {
        char digits[8];
        std::snprintf(digits, sizeof digits, "%04x", static_cast<unsigned>(text[k]) & 0xFFFF);
        std::cout << digits;
    }
}

double doubleOf(const std::string& text)
{
    const std::uint64_t bits = std::stoull(text, nullptr, 16);
    double number;
    std::memcpy(&number, &bits, sizeof number);
    return number;
}

void write(double number)
{
    std::uint64_t bits;
    std::memcpy(&bits, &number, sizeof bits);
    char digits[24];
    std::snprintf(digits, sizeof digits, " %016llx", static_cast<unsigned long long>(bits));
    std::cout << digits;
}

// ---- arrays ---------------------------------------------------------------------------------------------------------

/// An array of OLE Automation with one dimension. The lower bound is 0 or 1 by turns: the library looks at none.
class OleArray
{
public:
    OleArray(VARTYPE type, std::size_t size) : type_(type), size_(size)
    {
        static LONG lowerBound = 0;
        lowerBound = 1 - lowerBound;
        SAFEARRAYBOUND bound = {static_cast<ULONG>(size), lowerBound};
        array_ = SafeArrayCreate(type, 1, &bound);
        if (array_ == nullptr)
            throw std::runtime_error("no array");
    }
    OleArray(const OleArray&) = delete;
    OleArray& operator=(const OleArray&) = delete;
    ~OleArray()
    {
        // Strings that the library has replaced are the caller's to free; the others go with the array.
        BSTR* const cells = type_ == VT_BSTR ? as<BSTR>() : nullptr;
        for (BSTR text : given_)
            if (std::find(cells, cells + size_, text) == cells + size_)
                SysFreeString(text);
        if (FAILED(SafeArrayDestroy(array_)))
            std::cout << " damaged";
    }

    void read()
    {
        for (std::size_t k = 0; k < size_; ++k)
            switch (type_) {
            case VT_R8:
                as<double>()[k] = doubleOf(word());
                break;
            case VT_I4:
                as<int>()[k] = std::stoi(word());
                break;
            case VT_BOOL:
                as<short>()[k] = static_cast<short>(std::stoi(word()));
                break;
            default:
                as<BSTR>()[k] = bstrOf(word());
                given_.push_back(as<BSTR>()[k]);
            }
    }
    void writeCells() const
    {
        for (std::size_t k = 0; k < size_; ++k)
            switch (type_) {
            case VT_R8:
                write(as<double>()[k]);
                break;
            case VT_I4:
                std::cout << ' ' << as<int>()[k];
                break;
            case VT_BOOL:
                std::cout << ' ' << as<short>()[k];
                break;
            default:
                write(as<BSTR>()[k]);
            }
    }

    template <class T>
    T* as() const
    {
        return static_cast<T*>(array_->pvData);
    }
    SAFEARRAY* array() const { return array_; }

private:
    VARTYPE type_;
    std::size_t size_;
    SAFEARRAY* array_;
    std::vector<BSTR> given_;
};

VARTYPE typeOf(const std::string& letter)
{
    return letter == "D" ? VT_R8 : letter == "I" ? VT_I4 : letter == "H" ? VT_BOOL : VT_BSTR;
}

/// A record of two arrays, as the element of a macro's array of columns.
struct Column
{
    SAFEARRAY* numbers;
    SAFEARRAY* strings;
};

/// An array of columns: an outer array of records, whose members are arrays of doubles and of strings.
class OleColumns
{
public:
    explicit OleColumns(std::size_t columns)
    {
        if (FAILED(SafeArrayAllocDescriptor(1, &outer_)))
            throw std::runtime_error("no descriptor");
        outer_->cbElements = sizeof(Column);
        outer_->rgsabound[0] = {static_cast<ULONG>(columns), 0};
        if (FAILED(SafeArrayAllocData(outer_)))
            throw std::runtime_error("no elements");
        std::memset(outer_->pvData, 0, columns * sizeof(Column));
    }
    OleColumns(const OleColumns&) = delete;
    OleColumns& operator=(const OleColumns&) = delete;
    ~OleColumns()
    {
        columns_.clear();
        if (FAILED(SafeArrayDestroy(outer_)))
            std::cout << " damaged";
    }

    void add(const std::string& letter)
    {
        auto& column = columns_.emplace_back(std::make_unique<OleArray>(typeOf(letter), count()));
        column->read();
        Column& element = static_cast<Column*>(outer_->pvData)[columns_.size() - 1];
        (letter == "D" ? element.numbers : element.strings) = column->array();
    }
    SAFEARRAY** address() { return &outer_; }
    void writeCells() const
    {
        for (const auto& column : columns_)
            column->writeCells();
    }

private:
    SAFEARRAY* outer_ = nullptr;
    std::vector<std::unique_ptr<OleArray>> columns_;
};

// ---- calls ----------------------------------------------------------------------------------------------------------

/// The arguments of one call, each after the letter that tells its kind.
class OleCall
{
public:
    explicit OleCall(const Call& call) : call_(call), slots_(std::max<std::size_t>(call.arguments.size(), 1))
    {
        for (std::size_t k = 0; k < call.arguments.size(); ++k)
            read(slots_[k], word());
    }
    ~OleCall()
    {
        for (BSTR text : singles_)
            SysFreeString(text);
    }
    OleCall(const OleCall&) = delete;
    OleCall& operator=(const OleCall&) = delete;

    void invoke()
    {
        const Slot result = call_.invoke(slots_.data());
        for (const auto& array : arrays_)
            array->writeCells();
        for (const auto& columns : columns_)
            columns->writeCells();
        std::cout << " =";
        if (call_.returns == Type::number)
            write(result.number);
        else if (call_.returns == Type::integer)
            std::cout << ' ' << result.integer;
        else if (call_.returns == Type::flag)
            std::cout << ' ' << result.flag;
        else if (call_.returns == Type::bstr) {
            write(static_cast<BSTR>(result.pointer));
            SysFreeString(static_cast<BSTR>(result.pointer));
        }
    }

private:
    void read(Slot& slot, const std::string& letter)
    {
        slot = {};
        if (letter == "i")
            slot.integer = std::stoi(word());
        else if (letter == "h")
            slot.flag = static_cast<short>(std::stoi(word()));
        else if (letter == "d")
            slot.number = doubleOf(word());
        else if (letter == "B") // one string: its characters have 16 bits here in either case
            slot.pointer = singles_.emplace_back(bstrOf(word()));
        else if (letter == "K") {
            const std::size_t columns = count();
            OleColumns& made = *columns_.emplace_back(std::make_unique<OleColumns>(columns));
            for (std::size_t j = 0; j < columns; ++j)
                made.add(word());
            slot.pointer = made.address();
        } else if (letter != "n") {
            OleArray& made = *arrays_.emplace_back(std::make_unique<OleArray>(typeOf(letter), count()));
            made.read();
            slot.pointer = made.as<void>();
        }
    }

    const Call& call_;
    std::vector<Slot> slots_;
    std::vector<std::unique_ptr<OleArray>> arrays_;
    std::vector<std::unique_ptr<OleColumns>> columns_;
    std::vector<BSTR> singles_;
};

} // namespace

int main()
{
    for (std::string name; std::cin >> name;) {
        const Call* const call = findCall(name);
        if (call == nullptr) {
            std::cout << "no function " << name << std::endl;
            return 1;
        }
        std::cout << name;
        {
            OleCall made(*call);
            made.invoke();
        }
        std::cout << (HeapValidate(GetProcessHeap(), 0, nullptr) ? "\n" : " damaged\n");
    }
    return std::cout.flush() ? 0 : 1;
}
