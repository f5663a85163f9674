#pragma once

#include "nls/vmrnlsFormatter.h"
#include "nls/vmrnlsTranslator.h"
#include "ut/utString.h"
#include "ut/utTextArguments.h"

/// A translator and a formatter at work together: from a message key to finished text. Owns neither.
class vmrnlsTranslatorAndFormatter {
public:
    vmrnlsTranslatorAndFormatter(vmrnlsTranslator const * translator, vmrnlsFormatter const * formatter);

    /// Translates `key` and the arguments that are keys of the context "term", and then fills them in. Any
    /// thread.
    utString vtsprintf(char const * domain, char const * key, utTextArguments const & arguments) const;

    template <class... T>
    utString tsprintf(char const * domain, char const * key, T const &... values) const
    {
        return vtsprintf(domain, key, ut_text_arguments(values...));
    }

private:
    vmrnlsTranslator const * m_translator;
    vmrnlsFormatter const * m_formatter;
};
