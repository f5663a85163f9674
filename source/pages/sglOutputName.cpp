#include "sglOutputName.h"

#include "sglApp.h"
#include "sglComboBox.h"
#include "sglPathText.h"

#include "ap/apPathSeparator.h"
#include "ap/apSplitPath.h"
#include "sdu/sduStartupKeys.h"
#include "wxt/wxtStringConverter.h"

#include <wx/file.h>
#include <wx/log.h>

namespace {

utString in_directory(utString const & directory, utString const & path)
{
    return directory + utString(std::string(1, apPathSeparator)) + ExtractFile(path);
}

} // namespace

int outfile_name(utString const & input_format, utString const & input_file, sglComboBox * output_combo,
                 utString const & output_format, utString & result)
{
    auto const & app = sglApp::app();
    result = input_file;
    auto const * const input = app.input_dlls().translator_for_format(input_format);
    if (!input)
        return 0;

    bool const unknown = output_format.empty() || output_format.case_compare(unknown_format()) == 0;
    auto const * const output = unknown ? app.output_dlls().default_output_format(input)
                                        : app.output_dlls().translator_for_format(output_format);
    if (!output)
        return 0;
    if (unknown && output_combo)
        output_combo->SetStringSelection(wxtStringConverter::to_wx(output->format_name().ut_string()));

    result = sgl_change_extension(*output, result);
    utString const directory = app.startup_info().find_field(sduDEFAULTSAVEDIRECTORY);
    if (!directory.empty())
        result = in_directory(directory, result);
    return 1;
}

int file_is_writable(utString const & path)
{
    wxString const name = wxtStringConverter::path_to_wx(path);
    if (wxFile::Exists(name))
        return wxFile::Access(name, wxFile::write) ? 1 : 0;
    wxLogNull const our_own_message_follows;
    wxTempFile probe(name);
    bool const opened = probe.IsOpened();
    if (opened)
        probe.Discard();
    return opened ? 1 : 0;
}

utString sgl_numbered_name(utString const & path, std::function<bool(utString const &)> const & is_taken)
{
    if (!is_taken(path))
        return path;
    utString directory, name, extension;
    apSplitPath::split_path(path, directory, name, extension);
    utString const tail = extension.empty() ? extension : "." + extension;
    utString const head = path.substring(0, path.length() - tail.length());
    utString numbered;
    int number = 2;
    do {
        numbered = head + "-";
        numbered << number++ << tail;
    } while (is_taken(numbered));
    return numbered;
}

utString sgl_change_extension(sdbTranslatorInfo const & translator, utString const & path)
{
    auto const * const encoding = sglApp::app().application_information()->ut_encoding();
    return encoding->to_ut(translator.change_extension(apPathName(encoding->to_ap(path))).string());
}
