#pragma once

#include <filesystem>
#include <set>
#include <vector>

#include "s2s/s2sTranslationElements.h"
#include "sdu/sduFileProtection.h"

/// The files of a job. As long as it lives, the inputs are kept from sdu_remove_file and sdu_copy_file.
class s2sFileGuard {
public:
    void add(s2sTranslationElements const & elements);

    std::vector<std::filesystem::path> const & inputs() const { return m_inputs; }
    /// Where outputs are to be written, links followed.
    std::set<std::filesystem::path> const & output_folders() const { return m_output_folders; }

private:
    std::vector<std::filesystem::path> m_inputs;
    std::set<std::filesystem::path> m_output_folders;
    std::vector<sduFileProtection> m_protections;
};
