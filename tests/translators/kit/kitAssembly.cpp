#include "translators/kit/kitAssembly.h"

#include <algorithm>
#include <gtest/gtest.h>

#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <STEPCAFControl_Reader.hxx>
#include <TCollection_AsciiString.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDataStd_Name.hxx>
#include <TDocStd_Document.hxx>
#include <TopExp_Explorer.hxx>
#include <XCAFApp_Application.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>

namespace {

class ReadBack {
public:
    explicit ReadBack(std::string const & file)
    {
        Message::DefaultMessenger()->ChangePrinters().Clear();
        XCAFApp_Application::GetApplication()->NewDocument("BinXCAF", m_document);
        STEPCAFControl_Reader reader;
        reader.SetNameMode(true);
        EXPECT_EQ(reader.ReadFile(file.c_str()), IFSelect_RetDone) << file;
        EXPECT_TRUE(reader.Transfer(m_document)) << file;
    }
    ~ReadBack() { XCAFApp_Application::GetApplication()->Close(m_document); }
    ReadBack(ReadBack const &) = delete;
    ReadBack & operator=(ReadBack const &) = delete;

    TDF_LabelSequence components() const
    {
        TDF_LabelSequence roots, found;
        XCAFDoc_DocumentTool::ShapeTool(m_document->Main())->GetFreeShapes(roots);
        EXPECT_EQ(roots.Length(), 1);
        if (roots.Length() == 1)
            XCAFDoc_ShapeTool::GetComponents(roots.First(), found);
        return found;
    }

private:
    Handle(TDocStd_Document) m_document;
};

} // namespace

std::vector<std::string> kit_component_names(std::string const & step_file)
{
    ReadBack const document(step_file);
    std::vector<std::string> names;
    for (auto const & component : document.components()) {
        Handle(TDataStd_Name) name;
        names.push_back(component.FindAttribute(TDataStd_Name::GetID(), name)
                            ? TCollection_AsciiString(name->Get()).ToCString()
                            : "");
    }
    std::sort(names.begin(), names.end());
    return names;
}

int kit_solid_count(std::string const & step_file)
{
    ReadBack const document(step_file);
    int count = 0;
    for (auto const & component : document.components())
        for (TopExp_Explorer solids(XCAFDoc_ShapeTool::GetShape(component), TopAbs_SOLID); solids.More();
             solids.Next())
            ++count;
    return count;
}
