// Column addresses of a spreadsheet: merging a list of them, and stepping a column name to the next one.
//
// An address list consists of pieces joined by ",", each of the form 'Sheet'!$A:$C. Columns are named by letters in
// base 26: A is 1, Z is 26, AA is 27. Nothing is validated and no error is reported: whatever the text, a text
// comes back.
#pragma once

#include "../base/api.h"

#include <string>

extern "C" {

/// Puts the pieces of an address list in the order of their last columns (pieces with the same last column keep the
/// order of the input), and merges runs of neighbours: pieces whose first column follows the last column of the piece
/// before. Pieces that overlap or repeat are not merged, and of a piece of several columns only the two ends count.
///
///     'S'!$D:$D,'S'!$A:$A,'S'!$B:$B    becomes    'S'!$A:$B,'S'!$D:$D
///     'S'!$A:$A,'S'!$C:$C,'S'!$D:$D    becomes    'S'!$A:A,'S'!$C:$D
///
/// The second shows a settled part of the format: the last column of a piece has no "$" where the next piece is found
/// not to follow it when the two are compared as a pair. Where a run has been closed, the pair of the run and the piece
/// after it has already been compared, so a run always ends with "$"; so does the last piece of all.
///
/// A text without "," is returned unchanged, whatever it holds; every other is taken for a list:
///   - All pieces come out under the sheet of the first one: the names of other sheets are lost.
///   - A column that begins with a digit ends the reading. This piece and those after it have no columns, except for a
///     first column already read, and come to the front: 'S'!$A:$A,'S'!$1:$5 becomes 'S'!$:,'S'!$A:$A.
///   - Two empty columns follow each other, as the successor of no letters is no letters.
///   - Where a delimiter is missing, the rest of the text is not shortened, and the next column is searched for in the
///     same place. An empty last column counts as column -64. The input is never changed.
VECMAT_API std::wstring cSimplifyRange(std::wstring& input);

/// The next column name, letter by letter from the last: Z becomes A and carries into the letter before, any other
/// letter becomes its successor by character number. No letter is added when the carry runs off the front: AZ gives BA,
/// but Z gives A and ZZ gives AA. An empty text stays empty. The argument is never changed.
VECMAT_API std::wstring cIncrease1Col(std::wstring& letters);

/// -1 where b is the next column name after a, otherwise 0. Because of the wrap above, Z and AA are no neighbours,
/// while Z and A are.
VECMAT_API short AreContiguous(std::wstring a, std::wstring b);

/// The same for a BSTR, which is only read. The result is a new BSTR that the caller owns, also where it is empty.
VECMAT_API wchar_t* SimplifyRange(const void* input);
VECMAT_API wchar_t* Increase1Col(const void* letters);

} // extern "C"
