#include "engineKit.h"

#include <algorithm>
#include <fstream>
#include <sstream>

#include "s2s/s2sHostProgram.h"
#include "vmr/vmrTableInstance.h"

namespace fs = std::filesystem;

void write_text(fs::path const & file, std::string const & text)
{
    fs::create_directories(file.parent_path());
    std::ofstream(file) << text;
}

std::string read_text(fs::path const & file)
{
    return fs::exists(file) ? kit_read_file(file.native()) : "(none)";
}

std::vector<std::string> names_in(fs::path const & folder)
{
    std::vector<std::string> names;
    for (auto const & entry : fs::directory_iterator(folder))
        names.push_back(entry.path().filename().native());
    std::sort(names.begin(), names.end());
    return names;
}

int open_descriptors()
{
    return static_cast<int>(std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator()));
}

namespace {

std::string text_of(Message const & message)
{
    auto text = message.key;
    if (auto const context = text.find("::"); context != std::string::npos)
        text.erase(0, context + 2);
    std::size_t at = 0;
    for (auto const & argument : message.arguments) {
        at = text.find('%', at);
        if (at == std::string::npos)
            break;
        std::ostringstream shown;
        std::visit([&](auto const & value) { shown << value; }, argument);
        text.replace(at, 2, shown.str());
        at += shown.str().size();
    }
    return text;
}

} // namespace

void Recorder::write(char const * domain, char const * key, utTextArguments const & arguments)
{
    Message const message{domain, key, arguments};
    {
        std::lock_guard const lock(m_mutex);
        m_messages.push_back(message);
    }
    m_changed.notify_all();
    if (on_message)
        on_message(message);
}

std::vector<Message> Recorder::messages() const
{
    std::lock_guard const lock(m_mutex);
    return m_messages;
}

utString Recorder::text(char const * domain, char const * key, utTextArguments const & arguments) const
{
    return std::string(domain) + "/" + text_of({domain, key, arguments});
}

std::string Recorder::text() const
{
    std::string all;
    for (auto const & message : messages())
        all += text_of(message);
    return all;
}

void Recorder::wait_for(std::string const & key)
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [&] {
        return std::any_of(m_messages.begin(), m_messages.end(),
                           [&](Message const & message) { return message.key == key; });
    });
}

EngineTest::EngineTest() : module(folder / "module.so")
{
    write_text(folder / "options.rsc", "");
    fs::create_directory(folder / "out");
    write_text(module, "");
    write_text(folder / "module.json", R"({"interface": 1, "formats": []})");
    info.set_info(s2sHOSTPROGRAM, FAKE_HOST);
}

fs::path EngineTest::make_input(std::string const & name, std::string const & text)
{
    write_text(folder / name, text);
    return folder / name;
}

s2sTranslatorElements EngineTest::input(fs::path const & file, std::string const & script) const
{
    vmrTableInstance table;
    table.initialise(folder / "options.rsc");
    table.add_resource("script", script);
    return {file.native(), &table, module.native(), 0, "Fake"};
}

s2sOutputTranslatorElements EngineTest::output(fs::path const & file) const
{
    return {file.native(), nullptr, module.native(), nullptr, 0, "Fake"};
}

s2sTranslationElements EngineTest::translation(fs::path const & in, fs::path const & out,
                                               std::string const & script) const
{
    return {{input(in, script)}, output(out)};
}

std::unique_ptr<s2sWrapperBase> EngineTest::make_wrapper(s2sTranslationElements const & elements)
{
    return std::make_unique<s2sWrapper>(context, info, comm, &loader, &output_stream, &error_stream,
                                        elements);
}

std::unique_ptr<s2sWrapperBase> EngineTest::make_batch(s2sTranslationElementscoPageArr const & elements)
{
    return std::make_unique<s2sBatchWrapper>(context, info, comm, &loader, &output_stream, &error_stream,
                                             elements);
}

int EngineTest::run_script(std::string const & script)
{
    return run(translation(make_input(), folder / "out/part.cad", script));
}

std::vector<std::string> EngineTest::left_behind() const
{
    auto names = names_in(folder / "out");
    std::erase_if(names, [](std::string const & name) { return name[0] != '.'; });
    return names;
}
