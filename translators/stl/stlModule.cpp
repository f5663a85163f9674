#include "sdk/sdkModule.h"
#include "stl/stlReader.h"
#include "stl/stlWriter.h"

namespace {

class stlModule : public sdkModule {
public:
    std::unique_ptr<sdkReader> make_reader(std::string const & format, sdkContext & context) const override
    {
        return format == "STL" ? std::make_unique<stlReader>(context) : nullptr;
    }

    std::unique_ptr<sdkWriter> make_writer(std::string const & format, sdkContext & context) const override
    {
        return format == "STL" ? std::make_unique<stlWriter>(context) : nullptr;
    }
};

} // namespace

int sdk_interface_version()
{
    return sdk_interface;
}

sdkModule const * sdk_module()
{
    static stlModule const module;
    return &module;
}
