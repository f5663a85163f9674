#include "commandLineText.h"
#include "process/largeStack.h"
#include "process/memoryEnd.h"
#include "vmrApp.h"

#include <clocale>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <wx/init.h>

namespace {

int run(int argc, char ** argv)
{
    end_when_memory_runs_out(
        "vmr: the memory does not suffice. What was to be translated is as it was before; close other "
        "programs and try again.\n",
        vmrExitNotRun);
    // A file that grows beyond what the user's shell allows is an error of that file.
    std::signal(SIGXFSZ, SIG_IGN);
    // The user's numbers and dates; the text functions stay with the C locale, whatever language is chosen
    // later.
    std::setlocale(LC_ALL, "");
    auto const command_line = vmr_command_line_text({argv + 1, argv + argc});
    if (!command_line.impossible_word.empty()) {
        std::cerr << "vmr: the name " << command_line.impossible_word
                  << " holds both a blank and a double quote, which the command line cannot express.\n"
                     "Please rename the file, or give a path without one of the two.\n";
        return vmrExitNotUnderstood;
    }
    // The toolkit would decode the words by the locale and lose names that it does not hold; it gets none of
    // them.
    int toolkit_argc = 1;
    wxApp::SetInstance(new vmrApp(command_line.text));
    int const status = wxEntry(toolkit_argc, argv);
    // The program's own objects are gone and everything is written. What a hundred shared libraries would
    // still take apart piece by piece, the system takes back at once.
    std::cout.flush();
    std::_Exit(status < 0 ? vmrExitNotRun : status);
}

} // namespace

int main(int argc, char ** argv)
{
    return run_on_large_stack([&] { return run(argc, argv); });
}
