#pragma once

#include <string>
#include <vector>

#include "sdb/sdbFormatSignature.h"
#include "vmr/vmrResourceDeclaration.h"

/// What the manifest of a module says of one format.
struct sdbFormatDeclaration {
    std::string name;
    std::string filter; ///< label of the file filter, a key of the modules' string table; may be empty
    std::string category;
    std::vector<std::string> extensions; ///< without dots; new files get the first
    std::vector<sdbFormatSignature> signatures;
    bool input = false;
    bool output = false;
    bool viewer = false;
    std::string default_output; ///< format proposed for the output; empty when the module proposes none
    std::string resource_file;  ///< a name without directory
    std::vector<vmrResourceDeclaration> resources;

    /// The entry of a file dialog: the label with the patterns in brackets, a bar and the patterns. Empty
    /// when the format has no label.
    std::string filter_text() const;
};
