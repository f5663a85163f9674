#include "batchKit.h"

#include <sys/stat.h>

#include "s2s/s2sBatchMarker.h"

s2sTranslationElements BatchTest::entry(std::string const & name, std::string const & script)
{
    return translation(make_input(name), folder / "out/" + name, script);
}

std::string BatchTest::fifo(std::string const & name) const
{
    auto const file = folder / name;
    EXPECT_EQ(mkfifo(file.c_str(), 0600), 0);
    return file;
}

std::string BatchTest::cut_section(std::string & text)
{
    auto const marker = s2s_batch_marker().str();
    for (int i = 0; i < 2; ++i) {
        auto const at = text.find(marker);
        text.erase(0, at == std::string::npos ? text.size() : at + marker.size());
    }
    auto const next = text.find(marker);
    auto section = text.substr(0, next);
    text.erase(0, section.size());
    section.erase(0, section.find_first_not_of('\n'));
    return section;
}

std::string BatchTest::say(std::string const & stream, std::string const & text)
{
    return R"(say {"event":"message","stream":")" + stream + R"(","domain":"d","key":")" + text + "\"}\n";
}

std::string BatchTest::say_progress(int percent)
{
    return R"(say {"event":"progress","percent":)" + std::to_string(percent) + "}\n";
}
