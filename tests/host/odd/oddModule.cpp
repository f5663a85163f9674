#include "sdk/sdkModule.h"
#include "sdk/sdkOutputFile.h"

#include <BRep_Builder.hxx>
#include <Message_ProgressScope.hxx>
#include <Standard_Failure.hxx>
#include <TopoDS_Vertex.hxx>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <sys/resource.h>
#include <unistd.h>
#include <vector>

namespace {

[[noreturn]] void be_stubborn()
{
    for (;;) {
        ::pause();
    }
}

void wait_for_cancel(Message_ProgressRange const & range)
{
    Message_ProgressScope scope(range, nullptr, 1);
    while (!scope.UserBreak()) {
        ::usleep(1000);
    }
}

void eat_memory()
{
    std::vector<std::vector<char>> all;
    for (;;) {
        all.emplace_back(16 * 1024 * 1024, 'x');
    }
}

// Until this process may have more than a gigabyte of data.
void wait_for_memory()
{
    rlimit limit{};
    while (::getrlimit(RLIMIT_DATA, &limit) == 0 && limit.rlim_cur <= 1ULL << 30) {
        ::usleep(1000);
    }
}

// Until the stack is used up.
int recurse(int depth)
{
    int volatile place[1024] = {depth};
    return depth < 0 ? 0 : recurse(depth + 1) + place[0];
}

class Reader : public sdkReader {
public:
    Reader(std::string format, sdkContext & context) : m_format(std::move(format)), m_context(context) {}

    sdkResult parse(std::string const & path, Message_ProgressRange const & range) override
    {
        m_context.reporter().output("odd::The reader %s has begun", m_format);
        found(sdkWeight::note, "unit-assumed");
        if (m_format == "Counts") {
            auto & account = m_context.account();
            account.holds(sdkSourceKind::root);
            account.holds(sdkSourceKind::solid, 2);
            account.holds(sdkSourceKind::face, 12);
            account.holds(sdkSourceKind::point, 3);
        }
        if (m_format.starts_with("Loses")) {
            found(sdkWeight::loss, "not-translated");
            m_context.reporter().failed(1);
        }
        if (m_format == "Waits") {
            wait_for_cancel(range);
            return sdkResult::cancelled();
        }
        if (m_format == "Stubborn") {
            be_stubborn();
        }
        if (m_format == "Released") {
            // A pipe: it can be read when the test lets it.
            std::ifstream(path).get();
        }
        if (m_format == "Crashes") {
            std::abort();
        }
        if (m_format.starts_with("Chatters")) {
            for (int i = 0; i < 1000; ++i) {
                m_context.reporter().error("odd::Message %d", i);
            }
        }
        if (m_format == "ChattersAndCrashes") {
            ::raise(SIGSEGV);
        }
        if (m_format == "ChattersAndOverflows") {
            recurse(1);
        }
        if (m_format == "ChattersAndIsTold") {
            ::raise(SIGTERM);
        }
        if (m_format == "IsKilled") {
            ::raise(SIGKILL);
        }
        if (m_format == "WaitsForMemory") {
            wait_for_memory();
        }
        if (m_format == "Hungry") {
            eat_memory();
        }
        if (m_format == "Swallows") {
            try {
                eat_memory();
            } catch (std::bad_alloc const &) {
                return sdkResult::read_error(sdkText("odd::%s breaks the rules", m_context.file()));
            }
        }
        if (m_format == "Throws") {
            throw Standard_Failure("a toolkit failure");
        }
        if (m_format == "Fails") {
            return sdkResult::read_error(sdkText("odd::%s: line %d is bad", m_context.file(), 7));
        }
        if (m_format == "Prints") {
            std::puts("{\"event\":\"end\"}");
            std::cout << "noise\n" << std::flush;
        }
        return sdkResult::completed();
    }

    // One point for each file, so that documents differ.
    sdkResult transfer(sdkDocument & document, Message_ProgressRange const & range) override
    {
        Message_ProgressScope scope(range, nullptr, 1000);
        for (int step = 0; step < 1000; ++step) {
            scope.Next();
        }
        if (m_format == "LosesAll") {
            return sdkResult::read_error(sdkText("odd::%s has no shapes", m_context.file()));
        }
        if (m_format == "Loses") {
            return sdkResult::completed();
        }
        TopoDS_Vertex vertex;
        double const size = m_format == "Box" ? m_context.options().real("oddSize") : 1.0;
        BRep_Builder().MakeVertex(vertex, gp_Pnt(size, 0, 0), 1e-7);
        document.add_shape(vertex, "Point");
        return sdkResult::completed();
    }

private:
    void found(sdkWeight weight, char const * kind)
    {
        m_context.account().add({weight,
                                 kind,
                                 {},
                                 "#1",
                                 std::nullopt,
                                 std::nullopt,
                                 sdkText("odd::%s: #1 is odd", m_context.file())});
    }

    std::string m_format;
    sdkContext & m_context;
};

class Writer : public sdkWriter {
public:
    Writer(std::string format, sdkContext & context) : m_format(std::move(format)), m_context(context) {}

    // The content is the tree of names.
    sdkResult transfer(sdkDocument & document, Message_ProgressRange const &) override
    {
        for (auto const & label : document.free_shapes()) {
            add(label);
        }
        if (m_format != "FindsNothing") {
            m_context.reporter().processed(document.count_entities().entities());
        }
        return sdkResult::completed();
    }

    sdkResult write(std::string const & path, Message_ProgressRange const &) override
    {
        if (m_format == "WritesNothing") {
            return sdkResult::completed();
        }
        m_context.account().add({sdkWeight::note,
                                 "source-open",
                                 {},
                                 {},
                                 std::nullopt,
                                 std::nullopt,
                                 sdkText("odd::%s is written", m_context.file())});
        if (m_format == "WritesMuch") {
            sdkOutputFile file(path, {});
            std::ostream(&file) << std::string(8 * 1024 * 1024, 'x');
            return file.close(m_context.file());
        }
        std::ofstream stream(path);
        if (m_format == "WritesEmpty") {
            return sdkResult::completed();
        }
        stream << m_text;
        if (m_format == "WritesHalf") {
            return sdkResult::write_error(sdkText("odd::%s: the disk went away", m_context.file()));
        }
        if (m_format == "Throws") {
            throw std::runtime_error("no more");
        }
        return sdkResult::completed();
    }

private:
    void add(TDF_Label const & label)
    {
        TDF_Label referred;
        m_text += sdkDocument::name(label);
        if (XCAFDoc_ShapeTool::GetReferredShape(label, referred)) {
            m_text += "=";
            add(referred);
            return;
        }
        TDF_LabelSequence components;
        XCAFDoc_ShapeTool::GetComponents(label, components);
        if (!components.IsEmpty()) {
            m_text += "(";
            for (auto const & component : components) {
                add(component);
                m_text += ";";
            }
            m_text += ")";
        }
    }

    std::string m_format;
    std::string m_text;
    sdkContext & m_context;
};

class Module : public sdkModule {
public:
    std::unique_ptr<sdkReader> make_reader(std::string const & format, sdkContext & context) const override
    {
        return format == "NotMade" ? nullptr : std::make_unique<Reader>(format, context);
    }

    std::unique_ptr<sdkWriter> make_writer(std::string const & format, sdkContext & context) const override
    {
        return format == "NotMade" ? nullptr : std::make_unique<Writer>(format, context);
    }
};

} // namespace

int sdk_interface_version()
{
    return sdk_interface;
}

sdkModule const * sdk_module()
{
    static Module const module;
    return &module;
}
