#include "igesBareFile.h"

#include <IGESControl_Controller.hxx>
#include <IGESControl_Reader.hxx>
#include <IGESControl_Writer.hxx>

bool iges_bare_write(TopoDS_Shape const & shape, std::string const & path)
{
    IGESControl_Controller::Init();
    IGESControl_Writer writer("MM", 1);
    writer.AddShape(shape);
    writer.ComputeModel();
    return writer.Write(path.c_str());
}

TopoDS_Shape iges_bare_read(std::string const & path)
{
    IGESControl_Reader reader;
    if (reader.ReadFile(path.c_str()) != IFSelect_RetDone) {
        return {};
    }
    reader.TransferRoots();
    return reader.OneShape();
}
