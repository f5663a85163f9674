#pragma once

#include <memory>
#include <string>
#include <vector>

#include "nls/vmrnlsFormatter.h"
#include "nls/vmrnlsTranslator.h"
#include "s2s/s2sMessage.h"

/// The texts of the program in the language of the user's environment. Numbers in them have a point.
class cmpTexts {
public:
    /// `folders` are those of the message catalogues.
    explicit cmpTexts(std::vector<std::string> const & folders);

    /// A text of this program or of the engine, without the end of its line.
    template <class... T>
    std::string operator()(char const * key, T const &... arguments) const
    {
        return of(s2s_message_domain(), key, ut_text_arguments(arguments...));
    }
    std::string operator()(s2sMessage const & message) const;
    /// A text that the host has sent.
    std::string of(utString const & domain, utString const & key, utTextArguments const & arguments) const;

private:
    std::unique_ptr<vmrnlsTranslator const> m_translator;
    std::unique_ptr<vmrnlsFormatter const> m_formatter;
};
