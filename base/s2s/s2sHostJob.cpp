#include "s2s/s2sHostJob.h"

#include <map>
#include <nlohmann/json.hpp>

#include "vmr/vmrResourceRegistry.h"
#include "vmr/vmrTableInstance.h"

namespace fs = std::filesystem;

namespace {

using nlohmann::json;

/// The values that the table has for the format. A file of all formats' options holds those of others too; as
/// long as they are at their defaults, nobody has set them, and the host need not say that it does not know
/// them.
std::map<std::string, std::string> values_for_host(vmrTableInstance const & table)
{
    auto values = table.effective_values();
    if (fs::path(table.resource_file().str()).filename() == vmr_default_resources_name)
        std::erase_if(values, [](auto const & value) {
            auto const * const declaration = vmr_look_up_resource(value.first);
            return declaration && value.second == declaration->default_value;
        });
    return values;
}

std::string absolute(utString const & file)
{
    std::error_code error;
    return fs::absolute(file.str(), error).native();
}

json side(s2sTranslatorElements const & elements)
{
    json side = {{"module", absolute(elements.translator())},
                 {"format", elements.format().str()},
                 {"options", json::object()}};
    if (elements.table()) {
        side["options"] = values_for_host(*elements.table());
        if (auto const refused = elements.table()->refused_overrides(); !refused.empty())
            side["refused"] = refused;
    }
    return side;
}

} // namespace

std::string s2s_host_job(s2sTranslationElements const & elements, s2sOutputPlaces const & places,
                         s2sAllowance const & allowance)
{
    auto inputs = json::array();
    for (auto const & element : elements.input_elements()) {
        auto input = side(element);
        input["file"] = absolute(element.file());
        inputs.push_back(std::move(input));
    }
    auto output = side(elements.output_elements());
    output["file"] = places.file.native();
    output["final"] = places.final.native();

    json job = {{"job", 1},
                {"inputs", std::move(inputs)},
                {"output", std::move(output)},
                {"staging", places.staging.native()},
                {"memory_limit", allowance.memory},
                {"file_size_limit", allowance.file_size}};
    if (allowance.patience)
        job["silence"] = std::chrono::duration<double>(*allowance.patience).count();
    return job.dump(-1, ' ', false, json::error_handler_t::replace);
}
