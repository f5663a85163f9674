#pragma once

#include "sdk/sdkFinding.h"

#include <array>
#include <cstdint>
#include <vector>

// What a source file can hold.
enum class sdkSourceKind { root, solid, shell, face, curve, point };

// What a file holds as its reader counts it, whether or not it can be translated: every root, and what the
// roots ask for. Whatever gives no shape has a finding of its own, with its place in the file, also when it
// stands beside others that did. The host tells the user of the findings; the reader need not. A reader that
// keeps no account leaves it empty.
class sdkAccount {
public:
    void holds(sdkSourceKind kind, std::int64_t number = 1) { m_held[index(kind)] += number; }
    std::int64_t held(sdkSourceKind kind) const { return m_held[index(kind)]; }
    // False as long as nothing was counted.
    bool kept() const;

    void add(sdkFinding finding);
    std::vector<sdkFinding> const & findings() const { return m_findings; }

    // True when the file is an output that is read back: what it lacks is found by measure, and nobody asks
    // for an account. A reader may save its time.
    bool read_back() const { return m_read_back; }
    void read_back(bool is) { m_read_back = is; }

private:
    static constexpr std::size_t index(sdkSourceKind kind) { return static_cast<std::size_t>(kind); }

    std::array<std::int64_t, 6> m_held{};
    std::vector<sdkFinding> m_findings;
    bool m_read_back = false;
};
