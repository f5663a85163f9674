#include "off/offReader.h"
#include "off/offWriter.h"
#include "sdk/sdkModule.h"

namespace {

class offModule : public sdkModule {
public:
    std::unique_ptr<sdkReader> make_reader(std::string const & format, sdkContext & context) const override
    {
        return format == "OFF" ? std::make_unique<offReader>(context) : nullptr;
    }

    std::unique_ptr<sdkWriter> make_writer(std::string const & format, sdkContext & context) const override
    {
        return format == "OFF" ? std::make_unique<offWriter>(context) : nullptr;
    }
};

} // namespace

int sdk_interface_version()
{
    return sdk_interface;
}

sdkModule const * sdk_module()
{
    static offModule const module;
    return &module;
}
