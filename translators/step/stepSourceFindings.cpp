#include "step/stepSourceFindings.h"

#include "sdk/sdkMaterials.h"
#include "sdk/sdkVisibility.h"
#include "step/stepLosses.h"
#include "step/stepMaterials.h"
#include "step/stepVisibility.h"

#include <Interface_InterfaceModel.hxx>
#include <XSControl_WorkSession.hxx>

stepSourceFindings::stepSourceFindings(sdkDocument & document, sdkContext & context)
    : m_document(document), m_context(context), m_materials_before(sdk_count_materials(document)),
      m_hidden_before(sdk_hidden_labels(document).Length())
{
}

void stepSourceFindings::take(Handle(XSControl_WorkSession) const & session, stepInstances const & instances)
{
    take_information(session);
    take_materials(session);
    take_visibility(session, instances);
}

void stepSourceFindings::take_information(Handle(XSControl_WorkSession) const & session)
{
    auto const losses = step_count_losses(session->Model());
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
