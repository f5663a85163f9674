#include <iostream>
#include <string>

#include "compare/cmpInstallation.h"
#include "compare/cmpJson.h"
#include "compare/cmpOptions.h"
#include "compare/cmpRun.h"
#include "compare/cmpTable.h"
#include "compare/cmpTexts.h"
#include "process/largeStack.h"
#include "process/memoryEnd.h"

namespace {

constexpr int not_compared = 2;

/// What goes wrong is told on standard error or, to programs, as JSON.
int end_with(std::string const & problem, bool json, cmpTexts const & texts)
{
    if (json)
        std::cout << cmp_json_problem(problem);
    else
        std::cerr << texts("compare::Could not compare: %s", problem) << "\n";
    return not_compared;
}

int show(cmpReport const & report, cmpOptions const & options, cmpTexts const & texts)
{
    if (options.json && !options.quiet)
        std::cout << cmp_json(report);
    else if (!options.quiet && report.verdict != sdbVerdictNone)
        std::cout << cmp_table(report, options.all, texts);
    if (!report.compared() && (!options.json || options.quiet))
        return end_with(report.problem, false, texts);
    return report.exit_status();
}

int run(int argc, char ** argv)
{
    cmpInstallation const installation;
    cmpTexts const texts(installation.language_folders());
    auto const words = cmp_read_words(argc, argv, texts);
    if (!words.problem.empty())
        return end_with(words.problem, words.json, texts);
    if (!words.options) {
        std::cout << words.shown;
        return 0;
    }
    if (auto const left_out = installation.left_out())
        std::cerr << texts(*left_out) << "\n";
    auto const report = cmp_compare(*words.options, installation, texts);
    int const status = show(report, *words.options, texts);
    // What cannot be printed was not told to anybody.
    return std::cout.flush() ? status : not_compared;
}

} // namespace

int main(int argc, char ** argv)
{
    end_when_memory_runs_out("vmr-compare: the memory does not suffice; close other programs and try again\n",
                             not_compared);
    return run_on_large_stack([&] { return run(argc, argv); });
}
