#include "stepBareFile.h"

#include <STEPControl_Reader.hxx>
#include <STEPControl_Writer.hxx>

bool step_bare_write(TopoDS_Shape const & shape, std::string const & path)
{
    STEPControl_Writer writer;
    writer.Transfer(shape, STEPControl_AsIs);
    return writer.Write(path.c_str()) == IFSelect_RetDone;
}

TopoDS_Shape step_bare_read(std::string const & path)
{
    STEPControl_Reader reader;
    if (reader.ReadFile(path.c_str()) != IFSelect_RetDone) {
        return {};
    }
    reader.TransferRoots();
    return reader.OneShape();
}
