#include <gmock/gmock.h>

#include "engineKit.h"
#include "s2s/s2sHostProgram.h"

namespace fs = std::filesystem;

namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

/// The engine with the translator host and the format modules of this build.
class RealHost : public EngineTest {
protected:
    RealHost() { info.set_info(s2sHOSTPROGRAM, REAL_HOST); }

    s2sTranslationElements step_to_iges(fs::path const & in) const
    {
        auto const modules = fs::path(REAL_MODULES);
        return {{{in.native(), nullptr, (modules / "step.so").native(), 0, "STEP"}},
                {folder / "out/part.igs", nullptr, (modules / "iges.so").native(), nullptr, 0, "IGES"}};
    }

    fs::path const sample = "/usr/share/opencascade/data/step/screw.step";
};

TEST_F(RealHost, TranslatesAFile)
{
    if (!fs::exists(sample))
        GTEST_SKIP() << "no sample files are installed";
    EXPECT_GT(run(step_to_iges(sample)), 0) << error_stream.text();
    EXPECT_EQ(details().status(), s2sThreadCompleted);
    EXPECT_GT(details().num_processed(), 0);
    EXPECT_EQ(comm.currentFile(), utString(folder / "out/part.igs"));
    EXPECT_THAT(names_in(folder / "out"), ::testing::ElementsAre("part.igs"));
    EXPECT_THAT(read_text(folder / "out/part.igs"), Not(HasSubstr(".vmr-")));
}

TEST_F(RealHost, ReportsADamagedFile)
{
    run(step_to_iges(make_input("bad.step", "ISO-10303-21;\nHEADER;\n")));
    EXPECT_EQ(details().status(), s2sThreadReadError);
    EXPECT_THAT(error_stream.messages(), Not(IsEmpty()));
    EXPECT_THAT(names_in(folder / "out"), IsEmpty());
}

TEST_F(RealHost, StopsWhenAsked)
{
    if (!fs::exists(sample))
        GTEST_SKIP() << "no sample files are installed";
    comm.requestTermination();
    EXPECT_EQ(run(step_to_iges(sample)), 0);
    EXPECT_EQ(details().status(), s2sThreadCancelled);
    EXPECT_THAT(names_in(folder / "out"), IsEmpty());
}

} // namespace
