#pragma once

#include <string>
#include <string_view>

#include "ap/apFileResult.h"
#include "ap/apString.h"

/// What the user has said to usage data being recorded.
enum aniUsageChoice {
    aniUsageUndecided = 0,
    aniUsageAgreed = 1,
    aniUsageRefused = 2,
};

/// The usage data of one user: a folder with the file "choice", which says whether they agreed, and the plain
/// text file "usage.txt", which has a line for each thing recorded since. Nothing else reads that file, and
/// nothing sends it anywhere. Any number of programs and threads may use one folder: whoever writes holds the
/// lock of the file "choice" meanwhile, so that a line is whole and none comes after the user has refused.
class aniUsageRecord {
public:
    static constexpr std::size_t most_bytes = 256 * 1024; ///< of the file; the oldest lines give way

    aniUsageRecord() = default;               ///< without a folder: nothing is kept
    explicit aniUsageRecord(apString folder); ///< need not exist
    bool has_place() const { return !m_folder.empty(); }
    std::string const & folder() const { return m_folder; }
    std::string file() const { return m_folder + "/usage.txt"; }

    aniUsageChoice choice() const; ///< undecided when it cannot be read
    /// Keeps the user's choice, and makes the folder for that. Refusing keeps the lines there are.
    apFileResult choose(bool agreed) const;

    /// Appends one line, given without its end, when the user has agreed. False when it was not kept.
    bool add(std::string_view line) const;
    std::string text() const;    ///< all lines; empty when there are none
    apFileResult remove() const; ///< deletes them; not having any is no failure

private:
    std::string choice_file() const { return m_folder + "/choice"; }

    std::string m_folder;
};
