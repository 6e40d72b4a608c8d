#include "column_addresses.h"

#include "../Smatrix.h"
#include "../base/detail/companions.h"
#include "../base/detail/mathematics/mathematics.h"
#include "../base/detail/numbers.h"
#include "../matrix.h"
#include "../sorting/sort.h"

#include <cstddef>

namespace {

using namespace vecmat;

bool beginsWithDigit(const std::wstring& text)
{
    return !text.empty() && text.front() >= L'0' && text.front() <= L'9';
}

/// The number of a column from its letters. No letters are treated as one letter with code 0.
double columnNumber(const std::wstring& letters)
{
    constexpr double base = 26.0;
    const int length = static_cast<int>(letters.size());
    double number = 0.0;
    for (int i = 1; i < length; ++i)
        number += vecmat::pow(base, i);
    for (int i = 1; i < length; ++i)
        number +=
            (static_cast<double>(letters[static_cast<std::size_t>(i - 1)]) - 65.0) * vecmat::pow(base, length - i);
    const double lastCode = letters.empty() ? 0.0 : static_cast<double>(letters.back());
    return number + lastCode + -64.0;
}

/// The next place of a character in a text, asked for from places that never go back: all questions together read the
/// text once, even where the character is rare or missing.
class NextPlace
{
public:
    NextPlace(const std::wstring& text, wchar_t character) : text_(text), character_(character) {}

    std::size_t from(std::size_t start)
    {
        if (!known_ || place_ < start)
            place_ = text_.find(character_, start);
        known_ = true;
        return place_;
    }

private:
    const std::wstring& text_;
    wchar_t character_;
    std::size_t place_ = 0;
    bool known_ = false;
};

/// Finds a delimiter behind the start of the unread part, and behind the "$" in it.
struct Delimiter
{
    Delimiter(const std::wstring& text, wchar_t character) : behindStart(text, character), behindSign(text, character)
    {
    }

    NextPlace behindStart;
    NextPlace behindSign;
};

/// The unread part of an address list.
class Remainder
{
public:
    explicit Remainder(const std::wstring& text)
        : text_(text), sign_(text, L'$'), colon_(text, L':'), comma_(text, L',')
    {
    }

    std::wstring takeFirstColumn() { return take(colon_); }
    std::wstring takeLastColumn() { return take(comma_); }
    /// The whole unread part, without its first character.
    std::wstring takeRest() const { return start_ < text_.size() ? text_.substr(start_ + 1) : std::wstring(); }

private:
    /// The text between the next "$" and the delimiter after it. The unread part then begins after the first delimiter,
    /// if there is one.
    std::wstring take(Delimiter& delimiter)
    {
        std::wstring column;
        const std::size_t sign = sign_.from(start_);
        if (sign != std::wstring::npos) {
            const std::size_t end = delimiter.behindSign.from(sign + 1);
            column = text_.substr(sign + 1, end == std::wstring::npos ? end : end - sign - 1);
        }
        const std::size_t next = delimiter.behindStart.from(start_);
        if (next != std::wstring::npos)
            start_ = next + 1;
        return column;
    }

    const std::wstring& text_;
    NextPlace sign_;
    Delimiter colon_;
    Delimiter comma_;
    std::size_t start_ = 0;
};

/// The pieces of a list in the order of their last columns; counted from 1.
class SortedPieces
{
public:
    SortedPieces(const std::wstring& list, int count) : count_(count), columns_(count, 2), keys_(count, 1, 0.0)
    {
        read(list);
        Smatrix* columns = &columns_;
        matrix* keys = &keys_;
        matrix* noCompanion = nullptr;
        SortQ(columns, count, 2, 1, count, keys, noCompanion, 0, 0, 0);
    }

    int count() const { return count_; }
    const std::wstring& first(int piece) const { return columns_.X[piece - 1]; }
    const std::wstring& last(int piece) const { return columns_.X[count_ + piece - 1]; }

    /// Does this piece begin with the column after the end of the previous piece?
    bool followsItsPredecessor(int piece) const { return AreContiguous(last(piece - 1), first(piece)) != 0; }

private:
    /// Ends at the first column that is a row number: what has been read so far is kept, and all else is empty.
    void read(const std::wstring& list)
    {
        Remainder remainder(list);
        for (int piece = 1; piece <= count_; ++piece) {
            const std::wstring first = remainder.takeFirstColumn();
            if (beginsWithDigit(first))
                return;
            columns_.vbset(piece, 1, first);
            const std::wstring last = piece < count_ ? remainder.takeLastColumn() : remainder.takeRest();
            if (beginsWithDigit(last))
                return;
            columns_.vbset(piece, 2, last);
            keys_.vbset(piece, 1, columnNumber(last));
        }
    }

    int count_;
    Smatrix columns_;
    matrix keys_;
};

/// The output list, written piece by piece.
class AddressWriter
{
public:
    explicit AddressWriter(const std::wstring& sheet) : opening_(L"'" + sheet + L"'!$") {}

    void openFirst(const std::wstring& column) { text_ += opening_ + column + L":"; }
    void openNext(const std::wstring& column)
    {
        text_ += L",";
        openFirst(column);
    }
    void close(const std::wstring& column) { text_ += L"$" + column; }
    void closeBare(const std::wstring& column) { text_ += column; }

    bool endsWithColon() const { return text_.back() == L':'; }
    const std::wstring& text() const { return text_; }

private:
    std::wstring opening_;
    std::wstring text_;
};

/// Walks the pieces from the second on, comparing each with its predecessor, whose first column has been written.
std::wstring mergedNeighbours(const SortedPieces& pieces, const std::wstring& sheet)
{
    const int n = pieces.count();
    AddressWriter out(sheet);
    out.openFirst(pieces.first(1));
    for (int i = 2; i <= n; ++i) {
        if (!pieces.followsItsPredecessor(i)) {
            out.closeBare(pieces.last(i - 1));
            out.openNext(pieces.first(i));
        } else if (i == n) {
            out.close(pieces.last(n));
        } else {
            int end = i;
            while (end < n && pieces.followsItsPredecessor(end + 1))
                ++end;
            out.close(pieces.last(end));
            if (end < n)
                out.openNext(pieces.first(end + 1));
            i = end + 1;
        }
        if (i == n && out.endsWithColon()) {
            out.close(pieces.last(n));
            break;
        }
    }
    return out.text();
}

} // namespace

std::wstring cSimplifyRange(std::wstring& input)
{
    const int separators = cChrCount(input, L",");
    if (separators == 0)
        return input;
    // The sheets of the other pieces are not read: a list on several sheets is merged like any other.
    const std::wstring sheet = cStrBetweenChrAndChr(input, L"'", L"'");
    return mergedNeighbours(SortedPieces(input, separators + 1), sheet);
}

std::wstring cIncrease1Col(std::wstring& letters)
{
    std::wstring next = letters;
    for (auto letter = next.rbegin(); letter != next.rend(); ++letter) {
        if (*letter != L'Z') {
            *letter = static_cast<wchar_t>(static_cast<char32_t>(*letter) + 1u);
            break;
        }
        *letter = L'A';
    }
    return next;
}

short AreContiguous(std::wstring a, std::wstring b)
{
    return booleanOf(cIncrease1Col(a) == b);
}
