#include "step/stepExternFiles.h"

#include "step/stepProducts.h"

#include <Interface_Check.hxx>
#include <Interface_InterfaceModel.hxx>
#include <STEPCAFControl_ExternFile.hxx>
#include <STEPCAFControl_Reader.hxx>
#include <STEPConstruct_ExternRefs.hxx>
#include <StepBasic_DocumentFile.hxx>
#include <TCollection_HAsciiString.hxx>
#include <Transfer_Binder.hxx>
#include <Transfer_TransientProcess.hxx>
#include <XSControl_TransferReader.hxx>
#include <XSControl_WorkSession.hxx>

#include <map>
#include <string>

namespace {

struct AbsentFile {
    std::string parts;
    std::string place;
};

// One that is there but is no STEP file, or may not be opened, fails without a word.
bool is_unreadable(STEPCAFControl_Reader const & reader, char const * name)
{
    auto const * const file = name == nullptr ? nullptr : reader.ExternFiles().Seek(name);
    return file != nullptr && (*file)->GetLoadStatus() != IFSelect_RetDone;
}

} // namespace

std::set<Standard_Transient const *> step_lose_absent_files(STEPCAFControl_Reader const & reader,
                                                            sdkContext & context)
{
    std::set<Standard_Transient const *> told;
    std::map<std::string, AbsentFile> absent;
    auto const session = reader.Reader().WS();
    STEPConstruct_ExternRefs references(session);
    references.LoadExternRefs();
    auto const process = session->TransferReader()->TransientProcess();
    for (int number = 1; number <= references.NbExternRefs(); ++number) {
        auto const document = references.DocFile(number);
        auto const binder = document.IsNull() ? Handle(Transfer_Binder)() : process->Find(document);
        char const * const name = references.FileName(number);
        bool const absent_file = !binder.IsNull() && binder->Check()->HasFailed();
        if (!absent_file && !is_unreadable(reader, name)) {
            continue;
        }
        told.insert(document.get());
        auto & file = absent[name == nullptr ? std::string() : std::string(name)];
        auto const part = stepProducts::name(references.ProdDef(number));
        file.parts += (file.parts.empty() ? "" : ", ") + part;
        if (auto const place = session->Model()->StringLabel(document); !place.IsNull()) {
            file.place = place->ToCString();
        }
    }
    for (auto const & [name, file] : absent) {
        context.reporter().failed(1);
        context.account().add(
            {.weight = sdkWeight::loss,
             .kind = "missing-file",
             .part = file.parts,
             .place = file.place,
             .text =
                 sdkText("step::%s, %s: the file %s with the part \"%s\" cannot be read, so that the part is "
                         "missing; put the file beside this one and translate again",
                         context.file(), file.place, name, file.parts)});
    }
    return told;
}
