#pragma once

#include "ap/apIStringEncoding.h"

/// UTF-8. Malformed text raises the error flag and passes unchanged, so that every file name survives the way
/// there and back.
class apStringUTF8Encoding : public apIStringEncoding {
private:
    apString convert_to_ap(utString const & text, bool & error) const override;
    utString convert_to_ut(apString const & text, bool & error) const override;
};
