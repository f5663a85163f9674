#include "off/offWriter.h"

#include "sdk/geometry/sdkGeneralOptions.h"
#include "sdk/geometry/sdkLosses.h"
#include "sdk/geometry/sdkMeasures.h"
#include "sdk/sdkOutputFile.h"

#include <TopExp_Explorer.hxx>

#include <ostream>

sdkResult offWriter::transfer(sdkDocument & document, Message_ProgressRange const & range)
{
    Message_ProgressScope scope(range, nullptr, 10);
    auto & reporter = m_context.reporter();
    auto const & options = m_context.options();
    bool const had_entities = document.count_entities().entities() > 0;
    sdk_filter_by_options(document, document.parts(), m_context);
    sdkCapabilities const capabilities{.structure = false,
                                       .names = false,
                                       .colours = false,
                                       .layers = false,
                                       .curves = false,
                                       .points = false,
                                       .surfaces = false};
    reporter.failed(sdk_report_losses(document, capabilities, "OFF", reporter));

    auto const tolerances = sdk_tessellation_tolerances(options, options.real("offAngularDeflection"));
    auto const tessellation = sdk_tessellate(document, tolerances, scope.Next(9));
    if (tessellation.cancelled) {
        return sdkResult::cancelled();
    }
    if (tessellation.failed > 0) {
        reporter.error("off::%d faces could not be tessellated and are not in the file; repair them or "
                       "change the tolerance",
                       tessellation.failed);
        reporter.failed(tessellation.failed);
    }
    TopTools_ListOfShape faces;
    if (auto const whole = sdk_whole_shape(document); !whole.IsNull()) {
        for (TopExp_Explorer face(whole, TopAbs_FACE); face.More(); face.Next()) {
            faces.Append(face.Current());
        }
    }
    m_mesh.emplace(faces, options.real("offWriteMergeTolerance"));
    if (m_mesh->triangles().empty()) {
        m_mesh.reset();
        sdk_report_nothing(m_context, had_entities && document.empty());
        return sdkResult::completed();
    }
    if (m_mesh->dropped() > 0) {
        reporter.output("off::%d triangles without area are left out", m_mesh->dropped());
    }
    reporter.output("off::%d triangles with %d points are written, with lengths in %s",
                    m_mesh->triangles().size(), m_mesh->points().size(), sdk_output_unit(options).name);
    reporter.processed(tessellation.faces);
    return sdkResult::completed();
}

sdkResult offWriter::write(std::string const & path, Message_ProgressRange const & range)
{
    sdkOutputFile file(path, range);
    std::ostream stream(&file);
    stream.precision(m_context.options().integer("offWriteDigits"));
    double const unit = sdk_output_unit(m_context.options()).millimetres;
    stream << "OFF\n" << m_mesh->points().size() << ' ' << m_mesh->triangles().size() << " 0\n";
    for (auto const & point : m_mesh->points()) {
        stream << point.X() / unit << ' ' << point.Y() / unit << ' ' << point.Z() / unit << '\n';
    }
    for (auto const & [a, b, c] : m_mesh->triangles()) {
        stream << "3 " << a << ' ' << b << ' ' << c << '\n';
    }
    return file.close(m_context.file());
}
