#pragma once

#include <memory>

#include <wx/app.h>
#include <wx/icon.h>

#include "ap/apIStringCompare.h"
#include "ap/apIStringEncoding.h"
#include "co/coPageArr.h"
#include "pru/pruProductInfo.h"
#include "s2s/s2sTranslatorLoader.h"
#include "sdb/sdbAppDirMap.h"
#include "sdb/sdbTranslationData.h"
#include "sdb/sdbTranslatorDlls.h"
#include "sdr/sdrInterface.h"
#include "sdu/sduStartupInfo.h"
#include "sglAnalytics.h"
#include "sglAppMessageHandler.h"
#include "sglConfigStore.h"
#include "sglMessageDisplayer.h"
#include "sglReleaseStatus.h"
#include "sglServices.h"
#include "ut/utPtr.h"
#include "ut/utString.h"
#include "vmr/vmrabsAppInfo.h"
#include "wxt/wxtFrustrum.h"

class wxFileHistory;

/// The application object: the product's names, the directories, the settings, the catalogues of translators,
/// the services and the finished translations of the run. A program derives from it, supplies the pure
/// operations and calls, in this order: pre_splash_screen_init(), sglApp::OnInit(), initialise_services().
/// What is valid when: the names and directories after the first, translators after the second, translations
/// after the third. Main thread, apart from app().
class sglApp : public wxApp {
public:
    sglApp(utString const & build_date, utString const & version, utString const & build_number,
           utString const & name_without_version, utString const & company_name,
           utString const & copyright_text);
    ~sglApp() override;

    /// The one instance of the process; there must be one.
    static sglApp const & app();

    virtual utString common_application_name() const;
    virtual utString common_company_name() const;
    virtual void OnHelp(wxCommandEvent & event) = 0;
    virtual void OnAbout(wxCommandEvent & event) = 0;
    virtual void OnColourScheme() const {}
    virtual wxIcon main_icon() = 0;
    virtual wxWindow * main_window() = 0; ///< parent of modal dialogs; may be null
    /// Called by the main window when it ends, hidden and not yet destroyed. What follows is the program's
    /// decision.
    virtual void end_main_window(int code) = 0;

    vmrabsAppInfo const * application_information() const { return m_info.get(); }
    utString application_name() const { return m_name; }
    utString application_name_no_version() const { return m_name_no_version; }
    utString full_application_name() const { return m_full_name; }
    utString company_name() const { return m_company_name; }
    utString const & version() const { return m_version; }
    utString const & build_date() const { return m_build_date; }
    utString const & build_number() const { return m_build_number; }
    int service_pack() const { return m_service_pack; }
    sdbAppDirMap const & file_locator() const { return m_directories; }
    sdbSearchPath const & get_installation_dir(sdbHRKDirectory kind) const
    {
        return m_directories.search_path(kind);
    }
    sdbTranslatorDlls const & input_dlls() const { return *m_input_translators; }
    sdbTranslatorDlls const & output_dlls() const { return *m_output_translators; }
    sglAppMessageHandler const & message_handler() const { return m_message_handler; }
    wxFileHistory * mru() const { return m_file_history; }
    sduStartupInfo & startup_info() const { return m_startup_info; }
    void fill_app_data_dir() const {}

    utString titlebar_string() const;   ///< company, name, edition and release
    utString copyright_message() const; ///< several lines: who, version, build date, status, copyright

    /// Takes over the record of a finished translation and keeps it to the end of the program.
    void register_translation(utPtrClaimTag, sdbTranslationData const * translation) const;
    int num_translations() const { return m_translations.count(); }
    sdbTranslationData const * translation_details(int index) const { return m_translations[index].get(); }

    /// Writes the cache of the catalogues into the user's directory.
    void make_translator_dll_cache_file() const;
    /// The factory settings of a format: invalid when the installation has none.
    utString installation_resource_file(sdbTranslatorInfo const & info) const;
    /// Where the resource file of that name lies, the user's before the installation's; when there is none,
    /// the path
    /// "/default" in the user's directory, whatever the name.
    utString rsc_dir(apFileName const & name) const;

    /// False in a run from the command line, which starts without the graphical part of the toolkit.
    bool has_display() const { return m_has_display; }

protected:
    /// For the program, before the toolkit starts: whether windows will be opened.
    void use_display(bool use) { m_has_display = use; }

    virtual void pre_splash_screen_init();
    virtual void set_product_info();
    virtual sglBuildType get_build_type();
    virtual void initialise_directory_mapper();

    bool Initialize(int & count, wxChar ** arguments) override;
    wxAppTraits * CreateTraits() override;
    bool OnInit() override;
    int OnExit() override;

    void initialise_services();
    void find_string_encodings();
    void read_start_up_info();
    void build_translator_dlls(utString const & cache_file, sdbSearchPath const & search_path,
                               utString const & preferred_output_format);
    void display_dll_load_error(sdbTranslatorLoadStatus status) const;
    void get_product_info(utString const & build_date, utString const & version,
                          utString const & build_number, utString & program, utString & operating_system,
                          utString & user);
    utString product_info_org() const;
    utObserverPtr<sglAnalytics> analytics_reporter() { return &m_analytics; }

    /// True when the catalogues came from a scan of the directories and not from the cache.
    bool translators_were_scanned() const { return m_translators_were_scanned; }

private:
    utString release_value() const;
    bool load_xrc_files();
    void tell_of_changeable_translators() const;

    wxtFrustrum m_platform;
    utString m_version;
    utString m_build_date;
    utString m_build_number;
    std::unique_ptr<vmrabsAppInfo> m_info;
    sglAppMessageHandler m_message_handler;
    std::unique_ptr<sdbTranslatorDlls> m_input_translators;
    std::unique_ptr<sdbTranslatorDlls> m_output_translators;
    mutable coPageArr<std::unique_ptr<sdbTranslationData const>> m_translations;
    utString m_company_name;
    utString m_name;
    utString m_full_name;
    utString m_name_no_version;
    utString m_product_file = utString::make_invalid();
    pruProductInfo m_product;
    pruProductDataStatus m_product_status{};
    int m_service_pack = 0;
    mutable sduStartupInfo m_startup_info;
    sglConfigStore * m_config = nullptr; // belongs to the toolkit once installed
    wxFileHistory * m_file_history = nullptr;
    sglWxMessageDisplayer m_message_displayer;
    std::shared_ptr<apIStringEncoding> m_ut_encoding;
    std::shared_ptr<apIStringEncoding> m_mb_encoding;
    sglServices m_services;
    s2sTranslatorLoader m_translator_loader;
    std::unique_ptr<apIStringCompare> m_name_compare;
    sdbAppDirMap m_directories;
    sdrInterface m_drawing_library;
    utString m_copyright_text;
    sglAnalytics m_analytics;
    bool m_has_display = true;
    bool m_translators_were_scanned = false;
};
