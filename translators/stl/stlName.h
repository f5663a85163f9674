#pragma once

#include <string>
#include <string_view>

// The name of a solid as UTF-8, without blanks around it. Files that are older have ISO 8859-1.
std::string stl_name_of(std::string_view bytes);

// A name as it can stand in one line of a text file.
std::string stl_name_for(std::string const & name);
