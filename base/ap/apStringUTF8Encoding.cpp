#include "ap/apStringUTF8Encoding.h"

apString apStringUTF8Encoding::convert_to_ap(utString const & text, bool & error) const
{
    auto result = apString::from_utf8(text.view());
    error = text.invalid() || !result.well_formed();
    return result;
}

utString apStringUTF8Encoding::convert_to_ut(apString const & text, bool & error) const
{
    error = !text.well_formed();
    return utString(text.utf8());
}
