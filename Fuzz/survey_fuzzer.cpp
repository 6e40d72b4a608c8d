// The survey's reader of files: see survey_case.h.
#include "survey_case.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    survey::fuzz::readCase({data, size});
    return 0;
}
