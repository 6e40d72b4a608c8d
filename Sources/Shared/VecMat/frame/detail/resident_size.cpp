#include "resident_size.h"

#if defined(__APPLE__)

#include <mach/mach.h>

double vecmat::residentSize()
{
    constexpr int bufferWords = 32;
    integer_t buffer[bufferWords] = {};
    mach_msg_type_number_t count = bufferWords;
    if (task_info(mach_task_self(), TASK_BASIC_INFO_32, buffer, &count) != KERN_SUCCESS)
        return -1.0;
    return static_cast<double>(reinterpret_cast<task_basic_info_32*>(buffer)->resident_size);
}

#elif defined(_WIN32)

#include <windows.h>

#include <psapi.h>

double vecmat::residentSize()
{
    PROCESS_MEMORY_COUNTERS counters{};
    if (K32GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters) == 0)
        return -1.0;
    return static_cast<double>(counters.WorkingSetSize);
}

#else

#include <cstdio>
#include <unistd.h>

double vecmat::residentSize()
{
    std::FILE* status = std::fopen("/proc/self/statm", "r");
    if (status == nullptr)
        return -1.0;
    unsigned long total = 0;
    unsigned long resident = 0;
    const int fields = std::fscanf(status, "%lu %lu", &total, &resident);
    std::fclose(status);
    return fields == 2 ? static_cast<double>(resident) * static_cast<double>(sysconf(_SC_PAGESIZE)) : -1.0;
}

#endif
