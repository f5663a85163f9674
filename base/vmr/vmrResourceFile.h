#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "vmr/coResourceTable.h"
#include "vmr/vmrResourceDeclaration.h"

/// Resource files (".rsc") are UTF-8 text:
///
///     file    = *line
///     line    = *blank [ "#" comment | name *blank "=" *blank value *blank ] line-end
///     escape  = "\\" | "\n" | "\x" two hex digits            in names and values, in place of any byte
///
/// A blank is a space or a tab; a line ends with LF or CR LF, the last one also with the file. Blanks at the
/// ends of names and values, control bytes, backslashes, "=" in names and "#" at the front of names are
/// escaped. The last of several lines of one name counts.

/// Puts the resources of a file's text into `table`, a registered one in its neutral form. A line that is no
/// resource is passed over, and an illegal value is kept as it stands; `problems` tells of both with the
/// number of the line.
void vmr_read_resource_text(std::string_view text, coResourceTable & table,
                            std::vector<std::string> & problems);

/// The text of a whole file.
std::string vmr_resource_text(coResourceTable const & table);

/// The text of a translator's factory file: the defaults, each below a comment that gives type and range or
/// values.
std::string vmr_factory_resource_text(std::vector<vmrResourceDeclaration> const & declarations);

/// Reads a file as above. Zero when there is no regular file that can be read; `problems` names the file then
/// too.
int vmr_resource_load(utString const & file, coResourceTable & table, std::vector<std::string> & problems);

/// Replaces the file as a whole: who reads it finds the old text or the new one. Zero when it cannot be
/// written, or for a null table; the old file then stands as it was.
int vmr_resource_save(utString const & file, coResourceTable const * table);
