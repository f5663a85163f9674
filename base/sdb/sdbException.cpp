#include "sdb/sdbException.h"

#include "vmr/vmrabsAppInfo.h"

#include <cstdlib>
#include <exception>
#include <iostream>

void sdb_exception_handler(vmrabsAppInfo const & info)
{
    std::cerr << info.program().view() << ' ' << info.build_number().view() << ": unexpected error: ";
    try {
        throw;
    } catch (std::exception const & exception) {
        std::cerr << exception.what();
    } catch (...) {
        std::cerr << "unknown exception";
    }
    std::cerr
        << "\nThe program ends now. Please report this text with the files that were being translated.\n";
}

void sdb_abort()
{
    std::abort();
}
