#include "prowl/prowlDeeds.h"
#include "sdk/sdkModule.h"

#include <BRep_Builder.hxx>
#include <TopoDS_Vertex.hxx>

#include <fstream>

namespace {

class Reader : public sdkReader {
public:
    explicit Reader(sdkContext & context) : m_context(context) {}

    sdkResult parse(std::string const &, Message_ProgressRange const &) override
    {
        auto const & options = m_context.options();
        int const error = prowl_do(options.text("prowlDeed"), options.text("prowlTarget"));
        return error == 0 ? sdkResult::completed()
                          : sdkResult::read_error(sdkText("prowl::refused with error %d", error));
    }

    sdkResult transfer(sdkDocument & document, Message_ProgressRange const &) override
    {
        TopoDS_Vertex vertex;
        BRep_Builder().MakeVertex(vertex, gp_Pnt(1, 0, 0), 1e-7);
        document.add_shape(vertex, "Point");
        return sdkResult::completed();
    }

private:
    sdkContext & m_context;
};

class Writer : public sdkWriter {
public:
    explicit Writer(sdkContext & context) : m_context(context) {}

    sdkResult transfer(sdkDocument & document, Message_ProgressRange const &) override
    {
        auto const & options = m_context.options();
        auto & promise = m_context.promise();
        promise.made = true;
        if (options.boolean("prowlWhileReadBack")) {
            promise.read_back["prowlDeed"] = options.text("prowlDeed");
            promise.read_back["prowlTarget"] = options.text("prowlTarget");
        } else if (int const error = prowl_do(options.text("prowlDeed"), options.text("prowlTarget"))) {
            return sdkResult::write_error(sdkText("prowl::refused with error %d", error));
        }
        m_context.reporter().processed(document.count_entities().entities());
        return sdkResult::completed();
    }

    sdkResult write(std::string const & path, Message_ProgressRange const &) override
    {
        std::ofstream(path) << "Point";
        return sdkResult::completed();
    }

private:
    sdkContext & m_context;
};

class Module : public sdkModule {
public:
    std::unique_ptr<sdkReader> make_reader(std::string const &, sdkContext & context) const override
    {
        return std::make_unique<Reader>(context);
    }

    std::unique_ptr<sdkWriter> make_writer(std::string const &, sdkContext & context) const override
    {
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
