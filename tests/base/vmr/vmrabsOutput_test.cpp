#include "vmr/vmrabsOutput.h"

#include <gtest/gtest.h>

namespace {

class Recorder : public vmrabsOutput {
public:
    void write(char const * domain, char const * key, utTextArguments const & arguments) override
    {
        m_domain = domain;
        m_key = key;
        m_arguments = arguments;
    }
    utString text(char const *, char const * key, utTextArguments const &) const override { return key; }

    std::string m_domain;
    std::string m_key;
    utTextArguments m_arguments;
};

} // namespace

TEST(Output, PassesTheArgumentsOfAMessageWithTheirTypes)
{
    Recorder recorder;
    vmrabsOutput & output = recorder;
    output.message("vmrgrlib", "cl::%s %d %f", utString("file"), 3, 0.5);
    EXPECT_EQ(recorder.m_domain, "vmrgrlib");
    EXPECT_EQ(recorder.m_key, "cl::%s %d %f");
    EXPECT_EQ(recorder.m_arguments, (utTextArguments{std::string("file"), std::int64_t(3), 0.5}));
}

TEST(Output, TakesAMessageWithoutArguments)
{
    Recorder recorder;
    recorder.m_arguments = {std::int64_t(1)};
    static_cast<vmrabsOutput &>(recorder).message("d", "k");
    EXPECT_TRUE(recorder.m_arguments.empty());
}
