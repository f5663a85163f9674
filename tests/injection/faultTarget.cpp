// What the programs do only in their windows, as a command: it merges files, translates a batch, and saves
// options and settings, with the same classes. Its end says with what success: 0 when all is done, 1 when
// something could not be done, and then it has printed why.

#include <filesystem>
#include <iostream>
#include <mutex>

#include "ap/apPosixOperations.h"
#include "process/memoryEnd.h"
#include "s2s/s2sBatchWrapper.h"
#include "s2s/s2sHostProgram.h"
#include "s2s/s2sThreadComm.h"
#include "s2s/s2sTranslatorLoader.h"
#include "s2s/s2sVmr2vmr.h"
#include "s2s/s2sWrapper.h"
#include "sdu/sduStartupInfo.h"
#include "vmr/vmrResourceFile.h"
#include "vmr/vmrTableInstance.h"
#include "vmr/vmrabsAppInfo.h"
#include "vmr/vmrabsOutput.h"

namespace {

using Words = std::vector<std::string>;

/// Prints each message as its key and its arguments.
class Printer : public vmrabsOutput {
public:
    void write(char const * domain, char const * key, utTextArguments const & arguments) override
    {
        std::lock_guard const lock(m_mutex);
        std::cout << text(domain, key, arguments).str() << std::endl;
    }

    utString text(char const *, char const * key, utTextArguments const & arguments) const override
    {
        std::string shown = key;
        for (auto const & argument : arguments) {
            shown += " | ";
            if (auto const * const words = std::get_if<std::string>(&argument))
                shown += *words;
        }
        return shown;
    }

private:
    std::mutex m_mutex;
};

/// What lies at this place of the build to which this program belongs.
std::string in_build(char const * place)
{
    return std::filesystem::read_symlink("/proc/self/exe").parent_path().parent_path() / place;
}

/// The engine with the host and the format modules of this build.
class Engine {
public:
    Engine() { m_info.set_info(s2sHOSTPROGRAM, in_build(FAULT_HOST)); }

    static s2sTranslationElements translation(Words const & inputs, std::string const & output)
    {
        auto const modules = in_build(FAULT_MODULES);
        s2sTranslatorElementscoPageArr files;
        for (auto const & input : inputs)
            files.append({input, nullptr, modules + "/stl.so", 0, "STL"});
        return {files, {output, nullptr, modules + "/brep.so", nullptr, 0, "BREP"}};
    }

    bool merge(s2sTranslationElements const & elements)
    {
        s2sWrapper(m_context, m_info, m_comm, &m_loader, &m_printer, &m_printer, elements).run();
        return all_completed(1);
    }

    bool batch(s2sTranslationElementscoPageArr const & entries)
    {
        m_context.set_hosts(2);
        s2sBatchWrapper(m_context, m_info, m_comm, &m_loader, &m_printer, &m_printer, entries).run();
        return all_completed(entries.count());
    }

private:
    bool all_completed(int wanted) const
    {
        bool good = m_comm.num_translations() == wanted;
        for (int i = 0; i < m_comm.num_translations(); ++i) {
            auto const details = m_comm.translation_details(i);
            good = good && details.status() == s2sThreadCompleted && details.num_processed() > 0;
        }
        return good;
    }

    vmrabsAppInfo m_info{"test", "test", "test", "test", ""};
    apPosixLibraryLoaderOperations m_library_operations;
    s2sTranslatorLoader m_loader{&m_library_operations};
    s2sVmr2vmr m_context;
    s2sThreadComm m_comm{nullptr};
    Printer m_printer;
};

bool merge(Words const & words)
{
    return Engine().merge(Engine::translation({words.begin() + 1, words.end()}, words[0]));
}

bool batch(Words const & words)
{
    s2sTranslationElementscoPageArr entries;
    for (std::size_t i = 1; i < words.size(); i += 2)
        entries.append(Engine::translation({words[i - 1]}, words[i]));
    return Engine().batch(entries);
}

bool save_options(Words const & words)
{
    vmrTableInstance table;
    table.initialise(words[0]);
    table.add_resource(words[1], words[2]);
    return vmr_resource_save(words[0], table.table()) != 0;
}

bool save_settings(Words const & words)
{
    sduStartupInfo settings;
    settings.load(words[0].c_str());
    if (settings.using_defaults())
        return false;
    settings.add_field(words[1], words[2]);
    return !settings.using_defaults();
}

bool run(std::string const & what, Words const & words)
{
    if (what == "merge")
        return merge(words);
    if (what == "batch")
        return batch(words);
    return what == "options" ? save_options(words) : save_settings(words);
}

} // namespace

int main(int argc, char ** argv)
{
    end_when_memory_runs_out("could not be done: there is no memory\n", 1);
    if (argc < 4) {
        std::cout << "merge OUTPUT INPUT... | batch INPUT OUTPUT... | options FILE NAME VALUE | settings "
                     "FILE NAME VALUE\n";
        return 2;
    }
    try {
        if (run(argv[1], {argv + 2, argv + argc}))
            return 0;
        std::cout << argv[1] << ": could not be done for " << argv[2] << std::endl;
    } catch (std::exception const & problem) {
        std::cout << argv[1] << ": could not be done for " << argv[2] << ": " << problem.what() << std::endl;
    }
    return 1;
}
