#include "step/stepStructure.h"

#include "sdk/sdkLimits.h"
#include "sdk/sdkNest.h"
#include "step/stepProducts.h"

#include <Interface_InterfaceModel.hxx>
#include <StepBasic_ProductDefinition.hxx>
#include <StepRepr_MappedItem.hxx>
#include <StepRepr_NextAssemblyUsageOccurrence.hxx>
#include <StepRepr_Representation.hxx>
#include <StepRepr_RepresentationMap.hxx>
#include <TCollection_HAsciiString.hxx>
#include <XSControl_WorkSession.hxx>

#include <functional>
#include <map>
#include <utility>

namespace {

using Entity = Handle(Standard_Transient);
using Uses = std::vector<std::pair<Entity, Entity>>;

std::string label(Handle(Interface_InterfaceModel) const & model, Entity const & entity)
{
    auto const text = model->StringLabel(entity);
    auto const product = Handle(StepBasic_ProductDefinition)::DownCast(entity);
    auto const shape = Handle(StepRepr_Representation)::DownCast(entity);
    std::string const name = !product.IsNull()                            ? stepProducts::name(product)
                             : !shape.IsNull() && !shape->Name().IsNull() ? shape->Name()->ToCString()
                                                                          : "";
    std::string const place = text.IsNull() ? "?" : text->ToCString();
    return name.empty() ? place : place + " \"" + name + "\"";
}

Uses product_uses(Handle(Interface_InterfaceModel) const & model)
{
    Uses uses;
    for (int number = 1; number <= model->NbEntities(); ++number) {
        auto const usage = Handle(StepRepr_NextAssemblyUsageOccurrence)::DownCast(model->Value(number));
        if (!usage.IsNull()) {
            uses.emplace_back(usage->RelatingProductDefinition(), usage->RelatedProductDefinition());
        }
    }
    return uses;
}

Uses mapped_uses(Handle(Interface_InterfaceModel) const & model)
{
    Uses uses;
    for (int number = 1; number <= model->NbEntities(); ++number) {
        auto const shape = Handle(StepRepr_Representation)::DownCast(model->Value(number));
        for (int item = 1; !shape.IsNull() && !shape->Items().IsNull() && item <= shape->NbItems(); ++item) {
            auto const mapped = Handle(StepRepr_MappedItem)::DownCast(shape->ItemsValue(item));
            if (!mapped.IsNull() && !mapped->MappingSource().IsNull()) {
                uses.emplace_back(shape, mapped->MappingSource()->MappedRepresentation());
            }
        }
    }
    return uses;
}

sdkResult check(Handle(Interface_InterfaceModel) const & model, Uses const & uses, std::string const & file)
{
    std::map<Standard_Transient const *, std::size_t> numbers;
    std::vector<Entity> things;
    auto const number_of = [&](Entity const & entity) {
        auto const [found, added] = numbers.emplace(entity.get(), things.size());
        if (added) {
            things.push_back(entity);
        }
        return found->second;
    };
    for (auto const & [user, used] : uses) {
        number_of(user);
        number_of(used);
    }
    sdkNest nest(things.size());
    for (auto const & [user, used] : uses) {
        if (!user.IsNull() && !used.IsNull()) {
            nest.use(number_of(user), number_of(used));
        }
    }
    nest.take();
    if (!nest.cycle().empty()) {
        constexpr std::size_t shown = 10;
        std::string way;
        for (std::size_t at = 0; at < nest.cycle().size() && at < shown; ++at) {
            way += label(model, things[nest.cycle()[at]]) + " > ";
        }
        way += nest.cycle().size() > shown ? "... > " : "";
        return sdkResult::read_error(
            sdkText("step::%s: an assembly contains itself: %s; mend it in the program that made the file",
                    file, way + label(model, things[nest.cycle().front()])));
    }
    if (nest.depth() > sdk_deepest_nest) {
        return sdkResult::too_big(sdk_too_deep(file, nest.depth()));
    }
    if (auto const places = nest.largest_spread();
        sdk_too_many(places, static_cast<std::int64_t>(things.size()))) {
        return sdkResult::too_big(sdk_too_many_places(file, places));
    }
    return sdkResult::completed();
}

} // namespace

sdkResult step_check_structure(Handle(XSControl_WorkSession) const & session, std::string const & file)
{
    auto const model = session->Model();
    if (auto result = check(model, product_uses(model), file); !result) {
        return result;
    }
    // Of mapped items in a circle those that close it are left out elsewhere, each with its name.
    auto result = check(model, mapped_uses(model), file);
    return result.status() == sdkStatus::read_error ? sdkResult::completed() : result;
}
