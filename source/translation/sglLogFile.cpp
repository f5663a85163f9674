#include "sglLogFile.h"

#include "sglResourceString.h"

#include "controls/sglFileFilter.h"
#include "wxt/wxtStringConverter.h"

wxString sgl_log_file_filter()
{
    utString const filter = sglResourceString("vmrgrlib", 1130) + " (*.hrklog)|*.hrklog|" +
                            sglResourceString("vmrgrlib", 1016) + " (*.*)|*.*||";
    return sgl_toolkit_filter(wxtStringConverter::to_wx(filter));
}
