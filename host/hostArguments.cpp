#include "host/hostArguments.h"

#include <string_view>

char const * const host_usage = "usage: vmr-host [--remove-when-alone FOLDER]... < JOB\n"
                                "       vmr-host --help | --version\n";

char const * const host_help =
    "\n"
    "Runs one translation, or one comparison, for vmr and vmr-compare. To run a job by hand, write it to a "
    "file:\n"
    "\n"
    "    vmr-host < job.json\n"
    "\n"
    "What happens comes out as lines of JSON; the last one has the outcome. The manual page has an example "
    "of a\n"
    "job. Without --remove-when-alone nothing is ever removed that the job does not name itself.\n"
    "\n"
    "  --remove-when-alone FOLDER  remove this staging folder of vmr when the other end of standard input "
    "is\n"
    "                              closed; what no vmr of this user has made stays\n"
    "  --help                      show this and end\n"
    "  --version                   show the version and what protects this machine from the files, and end\n";

hostArguments host_read_arguments(int argc, char const * const * argv)
{
    hostArguments arguments;
    for (int i = 1; i < argc; ++i) {
        std::string_view const word = argv[i];
        if (word == "--help" || word == "--version") {
            arguments.wish = word == "--help" ? hostArguments::Wish::help : hostArguments::Wish::version;
            return arguments;
        }
        if (word != "--remove-when-alone" || i + 1 == argc) {
            arguments.wish = hostArguments::Wish::nothing;
            arguments.unknown = word;
            return arguments;
        }
        arguments.folders.emplace_back(argv[++i]);
    }
    return arguments;
}
