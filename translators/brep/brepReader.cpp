#include "brep/brepReader.h"

#include "brep/brepCheck.h"
#include "brep/brepHeader.h"
#include "sdk/geometry/sdkGeneralOptions.h"
#include "sdk/geometry/sdkHealing.h"
#include "sdk/geometry/sdkScale.h"
#include "sdk/sdkFiles.h"
#include "sdk/sdkInputFile.h"
#include "sdk/sdkLengthUnit.h"

#include <BRepTools.hxx>
#include <BRep_Builder.hxx>
#include <BinTools.hxx>
#include <Message_ProgressScope.hxx>
#include <Standard_Failure.hxx>
#include <Standard_OutOfMemory.hxx>
#include <TDF_LabelMap.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <boost/iostreams/device/array.hpp>
#include <boost/iostreams/stream.hpp>

#include <istream>

namespace {

// Without exceptions the toolkit reads on and on where a file has been cut off.
constexpr auto strict = std::ios::failbit | std::ios::badbit;

void read_text(sdkInputFile & file, TopoDS_Shape & shape, Message_ProgressRange const & range)
{
    file.advance(range);
    std::istream stream(&file);
    stream.exceptions(strict);
    BRepTools::Read(shape, stream, BRep_Builder());
}

// The toolkit goes back and forth in a binary file.
void read_binary(std::string_view content, TopoDS_Shape & shape, Message_ProgressRange const & range)
{
    boost::iostreams::stream<boost::iostreams::array_source> stream(content.data(), content.size());
    stream.exceptions(strict);
    BinTools::Read(shape, stream, range);
}

std::int64_t count_empty_solids(TopoDS_Shape const & shape)
{
    std::int64_t empty = 0;
    for (TopExp_Explorer solid(shape, TopAbs_SOLID); solid.More(); solid.Next()) {
        empty += TopExp_Explorer(solid.Current(), TopAbs_FACE).More() ? 0 : 1;
    }
    return empty;
}

} // namespace

sdkResult brepReader::parse(std::string const & path, Message_ProgressRange const & range)
{
    sdkText failure;
    sdkInputFile file;
    if (!file.open(path, failure)) {
        return sdkResult::read_error(failure);
    }
    auto const header = brep_header(file.text());
    if (header.form == brepForm::neither) {
        return sdkResult::read_error(sdkText(
            "brep::%s is not a BREP file: its first line does not say so; check that it is the right file",
            m_context.file()));
    }
    if (header.too_new()) {
        return sdkResult::read_error(sdkText("brep::%s has version %d of the format, which is newer than "
                                             "this program knows; write it in an older version",
                                             m_context.file(), header.version));
    }
    if (auto result = brep_check(file.text(), m_context.file()); !result) {
        return result;
    }
    Message_ProgressScope scope(range, nullptr, 1);
    std::string reason;
    try {
        if (header.form == brepForm::text) {
            read_text(file, m_shape, scope.Next());
        } else {
            read_binary(file.text(), m_shape, scope.Next());
        }
    } catch (Standard_OutOfMemory const &) {
        throw;
    } catch (Standard_Failure const & thrown) {
        reason = thrown.DynamicType()->Name();
    } catch (std::ios_base::failure const &) {
        reason = "the file ends too early or has text where a number should be";
    }
    if (scope.UserBreak()) {
        return sdkResult::cancelled();
    }
    if (reason.empty() && m_shape.IsNull()) {
        reason = "it has no shape";
    }
    if (!reason.empty()) {
        return sdkResult::read_error(
            sdkText("brep::%s is damaged or cut off: %s; export or copy it again", m_context.file(), reason));
    }
    return sdkResult::completed();
}

sdkResult brepReader::transfer(sdkDocument & document, Message_ProgressRange const & range)
{
    Message_ProgressScope scope(range, nullptr, 10);
    auto & reporter = m_context.reporter();
    auto const & options = m_context.options();
    auto const & unit = *sdk_length_unit(options.text("brepReadUnit"));
    keep_account();
    sdkEntityCount dropped;
    auto const kept = sdk_filter_shape(m_shape, sdk_entity_kinds(options), dropped);
    m_shape.Nullify();
    sdk_report_dropped(dropped, reporter);
    auto const shape = sdk_scaled(kept, unit.millimetres);
    auto const count = sdk_count_entities(shape);
    reporter.output("brep::%d faces, %d curves and %d points read, taking lengths to be in %s", count.faces,
                    count.curves, count.points, unit.name);
    if (count.entities() == 0) {
        return sdkResult::completed();
    }
    scope.Next(2);

    TDF_LabelMap old;
    for (auto const & part : document.parts()) {
        old.Add(part);
    }
    auto const name = sdk_file_stem(m_context.file());
    bool const assembly =
        options.text("brepReadStructure") == "assembly" && shape.ShapeType() == TopAbs_COMPOUND;
    if (assembly) {
        auto const label = document.shapes()->AddShape(shape, Standard_True);
        sdkDocument::set_name(label, name);
    } else {
        document.add_shape(shape, name);
    }
    TDF_LabelSequence parts;
    for (auto const & part : document.parts()) {
        if (!old.Contains(part)) {
            parts.Append(part);
        }
    }
    if (assembly) {
        int number = 0;
        for (auto const & part : parts) {
            sdkDocument::set_name(part, name + " " + std::to_string(++number));
        }
    }
    return options.boolean("brepReadHealing") ? heal(document, parts, scope.Next(8)) : sdkResult::completed();
}

void brepReader::keep_account()
{
    auto & account = m_context.account();
    auto const count = sdk_count_entities(m_shape);
    TopTools_IndexedMapOfShape shells;
    TopExp::MapShapes(m_shape, TopAbs_SHELL, shells);
    account.holds(sdkSourceKind::root);
    account.holds(sdkSourceKind::solid, count.solids);
    account.holds(sdkSourceKind::shell, shells.Extent());
    account.holds(sdkSourceKind::face, count.faces);
    account.holds(sdkSourceKind::curve, count.curves);
    account.holds(sdkSourceKind::point, count.points);
    if (auto const empty = count_empty_solids(m_shape); empty > 0) {
        account.add(
            {.weight = sdkWeight::note,
             .kind = "empty-solid",
             .part = {},
             .place = {},
             .source = static_cast<double>(empty),
             .text = sdkText("brep::%d solids of %s have no faces: there is nothing of them to translate",
                             empty, sdk_file_name(m_context.file()))});
    }
}

sdkResult brepReader::heal(sdkDocument & document, TDF_LabelSequence const & parts,
                           Message_ProgressRange const & range)
{
    auto const & options = m_context.options();
    sdkHealingOptions healing;
    healing.precision = options.real("brepReadPrecision");
    healing.max_tolerance = options.real("vmrTolCurveOnSurface3d");
    auto const counts = sdk_heal(document, parts, healing, range);
    if (counts.cancelled) {
        return sdkResult::cancelled();
    }
    auto & reporter = m_context.reporter();
    reporter.output("brep::%d of %d parts repaired; %d were not valid before, and %d are not valid now",
                    counts.repaired, counts.parts, counts.invalid, counts.still_invalid);
    if (counts.loose_edges > 0) {
        reporter.output("brep::%d edges lie farther from their surfaces than the tolerance of %g mm",
                        counts.loose_edges, healing.max_tolerance);
    }
    return sdkResult::completed();
}
