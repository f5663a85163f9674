#include "step/stepSourceFindings.h"

#include "sdk/sdkMaterials.h"
#include "sdk/sdkVisibility.h"
#include "step/stepLosses.h"
#include "step/stepMaterials.h"
#include "step/stepProducts.h"
#include "step/stepVisibility.h"

#include <Interface_InterfaceModel.hxx>
#include <XSControl_WorkSession.hxx>

#include <algorithm>
#include <iterator>
#include <set>
#include <string>

stepSourceFindings::stepSourceFindings(sdkDocument & document, sdkContext & context)
    : m_document(document), m_context(context), m_materials_before(sdk_count_materials(document)),
      m_hidden_before(sdk_hidden_labels(document).Length())
{
}

void stepSourceFindings::take(Handle(XSControl_WorkSession) const & session, stepInstances const & instances,
                              stepLosses const & losses)
{
    take_information(losses);
    if (m_context.options().boolean("stepReadNames")) {
        take_names(session);
    }
    take_materials(session);
    take_visibility(session, instances);
}

void stepSourceFindings::take_information(stepLosses const & losses)
{
    if (losses.has_pmi()) {
        m_context.account().add(
            {.weight = sdkWeight::loss,
             .kind = "annotation",
             .part = {},
             .place = {},
             .source = static_cast<double>(losses.number()),
             .output = 0.0,
             .text = sdkText(
                 "step::Product and manufacturing information is not translated: %d dimensions, %d "
                 "geometric tolerances, %d datums, %d annotations and %d views are lost",
                 losses.dimensions, losses.tolerances, losses.datums, losses.annotations, losses.views)});
    }
}

// The toolkit makes one part of a shape, whatever the products that have it are called.
void stepSourceFindings::take_names(Handle(XSControl_WorkSession) const & session)
{
    auto const shared = stepProducts(session->Model()).names_of_one_shape();
    if (shared.empty()) {
        return;
    }
    std::set<std::string> arrived;
    TDF_LabelSequence shapes;
    m_document.shapes()->GetShapes(shapes);
    for (auto const & shape : shapes) {
        arrived.insert(sdkDocument::name(shape));
    }
    std::set<std::string> lost;
    for (auto const & names : shared) {
        std::set_difference(names.begin(), names.end(), arrived.begin(), arrived.end(),
                            std::inserter(lost, lost.end()));
    }
    if (!lost.empty()) {
        m_context.account().add(
            {.weight = sdkWeight::difference,
             .kind = "name",
             .part = *lost.begin(),
             .place = {},
             .source = static_cast<double>(lost.size()),
             .output = 0.0,
             .text = sdkText("step::%s: %d products have the shape of another product and are read as that "
                             "one; their names are lost, the first is \"%s\"",
                             m_context.file(), lost.size(), *lost.begin())});
    }
}

void stepSourceFindings::take_materials(Handle(XSControl_WorkSession) const & session)
{
    auto const stated = step_count_materials(session->Model());
    auto const arrived = sdk_count_materials(m_document) - m_materials_before;
    if (stated > arrived) {
        m_context.account().add(
            {.weight = sdkWeight::loss,
             .kind = "material",
             .part = {},
             .place = {},
             .source = static_cast<double>(stated),
             .output = static_cast<double>(arrived),
             .text = sdkText("step::%s states materials or densities of %d products; those of %d are not "
                             "translated",
                             m_context.file(), stated, stated - arrived)});
    }
}

void stepSourceFindings::take_visibility(Handle(XSControl_WorkSession) const & session,
                                         stepInstances const & instances)
{
    auto const & options = m_context.options();
    if (!options.boolean("stepReadColours") || !options.boolean("stepReadLayers")) {
        step_read_visibility(session, m_document, instances);
    }
    int const hidden = sdk_hidden_labels(m_document).Length() - m_hidden_before;
    if (hidden > 0) {
        m_context.account().add(
            {.kind = "hidden",
             .part = {},
             .place = {},
             .source = static_cast<double>(hidden),
             .text =
                 sdkText("step::%s hides %d bodies or surfaces; they stay hidden where the output can say so",
                         m_context.file(), hidden)});
    }
}
