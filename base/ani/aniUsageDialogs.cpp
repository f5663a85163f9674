#include "ani/aniUsageDialogs.h"

#include <utility>

namespace {

aniUsageDialogs::Presenter & presenter()
{
    static aniUsageDialogs::Presenter the_presenter;
    return the_presenter;
}

} // namespace

void aniUsageDialogs::set_presenter(Presenter new_presenter)
{
    presenter() = std::move(new_presenter);
}

int aniUsageDialogs::display_dialog(aniUsageDialogsShow show, void * parent, apString text)
{
    return presenter() ? presenter()(show, parent, std::move(text)) : 0;
}
