#pragma once

#include <optional>

#include "ap/apFileIdentity.h"
#include "ut/utString.h"

/// The file that a path reaches, there or yet to be written, whatever links lie on the way. It looks at the
/// disk as it is when this is made.
class sglReachedFile {
public:
    explicit sglReachedFile(utString const & path);

    /// Whether the other path reaches it too. Names that differ in case are two.
    bool is(utString const & other) const;

private:
    utString m_path;
    std::optional<apFileIdentity> m_identity;
};
