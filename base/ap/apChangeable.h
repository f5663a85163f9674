#pragma once

#include <string>

/// What users other than this one and root may change of a folder and of what lies in it: the folder, one of
/// its files, or a folder above them, also where links lead; empty when there is nothing. Read before code
/// from the folder is run. A group that has no other member than the user counts as the user.
std::string ap_changeable_by_others(std::string const & folder);
