#include "step/stepPmiWriting.h"

#include "step/stepPmiOutput.h"

#include <Interface_InterfaceModel.hxx>
#include <XSControl_WorkSession.hxx>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

char const * text_of(stepPmiLoss loss)
{
    switch (loss) {
    case stepPmiLoss::geometry:
        return "step::%s: the %s \"%s\" (%s in its file) is lost, because what it is attached to is not in "
               "the output as it was read";
    case stepPmiLoss::product:
        return "step::%s: the %s \"%s\" (%s in its file) is lost, because it belongs to an assembly or to a "
               "part that is not in the output as it was read";
    case stepPmiLoss::incomplete:
        break;
    }
    return "step::%s: the %s \"%s\" (%s in its file) is lost, because its file lacks something that belongs "
           "to "
           "it";
}

// Editions of one schema differ in the digits behind its name.
std::string latest(std::string const & one, std::string const & other)
{
    auto const digits = [](std::string const & schema) {
        std::string found;
        std::copy_if(schema.begin(), schema.end(), std::back_inserter(found),
                     [](char character) { return character >= '0' && character <= '9'; });
        return found;
    };
    return digits(one) < digits(other) ? other : one;
}

class Writing {
public:
    Writing(Handle(XSControl_WorkSession) const & session, sdkContext & context)
        : m_targets(session), m_next(session->Model()->NbEntities() + 1), m_context(context)
    {
    }

    void add(std::int64_t index, sdkAnnotationSet const & set)
    {
        auto const * source = dynamic_cast<stepPmiSource const *>(set.source.get());
        if (source == nullptr) {
            return;
        }
        m_items += static_cast<std::int64_t>(set.annotations.size());
        stepPmiOutput const output(*source, m_targets);
        m_text.definitions += output.definitions(m_next);
        m_next += output.number();
        if (source->schema().starts_with("AP242_MANAGED_MODEL_BASED_3D_ENGINEERING")) {
            m_text.schema = latest(m_text.schema, source->schema());
        }
        for (std::size_t at = 0; at < set.annotations.size(); ++at) {
            if (auto const loss = output.loss_of(source->graph().items()[at])) {
                lose(set.annotations[at], *loss);
                m_context.promise().lost_annotations.emplace(index, static_cast<std::int64_t>(at));
            }
        }
    }

    stepPmiText finish()
    {
        m_context.promise().annotations = true;
        auto const lost = static_cast<std::int64_t>(m_context.promise().lost_annotations.size());
        m_context.reporter().output(
            "step::%d of %d dimensions, geometric tolerances, datums, annotations and "
            "views are kept",
            m_items - lost, m_items);
        return std::move(m_text);
    }

private:
    void lose(sdkAnnotation const & item, stepPmiLoss loss)
    {
        m_context.account().add(
            {.weight = sdkWeight::loss,
             .kind = "annotation",
             .part = {},
             .place = item.place,
             .source = 1.0,
             .output = 0.0,
             .text = sdkText(text_of(loss), m_context.file(), item.kind, item.name, item.place)});
    }

    stepPmiTargets m_targets;
    int m_next;
    sdkContext & m_context;
    stepPmiText m_text;
    std::int64_t m_items = 0;
};

} // namespace

stepPmiText step_write_annotations(Handle(XSControl_WorkSession) const & session,
                                   sdkDocument const & document, sdkContext & context)
{
    auto const & sets = sdk_annotations(document);
    if (sets.empty()) {
        return {};
    }
    auto const & options = context.options();
    if (!options.boolean("stepWritePMI")) {
        return {};
    }
    if (options.text("stepWriteSchema") != "AP242") {
        context.reporter().output(
            "step::Dimensions, tolerances and other annotations are kept in AP242 files "
            "only; to keep them change the option stepWriteSchema");
        return {};
    }
    Writing writing(session, context);
    for (std::size_t index = 0; index < sets.size(); ++index) {
        writing.add(static_cast<std::int64_t>(index), sets[index]);
    }
    return writing.finish();
}
