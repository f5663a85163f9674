#include "controls/sglButtonPictures.h"

#include "sglImageUtils.h"

#include <map>
#include <string>
#include <wx/bmpbndl.h>
#include <wx/button.h>
#include <wx/xrc/xmlres.h>

namespace {

struct Button {
    char const * id;      ///< its XRC name
    char const * picture; ///< the name of its picture, without the size
};

constexpr Button buttons[]{{"IDC_SINGLE_INPUT_BROWSE", "browse"},
                           {"IDC_SINGLE_INPUT_RESOURCES", "resources"},
                           {"IDC_SINGLE_OUTPUT_BROWSE", "browse"},
                           {"IDC_SINGLE_OUTPUT_RESOURCES", "resources"},
                           {"IDC_SINGLE_TRANSLATE", "translate"},
                           {"IDC_MULTIPLE_INPUT_BROWSE", "browse"},
                           {"IDC_MULTIPLE_INPUT_RESOURCES", "resources"},
                           {"IDC_MULTIPLE_ADD", "add"},
                           {"IDC_MULTIPLE_REMOVE", "remove"},
                           {"IDC_MULTIPLE_UP", "up"},
                           {"IDC_MULTIPLE_DOWN", "down"},
                           {"IDC_MULTIPLE_OUTPUT_BROWSE", "browse"},
                           {"IDC_MULTIPLE_OUTPUT_RESOURCES", "resources"},
                           {"IDC_MULTIPLE_TRANSLATE", "translate"},
                           {"IDC_BATCH_INPUT_BROWSE_BUTTON", "browse"},
                           {"IDC_BATCH_INPUT_RESOURCE_BUTTON", "resources"},
                           {"IDC_BATCH_OUTPUT_BROWSE_BUTTON", "browse"},
                           {"IDC_BATCH_OUTPUT_RESOURCE_BUTTON", "resources"},
                           {"IDC_BATCH_ADD_BUTTON", "add"},
                           {"IDC_BATCH_SAVE_BUTTON", "save"},
                           {"IDC_BATCH_REMOVE_BUTTON", "remove"},
                           {"IDC_BATCH_TRANSLATE_BUTTON", "translate"}};

/// Of letters this high and higher, in pixels, the larger pictures are taken.
constexpr int large_letters = 22;

/// The picture in one of the sizes that the installation has, for screens of scale 1 and of scale 2.
wxBitmapBundle load(std::string const & name, int size)
{
    sglImageUtils const utils(0);
    auto const of_size = [&](int pixels) {
        return utils.load_button_image_file(
            utString("button-" + name + "-" + std::to_string(pixels) + ".png"), 0);
    };
    wxBitmap const single = of_size(size);
    wxBitmap const twofold = of_size(2 * size);
    if (!single.IsOk())
        return {};
    return twofold.IsOk() ? wxBitmapBundle::FromBitmaps(single, twofold) : wxBitmapBundle(single);
}

} // namespace

void sgl_add_button_pictures(wxWindow & window)
{
    int const size = window.GetCharHeight() < large_letters ? 16 : 24;
    std::map<std::string, wxBitmapBundle> loaded;
    for (auto const & [id, picture] : buttons) {
        auto * const button = wxDynamicCast(window.FindWindow(wxXmlResource::GetXRCID(id)), wxButton);
        if (!button)
            continue;
        auto const [found, added] = loaded.try_emplace(picture);
        if (added)
            found->second = load(picture, size);
        if (found->second.IsOk())
            button->SetBitmap(found->second);
    }
}
