#include "off/offReader.h"

#include "sdk/geometry/sdkGeneralOptions.h"
#include "sdk/sdkFiles.h"
#include "sdk/sdkInputFile.h"
#include "sdk/sdkLengthUnit.h"

#include <BRep_Builder.hxx>
#include <Poly_Triangulation.hxx>
#include <TopoDS_Face.hxx>

namespace {

Handle(Poly_Triangulation) make_triangulation(offMesh const & mesh, double unit)
{
    Handle(Poly_Triangulation) const made = new Poly_Triangulation(
        static_cast<int>(mesh.points.size()), static_cast<int>(mesh.triangles.size()), Standard_False);
    int number = 0;
    for (auto const & point : mesh.points) {
        made->SetNode(++number, gp_Pnt(point * unit));
    }
    number = 0;
    for (auto const & [a, b, c] : mesh.triangles) {
        made->SetTriangle(++number, Poly_Triangle(a + 1, b + 1, c + 1));
    }
    return made;
}

} // namespace

sdkResult offReader::parse(std::string const & path, Message_ProgressRange const & range)
{
    sdkText failure;
    sdkInputFile file;
    if (!file.open(path, failure)) {
        return sdkResult::read_error(failure);
    }
    return offParser(file.text(), m_context.file(), range).parse(m_mesh);
}

sdkResult offReader::transfer(sdkDocument & document, Message_ProgressRange const &)
{
    auto & reporter = m_context.reporter();
    auto const & unit = *sdk_length_unit(m_context.options().text("offReadUnit"));
    reporter.output("off::%d triangles read, taking lengths to be in %s", m_mesh.triangles.size(), unit.name);
    if (m_mesh.dropped > 0) {
        reporter.output("off::%d polygons with fewer than three corners are left out", m_mesh.dropped);
    }
    if (m_mesh.triangles.empty()) {
        return sdkResult::completed();
    }
    if (!sdk_entity_kinds(m_context.options()).surfaces) {
        sdk_report_dropped({.faces = 1}, reporter);
        return sdkResult::completed();
    }
    TopoDS_Face face;
    BRep_Builder().MakeFace(face, make_triangulation(m_mesh, unit.millimetres));
    document.add_shape(face, sdk_file_stem(m_context.file()));
    return sdkResult::completed();
}
