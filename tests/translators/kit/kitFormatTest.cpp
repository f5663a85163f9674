#include "translators/kit/kitFormatTest.h"

#include "sdk/geometry/sdkMeasures.h"
#include "translators/kit/kitFault.h"

#include <TopExp_Explorer.hxx>

#include <algorithm>

kitFormatTest::kitFormatTest(std::string manifest, std::string format)
    : m_manifest(std::move(manifest)), m_format(std::move(format))
{
}

sdkResult kitFormatTest::write(sdkDocument & document, std::string const & file, Values const & values)
{
    kitSide side(m_manifest, m_format, values, file);
    auto const result = kit_write(*make_writer(side.context()), document, side.reporter(), file);
    keep(side);
    return result;
}

sdkResult kitFormatTest::write(TopoDS_Shape const & shape, std::string const & file, Values const & values,
                               std::string const & name)
{
    sdkDocument document;
    document.add_shape(shape, name);
    return write(document, file, values);
}

sdkResult kitFormatTest::read(std::string const & file, sdkDocument & document, Values const & values)
{
    kitSide side(m_manifest, m_format, values, file);
    return read_with(side, file, document);
}

sdkResult kitFormatTest::read_back(std::string const & file, sdkDocument & document, Values const & values)
{
    kitSide side(m_manifest, m_format, values, file);
    side.context().account().read_back(true);
    return read_with(side, file, document);
}

sdkResult kitFormatTest::read_with(kitSide & side, std::string const & file, sdkDocument & document)
{
    auto const result = kit_read(*make_reader(side.context()), file, document);
    keep(side);
    return result;
}

std::string kitFormatTest::refusal(std::string const & name, std::string const & text)
{
    auto const file = m_folder.write(name, text);
    sdkDocument document;
    auto const result = read(file, document);
    EXPECT_EQ(result.status(), sdkStatus::read_error);
    EXPECT_TRUE(result.text().fits());
    EXPECT_NE(result.text().formatted().find(file), std::string::npos);
    EXPECT_TRUE(document.empty());
    return result.text().formatted();
}

void kitFormatTest::expect_moved_members_kept(std::string const & file, Values const & values,
                                              double precision)
{
    struct Case {
        char const * file;
        int solids;
        double volume;
    };
    for (auto const & one :
         {Case{"mirror_loc.brep", 3, 15750}, Case{"scale_loc.brep", 2, 47250},
          Case{"cyl_mirrored.brep", 1, 6283.185307}, Case{"cone_mirrored.brep", 1, 3665.191429},
          Case{"two_boxes_loc.brep", 2, 12000}, Case{"loc_box.brep", 1, 6000}}) {
        SCOPED_TRACE(one.file);
        ASSERT_TRUE(write(kit_fault(one.file), path(file), values));
        EXPECT_EQ(said().failed(), 0);
        sdkDocument document;
        ASSERT_TRUE(read(path(file), document));
        auto const after = sdk_measure(document);
        // A mesh has no solids.
        EXPECT_EQ(after.solids, after.triangles > 0 ? 0 : one.solids);
        EXPECT_NEAR(after.volume, one.volume, precision * one.volume);
        for (TopExp_Explorer solid(sdk_whole_shape(document), TopAbs_SOLID); solid.More(); solid.Next()) {
            EXPECT_GT(sdk_measure(solid.Current()).volume, 0);
        }
    }
}

void kitFormatTest::keep(kitSide & side)
{
    auto const & reporter = side.reporter();
    m_said = reporter;
    m_account = side.context().account();
    m_promise = side.context().promise();
    EXPECT_TRUE(reporter.misfits.empty()) << reporter.misfits.front();
}

std::vector<std::string> kit_part_names(sdkDocument const & document)
{
    std::vector<std::string> names;
    for (auto const & part : document.parts()) {
        names.push_back(sdkDocument::name(part));
    }
    std::sort(names.begin(), names.end());
    return names;
}
