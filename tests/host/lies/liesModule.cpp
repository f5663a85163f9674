#include "lies/liesFacets.h"
#include "lies/liesTold.h"
#include "sdk/exchange/sdkShapeProcessing.h"
#include "sdk/sdkModule.h"

#include <STEPCAFControl_Reader.hxx>
#include <STEPCAFControl_Writer.hxx>
#include <STEPControl_Controller.hxx>

#include <csignal>
#include <fstream>
#include <string_view>
#include <unistd.h>

namespace {

// Tells who waits at the pipe beside the file that this process reads it now; without a pipe nobody does.
void announce(std::string const & path)
{
    if (auto const pipe = path + ".pipe"; ::access(pipe.c_str(), W_OK) == 0) {
        std::ofstream(pipe) << ::getpid() << std::endl;
    }
}

// Writes into all that this process may have open; one of them goes to the host.
void babble()
{
    constexpr std::string_view nonsense = "{\"read_back\":\n";
    for (int descriptor = 3; descriptor < 64; ++descriptor) {
        if (::write(descriptor, nonsense.data(), nonsense.size()) < 0) {
            continue;
        }
    }
}

// Honest, but not always well.
class Reader : public sdkReader {
public:
    explicit Reader(sdkContext & context) : m_context(context) { STEPControl_Controller::Init(); }

    sdkResult parse(std::string const & path, Message_ProgressRange const &) override
    {
        announce(path);
        auto const & reads = m_context.options().text("lieReads");
        if (reads == "crash") {
            std::raise(SIGSEGV);
        }
        if (reads == "babble") {
            babble();
        }
        while (reads == "hang") {
            ::pause();
        }
        m_reader.SetNameMode(Standard_True);
        m_reader.SetColorMode(Standard_True);
        m_reader.SetLayerMode(Standard_True);
        return m_reader.ReadFile(path.c_str()) == IFSelect_RetDone
                   ? sdkResult::completed()
                   : sdkResult::read_error(sdkText("lies::%s makes no sense", m_context.file()));
    }

    sdkResult transfer(sdkDocument & document, Message_ProgressRange const & range) override
    {
        sdkShapeProcessing const processing(sdkHealing::none);
        auto handle = document.handle();
        return m_reader.Transfer(handle, range)
                   ? sdkResult::completed()
                   : sdkResult::read_error(sdkText("lies::%s has no shapes", m_context.file()));
    }

private:
    sdkContext & m_context;
    STEPCAFControl_Reader m_reader;
};

class Writer : public sdkWriter {
public:
    explicit Writer(sdkContext & context) : m_context(context)
    {
        STEPControl_Controller::Init();
        auto const & options = context.options();
        auto & promise = context.promise();
        promise.made = options.boolean("liePromises");
        promise.read_back["lieReads"] = options.text("lieReads");
        promise.triangles = options.text("lieTold") == "triangles" ? 12 : -1;
        promise.checked = options.boolean("lieChecked");
    }

    sdkResult transfer(sdkDocument & document, Message_ProgressRange const & range) override
    {
        auto const entities = document.count_entities().entities();
        lies_tell(m_context.options().text("lieTold"), document);
        sdkShapeProcessing const processing(sdkHealing::none);
        m_writer.SetNameMode(Standard_True);
        m_writer.SetColorMode(Standard_True);
        m_writer.SetLayerMode(Standard_True);
        if (!m_writer.Transfer(document.handle(), STEPControl_AsIs, nullptr, range)) {
            return sdkResult::write_error(sdkText("lies::%s cannot be written", m_context.file()));
        }
        m_context.reporter().processed(entities);
        return sdkResult::completed();
    }

    sdkResult write(std::string const & path, Message_ProgressRange const &) override
    {
        if (m_context.options().text("lieTold") == "garbage") {
            std::ofstream(path) << "nothing that anybody could read\n";
            return sdkResult::completed();
        }
        return m_writer.Write(path.c_str()) == IFSelect_RetDone
                   ? sdkResult::completed()
                   : sdkResult::write_error(sdkText("lies::%s cannot be written", m_context.file()));
    }

private:
    sdkContext & m_context;
    STEPCAFControl_Writer m_writer;
};

class Module : public sdkModule {
public:
    std::unique_ptr<sdkReader> make_reader(std::string const & format, sdkContext & context) const override
    {
        if (format == "FACETS") {
            return lies_facets_reader(context);
        }
        return std::make_unique<Reader>(context);
    }

    std::unique_ptr<sdkWriter> make_writer(std::string const & format, sdkContext & context) const override
    {
        if (format == "FACETS") {
            return lies_facets_writer(context);
        }
        return std::make_unique<Writer>(context);
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
