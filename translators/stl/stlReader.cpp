#include "stl/stlReader.h"

#include "sdk/geometry/sdkGeneralOptions.h"
#include "sdk/sdkFiles.h"
#include "sdk/sdkInputFile.h"
#include "sdk/sdkLengthUnit.h"
#include "stl/stlBinaryParser.h"
#include "stl/stlTextParser.h"

#include <BRep_Builder.hxx>
#include <Message_ProgressScope.hxx>
#include <TopoDS_Face.hxx>

sdkResult stlReader::parse(std::string const & path, Message_ProgressRange const & range)
{
    sdkText failure;
    sdkInputFile file;
    if (!file.open(path, failure)) {
        return sdkResult::read_error(failure);
    }
    auto const & options = m_context.options();
    m_input.file = m_context.file();
    m_input.unit = sdk_length_unit(options.text("stlReadUnit"))->millimetres;
    m_input.tolerance = options.real("stlReadMergeTolerance");
    switch (stl_form(file.text())) {
    case stlForm::text:
        return stlTextParser(file.text(), m_input, range).parse();
    case stlForm::binary:
        return stl_parse_binary(file.text(), m_input, range);
    case stlForm::neither:
        break;
    }
    return sdkResult::read_error(sdkText("stl::%s is not an STL file: it neither begins with the word solid "
                                         "nor has a binary header; check that it "
                                         "is the right file",
                                         m_context.file()));
}

sdkResult stlReader::transfer(sdkDocument & document, Message_ProgressRange const & range)
{
    Message_ProgressScope scope(range, nullptr, static_cast<double>(m_input.solids.size()));
    bool const wanted = sdk_entity_kinds(m_context.options()).surfaces;
    std::size_t triangles = 0;
    std::size_t empty = 0;
    sdkEntityCount dropped;
    for (auto const & solid : m_input.solids) {
        scope.Next();
        if (scope.UserBreak()) {
            return sdkResult::cancelled();
        }
        triangles += solid.size();
        m_context.account().holds(sdkSourceKind::root);
        m_context.account().holds(sdkSourceKind::face, solid.size() > 0 ? 1 : 0);
        if (solid.size() == 0) {
            ++empty;
        } else if (!wanted) {
            ++dropped.faces;
        } else {
            TopoDS_Face face;
            BRep_Builder().MakeFace(face, solid.make_triangulation());
            document.add_shape(face, solid.name().empty() ? sdk_file_stem(m_context.file()) : solid.name());
        }
    }
    report(triangles, empty);
    sdk_report_dropped(dropped, m_context.reporter());
    return sdkResult::completed();
}

void stlReader::report(std::size_t triangles, std::size_t empty) const
{
    auto & reporter = m_context.reporter();
    reporter.output("stl::%d triangles in %d solids read, taking lengths to be in %s", triangles,
                    m_input.solids.size(), sdk_length_unit(m_input.unit)->name);
    std::int64_t dropped = 0;
    std::int64_t turned = 0;
    std::int64_t moved = 0;
    for (auto const & solid : m_input.solids) {
        dropped += solid.dropped();
        turned += solid.turned();
        moved += solid.moved();
    }
    auto const say = [&](std::string_view key, std::int64_t count) {
        if (count > 0) {
            reporter.output(key, count);
        }
    };
    say("stl::%d solids have no triangles and are left out", static_cast<std::int64_t>(empty));
    say("stl::%d triangles without area are left out", dropped);
    say("stl::%d triangles are turned against their normals; the order of their corners is taken", turned);
    say("stl::%d corners were moved to others nearby", moved);
    say("stl::%d bytes after the last triangle are ignored", m_input.ignored_bytes);
}
