/* A C program that calls the library through VecMatFlat.h. It prints what is wrong and counts it. */
#include "VecMatFlat.h"

#include <stdio.h>
#include <string.h>

static int failures = 0;

static void expect(int holds, const char* what)
{
    if (!holds) {
        printf("not as expected: %s\n", what);
        ++failures;
    }
}

/* A caller's BSTR: 16-bit characters behind a length in bytes. */
typedef struct Bstr
{
    uint32_t length;
    uint16_t characters[8];
} Bstr;

static Bstr bstr_of(const char* text)
{
    Bstr result = {0, {0}};
    for (; *text != '\0'; ++text, result.length += 2)
        result.characters[result.length / 2] = (uint16_t)*text;
    return result;
}

/* The companion library's, as for every string that the library hands over. */
void SysFreeString2(wchar_t* bstr);

static int is_taken_text(wchar_t* bstr, const char* text)
{
    const Bstr wanted = bstr_of(text);
    const int holds = bstr != NULL && memcmp(bstr, wanted.characters, wanted.length + 2) == 0;
    SysFreeString2(bstr);
    return holds;
}

static void numbers(void)
{
    double v[] = {4.0, VECMAT_MISSING, 5.0, 90.0};
    double weights[] = {1.0, 1.0, 3.0, 1.0};
    short mask[] = {0, 0, 0, -1};
    expect(VB_V_Mean2(v, 4) == 33.0, "mean without the missing cell");
    expect(VB_V_Mean(v, 4, mask, weights) == 4.75, "weighted mean without the masked cell");
    expect(VB_IsMissingValueDbl(v[1]) == -1 && VB_IsMissingValueDbl(v[0]) == 0, "VECMAT_MISSING is the missing value");
}

static void tables(void)
{
    double a[] = {1.0, 3.0, 2.0, 4.0}; /* rows (1, 2) and (3, 4) */
    double b[] = {0.0, 1.0, 1.0, 0.0};
    double product[4];
    VB_M_ProductAB(a, 2, 2, b, 2, product);
    expect(product[0] == 2.0 && product[1] == 4.0 && product[2] == 1.0 && product[3] == 3.0, "product");
}

static void strings(void)
{
    Bstr north = bstr_of("north");
    Bstr south = bstr_of("south");
    wchar_t* labels[] = {(wchar_t*)north.characters, (wchar_t*)south.characters, NULL, (wchar_t*)south.characters};
    wchar_t* filled[] = {NULL, NULL};
    double weights[] = {1.0, 1.0, 1.0, 1.0};
    Bstr columns = bstr_of("AZ");
    expect(is_taken_text(VB_V_Mode(labels, 4, 0, weights), "south"), "mode of labels");
    VB_V_SetToValueStr(filled, 2, L"none");
    expect(is_taken_text(filled[0], "none"), "first string set to a value");
    expect(is_taken_text(filled[1], "none"), "second string set to a value");
    expect(is_taken_text(Increase1Col(columns.characters), "BA"), "next column");
}

static void columns(void)
{
    double first[] = {0.0, 1.0, 2.0};
    double second[] = {10.0, 9.0, 8.0};
    SAFEARRAY inner[2] = {{1, 0, sizeof(double), 0, first, {{3, 0}}}, {1, 0, sizeof(double), 0, second, {{3, 0}}}};
    SAFEARRAYColumn elements[2] = {{&inner[0], NULL}, {&inner[1], NULL}};
    SAFEARRAY outer = {1, 0, sizeof(SAFEARRAYColumn), 0, elements, {{2, 0}}};
    SAFEARRAY* table = &outer;
    short mask[] = {-1, 0, 0};
    double smallest[2], largest[2];
    VB_M_MinMaxSPV(&table, 3, 2, smallest, largest, mask, 0);
    expect(smallest[0] == 1.0 && largest[0] == 2.0 && smallest[1] == 8.0 && largest[1] == 9.0, "extremes of columns");
}

static void draws(void)
{
    double chosen[10], again[10];
    int seed = 20, next_seed = 0, seed_again = 20;
    VB_GenerateRandomIndicator(chosen, 10, 4, &seed, -1, &next_seed);
    VB_GenerateRandomIndicator(again, 10, 4, &seed_again, -1, &next_seed);
    expect(VB_V_Sum2Dbl(chosen, 10) == 4.0, "four are chosen");
    expect(memcmp(chosen, again, sizeof chosen) == 0, "the same with the same seed");
}

int main(void)
{
    numbers();
    tables();
    strings();
    columns();
    draws();
    printf("%d wrong\n", failures);
    return failures == 0 ? 0 : 1;
}
