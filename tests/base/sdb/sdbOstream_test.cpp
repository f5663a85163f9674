#include "sdb/sdbOstream.h"

#include <sstream>
#include <streambuf>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "sdb/sdbOstreamDisplayer.h"

namespace {

/// Counts how often it is flushed.
class CountingBuffer : public std::stringbuf {
public:
    int flushes = 0;

protected:
    int sync() override
    {
        ++flushes;
        return 0;
    }
};

} // namespace

TEST(TextStream, WritesToEveryStream)
{
    std::ostringstream terminal, log;
    sdbOstream stream(nullptr);
    stream.print("before any stream\n");
    stream.add_ostream(&terminal);
    stream.print("banner\n");
    stream.add_ostream(&log);
    stream.add_ostream(nullptr);
    stream.print("message\n");
    EXPECT_EQ(terminal.str(), "banner\nmessage\n");
    EXPECT_EQ(log.str(), "message\n");
}

TEST(TextStream, WritesARowOfDotsWithFigures)
{
    std::ostringstream terminal;
    sdbOstream stream(nullptr);
    stream.add_ostream(&terminal);
    for (int percent = 8; percent <= 11; ++percent) {
        if (percent % 10 == 0)
            stream.print_percent(percent);
        else
            stream.print_dot();
    }
    stream.print_percent(100);
    EXPECT_EQ(terminal.str(), "..10%.100%");
}

TEST(TextStream, BeginsATextOnALineOfItsOwnWhileAProgressRowStandsOpen)
{
    std::ostringstream text;
    sdbOstream stream(nullptr);
    stream.add_ostream(&text);
    stream.print_row_label("Reading :");
    stream.print("a message\n");
    stream.print_dot();
    stream.print_percent(10);
    stream.print("two ");
    stream.print("parts\n");
    stream.print_dot();
    stream.print("\nnext");
    EXPECT_EQ(text.str(), "Reading :\na message\n.10%\ntwo parts\n.\nnext");
}

TEST(TextStream, PassesOverATextThatIsNotThere)
{
    std::ostringstream terminal;
    sdbOstream stream(nullptr);
    stream.add_ostream(&terminal);
    stream.print(nullptr);
    stream.print("");
    EXPECT_EQ(terminal.str(), "");
}

TEST(TextStream, ShowsPercentSignsOfATextAsTheyAre)
{
    std::ostringstream terminal;
    sdbOstream stream(nullptr);
    stream.add_ostream(&terminal);
    stream.print("100% %s %n");
    EXPECT_EQ(terminal.str(), "100% %s %n");
}

TEST(TextStream, FlushesAfterEachWriteOnRequest)
{
    CountingBuffer buffer;
    std::ostream terminal(&buffer);
    sdbOstream stream(nullptr);
    stream.add_ostream(&terminal);
    stream.print("a");
    EXPECT_EQ(buffer.flushes, 0);
    stream.auto_flush(1);
    stream.print("b");
    stream.print_dot();
    stream.print_percent(10);
    EXPECT_EQ(buffer.flushes, 3);
    stream.auto_flush(0);
    stream.print("c");
    EXPECT_EQ(buffer.flushes, 3);
}

TEST(TextStream, GoesOnWithTheOtherStreamsWhenOneFails)
{
    std::ostringstream full, terminal;
    full.setstate(std::ios::badbit);
    sdbOstream stream(nullptr);
    stream.add_ostream(&full);
    stream.add_ostream(&terminal);
    stream.print("text");
    EXPECT_EQ(terminal.str(), "text");
}

TEST(TextStream, KeepsWhatOneCallWritesTogether)
{
    std::ostringstream terminal;
    sdbOstream stream(nullptr);
    stream.add_ostream(&terminal);
    stream.auto_flush(1);
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&stream, t] {
            std::string const line = std::string(20, static_cast<char>('a' + t)) + '\n';
            for (int i = 0; i < 200; ++i)
                stream.print(line.c_str());
        });
    }
    for (auto & thread : threads)
        thread.join();
    std::istringstream lines(terminal.str());
    std::string line;
    int count = 0;
    for (; std::getline(lines, line); ++count)
        EXPECT_EQ(line, std::string(20, line[0]));
    EXPECT_EQ(count, 800);
}

TEST(StreamDisplayer, PrintsWhatItIsToDisplay)
{
    std::ostringstream terminal;
    sdbOstream stream(nullptr);
    stream.add_ostream(&terminal);
    sdbOstreamDisplayer displayer(&stream);
    vmrnlsDisplayer & sink = displayer;
    sink.display("Finished reading\n");
    EXPECT_EQ(terminal.str(), "Finished reading\n");
}
