#include "sglParseCommandLine.h"

#include "sglApp.h"
#include "sglNlsHelp.h"
#include "sglReleaseStatus.h"
#include "sglResourceUtils.h"

#include "commandline/sglLogCheck.h"
#include "commandline/sglResourceWord.h"
#include "s2s/s2sFiles.h"
#include "sdu/sduFileFunctions.h"

#include <iostream>

namespace {

constexpr int open_for_output = 2;

/// Also no, when a user without rights on the installation asks for it.
bool make_default_resources(utString & file)
{
    return create_default_resources(file) && sdu_check_file_exists(file) == sduFileExists;
}

} // namespace

sglParseCommandLine::sglParseCommandLine(vmrabsAppInfo const & info, char const * command_line)
    : m_command_line(command_line), m_info(&info), m_document("Model"),
      m_stream(std::make_unique<sdbOstream>(sgl_synch_operations(info)))
{
    m_stream->add_ostream(&std::cout);
    m_stream->auto_flush(1);
    m_displayer = std::make_unique<sdbOstreamDisplayer>(m_stream.get());
    m_connector.reset(getNlsHelp()->make_new_connector(m_displayer.get()));
    m_translation = std::make_unique<sglCLTranslation>();
    m_translation->output_document(&m_document, 0);
}

sglParseCommandLine::~sglParseCommandLine()
{
    close_log();
    m_connector.reset();
    m_displayer.reset();
    m_translation.reset();
    m_stream.reset();
}

void sglParseCommandLine::finish_quoted_word(utString & line, utString & word, char const * complaint)
{
    if (word[0] != '"')
        return;
    if (word[word.length() - 1] == '"') {
        word.remove_leading_chars("\"");
        word.remove_trailing_chars("\"");
        return;
    }
    utString rest;
    if (!line.extract_string("\"", rest))
        say(complaint);
    word += rest;
    word.remove_leading_chars("\"");
    line.remove_leading_chars("\"");
}

int sglParseCommandLine::get_string(utString & word, int check_translate)
{
    if (!m_command_line.extract_string(" ", word)) {
        say("cl::Invalid arguments specified on the command line\n");
        usage();
        return 0;
    }
    finish_quoted_word(m_command_line, word, "cl::Filename incorrectly specified\n\n");
    if (check_translate && (word == "-t" || word == "-translate")) {
        say("cl::-t[ranslate] found in unexpected place in command line\n");
        usage();
        return 0;
    }
    return 1;
}

int sglParseCommandLine::look_for_log()
{
    utString line = m_command_line;
    utString word;
    std::vector<utString> words;
    while (line.extract_string(" ", word)) {
        finish_quoted_word(line, word, "cl::Logfile name incorrectly specified\n\n");
        words.push_back(word);
    }
    int accepted = 1;
    if (words.size() > 1 && words.end()[-2].case_compare("-log") == 0 && !words.back().empty()) {
        utString const log = words.back();
        words.resize(words.size() - 2);
        utString const file = sgl_file_that_is_log(words, log);
        if (!file.invalid()) {
            accepted = 0;
            say("cl::The log file %s is also named as another file of this command line (%s). Choose another "
                "name "
                "for the log.\n",
                log, file);
        } else if (!open_log_file(log)) {
            say("cl::Cannot open log file %s\n", log);
        }
    }

    say("%s\n\n", sglApp::app().copyright_message());
    say("%s\n\n", sglReleaseStatus::release_string());
    say("cl::The command line was %s\n\n", m_command_line);
    return accepted;
}

int sglParseCommandLine::open_log_file(utString const & file)
{
    m_log = std::make_unique<ubOFStream>(file, open_for_output);
    if (!m_log->is_open())
        return 0;
    m_log_name = file;
    m_stream->add_ostream(m_log.get());
    return 1;
}

void sglParseCommandLine::close_log()
{
    if (m_log && m_log->is_open()) {
        m_log->close();
        // Not through the stream, of which the log is a part.
        if (m_log->fail())
            std::cerr << getNlsHelp()
                             ->gsprintf(
                                 "vmrgrlib",
                                 "cl::The log file %s is not complete, because it could not be written. "
                                 "Check the free space and the permissions there.\n",
                                 m_log_name)
                             .view()
                      << std::flush;
    }
    m_log.reset();
}

int sglParseCommandLine::file_exists(utString const & file) const
{
    return sdu_check_file_exists(file) == sduFileExists;
}

int sglParseCommandLine::parse()
{
    if (!look_for_log())
        return 0;
    utString word;
    return parse_first_words(word) && parse_input_side(word) && parse_output_side();
}

int sglParseCommandLine::parse_first_words(utString & word)
{
    if (!get_string(word, 1))
        return 0;
    if (word == "-help" || word == "-h") {
        usage();
        return 0;
    }
    if ((word == "-modeller" || word == "-m") && !get_string(word, 1))
        return 0;
    if (word == "-d" || word == "-decrypt_proe") {
        say("cl:Decrypting Pro/Engineer files is no longer supported");
        return 0;
    }
    if (word == "-e" || word == "-export2fic") {
        say("cl:Extracting CATIA fic files is no longer supported\n");
        return 0;
    }
    return 1;
}

int sglParseCommandLine::parse_input_side(utString const & file)
{
    if (sdu_check_file_exists(file) != sduFileExists) {
        say("cl::The input file %s does not exist\n\n", file);
        return 0;
    }
    if (auto const failure = s2s_check_kind_of_input(file.str())) {
        m_connector->write(s2s_message_domain().c_str(), failure->key.c_str(), failure->arguments);
        return 0;
    }
    auto const * const translator = sglApp::app().input_dlls().translator_for_file(file);
    if (!translator) {
        say("cl::Can not determine the format of file %s\n", file);
        return 0;
    }
    utString next;
    double tolerance = 0.0;
    if (!get_string(next, 0) || !parse_tolerance(next, tolerance) || !find_input_resource(next, *translator))
        return 0;
    // The word that stands in the place of -t is not examined.
    if (!get_string(next, 0))
        return 0;
    utString complaint;
    if (!load_translator(*translator, complaint))
        return 0;

    announce_input(file, tolerance);
    m_translation->input_file(file, 0);
    m_translation->input_format(translator->format_name().ut_string(), 0);
    vmrTableInstance table(m_input_resource_file.c_str());
    m_translation->input_resource_table(table, 0);
    return 1;
}

int sglParseCommandLine::parse_tolerance(utString & next, double & tolerance)
{
    if (next != "-tolerance" && next != "-tol")
        return 1;
    if (!get_string(next, 1))
        return 0;
    int error = 0;
    tolerance = getNlsHelp()->string_to_double(next, error);
    if (!(tolerance > 0.0) || error != 0)
        say("cl::---> Invalid Tolerance\n\n");
    return get_string(next, 0);
}

utString sglParseCommandLine::default_resource_file(sdbTranslatorInfo const & translator) const
{
    return sglApp::app().rsc_dir(translator.resource_file_name());
}

void sglParseCommandLine::put_back(utString const & word)
{
    m_command_line = word + m_command_line;
}

utString sglParseCommandLine::resource_file_path(utString const & name) const
{
    if (sdu_check_file_exists(name) == sduFileExists)
        return name;
    utString const path = sglApp::app().rsc_dir(apFileName(m_info->ut_encoding()->to_ap(name)));
    return sdu_check_file_exists(path) == sduFileExists ? path : utString::make_invalid();
}

int sglParseCommandLine::find_input_resource(utString & next, sdbTranslatorInfo const & translator)
{
    utString name;
    // Also "-res_opt", which has no place here.
    if (next.view().starts_with("-r")) {
        if (!get_string(name, 0))
            return 0;
    } else if (sgl_is_resource_name(next)) {
        name = next;
    } else {
        put_back(next);
        name = default_resource_file(translator);
    }
    utString const path = resource_file_path(name);
    if (!path.invalid()) {
        m_input_resource_file = path;
        return 1;
    }
    say("cl::The resource file %s does not exist\n", name);
    utString made = default_resource_file(translator);
    if (make_default_resources(made))
        m_input_resource_file = made;
    return 1;
}

int sglParseCommandLine::load_translator(sdbTranslatorInfo const & translator, utString & complaint) const
{
    sdbTranslatorLoadStatus status(sdbTranslatorLoadStart);
    translator.load(status);
    if (status.ok() || !status.translator_files_failed_to_load().undefined())
        return 1;
    complaint = getNlsHelp()->gsprintf("vmrgrlib", "Error : unable to load %s\n", translator.file_ut());
    return 0;
}

void sglParseCommandLine::announce_input(utString const & file, double tolerance)
{
    say("\n****************************************\n");
    say("cl::Input file\n\n");
    say("cl::File name is %s\n", file);
    say("cl::Resource file to be used is %s\n", m_input_resource_file);
    if (tolerance > 0.0)
        say("cl::Triangulation tolerance %f\n\n", tolerance);
    m_tolerance = tolerance > 0.0 ? tolerance : 0.0;
    say("****************************************\n\n");
}

int sglParseCommandLine::parse_output_side()
{
    utString format, word;
    if (!get_string(format, 1))
        return 0;
    auto const * const translator = sglApp::app().output_dlls().translator_for_format(format);
    if (!translator) {
        say("cl::Requested output format %s not recognised\n\n", format);
        return 0;
    }
    utString complaint;
    if (!load_translator(*translator, complaint)) {
        std::cout << complaint.view() << std::endl;
        return 0;
    }
    if (!get_string(word, 1) || !parse_units(word))
        return 0;
    if (word == "-res_opt") {
        get_resource_options(&m_translation->input_resource_table(0));
        if (!get_string(word, 1))
            return 0;
    }
    if (word != "-output" && word != "-o") {
        say("cl::-output is not specified on the command line\n\n");
        return 0;
    }
    utString file;
    if (!get_string(file, 1) || !find_output_resource(file, *translator))
        return 0;

    m_translation->output_file(file, 0);
    m_translation->output_format(format, 0);
    vmrTableInstance table(m_output_resource_file.c_str());
    m_translation->output_resource_table(table, 0);
    while (get_argument()) {
    }
    announce_output(file);
    return 1;
}

int sglParseCommandLine::parse_units(utString & word)
{
    if (word != "-units" && word != "-u")
        return 1;
    if (!get_string(word, 1))
        return 0;
    word.to_lower();
    say("cl::Output length units : %s\n", word);
    m_units = vmrLengthUnit{};
    make_vmrLengthUnit_from_string(word, m_units);
    if (m_units == vmrLengthUnit{})
        say("cl::--> Invalid units string\n\n");
    return get_string(word, 1);
}

int sglParseCommandLine::find_output_resource(utString const & file, sdbTranslatorInfo const & translator)
{
    utString next, name;
    if (!m_command_line.extract_string(" ", next)) {
        name = default_resource_file(translator);
    } else if (sgl_is_resource_name(next)) {
        name = next;
    } else if (sgl_announces_resource(next)) {
        if (!get_string(name, 1))
            return 0;
    } else {
        put_back(next);
        name = default_resource_file(translator);
    }
    utString const path = resource_file_path(name);
    if (!path.invalid()) {
        m_output_resource_file = path;
        return 1;
    }
    say("cl::The resource file %s does not exist\n", name);
    utString made = default_resource_file(translator);
    if (!make_default_resources(made)) {
        say("cl::No output to file %s\n\n", file);
        return 0;
    }
    m_output_resource_file = made;
    return 1;
}

void sglParseCommandLine::announce_output(utString const & file)
{
    say("\n****************************************\n");
    say("cl::Output file\n\n");
    say("cl::File name is %s\n", file);
    say("cl::Resource file to be used is %s\n", m_output_resource_file);
    say("\n****************************************\n\n");
}

int sglParseCommandLine::get_argument()
{
    utString word;
    if (!m_command_line.extract_string(" ", word))
        return 0;
    if (word == "-wire" || word == "-w") {
        m_wire = 1;
    } else if (word == "-surface" || word == "-s") {
        m_surface = 1;
    } else if (word == "-res_opt") {
        get_resource_options(&m_translation->output_resource_table(0));
    } else if (word == "-log") {
        // The log itself was opened before everything else.
        utString file;
        get_string(file, 0);
    } else {
        say("cl::Unknown argument %s passed on the command line\n", word);
    }
    return 1;
}
