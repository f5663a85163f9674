#include "controls/sglWrapLabel.h"

#include <cstdint>
#include <string>
#include <unilbrk.h>
#include <vector>
#include <wx/stattext.h>

namespace {

/// For each letter, whether a line may end before it.
std::vector<char> possible_breaks(std::vector<uint32_t> const & letters)
{
    std::vector<char> breaks(letters.size());
    u32_possible_linebreaks(letters.data(), letters.size(), "UTF-8", breaks.data());
    return breaks;
}

} // namespace

wxString sgl_wrapped(wxString const & text, int width, std::function<int(wxString const &)> const & width_of)
{
    std::wstring const wide = text.ToStdWstring();
    std::vector<uint32_t> const letters(wide.begin(), wide.end());
    auto const breaks = possible_breaks(letters);
    auto const line = [&](size_t from, size_t to) {
        wxString part = text.Mid(from, to - from);
        return part.Trim();
    };
    wxString wrapped;
    size_t start = 0, fits = 0; // of the line, and the last place where it may end
    auto const may_end = [&](size_t place) {
        if (fits > start && width_of(line(start, place)) > width) {
            wrapped += line(start, fits) + "\n";
            start = fits;
        }
        fits = place;
    };
    for (size_t place = 0; place < letters.size(); ++place) {
        if (breaks[place] == UC_BREAK_POSSIBLE)
            may_end(place);
        if (letters[place] == '\n') {
            may_end(place);
            wrapped += line(start, place) + "\n";
            start = fits = place + 1;
        }
    }
    may_end(letters.size());
    return wrapped + line(start, letters.size());
}

void sgl_wrap_label(wxStaticText & label, int width)
{
    label.SetLabel(sgl_wrapped(label.GetLabel(), width, [&](wxString const & line) {
        return label.GetTextExtent(wxControl::RemoveMnemonics(line)).x;
    }));
}
