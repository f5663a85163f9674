#include "hostSource.h"

#include <STEPCAFControl_Writer.hxx>

#include <stdexcept>

std::string host_write_source(kitTempFolder const & folder, std::function<void(sdkDocument &)> const & fill)
{
    auto const file = folder / "source.step";
    sdkDocument document;
    fill(document);
    STEPCAFControl_Writer writer;
    writer.SetColorMode(Standard_True);
    writer.SetNameMode(Standard_True);
    writer.SetLayerMode(Standard_True);
    if (!writer.Transfer(document.handle()) || writer.Write(file.c_str()) != IFSelect_RetDone) {
        throw std::runtime_error("no source");
    }
    return file;
}
