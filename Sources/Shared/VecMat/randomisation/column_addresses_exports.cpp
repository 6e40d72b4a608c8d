#include "column_addresses.h"

#include "../base/detail/companions.h"

wchar_t* SimplifyRange(const void* input)
{
    std::wstring text = convToWstring(input);
    return SysAllocString2(cSimplifyRange(text).c_str());
}

wchar_t* Increase1Col(const void* letters)
{
    std::wstring text = convToWstring(letters);
    return SysAllocString2(cIncrease1Col(text).c_str());
}
