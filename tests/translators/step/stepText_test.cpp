#include "step/stepText.h"

#include "translators/kit/kitParts.h"

#include <STEPControl_Writer.hxx>
#include <StepData_Protocol.hxx>
#include <StepData_StepModel.hxx>
#include <StepData_StepWriter.hxx>
#include <XSControl_WorkSession.hxx>
#include <gtest/gtest.h>

#include <sstream>

namespace {

std::string written_in_parts(STEPControl_Writer & writer)
{
    std::ostringstream stream;
    step_write_text(writer.Model(), Handle(StepData_Protocol)::DownCast(writer.WS()->Protocol()), {}, stream);
    return stream.str();
}

std::string written_at_once(STEPControl_Writer & writer)
{
    StepData_StepWriter text(writer.Model());
    text.SendModel(Handle(StepData_Protocol)::DownCast(writer.WS()->Protocol()));
    std::ostringstream stream;
    text.Print(stream);
    return stream.str();
}

} // namespace

TEST(StepText, IsTheSameInPartsAsAtOnce)
{
    STEPControl_Writer writer;
    // More entities than are written at a time.
    std::vector<TopoDS_Shape> cubes(60, kit_cube(10));
    for (std::size_t at = 0; at < cubes.size(); ++at) {
        cubes[at] = kit_cube(1.0 + static_cast<double>(at));
    }
    writer.Transfer(kit_compound(cubes), STEPControl_AsIs);
    ASSERT_GT(writer.Model()->NbEntities(), 12'000);
    EXPECT_TRUE(written_in_parts(writer) == written_at_once(writer));
}

TEST(StepText, OfAnEmptyModelIsAFileWithoutEntities)
{
    STEPControl_Writer writer;
    EXPECT_EQ(written_in_parts(writer), written_at_once(writer));
}

TEST(StepText, EndsWhenTheStreamTakesNoMore)
{
    STEPControl_Writer writer;
    writer.Transfer(kit_cube(10), STEPControl_AsIs);
    std::ostringstream stream;
    stream.setstate(std::ios::badbit);
    step_write_text(writer.Model(), Handle(StepData_Protocol)::DownCast(writer.WS()->Protocol()), {}, stream);
    EXPECT_TRUE(stream.str().empty());
}
