#include "brep/brepReader.h"
#include "brep/brepWriter.h"
#include "sdk/sdkModule.h"

namespace {

class brepModule : public sdkModule {
public:
    std::unique_ptr<sdkReader> make_reader(std::string const & format, sdkContext & context) const override
    {
        return format == "BREP" ? std::make_unique<brepReader>(context) : nullptr;
    }

    std::unique_ptr<sdkWriter> make_writer(std::string const & format, sdkContext & context) const override
    {
        return format == "BREP" ? std::make_unique<brepWriter>(context) : nullptr;
    }
};

} // namespace

int sdk_interface_version()
{
    return sdk_interface;
}

sdkModule const * sdk_module()
{
    static brepModule const module;
    return &module;
}
