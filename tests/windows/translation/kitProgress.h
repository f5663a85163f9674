#pragma once

#include "kit/kitRequest.h"
#include "sdb/sdbTranslatorInfo.h"
#include "sglBatchProgressDialog.h"
#include "sglCEditDisplayer.h"
#include "sglEdit.h"
#include "windows/kit/kitWindowTest.h"

#include <atomic>

/// The dialogs with all their operations within reach of a test.
template <class Dialog>
class kitOpenDialog : public Dialog {
public:
    using Dialog::Dialog;
    using Dialog::finish_translation_data;
    using Dialog::hide_details;
    using Dialog::record;
    using Dialog::show_details;
    using Dialog::ShowErrors;
    using Dialog::start_translation_data;
};
using kitDialog = kitOpenDialog<sglGUIProgressDialog>;
using kitBatchDialog = kitOpenDialog<sglBatchProgressDialog>;

class kitProgressTest : public kitWindowTest {
protected:
    void SetUp() override
    {
        kitWindowTest::SetUp();
        m_frame = show_frame();
    }

    vmrabsAppInfo const * info() { return app().application_information(); }
    wxFrame * frame() { return m_frame; }

    /// The pair of files of that index: a STEP input that exists and an IGES output that is there already.
    void fill(sglTranslation & request, int index = 0)
    {
        std::string const name = std::to_string(index);
        fill(request, index, folder().write(name + ".step", "input"),
             folder().write(name + ".igs", "output"));
    }
    void fill(sglTranslation & request, int index, std::string const & input, std::string const & output)
    {
        auto in = settings("STEP", app().input_dlls()), out = settings("IGES", app().output_dlls());
        request.input_file(utString(input), index);
        request.input_format("STEP", index);
        request.input_resource_table(in, index);
        request.output_file(utString(output), index);
        request.output_format("IGES", index);
        request.output_resource_table(out, index);
        request.output_document(nullptr, index);
    }

    /// Runs the request behind the dialog, and `script` in the loop of the dialog as soon as that is there.
    static void run(sglTranslation & request, sglGUIProgressDialog & dialog,
                    std::function<void()> const & script = {})
    {
        request.progress(&dialog);
        if (script)
            dialog.CallAfter([&] {
                run_until([&] { return dialog.IsShownOnScreen(); }, 20, "the dialog");
                script();
            });
        EXPECT_EQ(request.execute().value(), sglTranslationResult::started);
    }
    static wxWindow & control(wxWindow & dialog, char const * id) { return *find<wxWindow>(dialog, id); }
    static bool enabled(wxWindow & dialog, char const * id) { return control(dialog, id).IsEnabled(); }
    static void wait_for_end(wxWindow & dialog)
    {
        run_until([&] { return enabled(dialog, "IDC_PROGRESS_OK"); }, 60, "the end of the translation");
    }
    /// Runs the request behind the dialog and presses OK in the end, after `look`.
    static void run_to_end(sglTranslation & request, sglGUIProgressDialog & dialog,
                           std::function<void()> const & look = {})
    {
        run(request, dialog, [&] {
            wait_for_end(dialog);
            if (look)
                look();
            press(dialog, "IDC_PROGRESS_OK");
        });
    }
    /// Text as a translator's, from the thread of the caller.
    static void say(sglGUIProgressDialog & dialog, char const * pane, std::string const & text)
    {
        sglCEditDisplayer(*find<sglEdit>(dialog, pane)).display(text.c_str());
    }
    sdbTranslationData const & last_record()
    {
        return *app().translation_details(app().num_translations() - 1);
    }

private:
    vmrTableInstance settings(char const * format, sdbTranslatorDlls const & catalogue)
    {
        auto const * const translator = catalogue.translator_for_format(format);
        utString const file = app().installation_resource_file(*translator);
        vmrTableInstance table(file.c_str());
        table.set_resource_file(file);
        return table;
    }

    wxFrame * m_frame = nullptr;
};
