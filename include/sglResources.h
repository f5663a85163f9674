#pragma once

#include <memory>
#include <vector>

#include "sdb/sdbSdbFileFactory.h"
#include "sdb/sdbTranslatorInfo.h"
#include "sdu/sduServicePtr.h"
#include "sglDialog.h"
#include "sglResourceDialogBuilder.h"
#include "vmr/vmrTableInstance.h"
#include "vmr/vmrabsAppInfo.h"

class sglDialogMenu;
class sglHelpDisplayer;
class sglOptionsDialog;
class wxMenu;
class wxStaticText;

/// The dialog in which the options of one format are set for one piece of work. It works on a copy of the
/// caller's table, loads and saves resource files, and takes the values over with OK: ShowModal then gives
/// wxID_OK. With wxID_CANCEL the caller's table is as it was, except after a Factory Reset, which reaches it
/// at once. Graphical thread.
class sglResources : public sglDialog {
public:
    /// Nothing is owned; `table` and `info` live as long as the dialog.
    sglResources(vmrTableInstance & table, wxWindow * parent, sdbTranslatorInfo const * info,
                 vmrabsAppInfo const * app, utString const & dialog_name);
    ~sglResources() override;

    /// Bits of sglResourceDialogBuilder, to be given before the dialog is shown; input at first.
    void dialog_type(unsigned int mask) { m_dialog_type = mask; }

    wxDECLARE_EVENT_TABLE();

protected:
    /// For a class that makes its window itself. There are no pages.
    sglResources(vmrTableInstance & table, sdbTranslatorInfo const * info, vmrabsAppInfo const * app);

    virtual void OnHelp(wxCommandEvent & event);

    void Load(utString const & file);
    /// Writes a complete set of values, after a question where the file is or becomes the default one of a
    /// format. What is not applied yet is not saved. A file that is not written stays as it was, or is not
    /// made; the user is told when that is not his answer, and the working table keeps its values.
    void Save(utString const & file);
    void CopyTable(vmrTableInstance & from, vmrTableInstance & to);
    void update_name(utString const & file);
    int is_default_rsc_file(utString const & file) const; ///< of any input format
    int do_on_factory_settings();                         ///< 1 when the format has no installation file

    vmrTableInstance & working_table() { return m_working; }
    void show_help(wxWindow * parent);

private:
    void OnLoadDefault(wxCommandEvent & event);
    void OnLoadCustom(wxCommandEvent & event);
    void OnSave(wxCommandEvent & event);
    void OnSaveAs(wxCommandEvent & event);
    void OnExportTo(wxCommandEvent & event);
    void OnScrapChanges(wxCommandEvent & event);
    void OnFactoryReset(wxCommandEvent & event);
    void OnApply(wxCommandEvent & event);
    void OnCancel(wxCommandEvent & event);
    void OnOk(wxCommandEvent & event);
    void OnMenuButton(wxCommandEvent & event);
    void OnInitDialog(wxInitDialogEvent & event);

    void make_room_for_panel();
    void build_pages();
    void make_menu();
    void spread_buttons();
    void add_menu_key();
    void close_when_modal();
    void enable_save(bool enable);
    void load_and_tell(utString const & file);
    void apply_pages();
    bool becomes_default_rsc_file(utString const & file) const;
    bool is_in_user_directory(utString const & file, utString const & name) const;
    void go_on_with(utString const & file);
    bool write_values(utString const & file) const;
    void export_to(class sglExportSystem const & system);
    utString file_to_open(); ///< invalid when the user has cancelled
    utString file_to_save(); ///< the same
    utString user_directory() const;
    sdbFile file_of(utString const & path) const;

    vmrTableInstance & m_table;
    vmrTableInstance m_working;
    unsigned int m_dialog_type = sglResourceDialogBuilder::input;
    std::unique_ptr<wxMenu> m_menu;
    sglDialogMenu * m_menu_control = nullptr;
    sglOptionsDialog * m_options = nullptr;
    sglResourceDialogBuilder m_builder;
    wxStaticText * m_coordinates = nullptr; ///< hidden; its corner is where the panel stands
    sdbTranslatorInfo const * m_translator;
    sduServicePtr<sdbSdbFileFactory const> m_file_factory;
    std::unique_ptr<sglHelpDisplayer> m_help;
};

/// The same dialog with resources and a help window of its own, for the application program.
class sglResourcesCom : public sglResources {
public:
    sglResourcesCom(vmrTableInstance & table, sdbTranslatorInfo const * info, vmrabsAppInfo const * app,
                    wxWindow * parent);

protected:
    void OnHelp(wxCommandEvent & event) override;
};
