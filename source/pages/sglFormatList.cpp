#include "sglFormatList.h"

#include "sglTranslatedFilter.h"

#include "ap/apStringEncodingChooser.h"

utString sglFormatList::find_format_filter(sdbTranslatorDlls const & dlls, utString const & format) const
{
    auto const * const translator = dlls.translator_for_format(format);
    if (!translator)
        return utString();
    sglTranslatedFilterElement const element(translator->filter(), apStringEncodingChooser::mb_encoding());
    utString const text = element.translated_filter_string();
    int const bar = text.locate_substring("|");
    return bar > 0 ? text.substring(0, bar - 1) : utString();
}

int sglFormatList::find_index_in_filter(utString const & format_filter, utString const & filter) const
{
    utString rest = filter;
    auto const next_field = [&rest] {
        utString field;
        rest.extract_string("|", field);
        return field;
    };
    utString label = next_field();
    for (int index = 1;; ++index) {
        utString const prefix = label.substring(0, format_filter.length());
        if (prefix.empty() || prefix.case_compare(format_filter) == 0)
            return index;
        if (rest.empty())
            return -1;
        next_field(); // the pattern
        label = next_field();
    }
}

void sglFormatList::set_filter_index(sdbTranslatorDlls const & dlls, utString const & preferred_format,
                                     apIStringCompare const * compare, sdbFilterIndexSet & index_set) const
{
    sglTranslatedFilter const filters(dlls.filter_elements(), apStringEncodingChooser::mb_encoding(),
                                      compare);
    utString const filter = filters.translated_filter_string();
    auto const index_of_format = [&](utString const & format) {
        utString const label = format.empty() ? utString() : find_format_filter(dlls, format);
        return label.empty() ? -1 : find_index_in_filter(label, filter);
    };
    int index = index_of_format(selected_item());
    if (index == -1)
        index = index_of_format(preferred_format);
    if (index == -1)
        index = find_index_in_filter(all_files_filter(), filter);
    index_set.set_filter_index(index - 1);
}
