"""Writes sources in which many mutants are compiled at once, each behind a switch.

The environment variable VECMAT_MUTANT holds the number of the mutant that is on, none if it isn't set; VECMAT_REACHED
names a file in which byte n becomes 1 as soon as the place of mutant n is reached, in whatever process that is."""

HEADER = """\
#pragma once
#include <type_traits>
namespace vecmat_mutants {
[[gnu::visibility("hidden")]] extern int on;
[[gnu::visibility("hidden")]] extern unsigned char* reached;
constexpr bool changed(int n)
{
    return !__builtin_is_constant_evaluated() && ((reached[n] = 1), on == n);
}
// The order of integers' sums shows in nothing: these don't compile for them.
template <class T>
constexpr T rounded(T x)
{
    static_assert(!std::is_integral_v<T> && !std::is_pointer_v<T>);
    return x;
}
template <class T>
T fused(T x, T y, T z)
{
    static_assert(std::is_same_v<T, double>);
    return __builtin_fma(x, y, z);
}
} // namespace vecmat_mutants
"""

SOURCE = """\
#include <cstdlib>
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>
namespace vecmat_mutants {
namespace {
unsigned char unmarked[COUNT];
}
int on = -1;
unsigned char* reached = unmarked;
namespace {
// Before the library's own objects are made.
[[gnu::constructor(101)]] void look()
{
    if (const char* number = std::getenv("VECMAT_MUTANT"))
        on = std::atoi(number);
    const char* marks = std::getenv("VECMAT_REACHED");
    if (!marks)
        return;
    const int file = open(marks, O_RDWR);
    if (file < 0)
        std::abort();
    void* shared = mmap(nullptr, COUNT, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0);
    if (shared == MAP_FAILED)
        std::abort();
    reached = static_cast<unsigned char*>(shared);
    close(file);
}
}
} // namespace vecmat_mutants
"""

# The outermost switch of edits over the same bytes is that of the last form.
FORMS = ["value", "statement", "jump"]


def switched(form, number, changed, unchanged):
    test = f"vecmat_mutants::changed({number})"
    if form == "value":
        return f"({test} ? ({changed}) : ({unchanged}))"
    if form == "statement":
        return f"({test} ? (void)0 : (void)({unchanged}))"
    return f"{{ if (!{test}) {unchanged} }}"


def with_switches(source, mutants):
    """The source with the numbered mutants in it, at the same lines. `mutants`: (number, Mutant)."""
    edits = sorted(((edit, number) for number, mutant in mutants for edit in mutant.edits),
                   key=lambda item: (item[0].start, -item[0].end, -FORMS.index(item[0].form), item[1]))

    def written(start, end, first, last):
        """The bytes from start to end, in which edits `first` up to `last` lie."""
        text, at, k = [], start, first
        while k < last:
            edit, number = edits[k]
            inside = k + 1
            while inside < last and edits[inside][0].start < edit.end:
                inside += 1
            text += [source[at:edit.start],
                     switched(edit.form, number, edit.text, written(edit.start, edit.end, k + 1, inside))]
            at, k = edit.end, inside
        return "".join([*text, source[at:end]])

    return written(0, len(source), 0, len(edits))
