#include "compare/cmpJob.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>

#include "compare/cmpInstallation.h"
#include "compare/cmpTexts.h"

namespace fs = std::filesystem;

namespace {

using nlohmann::json;

/// One side of the job, step by step; each step says whether it went well and why not.
class SideJob {
public:
    SideJob(cmpFile const & file, char const * letter, cmpInstallation const & installation,
            cmpTexts const & texts)
        : m_file(file), m_letter(letter), m_installation(installation), m_texts(texts)
    {
    }

    bool make() { return find_file() && find_format() && find_module() && read_options(); }

    json const & value() const { return m_value; }
    std::string const & format() const { return m_format; }
    std::string const & problem() const { return m_problem; }

private:
    bool find_file()
    {
        std::error_code error;
        fs::path const path(m_file.path);
        if (fs::is_directory(path, error))
            return refuse(m_texts(s2sMessages::input_not_a_file(path)));
        errno = 0;
        if (!std::ifstream(path))
            return refuse(m_texts(s2sMessages::input_missing(path, std::strerror(errno))));
        auto const whole = fs::absolute(path, error).native();
        // The name of a file need not be text, and the host could not be told of such a one.
        if (s2s_repair_utf8(whole) != whole)
            return refuse(m_texts(s2sMessages::name_not_text(path)));
        m_value["file"] = whole;
        return true;
    }

    bool find_format()
    {
        auto const & formats = m_installation.formats();
        if (m_file.format.empty()) {
            m_info = formats.translator_for_file(m_file.path);
            return m_info || refuse(m_texts("compare::Cannot determine the format of %s. Name it with "
                                            "--format-%s.",
                                            m_file.path, m_letter));
        }
        utString name = m_file.format;
        name.to_upper();
        m_info = formats.translator_for_format(m_file.format);
        if (!m_info)
            m_info = formats.translator_for_format(name);
        return m_info || refuse(m_texts("compare::There is no format %s that can be read. There are: %s",
                                        m_file.format, all_formats()));
    }

    bool find_module()
    {
        sdbTranslatorLoadStatus status(sdbTranslatorLoadStart);
        m_info->load(status);
        if (!status.failures().empty())
            return refuse(status.failures().front().reason.str());
        m_format = m_info->format_name().ut_string().str();
        m_value["format"] = m_format;
        m_value["module"] = m_info->file_ut().str();
        return true;
    }

    bool read_options()
    {
        m_value["options"] = json::object();
        auto const & known = m_info->declaration().resources;
        for (auto const & word : m_file.options) {
            auto const colon = word.find(':');
            auto const name = word.substr(0, colon);
            auto const option =
                std::find_if(known.begin(), known.end(), [&](auto const & one) { return one.name == name; });
            if (colon == std::string::npos || option == known.end())
                return refuse(m_texts("compare::%s has no option \"%s\"; options are given as NAME:VALUE",
                                      m_format, name));
            auto const value = option->canonical(word.substr(colon + 1));
            if (!value)
                return refuse(m_texts("compare::The option %s of %s cannot have the value \"%s\"", name,
                                      m_format, word.substr(colon + 1)));
            m_value["options"][name] = *value;
        }
        return true;
    }

    std::string all_formats() const
    {
        std::string names;
        for (auto const & translator : m_installation.formats().translators())
            names += (names.empty() ? "" : ", ") + translator->format_name().ut_string().str();
        return names;
    }

    bool refuse(std::string problem)
    {
        m_problem = std::move(problem);
        return false;
    }

    cmpFile const & m_file;
    char const * m_letter;
    cmpInstallation const & m_installation;
    cmpTexts const & m_texts;
    sdbTranslatorInfo const * m_info = nullptr;
    json m_value;
    std::string m_format;
    std::string m_problem;
};

} // namespace

std::optional<std::string> cmp_make_job(cmpOptions const & options, cmpInstallation const & installation,
                                        cmpTexts const & texts, cmpReport & report)
{
    json comparison = {{"relative", options.relative},
                       {"absolute", options.absolute},
                       {"deflection", options.deflection},
                       {"level", options.counts_only ? "counts" : "full"}};
    for (auto const & [file, letter, side] :
         {std::tuple(&options.a, "a", &report.a), std::tuple(&options.b, "b", &report.b)}) {
        SideJob job(*file, letter, installation, texts);
        side->file = file->path;
        if (!job.make()) {
            report.problem = job.problem();
            return std::nullopt;
        }
        side->format = job.format();
        comparison[letter] = job.value();
    }
    for (auto const & [name, wanted] :
         {std::pair("names", options.names), std::pair("colours", options.colours),
          std::pair("layers", options.layers), std::pair("structure", options.structure)})
        if (wanted)
            comparison[name] = *wanted;
    json const job = {
        {"job", 1}, {"compare", comparison}, {"memory_limit", s2s_allowed_memory(installation.limits(), 1)}};
    return job.dump();
}
