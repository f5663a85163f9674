#include "compare/cmpOptions.h"

#include <algorithm>
#include <string_view>

#include <CLI/CLI.hpp>

#include "compare/cmpTexts.h"

namespace {

/// A flag with an opposite; without either of them nothing is said.
void add_choice(CLI::App & app, std::string const & name, std::optional<bool> & choice,
                std::string const & help, std::string const & opposite_help)
{
    auto const set = [&](std::string const & flag, bool value, std::string const & text) {
        return app.add_flag_function(
            flag, [&choice, value](std::int64_t) { choice = value; }, text);
    };
    auto * const wanted = set("--" + name, true, help);
    set("--no-" + name, false, opposite_help)->excludes(wanted);
}

void add_side(CLI::App & app, std::string const & side, cmpFile & file, cmpTexts const & texts)
{
    app.add_option("--format-" + side, file.format,
                   texts("compare::Format of the file, such as STEP; without it, it is found from the file"));
    app.add_option("--option-" + side, file.options,
                   texts("compare::An option for reading the file, as in stlReadUnit:in; may be repeated"))
        ->allow_extra_args(false);
}

void declare(CLI::App & app, cmpOptions & options, cmpTexts const & texts)
{
    app.add_option("A", options.a.path, texts("compare::The first file"))->required();
    app.add_option("B", options.b.path, texts("compare::The second file"))->required();
    app.add_flag("--json", options.json, texts("compare::Print one JSON object, for programs"));
    app.add_flag("--quiet", options.quiet, texts("compare::Print nothing; the exit status tells"));
    app.add_flag("--all", options.all, texts("compare::Show the parts that are the same, too"));
    app.add_option("--relative", options.relative,
                   texts("compare::How much volumes, areas and lengths may differ, as a share of them"))
        ->check(CLI::Range(0.0, 1.0))
        ->capture_default_str();
    app.add_option("--absolute", options.absolute,
                   texts("compare::How far places may differ, in millimetres"))
        ->check(CLI::Range(0.0, 1e6))
        ->capture_default_str();
    app.add_option("--deflection", options.deflection,
                   texts("compare::How far triangles may lie from surfaces, in millimetres"))
        // The mesher refuses what is finer.
        ->check(CLI::Range(1e-6, 1e6))
        ->capture_default_str();
    app.add_flag("--counts", options.counts_only,
                 texts("compare::Compare counts and names only, which is fast"));
    app.add_option("--timeout", options.timeout,
                   texts("compare::How many seconds it may take, 0 for as long as it takes; without it, ten "
                         "minutes and one more for each megabyte of the files"))
        ->check(CLI::Range(0.0, 1e9));
    add_choice(app, "names", options.names,
               texts("compare::Compare names; without it, where both files have them"),
               texts("compare::Do not compare names"));
    add_choice(app, "colours", options.colours,
               texts("compare::Compare colours; without it, where both files have them"),
               texts("compare::Do not compare colours"));
    add_choice(app, "layers", options.layers,
               texts("compare::Compare layers; without it, where both files have them"),
               texts("compare::Do not compare layers"));
    add_choice(app, "structure", options.structure,
               texts("compare::Compare assemblies; without it, where both files have them"),
               texts("compare::Do not compare assemblies"));
    add_side(app, "a", options.a, texts);
    add_side(app, "b", options.b, texts);
}

} // namespace

cmpWords cmp_read_words(int argc, char const * const * argv, cmpTexts const & texts)
{
    cmpWords words;
    words.json =
        std::any_of(argv, argv + argc, [](char const * word) { return std::string_view(word) == "--json"; });
    CLI::App app(
        texts("compare::Holds two files against each other, of any formats that can be read. The exit "
              "status is 0 when they are the same, 1 when they differ, and 2 when they could not be "
              "compared."),
        "vmr-compare");
    app.set_help_flag("-h,--help", texts("compare::Print this help"));
    app.set_version_flag("--version", std::string("vmr-compare " VMR_WHOLE_VERSION),
                         texts("compare::Print the version"));
    app.get_formatter()->column_width(30);
    cmpOptions options;
    declare(app, options, texts);
    try {
        app.parse(argc, argv);
    } catch (CLI::Success const &) {
        words.shown = app.get_help_ptr()->count() > 0 ? app.help() : app.version() + "\n";
        return words;
    } catch (CLI::ParseError const & failure) {
        words.problem = failure.what();
        return words;
    }
    words.options = std::move(options);
    return words;
}
