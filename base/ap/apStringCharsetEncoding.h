#pragma once

#include <string>

#include "ap/apIStringEncoding.h"

/// An encoding that the C library's iconv knows by name.
class apStringCharsetEncoding : public apIStringEncoding {
public:
    explicit apStringCharsetEncoding(std::string charset);

    bool usable() const { return m_usable; } ///< false when the C library does not know the character set
    std::string const & charset() const { return m_charset; }

private:
    apString convert_to_ap(utString const & text, bool & error) const override;
    utString convert_to_ut(apString const & text, bool & error) const override;

    std::string m_charset;
    bool m_usable;
};
