#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Where the files of a language lie: the path of that name in the first of the folders that has it, empty
/// when none has. A name that leads elsewhere than straight into a folder ("", "..", "de/LC_MESSAGES",
/// "/etc") is no language.
std::string nls_find_language(std::vector<std::string> const & folders, std::string_view language);
