#pragma once

#include "iges/igesDamage.h"
#include "iges/igesRoots.h"
#include "sdk/sdkModule.h"

#include <optional>

class sdkInputFile;

// Reads files of IGES up to version 5.3 in the form with records of 80 characters.
class igesReader : public sdkReader {
public:
    explicit igesReader(sdkContext & context);

    sdkResult parse(std::string const & path, Message_ProgressRange const & range) override;
    sdkResult transfer(sdkDocument & document, Message_ProgressRange const & range) override;

private:
    sdkResult check_text(sdkInputFile const & file) const;
    sdkResult check_parameters(sdkInputFile const & file);
    void settle_unit();
    void hide_blanked(sdkDocument & document);

    sdkContext & m_context;
    std::optional<igesRoots> m_reader;
    igesBadNumbers m_bad_numbers;
    TColStd_MapOfTransient m_damaged;
};
