// The C library hands over to the main function by way of this, so that counting begins with it: what the
// loader and static objects do before is no work of the program yet.

#include "faultState.h"

#include <dlfcn.h>

namespace {

using Main = int (*)(int, char **, char **);
using Function = void (*)();
using Start = int (*)(Main, int, char **, Function, Function, Function, void *);

Main real_main = nullptr;

int counted_main(int argc, char ** argv, char ** environment)
{
    fault_begin();
    return real_main(argc, argv, environment);
}

} // namespace

extern "C" int __libc_start_main(Main main, int argc, char ** argv, Function init, Function fini,
                                 Function loader_fini, void * stack_end)
{
    real_main = main;
    auto const real = reinterpret_cast<Start>(::dlsym(RTLD_NEXT, "__libc_start_main"));
    return real(counted_main, argc, argv, init, fini, loader_fini, stack_end);
}
