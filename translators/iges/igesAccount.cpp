#include "iges/igesAccount.h"

#include "iges/igesInstances.h"
#include "iges/igesKinds.h"
#include "iges/igesUnbounded.h"

#include <IGESData_IGESModel.hxx>
#include <IGESSolid_ManifoldSolid.hxx>
#include <IGESSolid_Shell.hxx>
#include <Interface_ShareFlags.hxx>
#include <TCollection_HAsciiString.hxx>
#include <TransferBRep.hxx>
#include <Transfer_Binder.hxx>
#include <Transfer_TransientProcess.hxx>
#include <XSControl_TransferReader.hxx>
#include <XSControl_WorkSession.hxx>

namespace {

using Entity = Handle(IGESData_IGESEntity);

class Account {
public:
    Account(Handle(XSControl_WorkSession) const & session, bool visible_only,
            TColStd_MapOfTransient const & told, sdkContext & context)
        : m_model(Handle(IGESData_IGESModel)::DownCast(session->Model())),
          m_process(session->TransferReader()->TransientProcess()), m_used(session->Graph()),
          m_visible_only(visible_only), m_context(context), m_seen(told)
    {
    }

    void keep()
    {
        std::int64_t annotations = 0;
        for (int number = 1; number <= m_model->NbEntities(); ++number) {
            auto const entity = m_model->Entity(number);
            annotations += iges_is_annotation(entity) ? 1 : 0;
            bool const wanted = !m_visible_only || entity->BlankStatus() == 0;
            if (wanted && !m_used.IsShared(entity)) {
                add_root(entity);
            }
        }
        if (annotations > 0) {
            m_context.account().add(
                {.weight = sdkWeight::loss,
                 .kind = "annotation",
                 .part = {},
                 .place = {},
                 .source = static_cast<double>(annotations),
                 .output = 0,
                 .text = sdkText("iges::%s: annotation is not translated: %d dimensions, notes, symbols, "
                                 "views and elements of analyses are lost",
                                 m_context.file(), annotations)});
        }
    }

private:
    void add_root(Entity const & entity)
    {
        if (iges_kind(entity) || !iges_members(entity).empty()) {
            m_context.account().holds(sdkSourceKind::root);
            add(entity);
        }
    }

    void add(Entity const & entity)
    {
        if (!m_seen.Add(entity)) {
            return;
        }
        if (auto const kind = iges_kind(entity)) {
            add_geometry(entity, *kind);
            return;
        }
        auto const before = m_missing;
        for (auto const & member : iges_members(entity)) {
            add(member);
        }
        // An instance may fail whose definition has not.
        if (before == m_missing && has_members_with_shapes(entity) && !has_shape(entity)) {
            miss(entity);
        }
    }

    void add_geometry(Entity const & entity, sdkSourceKind kind)
    {
        if (kind != sdkSourceKind::root) {
            m_context.account().holds(kind);
        }
        bool const shape = has_shape(entity);
        if (!shape) {
            miss(entity);
        } else if (iges_is_unbounded(shape_of(entity))) {
            add_loss(entity, sdkText("iges::%s, %s: the %s has no bounds and is left out", m_context.file(),
                                     place(entity), iges_type_name(entity)));
        }
        if (auto const solid = Handle(IGESSolid_ManifoldSolid)::DownCast(entity); !solid.IsNull()) {
            add_shell(solid->Shell(), shape);
            for (int number = 1; number <= solid->NbVoidShells(); ++number) {
                add_shell(solid->VoidShell(number), shape);
            }
        } else if (auto const shell = Handle(IGESSolid_Shell)::DownCast(entity); !shell.IsNull()) {
            add_faces(shell, shape);
        }
    }

    void add_shell(Handle(IGESSolid_Shell) const & shell, bool tried)
    {
        if (!shell.IsNull() && m_seen.Add(shell)) {
            m_context.account().holds(sdkSourceKind::shell);
            add_faces(shell, tried);
        }
    }

    void add_faces(Handle(IGESSolid_Shell) const & shell, bool tried)
    {
        for (int number = 1; number <= shell->NbFaces(); ++number) {
            Entity const face = shell->Face(number);
            if (face.IsNull() || !m_seen.Add(face)) {
                continue;
            }
            m_context.account().holds(sdkSourceKind::face);
            // Where the whole is missing, its faces need no words of their own.
            if (tried && !has_shape(face)) {
                miss(face);
            }
        }
    }

    void miss(Entity const & entity)
    {
        ++m_missing;
        add_loss(entity,
                 sdkText("iges::%s, %s: the entity of type %d (%s) is not translated", m_context.file(),
                         place(entity), entity->TypeNumber(), iges_type_name(entity)));
    }

    void add_loss(Entity const & entity, sdkText const & text)
    {
        m_context.reporter().failed(1);
        m_context.account().add({.weight = sdkWeight::loss,
                                 .kind = "not-translated",
                                 .part = name(entity),
                                 .place = place(entity),
                                 .text = text});
    }

    bool has_members_with_shapes(Entity const & entity) const
    {
        for (auto const & member : iges_members(entity)) {
            if (has_shape(member)) {
                return true;
            }
        }
        return false;
    }

    TopoDS_Shape shape_of(Entity const & entity) const
    {
        return TransferBRep::ShapeResult(m_process->Find(entity));
    }

    bool has_shape(Entity const & entity) const { return !shape_of(entity).IsNull(); }

    std::string place(Entity const & entity) const { return "D" + std::to_string(m_model->DNum(entity)); }

    static std::string name(Entity const & entity)
    {
        return entity->HasName() && !entity->NameValue().IsNull() ? entity->NameValue()->ToCString() : "";
    }

    Handle(IGESData_IGESModel) m_model;
    Handle(Transfer_TransientProcess) m_process;
    Interface_ShareFlags m_used;
    bool m_visible_only;
    sdkContext & m_context;
    TColStd_MapOfTransient m_seen;
    std::int64_t m_missing = 0;
};

} // namespace

void iges_keep_account(Handle(XSControl_WorkSession) const & session, bool visible_only,
                       TColStd_MapOfTransient const & told, sdkContext & context)
{
    Account(session, visible_only, told, context).keep();
}
