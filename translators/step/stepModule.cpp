#include "sdk/sdkModule.h"
#include "step/stepReader.h"
#include "step/stepWriter.h"

namespace {

class stepModule : public sdkModule {
public:
    std::unique_ptr<sdkReader> make_reader(std::string const & format, sdkContext & context) const override
    {
        return format == "STEP" ? std::make_unique<stepReader>(context) : nullptr;
    }

    std::unique_ptr<sdkWriter> make_writer(std::string const & format, sdkContext & context) const override
    {
        return format == "STEP" ? std::make_unique<stepWriter>(context) : nullptr;
    }
};

} // namespace

int sdk_interface_version()
{
    return sdk_interface;
}

sdkModule const * sdk_module()
{
    static stepModule const module;
    return &module;
}
