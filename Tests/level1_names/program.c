/* program [PATH=FLAGS...]: opens the libraries in this order, unless they are linked to it or preloaded, and prints in
   one line what becomes of the five names. FLAGS: any of g (RTLD_GLOBAL), l (RTLD_LOCAL), d (RTLD_DEEPBIND). */
#include <dlfcn.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static void* handles[4];
static int count = 0;

static void open_library(char* argument)
{
    char* flags = strchr(argument, '=');
    int mode = RTLD_NOW;
    *flags++ = '\0';
    mode |= strchr(flags, 'g') ? RTLD_GLOBAL : RTLD_LOCAL;
    mode |= strchr(flags, 'd') ? RTLD_DEEPBIND : 0;
    handles[count] = dlopen(argument, mode);
    if (!handles[count++]) {
        fprintf(stderr, "%s\n", dlerror());
        exit(2);
    }
}

static int ask(const char* name)
{
    void* found = dlsym(RTLD_DEFAULT, name);
    int (*function)(void);
    for (int i = 0; !found && i < count; ++i)
        found = dlsym(handles[i], name);
    if (!found) {
        fprintf(stderr, "no %s\n", name);
        exit(2);
    }
    memcpy(&function, &found, sizeof function);
    return function();
}

int main(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i)
        open_library(argv[i]);
    const int right = ask("caller_gets_right_results");
    printf("VecMat %s, %d calls of the BLAS, caller reaches VecMat %d, BLAS reaches itself %d\n",
           right ? "right" : "wrong", ask("blas_calls"), ask("caller_reaches_vecmat"), ask("blas_reaches_itself"));
    return 0;
}
