#pragma once

#include <condition_variable>
#include <filesystem>
#include <functional>
#include <initializer_list>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "ap/apPosixOperations.h"
#include "kit/kitTempFolder.h"
#include "s2s/s2sBatchWrapper.h"
#include "s2s/s2sThreadComm.h"
#include "s2s/s2sTranslatorLoader.h"
#include "s2s/s2sVmr2vmr.h"
#include "s2s/s2sWrapper.h"
#include "vmr/vmrabsAppInfo.h"
#include "vmr/vmrabsOutput.h"

void write_text(std::filesystem::path const & file, std::string const & text); ///< with the folders above it
std::string read_text(std::filesystem::path const & file); ///< "(none)" when there is no file
std::vector<std::string> names_in(std::filesystem::path const & folder);
int open_descriptors();

struct Message {
    std::string domain;
    std::string key;
    utTextArguments arguments;
};

/// A stream that keeps what it is given.
class Recorder : public vmrabsOutput {
public:
    void write(char const * domain, char const * key, utTextArguments const & arguments) override;
    /// The text with its arguments in place of the conversions, without its context, behind "domain/".
    utString text(char const * domain, char const * key, utTextArguments const & arguments) const override;

    std::vector<Message> messages() const;
    /// All messages with their arguments in place of the conversions, without contexts.
    std::string text() const;
    void wait_for(std::string const & key); ///< returns when a message with that key has come

    std::function<void(Message const &)> on_message;

private:
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<Message> m_messages;
};

/// An engine on the fake host, with its files in a folder of its own.
class EngineTest : public ::testing::Test {
protected:
    EngineTest();

    /// An input file that exists, and the script that the host is to follow.
    std::filesystem::path make_input(std::string const & name = "in.cad", std::string const & text = "input");
    s2sTranslatorElements input(std::filesystem::path const & file, std::string const & script = {}) const;
    s2sOutputTranslatorElements output(std::filesystem::path const & file) const;
    s2sTranslationElements translation(std::filesystem::path const & in, std::filesystem::path const & out,
                                       std::string const & script) const;

    std::unique_ptr<s2sWrapperBase> make_wrapper(s2sTranslationElements const & elements);
    std::unique_ptr<s2sWrapperBase> make_batch(s2sTranslationElementscoPageArr const & elements);
    int run(s2sTranslationElements const & elements) { return make_wrapper(elements)->run(); }
    /// From `in.cad` to `out.cad`, with that script.
    int run_script(std::string const & script);
    int run_batch(s2sTranslationElementscoPageArr const & elements) { return make_batch(elements)->run(); }

    s2sTranslationDetails details() const { return comm.current_translation_details(); }
    std::vector<std::string> left_behind() const; ///< names in the output folder that begin with a dot

    kitTempFolder folder;
    std::filesystem::path module;
    vmrabsAppInfo info{"test", "test", "test", "test", ""};
    apPosixLibraryLoaderOperations library_operations;
    s2sTranslatorLoader loader{&library_operations};
    s2sVmr2vmr context;
    s2sThreadComm comm{nullptr};
    Recorder output_stream;
    Recorder error_stream;
};
