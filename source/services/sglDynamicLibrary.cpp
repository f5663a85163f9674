#include "sglDynamicLibrary.h"

#include "wxt/wxtApStringConverter.h"
#include "wxt/wxtStringConverter.h"

sglDynamicLibrary::sglDynamicLibrary(apPathName const & path)
{
    m_library.Load(wxtApStringConverter::to_wx(path), wxDL_QUIET);
}

sglDynamicLibrary::sglDynamicLibrary(utString const & path)
{
    m_library.Load(wxtStringConverter::to_wx(path), wxDL_QUIET);
}

void * sglDynamicLibrary::proc_address(utString const & name)
{
    wxString const symbol = wxtStringConverter::to_wx(name);
    // Asked first, because GetSymbol speaks to the user when the symbol is absent.
    return m_library.IsLoaded() && m_library.HasSymbol(symbol) ? m_library.GetSymbol(symbol, nullptr)
                                                               : nullptr;
}

bool sglDynamicLibrary::loaded_successfully()
{
    return m_library.IsLoaded();
}

std::unique_ptr<sdbIDynamicLibrary> sglDynamicLibraryLoader::load(apPathName const & path)
{
    return std::make_unique<sglDynamicLibrary>(path);
}

std::unique_ptr<sdbIDynamicLibrary> sglDynamicLibraryLoader::load_ut(utString const & path)
{
    return std::make_unique<sglDynamicLibrary>(path);
}
