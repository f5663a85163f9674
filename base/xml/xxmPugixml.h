#pragma once

#include <string_view>
#include <vector>

#include <pugixml.hpp>

#include "ut/utString.h"

/// What both factories do on a document of the XML library. Each returns 0 on failure.
int xxm_parse(std::string_view xml, pugi::xml_document & document,
              utString & error); ///< the error names the line
int xxm_select(pugi::xml_node const & root, utString const & path, pugi::xpath_node_set & nodes);
int xxm_first_value(pugi::xml_node const & root, utString const & path, utString & value);
int xxm_values(pugi::xml_node const & root, utString const & path, std::vector<utString> & values);
