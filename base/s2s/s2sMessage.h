#pragma once

#include <chrono>
#include <filesystem>
#include <optional>

#include "ut/utString.h"
#include "ut/utTextArguments.h"

/// A text for the user before translation and formatting: where a step of the engine fails, this is what it
/// hands to its caller.
struct s2sMessage {
    utString key;
    utTextArguments arguments;
};

/// No value stands for success.
using s2sFailure = std::optional<s2sMessage>;

/// The string-table domain of every text of the engine.
utString s2s_message_domain();

/// The texts of the engine, each with the name of the file or folder that it is about.
namespace s2sMessages {

s2sMessage output_is_input(std::filesystem::path const & output);
s2sMessage output_would_replace_input(std::filesystem::path const & output,
                                      std::filesystem::path const & input);
s2sMessage output_not_a_file(std::filesystem::path const & output);
s2sMessage output_link_of_another(std::filesystem::path const & output);
s2sMessage output_without_name();
s2sMessage output_protected(std::filesystem::path const & output);
s2sMessage output_not_in_place(std::filesystem::path const & output, std::string const & reason);
s2sMessage output_not_written(std::filesystem::path const & output);
s2sMessage folder_missing(std::filesystem::path const & folder);
s2sMessage folder_not_writable(std::filesystem::path const & folder);
s2sMessage folder_unusable(std::filesystem::path const & folder, std::string const & reason);
s2sMessage name_not_text(std::filesystem::path const & file);
s2sMessage name_too_long(std::filesystem::path const & file);
s2sMessage no_input(std::filesystem::path const & output);
s2sMessage input_missing(std::filesystem::path const & input, std::string const & reason);
s2sMessage input_not_a_file(std::filesystem::path const & input);
s2sMessage input_not_ordinary(std::filesystem::path const & input);
s2sMessage modules_changeable(std::filesystem::path const & folder, std::filesystem::path const & changeable);
s2sMessage module_missing(std::filesystem::path const & module);
s2sMessage manifest_unreadable(std::filesystem::path const & manifest);
s2sMessage module_of_other_version(std::filesystem::path const & module);
s2sMessage host_missing(std::filesystem::path const & program);
s2sMessage host_not_started(std::filesystem::path const & program, std::string const & reason);
s2sMessage host_died(std::string const & how, bool writing, std::filesystem::path const & file);
s2sMessage host_killed(std::string const & how, bool writing, std::filesystem::path const & file);
s2sMessage host_out_of_time(std::string const & how, bool writing, std::filesystem::path const & file);
s2sMessage host_silent(std::chrono::seconds how_long, bool writing, std::filesystem::path const & file);
s2sMessage host_not_understood(std::string const & line);
s2sMessage not_verified(std::string const & output);
s2sMessage output_absent(std::string const & output);
s2sMessage engine_failed(std::string const & reason);
s2sMessage option_ignored(std::string const & problem);
s2sMessage batch_header(std::filesystem::path const & input, std::filesystem::path const & output);

} // namespace s2sMessages
