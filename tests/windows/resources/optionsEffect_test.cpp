// The options dialog of every format as a user goes through it, and what a translation makes of the options.

#include "sdb/sdbTranslatorLoadStatus.h"
#include "sglResources.h"
#include "windows/translation/kitProgress.h"

#include <wx/checkbox.h>
#include <wx/combobox.h>

namespace {

using Texts = std::vector<std::string>;

/// An option of each kind, and what the file that is written then has and has not.
struct Journey {
    char const * format;
    char const * extension;
    std::vector<std::pair<char const *, char const *>> options;
    Texts holds;
    Texts lacks;
};

std::ostream & operator<<(std::ostream & stream, Journey const & journey)
{
    return stream << journey.format;
}

class OptionsEffect : public kitProgressTest, public testing::WithParamInterface<Journey> {
protected:
    void SetUp() override
    {
        kitProgressTest::SetUp();
        m_translator = app().output_dlls().translator_for_format(GetParam().format);
        ASSERT_TRUE(m_translator);
        sdbTranslatorLoadStatus status(sdbTranslatorLoadStart);
        m_translator->load(status);
        m_factory = app().installation_resource_file(*m_translator);
        m_table.initialise(m_factory);
        m_table.set_resource_file(m_factory);
        m_input = folder() / "screw.step";
        std::filesystem::copy_file("/usr/share/opencascade/data/step/screw.step", m_input);
    }

    /// The control behind the tooltip with the internal name.
    static wxWindow * control_of(wxWindow & window, std::string const & name)
    {
        for (wxWindow * const child : window.GetChildren()) {
            if (child->GetToolTipText().EndsWith(wxString::FromUTF8("Internal name " + name)))
                return dynamic_cast<wxCheckBox *>(child) ? child : child->GetPrevSibling();
            if (auto * const found = control_of(*child, name))
                return found;
        }
        return nullptr;
    }
    static void set(wxWindow & dialog, std::string const & name, char const * value)
    {
        auto * const control = control_of(dialog, name);
        ASSERT_TRUE(control) << name;
        if (auto * const box = dynamic_cast<wxCheckBox *>(control)) {
            box->SetValue(std::string_view(value) == "True");
            wxCommandEvent event(wxEVT_CHECKBOX, box->GetId());
            box->ProcessWindowEvent(event);
        } else if (auto * const list = dynamic_cast<wxComboBox *>(control)) {
            ASSERT_TRUE(list->SetStringSelection(value)) << name;
            wxCommandEvent event(wxEVT_TEXT, list->GetId());
            list->ProcessWindowEvent(event);
        } else {
            auto * const field = dynamic_cast<wxTextCtrl *>(control);
            ASSERT_TRUE(field) << name;
            field->SetValue(value);
            wxFocusEvent event(wxEVT_KILL_FOCUS, field->GetId());
            field->ProcessWindowEvent(event);
        }
    }
    int show(std::function<void(sglResources &)> const & script)
    {
        sglResources dialog(m_table, frame(), m_translator, info(), "DLG_RESOURCES");
        dialog.dialog_type(2);
        return show_modal(dialog, [&] { script(dialog); });
    }
    std::string written(std::string const & name)
    {
        std::string const output = folder() / (name + "." + GetParam().extension);
        sglTranslation request;
        fill(request, 0, m_input, output);
        request.output_format(GetParam().format, 0);
        request.output_resource_table(m_table, 0);
        sglGUIProgressDialog dialog(info(), frame(), nullptr);
        dialog.set_translation_ended_ok_message("");
        run(request, dialog);
        return kit_read_file(output);
    }
    utString user_copy() const
    {
        return utString(user_folder() + "/resources/" +
                        std::filesystem::path(m_factory.str()).filename().string());
    }

    sdbTranslatorInfo const * m_translator = nullptr;
    utString m_factory;
    vmrTableInstance m_table;
    std::string m_input;
};

} // namespace

TEST_P(OptionsEffect, OfOneOptionOfEachKindReachesTheFile)
{
    auto const & journey = GetParam();
    std::string const usual = written("usual");
    std::map<std::string, std::string> factory;
    for (auto const & [name, value] : journey.options)
        factory[name] = m_table.effective_value(name).str();

    kitModal boxes;
    boxes.expect_message(wxID_YES); // the copy of the user's counts for all translations to come
    EXPECT_EQ(show([&](sglResources & dialog) {
                  for (auto const & [name, value] : journey.options)
                      set(dialog, name, value);
                  press(dialog, "IDC_OPTIONS_APPLY");
                  choose_menu(dialog, "IDM_OPTIONS_SAVE");
                  press(dialog, "IDC_OPTIONS_OK");
              }),
              wxID_OK);
    vmrTableInstance const saved(user_copy().c_str());
    for (auto const & [name, value] : journey.options) {
        EXPECT_EQ(m_table.effective_value(name).case_compare(value), 0) << name;
        EXPECT_EQ(saved.effective_value(name).case_compare(value), 0) << name;
    }

    std::string const changed = written("changed");
    for (auto const & text : journey.holds) {
        EXPECT_NE(changed.find(text), std::string::npos) << text;
        EXPECT_EQ(usual.find(text), std::string::npos) << text;
    }
    for (auto const & text : journey.lacks) {
        EXPECT_EQ(changed.find(text), std::string::npos) << text;
        EXPECT_NE(usual.find(text), std::string::npos) << text;
    }

    boxes.expect_message(wxID_YES);
    EXPECT_EQ(show([&](sglResources & dialog) {
                  choose_menu(dialog, "IDM_OPTIONS_LOAD_DEFAULT");
                  choose_menu(dialog, "IDM_OPTIONS_FACTORY_RESET");
                  press(dialog, "IDC_OPTIONS_OK");
              }),
              wxID_OK);
    EXPECT_FALSE(std::filesystem::exists(user_copy().str()));
    for (auto const & [name, value] : factory)
        EXPECT_EQ(m_table.effective_value(name.c_str()).str(), value) << name;
}

INSTANTIATE_TEST_SUITE_P(
    Formats, OptionsEffect,
    testing::Values(
        Journey{"STEP",
                "step",
                {{"stepWriteNames", "False"}, {"stepWriteSchema", "AP242"}, {"stepWriteAuthor", "Jane Doe"}},
                {"AP242", "Jane Doe"},
                {"the product name"}},
        Journey{"IGES",
                "igs",
                {{"igesWriteSolids", "False"}, {"vmrOptOutputUnits", "in"}, {"igesWriteAuthor", "Jane Doe"}},
                {"Jane Doe", "4HINCH"},
                {"\n     186 "}},
        Journey{"BREP",
                "brep",
                {{"brepWriteTriangulation", "True"},
                 {"brepWriteTextVersion", "1"},
                 {"vmrTolTriangulate3d", "0.5"}},
                {"CASCADE Topology V1"},
                {"CASCADE Topology V2", "Triangulations 0"}},
        Journey{"STL",
                "stl",
                {{"stlWriteForm", "text"}, {"stlWriteDigits", "3"}},
                {"facet normal", "endsolid"},
                {}}));
