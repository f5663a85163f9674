#pragma once

#include <filesystem>
#include <set>
#include <vector>

#include "s2s/s2sTranslationElements.h"
#include "sdu/sduFileProtection.h"

/// Keeps files from being deleted by whoever tidies up after a job, as long as it lives: all the inputs, also
/// where one of them was given as output too, and whatever was named as output but can never become one, such
/// as a device or a write-protected file.
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
