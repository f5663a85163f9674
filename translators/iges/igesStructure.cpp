#include "iges/igesStructure.h"

#include "iges/igesFaults.h"
#include "iges/igesInstances.h"
#include "sdk/sdkLimits.h"
#include "sdk/sdkNest.h"

#include <Interface_EntityIterator.hxx>
#include <Interface_Graph.hxx>

namespace {

using Model = Handle(IGESData_IGESModel);

std::string way_round(Model const & model, std::vector<std::size_t> const & cycle)
{
    constexpr std::size_t shown = 10;
    auto const place = [&](std::size_t at) {
        auto const entity = model->Entity(static_cast<int>(cycle[at]) + 1);
        return "D" + std::to_string(model->DNum(entity));
    };
    std::string way;
    for (std::size_t at = 0; at < cycle.size() && at < shown; ++at) {
        way += place(at) + " > ";
    }
    return way + (cycle.size() > shown ? "... > " : "") + place(0);
}

std::size_t index_of(Model const & model, Handle(Standard_Transient) const & entity)
{
    return static_cast<std::size_t>(model->Number(entity) - 1);
}

} // namespace

sdkResult iges_check_structure(Model const & model, Interface_Graph const & graph, std::string const & file)
{
    auto const count = static_cast<std::size_t>(model->NbEntities());
    sdkNest references(count);
    sdkNest places(count);
    for (int number = 1; number <= model->NbEntities(); ++number) {
        auto const entity = model->Entity(number);
        auto const index = static_cast<std::size_t>(number - 1);
        for (auto const & member : iges_members(entity)) {
            if (model->Number(member) > 0) {
                places.use(index, index_of(model, member));
            }
        }
        if (!iges_hands_on(entity)) {
            continue;
        }
        for (auto used = graph.Shareds(entity); used.More(); used.Next()) {
            auto const other = Handle(IGESData_IGESEntity)::DownCast(used.Value());
            if (!other.IsNull() && iges_hands_on(other) && model->Number(other) > 0) {
                references.use(index, index_of(model, other));
            }
        }
    }
    references.take();
    if (!references.cycle().empty()) {
        return sdkResult::read_error(
            sdkText("iges::%s: an entity contains itself: %s; mend it in the program that made the file",
                    file, way_round(model, references.cycle())));
    }
    if (references.depth() > sdk_deepest_nest) {
        return sdkResult::too_big(sdk_too_deep(file, references.depth()));
    }
    places.take();
    if (sdk_too_many(places.largest_spread(), model->NbEntities())) {
        return sdkResult::too_big(sdk_too_many_places(file, places.largest_spread()));
    }
    return sdkResult::completed();
}
