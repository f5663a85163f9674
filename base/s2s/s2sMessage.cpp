#include "s2s/s2sMessage.h"

#include "sdu/sduStartupKeys.h"

namespace {

template <class... T>
s2sMessage message(char const * key, T const &... arguments)
{
    return {key, ut_text_arguments(arguments...)};
}

} // namespace

utString s2s_message_domain()
{
    return "vmrengine";
}

namespace s2sMessages {

using std::filesystem::path;

s2sMessage output_is_input(path const & output)
{
    return message("engine::The output file %s is also an input file. Choose another name for the output.\n",
                   output.native());
}

s2sMessage output_would_replace_input(path const & output, path const & input)
{
    return message(
        "engine::The output file %s was not written, because a file that goes with it would replace the "
        "input file %s. Choose another name or folder for the output.\n",
        output.native(), input.native());
}

s2sMessage output_not_a_file(path const & output)
{
    return message(
        "engine::The output %s exists and is not an ordinary file. Choose another name for the output.\n",
        output.native());
}

s2sMessage output_link_of_another(path const & output)
{
    return message(
        "engine::The output %s is a link that another user has made, and it is not followed. Choose another "
        "name or folder for the output.\n",
        output.native());
}

s2sMessage output_without_name()
{
    return message("engine::There is no name for the output file. Give one.\n");
}

s2sMessage output_protected(path const & output)
{
    return message(
        "engine::The output file %s exists and is write-protected. Remove the protection or choose "
        "another name for the output.\n",
        output.native());
}

s2sMessage output_not_in_place(path const & output, std::string const & reason)
{
    return message(
        "engine::The output file %s could not be put in its place (%s). An older file of that name was "
        "kept. Check the folder and translate again.\n",
        output.native(), reason);
}

s2sMessage output_not_written(path const & output)
{
    return message("engine::The translator reported success but left no output file %s.\n", output.native());
}

s2sMessage folder_missing(path const & folder)
{
    return message("engine::The output folder %s does not exist. Create the folder or choose another one.\n",
                   folder.native());
}

s2sMessage folder_not_writable(path const & folder)
{
    return message(
        "engine::The output folder %s cannot be written to. Choose another folder or ask for permission "
        "to write there.\n",
        folder.native());
}

s2sMessage folder_unusable(path const & folder, std::string const & reason)
{
    return message("engine::Nothing can be written in the output folder %s (%s). Choose another folder.\n",
                   folder.native(), reason);
}

s2sMessage name_not_text(path const & file)
{
    return message(
        "engine::The name of the file %s is not valid UTF-8 text. Rename the file or the folder.\n",
        file.native());
}

s2sMessage name_too_long(path const & file)
{
    return message(
        "engine::The name of the output file %s is too long. Choose a shorter name or a folder nearer to "
        "the root.\n",
        file.native());
}

s2sMessage no_input(path const & output)
{
    return message("engine::There is no input file for the output file %s. Choose one.\n", output.native());
}

s2sMessage input_missing(path const & input, std::string const & reason)
{
    return message("engine::The input file %s could not be opened (%s). Check its name and permissions.\n",
                   input.native(), reason);
}

s2sMessage input_not_a_file(path const & input)
{
    return message("engine::The input %s is a folder. Choose a file.\n", input.native());
}

s2sMessage input_not_ordinary(path const & input)
{
    return message("engine::The input %s is no ordinary file but a pipe, a device or the like. Write what it "
                   "gives to a file and translate that.\n",
                   input.native());
}

s2sMessage modules_changeable(path const & folder, path const & changeable)
{
    return message(
        "engine::The translator modules in %s are left out, because other users may change %s. Take "
        "their right to write there away and start again.\n",
        folder.native(), changeable.native());
}

s2sMessage module_missing(path const & module)
{
    return message("engine::The translator module %s is missing. Repair the installation.\n",
                   module.native());
}

s2sMessage manifest_unreadable(path const & manifest)
{
    return message("engine::The description %s of a translator module is missing or damaged. Repair the "
                   "installation.\n",
                   manifest.native());
}

s2sMessage module_of_other_version(path const & module)
{
    return message(
        "engine::The translator module %s was made for another version of this program. Install the "
        "module that belongs to this version.\n",
        module.native());
}

s2sMessage host_missing(path const & program)
{
    return message("engine::The translator program %s is missing. Repair the installation.\n",
                   program.native());
}

s2sMessage host_not_started(path const & program, std::string const & reason)
{
    return message("engine::The translator program %s could not be started (%s). Repair the installation.\n",
                   program.native(), reason);
}

s2sMessage host_died(std::string const & how, bool writing, path const & file)
{
    return writing
               ? message(
                     "engine::The translator ended unexpectedly (%s) while writing %s. No output was "
                     "produced; check the free space and the options of the output format, or try another "
                     "format.\n",
                     how, file.native())
               : message("engine::The translator ended unexpectedly (%s) while reading %s. The file may be "
                         "damaged; try to save it again in the program that made it.\n",
                         how, file.native());
}

s2sMessage host_killed(std::string const & how, bool writing, path const & file)
{
    auto const key =
        writing
            ? "engine::The translator was killed (%s) while writing %s, most likely because the machine had "
              "no "
              "memory left or the time allowed (ulimit -t) was used up. Close other programs, translate less "
              "at once, or lower the setting %s.\n"
            : "engine::The translator was killed (%s) while reading %s, most likely because the machine had "
              "no "
              "memory left or the time allowed (ulimit -t) was used up. Close other programs, translate less "
              "at once, or lower the setting %s.\n";
    return message(key, how, file.native(), std::string(sduTRANSLATIONMEMORY));
}

s2sMessage host_out_of_time(std::string const & how, bool writing, path const & file)
{
    auto const key = writing ? "engine::The translator was ended (%s) while writing %s, because it had used "
                               "up the processor time "
                               "that is allowed (ulimit -t). Allow more time, or translate less at once.\n"
                             : "engine::The translator was ended (%s) while reading %s, because it had used "
                               "up the processor time "
                               "that is allowed (ulimit -t). Allow more time, or translate less at once.\n";
    return message(key, how, file.native());
}

s2sMessage host_silent(std::chrono::seconds how_long, bool writing, path const & file)
{
    auto const seconds = static_cast<std::int64_t>(how_long.count());
    return writing
               ? message("engine::The translator was ended because it said nothing new for %d seconds while "
                         "writing %s. No output was produced. Try other options or another format; for a "
                         "model that takes longer, raise the setting %s.\n",
                         seconds, file.native(), std::string(sduTRANSLATIONPATIENCE))
               : message("engine::The translator was ended because it said nothing new for %d seconds while "
                         "reading %s. The file may be damaged; for one that takes longer, raise the setting "
                         "%s.\n",
                         seconds, file.native(), std::string(sduTRANSLATIONPATIENCE));
}

s2sMessage host_not_understood(std::string const & line)
{
    return message("engine::The translator said something that was not understood: %s\n", line);
}

s2sMessage not_verified(std::string const & output)
{
    return message("engine::Not verified: %s was not written\n", output);
}

s2sMessage output_absent(std::string const & output)
{
    return message("engine::%s was not written\n", output);
}

s2sMessage engine_failed(std::string const & reason)
{
    return message("engine::The translation was stopped by an error of the program (%s).\n", reason);
}

s2sMessage option_ignored(std::string const & problem)
{
    return message("engine::The options file %s. The default value of the option is used.\n", problem);
}

s2sMessage batch_header(path const & input, path const & output)
{
    return message("engine::Translating %s to %s", input.native(), output.native());
}

} // namespace s2sMessages
