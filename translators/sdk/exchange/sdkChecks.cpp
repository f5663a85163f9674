#include "sdk/exchange/sdkChecks.h"

#include <IFSelect_Signature.hxx>
#include <Interface_Check.hxx>
#include <Interface_InterfaceModel.hxx>
#include <Interface_ReportEntity.hxx>
#include <Standard_Type.hxx>
#include <TCollection_HAsciiString.hxx>
#include <TopAbs.hxx>
#include <TransferBRep_ShapeMapper.hxx>
#include <Transfer_Binder.hxx>
#include <Transfer_FinderProcess.hxx>
#include <Transfer_TransientProcess.hxx>
#include <XSControl_TransferReader.hxx>
#include <XSControl_WorkSession.hxx>

#include <algorithm>
#include <map>
#include <string_view>
#include <utility>
#include <vector>

namespace {

// Passes on the first few problems of a file; the rest is only counted, for a broken file may have thousands.
class Problems {
public:
    explicit Problems(sdkContext & context) : m_context(context) {}
    ~Problems()
    {
        if (m_count > shown) {
            m_context.reporter().error("exchange::%s: %d more problems of this kind", m_context.file(),
                                       m_count - shown);
        }
    }

    void add(std::string const & place, std::string const & text)
    {
        if (++m_count <= shown) {
            m_context.reporter().error("exchange::%s, %s: %s", m_context.file(), place, text);
        }
    }

    std::int64_t count() const { return m_count; }

private:
    static constexpr std::int64_t shown = 10;

    sdkContext & m_context;
    std::int64_t m_count = 0;
};

using Session = Handle(XSControl_WorkSession);

// The number and the kind that the file gives an entity, such as "#15 CSG_SOLID".
std::string place_of(Session const & session, Handle(Standard_Transient) const & entity)
{
    auto const model = session->Model();
    auto const label = model->StringLabel(entity);
    std::string const kind = session->SignType()->Value(entity, model);
    return (label.IsNull() ? std::string("?") : std::string(label->ToCString())) + " " + kind;
}

std::string text_of(Handle(Interface_Check) const & check)
{
    return check.IsNull() || check->NbFails() == 0 ? std::string() : std::string(check->CFail(1));
}

// What the toolkit reads by its name and parameters only.
bool is_undefined(Handle(Standard_Transient) const & entity)
{
    return std::string_view(entity->DynamicType()->Name()) == "StepData_UndefinedEntity";
}

// Tolerances, styles and drawings have no part in the shapes.
bool matters_to_shapes(Handle(Standard_Transient) const & entity)
{
    std::string_view const type = entity->DynamicType()->Name();
    return type.starts_with("StepGeom_") || type.starts_with("StepShape_") ||
           type.starts_with("StepBasic_") || type.starts_with("IGES");
}

} // namespace

void sdk_report_load(Session const & session, sdkContext & context, sdkToldElsewhere const & told)
{
    Problems problems(context);
    std::int64_t others = 0;
    auto const model = session->Model();
    for (int number = 1; number <= model->NbEntities(); ++number) {
        if (!model->IsErrorEntity(number)) {
            continue;
        }
        auto const report = model->ReportEntity(number);
        if (told && told(report->Concerned())) {
            continue;
        }
        if (matters_to_shapes(report->Concerned())) {
            problems.add(place_of(session, report->Concerned()), text_of(report->Check()));
        } else {
            ++others;
        }
    }
    if (others > 0) {
        context.reporter().output(
            "exchange::%s: %d entities that are no shapes are not as the standard has them and are left out",
            context.file(), others);
    }
}

void sdk_report_transfer(Session const & session, Handle(Standard_Type) const & counted, sdkContext & context,
                         sdkToldElsewhere const & told)
{
    Problems problems(context);
    auto const process = session->TransferReader()->TransientProcess();
    for (int number = 1; number <= process->NbMapped(); ++number) {
        auto const binder = process->MapItem(number);
        if (binder.IsNull()) {
            continue;
        }
        auto const & entity = process->Mapped(number);
        // The toolkit keeps a record even of what a shell refers to and the file does not have.
        if (entity.IsNull() || (told && told(entity))) {
            continue;
        }
        if (binder->Check()->HasFailed()) {
            problems.add(place_of(session, entity), text_of(binder->Check()));
        }
        if (!counted.IsNull() && !binder->HasResult() && entity->IsKind(counted)) {
            context.reporter().failed(1);
        }
    }
}

std::string sdk_unknown_kinds(Session const & session)
{
    std::map<std::string, int> counts;
    auto const model = session->Model();
    for (int number = 1; number <= model->NbEntities(); ++number) {
        if (model->IsUnknownEntity(number) || is_undefined(model->Value(number))) {
            ++counts[session->SignType()->Value(model->Value(number), model)];
        }
    }
    std::vector<std::pair<int, std::string>> kinds;
    for (auto const & [kind, count] : counts) {
        kinds.emplace_back(count, kind);
    }
    std::sort(kinds.rbegin(), kinds.rend());
    std::string text;
    for (std::size_t at = 0; at < kinds.size() && at < 3; ++at) {
        text += (at == 0 ? "" : ", ") + kinds[at].second;
    }
    return text;
}

std::int64_t sdk_report_transfer(Handle(Transfer_FinderProcess) const & process, sdkContext & context)
{
    Problems problems(context);
    std::int64_t failed = 0;
    for (int number = 1; number <= process->NbMapped(); ++number) {
        auto const binder = process->MapItem(number);
        auto const mapper = Handle(TransferBRep_ShapeMapper)::DownCast(process->Mapped(number));
        if (binder.IsNull() || mapper.IsNull()) {
            continue;
        }
        if (binder->Check()->HasFailed()) {
            problems.add(TopAbs::ShapeTypeToString(mapper->Value().ShapeType()), text_of(binder->Check()));
        }
        if (!binder->HasResult() && mapper->Value().ShapeType() == TopAbs_FACE) {
            ++failed;
        }
    }
    return failed;
}
