#include "ap/apDynamicLibraryLoader.h"

namespace {

class Library : public sdbIDynamicLibrary {
public:
    Library(apILibraryLoaderOperations const & operations, apPathName const & path) : m_operations(operations)
    {
        utString error;
        m_handle = m_operations.load(path, error);
    }
    ~Library() override { m_operations.unload(m_handle); }
    Library(Library const &) = delete;
    Library & operator=(Library const &) = delete;

    void * proc_address(utString const & name) override { return m_operations.symbol(m_handle, name); }
    bool loaded_successfully() override { return m_handle != nullptr; }

private:
    apILibraryLoaderOperations const & m_operations;
    void * m_handle = nullptr;
};

} // namespace

std::unique_ptr<sdbIDynamicLibrary> apDynamicLibraryLoader::load(apPathName const & path)
{
    return std::make_unique<Library>(*m_operations, path);
}

std::unique_ptr<sdbIDynamicLibrary> apDynamicLibraryLoader::load_ut(utString const & path)
{
    return load(apPathName::from_utf8(path.view()));
}
