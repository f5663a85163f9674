#pragma once

#include "nls/vmrnlsTranslatorAndFormatter.h"
#include "vmr/vmrabsOutput.h"

class vmrnlsDisplayer;

/// A message stream that makes the final text of each message, in the user's language, and shows it on a
/// displayer. Owns none of the three, which must outlive it. Any thread that the displayer can stand.
class vmrnlsConnector : public vmrabsOutput {
public:
    vmrnlsConnector(vmrnlsTranslator const * translator, vmrnlsFormatter const * formatter,
                    vmrnlsDisplayer * displayer);

    void write(char const * domain, char const * key, utTextArguments const & arguments) override;
    utString text(char const * domain, char const * key, utTextArguments const & arguments) const override;

private:
    vmrnlsTranslatorAndFormatter m_texts;
    vmrnlsDisplayer * m_displayer;
};
