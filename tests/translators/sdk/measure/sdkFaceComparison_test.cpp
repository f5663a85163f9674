#include "measureBodies.h"

#include "sdk/measure/sdkFaceComparison.h"
#include "translators/kit/kitParts.h"

#include <BRep_Builder.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS_Shell.hxx>

#include <gtest/gtest.h>

namespace {

std::vector<sdkFinding> compare(TopoDS_Shape const & source, TopoDS_Shape const & output,
                                sdkComparisonOptions const & options = everything())
{
    auto const findings =
        sdk_compare(inventory_of({{"Part", source}}), inventory_of({{"Part", output}}), options);
    EXPECT_TRUE(all_fit(findings));
    return findings;
}

} // namespace

TEST(FaceComparison, KnowsASolidThatFellApartIntoItsFaces)
{
    auto const cube = kit_cube(10);
    auto const findings = compare(cube, kit_compound(kit_loose_faces(cube)));
    ASSERT_EQ(kinds(findings), (Kinds{"solid-open"}));
    EXPECT_EQ(findings[0].weight, sdkWeight::loss);
    EXPECT_EQ(findings[0].part, "Part");
}

TEST(FaceComparison, ExpectsNoSolidOfAFormatThatHasNone)
{
    auto const cube = kit_cube(10);
    auto options = everything();
    options.promise.holds.solids = false;
    EXPECT_TRUE(compare(cube, kit_compound(kit_loose_faces(cube)), options).empty());
}

TEST(FaceComparison, NotesLooseFacesThatBecameASolid)
{
    auto const cube = kit_cube(10);
    auto const findings = compare(kit_compound(kit_loose_faces(cube)), cube);
    ASSERT_EQ(kinds(findings), Kinds(6, "regrouped"));
    for (auto const & finding : findings) {
        EXPECT_EQ(finding.weight, sdkWeight::note);
    }
}

TEST(FaceComparison, KnowsAShellThatFellApart)
{
    auto const cube = kit_cube(10);
    auto const shell = TopExp_Explorer(cube, TopAbs_SHELL).Current();
    auto const faces = kit_compound(kit_loose_faces(cube));
    auto const findings = compare(shell, faces);
    ASSERT_EQ(kinds(findings), (Kinds{"shell-open"}));
    EXPECT_EQ(findings[0].weight, sdkWeight::difference);
    EXPECT_EQ(findings[0].source, 0);
    EXPECT_EQ(findings[0].output, 24);
    EXPECT_EQ(kinds(compare(shell, cube)), (Kinds{"regrouped"}));
    // Faces are all that such a format has.
    auto options = everything();
    options.promise.holds.solids = false;
    EXPECT_EQ(kinds(compare(shell, faces, options)), (Kinds{"regrouped"}));
}

TEST(FaceComparison, KnowsALooseFaceThatBecameAShellOfItsOwnAndLooksToTheOtherSide)
{
    auto const face = kit_loose_faces(kit_cube(10))[0];
    BRep_Builder builder;
    TopoDS_Shell shell;
    builder.MakeShell(shell);
    builder.Add(shell, face);
    EXPECT_EQ(kinds(compare(face, shell)), (Kinds{"regrouped"}));
    auto const findings = compare(face, shell.Reversed());
    ASSERT_EQ(kinds(findings), (Kinds{"regrouped", "turned-body"}));
    EXPECT_EQ(find(findings, "turned-body")->weight, sdkWeight::difference);
    EXPECT_EQ(kinds(compare(shell.Reversed(), face)), (Kinds{"regrouped", "turned-body"}));
}

TEST(FaceComparison, AsksForNoSidesOfAFormatOfBareSurfaces)
{
    auto const face = kit_loose_faces(kit_cube(10))[0];
    auto options = everything();
    EXPECT_EQ(kinds(compare(face, face.Reversed(), options)), (Kinds{"turned-body"}));
    options.promise.holds.solids = false;
    EXPECT_TRUE(compare(face, face.Reversed(), options).empty());
}

TEST(FaceComparison, KnowsASolidOfWhichAFaceIsLost)
{
    auto const cube = kit_cube(10);
    auto faces = kit_loose_faces(cube);
    faces.pop_back();
    auto const findings = compare(cube, kit_compound(faces));
    ASSERT_EQ(kinds(findings), (Kinds{"missing-solid"}));
    EXPECT_EQ(findings[0].weight, sdkWeight::loss);
}

TEST(FaceComparison, TellsFacesThatAreOver)
{
    auto const cube = kit_cube(10);
    auto faces = kit_loose_faces(cube);
    faces.push_back(faces.front().Moved(shifted(500)));
    EXPECT_EQ(kinds(compare(cube, kit_compound(faces))), (Kinds{"extra-face", "solid-open"}));
}

TEST(FaceComparison, UsesEachFaceOnce)
{
    auto const cube = kit_cube(10);
    for (double const distance : {0.0, 500.0}) {
        auto const two = kit_compound({cube, cube.Moved(shifted(distance))});
        EXPECT_EQ(kinds(compare(two, kit_compound(kit_loose_faces(cube)))),
                  (Kinds{"missing-solid", "solid-open"}));
    }
}
