#include <IGESCAFControl_Writer.hxx>
#include <STEPCAFControl_Reader.hxx>
#include <TDocStd_Document.hxx>
#include <XCAFApp_Application.hxx>

#include <cstdio>

// The measure of what the translation of a STEP file to IGES costs by itself: what a program would do that
// calls Open CASCADE directly, with names, colours and layers, and nothing else.
int main(int argc, char ** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: %s input.step output.igs\n", argv[0]);
        return 2;
    }
    Handle(TDocStd_Document) document;
    XCAFApp_Application::GetApplication()->NewDocument("BinXCAF", document);

    STEPCAFControl_Reader reader;
    reader.SetNameMode(true);
    reader.SetColorMode(true);
    reader.SetLayerMode(true);
    if (reader.ReadFile(argv[1]) != IFSelect_RetDone || !reader.Transfer(document)) {
        std::fprintf(stderr, "%s could not be read\n", argv[1]);
        return 1;
    }

    IGESCAFControl_Writer writer;
    writer.SetNameMode(true);
    writer.SetColorMode(true);
    writer.SetLayerMode(true);
    if (!writer.Transfer(document) || !writer.Write(argv[2])) {
        std::fprintf(stderr, "%s could not be written\n", argv[2]);
        return 1;
    }
    return 0;
}
