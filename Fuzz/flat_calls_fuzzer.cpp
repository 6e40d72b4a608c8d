// All flat functions: two bytes pick the function, the others make its call (see flat_call_case.h). Ends at the first
// call that the sanitizers object to, that throws, or that changes what it only reads.
//
// `flat_calls_fuzzer --names` prints the functions in the order in which the two bytes count them.
#include "flat_call_case.h"

#include <sanitizer/common_interface_defs.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>

namespace {

void tellOfTheCall()
{
    if (const std::string call = vecmat::fuzz::runningCall(); !call.empty())
        std::fprintf(stderr, "In %s\n", call.c_str());
}

void printNames()
{
    for (const vecmat::flat::Call& call : vecmat::flat::allCalls())
        std::printf("%.*s\n", static_cast<int>(call.name.size()), call.name.data());
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* count, char*** words)
{
    if (*count > 1 && std::strcmp((*words)[1], "--names") == 0) {
        printNames();
        std::exit(EXIT_SUCCESS);
    }
    __sanitizer_set_death_callback(tellOfTheCall);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    if (size < 2)
        return -1; // not for the corpus
    const auto calls = vecmat::flat::allCalls();
    const vecmat::flat::Call& call = calls[(data[0] + std::size_t{data[1]} * 256) % calls.size()];
    try {
        const auto outcome = vecmat::fuzz::runFlatCall(call, {data + 2, size - 2});
        return outcome == vecmat::fuzz::Outcome::called ? 0 : -1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "Thrown: %s\n", error.what());
        tellOfTheCall();
        std::abort();
    }
}
