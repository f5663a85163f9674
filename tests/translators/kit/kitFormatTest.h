#pragma once

#include "kit/kitTempFolder.h"
#include "translators/kit/kitParts.h"
#include "translators/kit/kitTrip.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

// The base of the tests of one format: writes and reads in a folder of its own, and expects all messages to
// be well formed.
class kitFormatTest : public testing::Test {
public:
    using Values = kitSide::Values;

protected:
    kitFormatTest(std::string manifest, std::string format);

    virtual std::unique_ptr<sdkReader> make_reader(sdkContext & context) = 0;
    virtual std::unique_ptr<sdkWriter> make_writer(sdkContext & context) = 0;

    // The path of a file in the folder of this test.
    std::string path(std::string const & name) const { return m_folder / name; }
    kitTempFolder const & folder() const { return m_folder; }

    sdkResult write(sdkDocument & document, std::string const & file, Values const & values = {});
    // A part with a name, as the only one of its document.
    sdkResult write(TopoDS_Shape const & shape, std::string const & file, Values const & values = {},
                    std::string const & name = "Part");
    sdkResult read(std::string const & file, sdkDocument & document, Values const & values = {});

    // As an output is read back to be measured: without what repairs whole shapes.
    sdkResult read_back(std::string const & file, sdkDocument & document, Values const & values);

    // Reads the text as a file of that name; expects a read error and returns what the user is told.
    std::string refusal(std::string const & name, std::string const & text);

    // Writes the files of parts whose members are mirrored or scaled where they are placed, each under this
    // name, and expects that all of them come back, their matter inside.
    void expect_moved_members_kept(std::string const & file, Values const & values = {},
                                   double precision = 1e-6);

    // What was said, and counted, in the last write or read.
    kitReporter const & said() const { return m_said; }
    // What the reader found in its file, or the writer lost, in the last write or read.
    sdkAccount const & account() const { return m_account; }
    // What the writer said of its output in the last write.
    sdkPromise const & promise() const { return m_promise; }

private:
    sdkResult read_with(kitSide & side, std::string const & file, sdkDocument & document);
    void keep(kitSide & side);

    std::string m_manifest;
    std::string m_format;
    kitTempFolder m_folder;
    kitReporter m_said;
    sdkAccount m_account;
    sdkPromise m_promise;
};

// The same for a format whose parts are these.
template <class Reader, class Writer>
class kitFormatTestOf : public kitFormatTest {
protected:
    using kitFormatTest::kitFormatTest;

    std::unique_ptr<sdkReader> make_reader(sdkContext & context) override
    {
        return std::make_unique<Reader>(context);
    }
    std::unique_ptr<sdkWriter> make_writer(sdkContext & context) override
    {
        return std::make_unique<Writer>(context);
    }
};

// The names of the parts, sorted.
std::vector<std::string> kit_part_names(sdkDocument const & document);
