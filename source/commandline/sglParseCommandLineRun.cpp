// The run of a command-line translation and the text that describes the command line.

#include "sglParseCommandLine.h"

#include "sglApp.h"
#include "sglCLProgressDialog.h"

int sglParseCommandLine::translate()
{
    pre_process_settings();
    sglCLProgressDialog dialog(m_stream.get(), nullptr, nullptr);
    m_translation->progress(&dialog);
    sglTranslationResult const result = m_translation->execute();
    int const failed = handle_translator_error(result);
    say("Translation(s) complete\n\n");
    return failed == 0 ? 1 : 0;
}

int sglParseCommandLine::handle_translator_error(sglTranslationResult const & result)
{
    if (result.value() == sglTranslationResult::started) {
        say("\n\n");
        say("cl::Finished reading\n");
        say("\n\n****************************************\n\n");
        return 0;
    }
    say("\n");
    switch (result.value()) {
    case sglTranslationResult::same_file:
        say("cl::The specified input file has the same name as the output file.\n");
        break;
    case sglTranslationResult::no_input_translator:
        say("cl::Unknown input file format detected\n");
        break;
    case sglTranslationResult::no_output_translator:
        say("cl::Unknown output file format requested\n");
        break;
    default:
        say("cl::Unknown translation error\n");
    }
    return 1;
}

void sglParseCommandLine::usage()
{
    // What the syntax itself consists of reads the same in every language.
    auto const syntax = [this](char const * text) { m_connector->message("DO_NOT_TRANSLATE", text); };
    utString const program = sglApp::app().application_name_no_version();

    say("\n");
    say("cl::Usage : \n\n");
    say("cl::Standard Translation :\n\n");
    syntax("vmr [-h[elp]] [-m[odeller]] \n");
    syntax("     infile [-tol[erance] tol] [-in.rsc] [-r in_resource]\n");
    syntax("     -t[ranslate] output_format [-u[units] output_length_units]\n");
    syntax("     [-res_opt inresource1:value1 [inresource2:value2]]");
    syntax("     -o[utput] output_file [-out.rsc]  [-r out_resource_file]\n");
    syntax("     [-w[ire] -s[urface]]\n");
    syntax("     [-res_opt outresource1:value1 [outresource2:value2]]\n");
    syntax("     [-log log_file]\n\n");
    say("\n");
    say("cl::Decrypting Pro/Engineer files :\n\n");
    syntax("vmr [-m[odeller]] -d[ecrypt_proe] infile outfile\n\n");
    say("cl::Extracting CATIA fic files :\n\n");
    syntax("vmr -e[xport2fic] infile outfile\n\n");
    say("cl::Start %s in Expert mode :\n\n", program);
    syntax("vmr -expert\n\n");
    say("cl::Start %s in Graphics mode :\n\n", program);
    syntax("vmr.exe [-graphics] file1 [file2]\n\n");
}
