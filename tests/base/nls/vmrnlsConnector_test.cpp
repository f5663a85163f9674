#include "nls/vmrnlsConnector.h"

#include <mutex>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "Surroundings.h"
#include "nls/vmrnlsDisplayer.h"
#include "nls/vmrnlsFormatterSimple.h"
#include "nls/vmrnlsTranslatorDefault.h"
#include "nls/vmrnlsTranslatorWithDatabases.h"

namespace {

class Sink : public vmrnlsDisplayer {
public:
    void display(char const * text) override
    {
        std::lock_guard const lock(m_mutex);
        texts.emplace_back(text);
    }

    std::vector<std::string> texts;

private:
    std::mutex m_mutex;
};

} // namespace

TEST(Connector, DisplaysFinishedText)
{
    vmrnlsTranslatorDefault const translator;
    vmrnlsFormatterSimple const formatter(".");
    Sink sink;
    vmrnlsConnector connector(&translator, &formatter, &sink);
    vmrabsOutput & output = connector;
    output.write("vmrgrlib", "cl::File name is %s\n", ut_text_arguments("part.stp"));
    output.message("DO_NOT_TRANSLATE", "%d%%", 50);
    EXPECT_EQ(sink.texts, (std::vector<std::string>{"File name is part.stp\n", "50%"}));
}

TEST(Connector, TranslatesBeforeItFormats)
{
    Surroundings const surroundings;
    nlsDomainManager::language("de");
    vmrnlsTranslatorWithDatabases const translator(TEST_LOCALE_FOLDER);
    vmrnlsFormatterSimple const formatter(",");
    Sink sink;
    vmrnlsConnector connector(&translator, &formatter, &sink);
    connector.message("sample", "cl::File %s has %d parts\n", "a.stp", 3);
    connector.message("sample", "cl::Size %.1f", 0.5);
    EXPECT_EQ(sink.texts, (std::vector<std::string>{"3 Teile hat die Datei a.stp\n", "Size 0,5"}));
}

TEST(Connector, GivesTheTextOfAMessageWithoutDisplayingIt)
{
    Surroundings const surroundings;
    nlsDomainManager::language("de");
    vmrnlsTranslatorWithDatabases const translator(TEST_LOCALE_FOLDER);
    vmrnlsFormatterSimple const formatter(",");
    Sink sink;
    vmrnlsConnector const connector(&translator, &formatter, &sink);
    EXPECT_EQ(connector.text("sample", "cl::File %s has %d parts\n", ut_text_arguments("a.stp", 3)),
              utString("3 Teile hat die Datei a.stp\n"));
    EXPECT_TRUE(sink.texts.empty());
}

TEST(Connector, TakesMessagesFromSeveralThreads)
{
    Surroundings const surroundings;
    nlsDomainManager::language("de");
    vmrnlsTranslatorWithDatabases const translator(TEST_LOCALE_FOLDER);
    vmrnlsFormatterSimple const formatter(".");
    Sink sink;
    vmrnlsConnector connector(&translator, &formatter, &sink);
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&connector] {
            for (int i = 0; i < 250; ++i)
                connector.message("sample", "cl::Entity %d of type %s was skipped\n", 7, "edge");
        });
    }
    for (auto & thread : threads)
        thread.join();
    EXPECT_EQ(sink.texts, std::vector<std::string>(1000, "Element 7 der Art edge wurde ausgelassen\n"));
}

TEST(TranslatorAndFormatter, GoesFromKeyToText)
{
    vmrnlsTranslatorDefault const translator;
    vmrnlsFormatterSimple const formatter(",");
    vmrnlsTranslatorAndFormatter const both(&translator, &formatter);
    EXPECT_EQ(both.tsprintf("DO_NOT_TRANSLATE", "%01.2f", 3.0), utString("3,00"));
    EXPECT_EQ(both.vtsprintf("vmrgrlib", "d.report.tree::File %d :", ut_text_arguments(2)),
              utString("File 2 :"));
}

TEST(TranslatorAndFormatter, TranslatesArgumentsThatAreTerms)
{
    Surroundings const surroundings;
    nlsDomainManager::language("de");
    vmrnlsTranslatorWithDatabases const translator(TEST_LOCALE_FOLDER);
    vmrnlsFormatterSimple const formatter(",");
    vmrnlsTranslatorAndFormatter const both(&translator, &formatter);
    auto const text = [&](char const * what) {
        return both.tsprintf("sample", "cl::Entity %d of type %s was skipped\n", 7, what);
    };
    EXPECT_EQ(text("term::solid"), utString("Element 7 der Art Volumenkörper wurde ausgelassen\n"));
    EXPECT_EQ(text("term::lump"), utString("Element 7 der Art lump wurde ausgelassen\n"));
    // Names of parts and files are nobody's keys.
    EXPECT_EQ(text("solid"), utString("Element 7 der Art solid wurde ausgelassen\n"));
    EXPECT_EQ(text("menu::Open"), utString("Element 7 der Art menu::Open wurde ausgelassen\n"));
}
