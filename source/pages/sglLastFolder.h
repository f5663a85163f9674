#pragma once

#include "ut/utString.h"

/// The folder from which the user took his last input, or into which his last output went, kept with the
/// program's settings from run to run. Graphical thread.
class sglLastFolder {
public:
    enum Side { inputs, outputs };

    explicit sglLastFolder(Side side) : m_key(side == inputs ? "/Folders/Input" : "/Folders/Output") {}

    utString folder() const;                    ///< empty when there is none any more
    void remember(utString const & file) const; ///< the folder of the file

private:
    char const * m_key;
};
