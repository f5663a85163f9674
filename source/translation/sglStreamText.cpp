#include "sglStreamText.h"

#include "s2s/s2sBatchMarker.h"

#include <algorithm>

namespace {

void drop_through(utString & text, utString const & marker)
{
    int const found = text.locate_substring(marker);
    if (found >= 0)
        text.remove(0, found + marker.length());
}

} // namespace

utString sgl_cut_batch_section(utString & text)
{
    utString const marker = s2s_batch_marker();
    drop_through(text, marker);
    drop_through(text, marker);
    int const next = text.locate_substring(marker);
    int const end = next < 0 ? text.length() : next;
    utString section = text.substring(0, end);
    text.remove(0, end);
    section.remove_leading_chars("\n");
    return section;
}

utString sgl_record_text(utString const & text)
{
    std::string_view rest = text.view();
    std::string result;
    result.reserve(rest.size() + static_cast<std::size_t>(std::count(rest.begin(), rest.end(), '\n')));
    while (!rest.empty()) {
        auto const end = std::min(rest.find('\n'), rest.size());
        result += rest.substr(0, end);
        rest.remove_prefix(end);
        if (rest.empty())
            break;
        result += result.ends_with('\r') ? "\n" : "\r\n";
        rest.remove_prefix(1);
    }
    return result;
}

sdbProgressFinish sgl_finish_of(s2sThreadStatus status)
{
    switch (status) {
    case s2sThreadFileTooBig:
    case s2sThreadReadError:
    case s2sThreadWriteError:
        return sdbProgressFailed;
    case s2sThreadCompleted:
        return sdbProgressCompleted;
    case s2sThreadCancelled:
        return sdbProgressCancelled;
    default:
        return sdbProgressUnknown;
    }
}
