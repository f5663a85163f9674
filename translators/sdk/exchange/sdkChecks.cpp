#include "sdk/exchange/sdkChecks.h"

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

std::string place_of(Handle(Interface_InterfaceModel) const & model,
                     Handle(Standard_Transient) const & entity)
{
    auto const label = model->StringLabel(entity);
    std::string place = label.IsNull() ? "?" : label->ToCString();
    return place + " " + entity->DynamicType()->Name();
}

std::string text_of(Handle(Interface_Check) const & check)
{
    return check.IsNull() || check->NbFails() == 0 ? std::string() : std::string(check->CFail(1));
}

} // namespace

std::int64_t sdk_report_load(Handle(Interface_InterfaceModel) const & model, sdkContext & context)
{
    Problems problems(context);
    for (int number = 1; number <= model->NbEntities(); ++number) {
        if (model->IsErrorEntity(number)) {
            auto const report = model->ReportEntity(number);
            problems.add(place_of(model, report->Concerned()), text_of(report->Check()));
        }
    }
    return problems.count();
}

void sdk_report_transfer(Handle(Transfer_TransientProcess) const & process,
                         Handle(Interface_InterfaceModel) const & model,
                         Handle(Standard_Type) const & counted, sdkContext & context)
{
    Problems problems(context);
    for (int number = 1; number <= process->NbMapped(); ++number) {
        auto const binder = process->MapItem(number);
        if (binder.IsNull()) {
            continue;
        }
        auto const & entity = process->Mapped(number);
        if (binder->Check()->HasFailed()) {
            problems.add(place_of(model, entity), text_of(binder->Check()));
        }
        if (!binder->HasResult() && entity->IsKind(counted)) {
            context.reporter().failed(1);
        }
    }
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
