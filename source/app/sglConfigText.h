#pragma once

#include <string>
#include <string_view>

/// What a configuration file says, in lines that the toolkit's wxFileConfig takes without a complaint.
struct sglConfigText {
    std::string lines;
    bool whole = true; ///< false when something of the file is not in the lines
};

/// Sorts out the lines that the toolkit would stumble over: it reports some in a box or on standard error,
/// fails an assertion on others and reads beyond the end of a few. Entries below a heading that cannot be
/// read are left out too, for they would come to stand under another one; those of a heading that comes again
/// are put below the first. An empty line becomes a blank, because the toolkit drops empty ones.
sglConfigText sgl_config_text(std::string_view content);

/// The content of a file for lines that the toolkit gives back: undoes what was done to empty lines.
std::string sgl_config_content(std::string const & lines);
