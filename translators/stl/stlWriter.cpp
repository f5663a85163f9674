#include "stl/stlWriter.h"

#include "sdk/geometry/sdkGeneralOptions.h"
#include "sdk/geometry/sdkLosses.h"
#include "sdk/geometry/sdkRigidPlaces.h"
#include "sdk/geometry/sdkTriangleGaps.h"
#include "sdk/geometry/sdkUnbounded.h"
#include "sdk/sdkFiles.h"
#include "sdk/sdkOutputFile.h"
#include "sdk/sdkVisibility.h"
#include "stl/stlHidden.h"
#include "stl/stlInput.h"
#include "stl/stlName.h"
#include "stl/stlOutput.h"

#include <BRep_Tool.hxx>
#include <Message_ProgressScope.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace {

bool has_area(stlCorners const & corners)
{
    return stl_area_vector(corners).SquareModulus() > 0;
}

bool is_text(sdkOptions const & options)
{
    return options.text("stlWriteForm") == "text";
}

sdkTessellationTolerances tolerances(sdkOptions const & options)
{
    return sdk_tessellation_tolerances(options, options.real("stlAngularDeflection"));
}

bool too_large(stlCorners const & corners)
{
    return !std::isfinite(corners[0].SquareModulus() + corners[1].SquareModulus() +
                          corners[2].SquareModulus());
}

} // namespace

stlWriter::stlWriter(sdkContext & context) : m_context(context)
{
    auto const & options = context.options();
    auto & promise = context.promise();
    promise.made = true;
    promise.holds = {.structure = false,
                     .names = is_text(options) && options.text("stlWriteParts") == "each",
                     .colours = false,
                     .layers = false,
                     .curves = false,
                     .points = false,
                     .surfaces = false,
                     .visibility = false,
                     .solids = false};
    promise.hidden = false;
    promise.deflection = tolerances(options).linear;
    promise.read_back["stlReadUnit"] = sdk_output_unit(options).name;
}

sdkResult stlWriter::transfer(sdkDocument & document, Message_ProgressRange const & range)
{
    Message_ProgressScope scope(range, nullptr, 10);
    auto & reporter = m_context.reporter();
    auto const & options = m_context.options();
    sdk_make_places_rigid(document);
    bool const had_entities = document.count_entities().entities() > 0;
    sdk_filter_by_options(document, document.parts(), m_context);
    bool const left_out = had_entities && document.empty();
    bool const each = m_context.promise().holds.names;
    auto const lost = sdk_report_losses(document, m_context.promise().holds, "STL", reporter);
    reporter.failed(lost);
    sdk_drop_unbounded(document, "STL", m_context, false);

    auto tessellation = sdk_tessellate(document, tolerances(options), scope.Next(8));
    auto const open = sdk_close_triangles(document, tolerances(options), scope.Next());
    if (tessellation.cancelled || scope.UserBreak()) {
        return sdkResult::cancelled();
    }
    for (auto const & part : open) {
        m_context.account().add(
            {.weight = sdkWeight::difference,
             .kind = "unmatched-edges",
             .part = part.name,
             .place = {},
             .source = 0,
             .output = static_cast<double>(part.unmatched_edges),
             .text = sdkText("stl::%s: the triangles do not close; %d of their edges have no triangle on the "
                             "other side. Repair the part or change the tolerance",
                             part.name, part.unmatched_edges)});
    }
    if (tessellation.failed > 0) {
        tessellation = sdk_count_triangles(document);
    }
    if (tessellation.failed > 0) {
        reporter.error("stl::%d faces could not be tessellated and are not in the file; repair them or "
                       "change the tolerance",
                       tessellation.failed);
        reporter.failed(tessellation.failed);
    }
    for (auto const & label : document.free_shapes()) {
        collect(document, label, TopLoc_Location());
    }
    settle_zero();
    note_hidden();
    if (!each && m_solids.size() > 1) {
        reporter.output("stl::%d parts are written as one solid", m_solids.size());
    }
    std::int64_t whole = 0;
    for (auto const & solid : m_solids) {
        for (auto const & mesh : solid.meshes) {
            whole += mesh.size();
        }
    }
    auto const triangles = count_triangles();
    if (triangles < 0) {
        return sdkResult::write_error(
            sdkText("stl::%s: the coordinates are too large in %s; choose a larger unit", m_context.file(),
                    sdk_output_unit(options).name));
    }
    if (!is_text(options) && triangles > std::numeric_limits<std::uint32_t>::max()) {
        return sdkResult::write_error(
            sdkText("stl::%s: a binary STL file cannot hold %d triangles; write a text file",
                    m_context.file(), triangles));
    }
    if (whole > triangles) {
        reporter.output("stl::%d triangles without area are left out", whole - triangles);
    }
    if (triangles == 0) {
        if (m_hidden > 0) {
            reporter.output("stl::Nothing is left to write to %s: all that it could hold is hidden",
                            m_context.file());
        } else {
            sdk_report_nothing(m_context, left_out);
        }
        m_solids.clear();
        return sdkResult::completed();
    }
    reporter.output("stl::%d triangles are written, with lengths in %s", triangles,
                    sdk_output_unit(options).name);
    m_context.promise().triangles = may_flatten() ? -1 : triangles;
    reporter.processed(tessellation.faces);
    scope.Next();
    return scope.UserBreak() ? sdkResult::cancelled() : sdkResult::completed();
}

// What its author does not want to be seen stays out: in one mesh with the rest nobody could tell it apart.
void stlWriter::collect(sdkDocument const & document, TDF_Label const & label,
                        TopLoc_Location const & location)
{
    if (sdk_hidden(document, label)) {
        ++m_hidden;
        return;
    }
    if (XCAFDoc_ShapeTool::IsAssembly(label)) {
        TDF_LabelSequence components;
        XCAFDoc_ShapeTool::GetComponents(label, components);
        for (auto const & component : components) {
            TDF_Label referred;
            if (sdk_hidden(document, component)) {
                ++m_hidden;
            } else if (XCAFDoc_ShapeTool::GetReferredShape(component, referred)) {
                collect(document, referred, location * XCAFDoc_ShapeTool::GetLocation(component));
            }
        }
        return;
    }
    Solid solid{sdkDocument::name(label), {}};
    double const unit = sdk_output_unit(m_context.options()).millimetres;
    auto const placed = XCAFDoc_ShapeTool::GetShape(label).Moved(location, Standard_False);
    auto const hidden = stl_hidden_faces(document, label, location);
    m_hidden += hidden.bodies;
    for (TopExp_Explorer face(placed, TopAbs_FACE); face.More(); face.Next()) {
        TopLoc_Location ignored;
        auto const & one = TopoDS::Face(face.Current());
        if (!hidden.faces.Contains(one) && !BRep_Tool::Triangulation(one, ignored).IsNull()) {
            solid.meshes.emplace_back(one, unit, !is_text(m_context.options()));
        }
    }
    if (!solid.meshes.empty()) {
        m_solids.push_back(std::move(solid));
    }
}

// Faces that meet may put a common corner a little beside zero, each by its own rounding. Elsewhere such
// corners get the same digits in a file, but digits near zero are much finer, and the mesh would be torn.
void stlWriter::settle_zero()
{
    constexpr double noise = 1e-11;
    double reach = 0;
    for (auto const & solid : m_solids) {
        for (auto const & mesh : solid.meshes) {
            reach = std::max(reach, mesh.reach());
        }
    }
    for (auto & solid : m_solids) {
        for (auto & mesh : solid.meshes) {
            mesh.set_zero(noise * reach);
        }
    }
}

void stlWriter::note_hidden()
{
    if (m_hidden > 0) {
        m_context.account().add(
            {.weight = sdkWeight::note,
             .kind = "hidden",
             .part = {},
             .place = {},
             .source = static_cast<double>(m_hidden),
             .output = 0,
             .text = sdkText("stl::%d hidden shapes are left out of %s, because an STL file cannot hide them",
                             m_hidden, m_context.file())});
    }
}

// Those with area; negative when a coordinate cannot be written.
std::int64_t stlWriter::count_triangles() const
{
    std::int64_t count = 0;
    for (auto const & solid : m_solids) {
        for (auto const & mesh : solid.meshes) {
            for (int number = 1; number <= mesh.size(); ++number) {
                auto const corners = mesh.corners(number);
                if (too_large(corners)) {
                    return -1;
                }
                count += has_area(corners) ? 1 : 0;
            }
        }
    }
    return count;
}

// True when digits of text may round a narrow triangle to one without area, which readers leave out.
bool stlWriter::may_flatten() const
{
    if (!is_text(m_context.options())) {
        return false; // the corners are rounded already
    }
    double const digit =
        std::pow(10.0, 1.0 - static_cast<double>(m_context.options().integer("stlWriteDigits")));
    return std::any_of(m_solids.begin(), m_solids.end(), [&](Solid const & solid) {
        return std::any_of(solid.meshes.begin(), solid.meshes.end(), [&](stlPlacedMesh const & mesh) {
            bool narrow = false;
            for (int number = 1; number <= mesh.size() && !narrow; ++number) {
                auto const corners = mesh.corners(number);
                narrow = has_area(corners) && stl_height(corners) <= 2 * digit * stl_reach(corners);
            }
            return narrow;
        });
    });
}

sdkResult stlWriter::write(std::string const & path, Message_ProgressRange const & range)
{
    auto const & options = m_context.options();
    sdkOutputFile file(path, range);
    auto const stem = stl_name_for(sdk_file_stem(m_context.file()));
    auto const each_triangle = [](Solid const & solid, auto & output) {
        for (auto const & mesh : solid.meshes) {
            for (int number = 1; number <= mesh.size(); ++number) {
                if (auto const corners = mesh.corners(number); has_area(corners)) {
                    output.triangle(corners);
                }
            }
        }
    };
    if (is_text(options)) {
        stlTextOutput output(file, static_cast<int>(options.integer("stlWriteDigits")));
        bool const each = options.text("stlWriteParts") == "each";
        if (!each) {
            output.begin_solid(stem);
        }
        for (auto const & solid : m_solids) {
            auto const name = solid.name.empty() ? stem : stl_name_for(solid.name);
            if (each) {
                output.begin_solid(name);
            }
            each_triangle(solid, output);
            if (each) {
                output.end_solid(name);
            }
        }
        if (!each) {
            output.end_solid(stem);
        }
    } else {
        stlBinaryOutput output(file);
        // Readers take a header that begins with the word "solid" for the text form.
        output.begin("Binary STL, unit " + std::string(sdk_output_unit(options).name) + ": " + stem,
                     static_cast<std::uint32_t>(count_triangles()));
        for (auto const & solid : m_solids) {
            each_triangle(solid, output);
        }
    }
    auto result = file.close(m_context.file());
    m_context.promise().checked = result && sdk_file_passes(path, stl_is_whole);
    return result;
}
