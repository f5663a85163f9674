#include "host/hostJob.h"

#include <gtest/gtest.h>

namespace {

constexpr char const * whole = R"({"job": 1,
 "inputs": [{"file": "/a.step", "module": "/m/step.so", "format": "STEP", "options": {"x": "true"},
  "refused": {"y": "1e-08"}}],
 "output": {"file": "/s/b.igs", "final": "/b.igs", "module": "/m/iges.so", "format": "IGES"},
 "staging": "/s", "memory_limit": 12, "file_size_limit": 13, "silence": 2.5, "patience": 0.25}
)";

hostJobState state(std::string const & text)
{
    hostJob job;
    std::string problem;
    return host_parse_job(text, job, problem);
}

} // namespace

TEST(HostJob, ReadsAllFields)
{
    hostJob job;
    std::string problem;
    ASSERT_EQ(host_parse_job(whole, job, problem), hostJobState::complete);
    ASSERT_EQ(job.inputs.size(), 1U);
    EXPECT_EQ(job.inputs[0].file, "/a.step");
    EXPECT_EQ(job.inputs[0].module, "/m/step.so");
    EXPECT_EQ(job.inputs[0].format, "STEP");
    EXPECT_EQ(job.inputs[0].options.at("x"), "true");
    EXPECT_EQ(job.inputs[0].refused.at("y"), "1e-08");
    EXPECT_TRUE(job.output.refused.empty());
    EXPECT_EQ(job.output.file, "/s/b.igs");
    EXPECT_TRUE(job.output.options.empty());
    EXPECT_EQ(job.final_name, "/b.igs");
    EXPECT_EQ(job.staging, "/s");
    EXPECT_EQ(job.memory_limit, 12U);
    EXPECT_EQ(job.file_size_limit, 13U);
    EXPECT_EQ(job.silence, std::chrono::milliseconds(2500));
    EXPECT_EQ(job.least_patience, std::chrono::milliseconds(250));
}

TEST(HostJob, HasDefaultsForWhatIsOptional)
{
    hostJob job;
    std::string problem;
    ASSERT_EQ(host_parse_job(R"({"job":1,"inputs":[{"file":"a","module":"m","format":"F"}],
                                 "output":{"file":"b","module":"m","format":"F"}})",
                             job, problem),
              hostJobState::complete);
    EXPECT_EQ(job.final_name, "b");
    EXPECT_TRUE(job.staging.empty());
    EXPECT_EQ(job.memory_limit, 0U);
    EXPECT_EQ(job.file_size_limit, 0U);
    EXPECT_EQ(job.silence, std::nullopt);
    EXPECT_EQ(job.least_patience, std::chrono::seconds(5));
}

TEST(HostJob, WaitsForTheRestOfAValue)
{
    std::string const text(whole);
    EXPECT_EQ(state(""), hostJobState::incomplete);
    EXPECT_EQ(state("\n"), hostJobState::incomplete);
    EXPECT_EQ(state(text.substr(0, text.size() / 2)), hostJobState::incomplete);
}

TEST(HostJob, LeavesAloneWhatFollows)
{
    EXPECT_EQ(state(std::string(whole).append("{\"command\": \"cancel\"}\n")), hostJobState::complete);
}

TEST(HostJob, RefusesWhatIsNoJob)
{
    for (char const * const text :
         {"hello\n", "[1]\n", "{\"job\": 2}\n", "{\"job\": 1}\n", "{\"job\": \"1\"}\n",
          R"({"job":1,"inputs":[],"output":{"file":"b","module":"m","format":"F"}})",
          R"({"job":1,"inputs":[{"file":"a"}],"output":{}})"}) {
        hostJob job;
        std::string problem;
        EXPECT_EQ(host_parse_job(text, job, problem), hostJobState::invalid) << text;
        EXPECT_FALSE(problem.empty()) << text;
    }
}

TEST(HostJob, ReadsAComparison)
{
    hostJob job;
    std::string problem;
    ASSERT_EQ(host_parse_job(R"({"job": 1, "memory_limit": 12, "compare": {
                                 "a": {"file": "/a.step", "module": "/m/step.so", "format": "STEP"},
                                 "b": {"file": "/b.stl", "module": "/m/stl.so", "format": "STL",
                                       "options": {"stlReadUnit": "in"}},
                                 "relative": 0.001, "level": "counts", "names": false, "layers": true}})",
                             job, problem),
              hostJobState::complete)
        << problem;
    ASSERT_TRUE(job.comparison);
    EXPECT_EQ(job.comparison->a.file, "/a.step");
    EXPECT_EQ(job.comparison->b.options.at("stlReadUnit"), "in");
    EXPECT_EQ(job.comparison->relative, 0.001);
    EXPECT_EQ(job.comparison->absolute, 1.0e-4);
    EXPECT_EQ(job.comparison->deflection, 0.1);
    EXPECT_TRUE(job.comparison->counts_only);
    EXPECT_EQ(job.comparison->names, false);
    EXPECT_EQ(job.comparison->layers, true);
    EXPECT_EQ(job.comparison->colours, std::nullopt);
    EXPECT_EQ(job.memory_limit, 12U);
    EXPECT_EQ(state(R"({"job": 1, "compare": {"a": {"file": "/a", "module": "m", "format": "F"}}})"),
              hostJobState::invalid);
}
