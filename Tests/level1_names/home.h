/* Which library an address lies in. With _GNU_SOURCE. */
#ifndef LEVEL1_NAMES_HOME_H
#define LEVEL1_NAMES_HOME_H

#include <dlfcn.h>
#include <string.h>

static int lies_in(const char* library, void* address)
{
    Dl_info info;
    const char* name;
    if (dladdr(address, &info) == 0)
        return 0;
    name = strrchr(info.dli_fname, '/');
    return strncmp(name ? name + 1 : info.dli_fname, library, strlen(library)) == 0;
}

#endif
