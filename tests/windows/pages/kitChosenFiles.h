#pragma once

#include "windows/kit/kitFileChooser.h"
#include "windows/kit/kitWindowTest.h"
#include "wxt/wxtStringConverter.h"

#include <wx/filedlg.h>

/// Answers the next file dialog, in which several files can be chosen, with all files of a folder.
/// `wait_until` is the kit's run_until.
template <class WaitUntil>
void kit_expect_all_files_of(kitModal & boxes, std::string const & one_of_them, std::size_t count,
                             WaitUntil wait_until)
{
    boxes.expect([=](wxDialog * shown) {
        auto & dialog = dynamic_cast<wxFileDialog &>(*shown);
        auto const chosen = [&dialog] {
            wxArrayString paths;
            dialog.GetPaths(paths);
            return paths.size();
        };
        kitFileChooser const chooser(dialog);
        // The last filter is that for all files.
        dialog.SetFilterIndex(static_cast<int>(chooser.labels().size()) - 1);
        dialog.SetPath(wxtStringConverter::path_to_wx(utString(one_of_them)));
        dialog.Show();
        wait_until([&] { return chosen() == 1; }, 20, "the first file");
        // There is no selection of all before the folder has been read.
        wait_until([&] { return chooser.select_all(), chosen() == count; }, 20, "all files");
        dialog.Hide();
        return static_cast<int>(wxID_OK);
    });
}
