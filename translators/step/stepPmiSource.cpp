#include "step/stepPmiSource.h"

#include "step/stepPmiContent.h"
#include "step/stepTextEncoding.h"

#include <Interface_Static.hxx>
#include <Resource_Unicode.hxx>
#include <STEPCAFControl_Reader.hxx>
#include <StepBasic_ProductDefinition.hxx>
#include <StepData_StepModel.hxx>
#include <StepRepr_NextAssemblyUsageOccurrence.hxx>
#include <TCollection_AsciiString.hxx>
#include <TCollection_ExtendedString.hxx>
#include <TransferBRep.hxx>
#include <Transfer_TransientProcess.hxx>
#include <XSControl_TransferReader.hxx>
#include <XSControl_WorkSession.hxx>

#include <algorithm>
#include <set>
#include <sstream>
#include <utility>

namespace {

// As the reader takes texts: in the code page that its options name.
std::string in_ascii(std::string_view definition)
{
    bool const plain = std::all_of(definition.begin(), definition.end(),
                                   [](unsigned char byte) { return byte >= 0x20 && byte < 0x80; });
    if (plain) {
        return std::string(definition);
    }
    std::string text(definition);
    auto const page = static_cast<Resource_FormatType>(Interface_Static::IVal("read.step.codepage"));
    if (page != Resource_FormatType_UTF8) {
        TCollection_ExtendedString wide;
        Resource_Unicode::ConvertFormatToUnicode(page, text.c_str(), wide);
        text = TCollection_AsciiString(wide).ToCString();
    }
    std::stringbuf encoded;
    stepTextEncoding encoding(encoded);
    std::ostream(&encoding) << text;
    encoding.finish();
    return encoded.str();
}

std::string schema_of(std::string_view text)
{
    auto const begin = std::min(text.find("FILE_SCHEMA"), text.size());
    auto const statement = text.substr(begin, text.find(';', begin) - begin);
    auto const open = statement.find('\'');
    auto const close = statement.find('\'', open + 1);
    return close == std::string_view::npos ? std::string()
                                           : std::string(statement.substr(open + 1, close - open - 1));
}

} // namespace

stepPmiSource::stepPmiSource(std::string_view text) : m_graph(text, in_ascii), m_schema(schema_of(text)) {}

void stepPmiSource::take_shapes(STEPCAFControl_Reader const & reader)
{
    auto const session = reader.Reader().WS();
    auto const model = Handle(StepData_StepModel)::DownCast(session->Model());
    auto const process = session->TransferReader()->TransientProcess();
    auto const definitions = m_graph.product_definitions();
    std::set<int> assemblies;
    for (int index = 1; index <= model->NbEntities(); ++index) {
        auto const usage = Handle(StepRepr_NextAssemblyUsageOccurrence)::DownCast(model->Value(index));
        if (!usage.IsNull() && !usage->RelatingProductDefinition().IsNull()) {
            assemblies.insert(model->IdentLabel(usage->RelatingProductDefinition()));
        }
    }
    for (int index = 1; index <= model->NbEntities(); ++index) {
        auto const & entity = model->Value(index);
        int const number = model->IdentLabel(entity);
        if (m_graph.geometry().count(number) > 0) {
            m_shapes.emplace(number, TransferBRep::ShapeResult(process, entity));
        } else if (definitions.count(number) > 0 && assemblies.count(number) == 0) {
            // Where a product stands says nothing of its own shape.
            m_shapes.emplace(number, TransferBRep::ShapeResult(process, entity).Located(TopLoc_Location()));
        }
    }
}

TopoDS_Shape stepPmiSource::shape_of(int number) const
{
    auto const found = m_shapes.find(number);
    return found == m_shapes.end() ? TopoDS_Shape() : found->second;
}

void step_add_annotations(sdkDocument const & document, std::shared_ptr<stepPmiSource> const & source)
{
    sdkAnnotationSet set{{}, source};
    stepPmiContents contents(source->graph());
    for (int const number : source->graph().items()) {
        auto content = contents.of(number);
        sdkAnnotation item{std::move(content.kind),
                           std::move(content.name),
                           "#" + std::to_string(number),
                           std::move(content.text),
                           {}};
        for (int const geometry : content.geometry) {
            item.shapes.push_back(source->shape_of(geometry));
        }
        set.annotations.push_back(std::move(item));
    }
    sdk_add_annotations(document, std::move(set));
}
