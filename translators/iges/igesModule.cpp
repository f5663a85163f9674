#include "iges/igesReader.h"
#include "iges/igesWriter.h"
#include "sdk/sdkModule.h"

namespace {

class igesModule : public sdkModule {
public:
    std::unique_ptr<sdkReader> make_reader(std::string const & format, sdkContext & context) const override
    {
        return format == "IGES" ? std::make_unique<igesReader>(context) : nullptr;
    }

    std::unique_ptr<sdkWriter> make_writer(std::string const & format, sdkContext & context) const override
    {
        return format == "IGES" ? std::make_unique<igesWriter>(context) : nullptr;
    }
};

} // namespace

int sdk_interface_version()
{
    return sdk_interface;
}

sdkModule const * sdk_module()
{
    static igesModule const module;
    return &module;
}
