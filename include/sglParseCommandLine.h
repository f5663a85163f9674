#pragma once

#include <memory>

#include "ann/annDocument.h"
#include "sdb/sdbOstream.h"
#include "sdb/sdbOstreamDisplayer.h"
#include "sdb/sdbTranslatorInfo.h"
#include "sdu/ubStreams.h"
#include "sglCLTranslation.h"
#include "ut/utString.h"
#include "vmr/vmrLengthUnit.h"
#include "vmr/vmrTableInstance.h"
#include "vmr/vmrabsAppInfo.h"

/// A translation ordered wholly on the command line, with no window. The grammar is positional:
///
///     [-h|-help] [-m|-modeller] infile [-tol|-tolerance T] [-r FILE | FILE.rsc]
///     -t FORMAT [-u|-units U] [-res_opt NAME:VALUE ...]
///     -o|-output outfile [-r FILE | FILE.rsc] [-w|-wire] [-s|-surface] [-res_opt NAME:VALUE ...] [-log FILE]
///
/// Everything it has to say goes to standard output and to the log file. Main thread, after the services
/// exist.
class sglParseCommandLine {
public:
    sglParseCommandLine(vmrabsAppInfo const & info, char const * command_line);
    virtual ~sglParseCommandLine();

    int parse();     ///< 1 when the translation is ready; otherwise it has said why not
    int translate(); ///< after parse(); 1 when the engine ran, whatever came of it

protected:
    int get_string(utString & word, int check_translate);
    int look_for_log(); ///< 0 when the log would destroy another file of the line; nothing is opened then
    int get_argument();
    void get_resource_options(vmrTableInstance * table);
    int extract_resource_option(utString & name, utString & value);
    utString resource_file_path(utString const & name) const; ///< invalid when there is no such file
    void pre_process_settings();
    int set_tri_tol_resources(vmrTableInstance & table) const;
    int handle_translator_error(sglTranslationResult const & result);
    void usage();
    int file_exists(utString const & file) const;
    int open_log_file(utString const & file);

    utString const & input_resource_file() const { return m_input_resource_file; }
    utString const & output_resource_file() const { return m_output_resource_file; }
    sglCLTranslation & translation() { return *m_translation; }

private:
    template <class... Arguments>
    void say(char const * format, Arguments const &... arguments)
    {
        m_connector->message("vmrgrlib", format, arguments...);
    }

    int parse_first_words(utString & word);
    int parse_input_side(utString const & file);
    int parse_tolerance(utString & next, double & tolerance);
    int find_input_resource(utString & next, sdbTranslatorInfo const & translator);
    void announce_input(utString const & file, double tolerance);
    int parse_output_side();
    int parse_units(utString & word);
    int find_output_resource(utString const & file, sdbTranslatorInfo const & translator);
    void announce_output(utString const & file);
    int load_translator(sdbTranslatorInfo const & translator, utString & complaint) const;
    void finish_quoted_word(utString & line, utString & word, char const * complaint);
    utString default_resource_file(sdbTranslatorInfo const & translator) const;
    void put_back(utString const & word);
    void close_log(); ///< says on standard error when not all of it could be written

    double m_tolerance = -1.0;
    utString m_command_line;
    utString m_input_resource_file;
    utString m_output_resource_file;
    vmrLengthUnit m_units{};
    vmrabsAppInfo const * m_info;
    int m_surface = 0;
    int m_wire = 0;
    annDocument m_document;
    std::unique_ptr<sdbOstream> m_stream;
    std::unique_ptr<sglCLTranslation> m_translation;
    std::unique_ptr<sdbOstreamDisplayer> m_displayer;
    std::unique_ptr<vmrabsOutput> m_connector;
    std::unique_ptr<ubOFStream> m_log;
    utString m_log_name;
};
