#include "sglLogFile.h"

#include "sglResourceString.h"

#include "wxt/wxtStringConverter.h"

wxString sgl_log_file_filter()
{
    utString filter = sglResourceString("vmrgrlib", 1130) + " (*.hrklog)|*.hrklog|" +
                      sglResourceString("vmrgrlib", 1016) + " (*.*)|*.*||";
    // The bars at the end would be one more kind of files to this toolkit.
    filter.remove_trailing_chars("|");
    wxString shown = wxtStringConverter::to_wx(filter);
    // Files without a dot are files, too.
    shown.Replace("|*.*", "|*");
    return shown;
}
