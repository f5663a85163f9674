#include "sglApp.h"

#include "sglNlsHelp.h"
#include "sglResourceString.h"
#include "sglToolkitMessages.h"
#include "sglWxNlsApplicationSettings.h"
#include "sglXrcHandlers.h"

#include "nls/nlsDomainManager.h"
#include "sdb/sdbSchemaDir.h"
#include "sdb/sdb_fix_resource_path.h"
#include "wxt/wxtStringConverter.h"
#include "xml/xxmDocumentFactory.h"

#include <sys/utsname.h>
#include <wx/apptrait.h>
#include <wx/stdpaths.h>
#include <wx/utils.h>
#include <wx/xrc/xmlres.h>

sglApp::sglApp(utString const & build_date, utString const & version, utString const & build_number,
               utString const & name_without_version, utString const & company_name,
               utString const & copyright_text)
    : m_version(version), m_build_date(build_date), m_build_number(build_number), m_message_handler(this),
      m_company_name(company_name), m_name_no_version(name_without_version),
      m_services(m_platform.library_loader_operations(), m_platform.file_operations(),
                 m_platform.synch_operations(), m_platform.process_thread_operations()),
      m_translator_loader(m_platform.library_loader_operations()),
      m_directories(m_platform.process_environment_operations()), m_copyright_text(copyright_text)
{
    sgl_keep_toolkit_assertions_from_user();
}

sglApp::~sglApp()
{
    // Ahead of the fields: nothing may find a service while they end.
    m_info.reset();
}

sglApp const & sglApp::app()
{
    return *static_cast<sglApp const *>(wxAppConsoleBase::GetInstance());
}

utString sglApp::common_application_name() const
{
    return "Crosswalk";
}

utString sglApp::common_company_name() const
{
    return "Quorvane";
}

utString sglApp::product_info_org() const
{
    return "Unknown";
}

void sglApp::register_translation(utPtrClaimTag, sdbTranslationData const * translation) const
{
    m_translations.append(std::unique_ptr<sdbTranslationData const>(translation));
}

bool sglApp::Initialize(int & count, wxChar ** arguments)
{
    if (m_has_display)
        return wxApp::Initialize(count, arguments);
    sgl_silence_toolkit_messages();
    return wxAppConsole::Initialize(count, arguments);
}

wxAppTraits * sglApp::CreateTraits()
{
    // With those of a console the toolkit logs to standard error and not into a window.
    return m_has_display ? wxApp::CreateTraits() : new wxConsoleAppTraits;
}

void sglApp::pre_splash_screen_init()
{
    // The user's files belong below ~/.config and not straight below the home directory.
    wxStandardPaths::Get().SetFileLayout(wxStandardPaths::FileLayout_XDG);
    sgl_build_string_table();
    set_product_info();
    read_start_up_info();
    SetVendorName(wxtStringConverter::to_wx(common_company_name()));
    // The boxes of the toolkit have it in their titles.
    SetAppDisplayName(wxtStringConverter::to_wx(application_name_no_version()));
    m_config = new sglConfigStore(wxtStringConverter::to_wx(application_name_no_version()));
    delete wxConfigBase::Set(m_config);
}

/// The text of wxGetOsDescription, which starts a shell and another program for it.
static utString operating_system_description()
{
    utsname system{};
    if (uname(&system) != 0)
        return wxtStringConverter::to_ut(wxGetOsDescription());
    return utString(system.sysname) + " " + system.release + " " + system.machine;
}

void sglApp::get_product_info(utString const & build_date, utString const & version,
                              utString const & build_number, utString & program, utString & operating_system,
                              utString & user)
{
    static_cast<void>(build_date);
    operating_system = operating_system_description();
    program = m_name_no_version;
    m_name = m_name_no_version + " " + version + build_number;
    m_full_name = m_name;
    program += version + build_number;
    utString const login = m_platform.process_environment_operations()->environment("LOGNAME");
    user = login.empty() ? wxtStringConverter::to_ut(wxGetUserId()) : login;
}

void sglApp::set_product_info()
{
    utString program, operating_system, user;
    get_product_info(m_build_date, m_version, m_build_number, program, operating_system, user);
    m_info = std::make_unique<vmrabsAppInfo>(program, operating_system, user, "Organisation Unknown", "");
    find_string_encodings();
    initialise_directory_mapper();
    utString const resource_files =
        m_directories.search_path(sdbHRKDirectory::resources).ut_path_string(m_ut_encoding.get());
    m_info->set_schema_path("resources", resource_files);
    m_info->set_schema_path("export_options", resource_files);

    utString const key = m_version + m_build_number;
    m_product_file = m_directories.schema_dir(sdbHRKDirectory::product).find_file("product");
    if (!m_product_file.invalid())
        m_product_status = m_product.read_product_data(key, m_product_file);
    sglReleaseStatus::initialise(get_build_type());

    if (m_product_file.invalid()) {
        m_full_name += " - " + sglReleaseStatus::release_string();
        return;
    }
    if (m_product_status != 0)
        return;
    m_name = m_product.short_name();
    m_full_name = m_product.long_name();
    m_name_no_version = m_product.value(pruPRODUCT_NAME);
    if (utString const company = m_product.value(pruCOMPANY_NAME); !company.invalid())
        m_company_name = company;
    if (utString const pack = m_product.value(pruPRODUCT_SP); !pack.invalid()) {
        int position = 0;
        while (position < pack.length() && (pack[position] < '0' || pack[position] > '9'))
            ++position;
        pack.parse(m_service_pack, position);
    }
}

sglBuildType sglApp::get_build_type()
{
    if (m_product_file.invalid())
        return sglBuildNoStatusFile;
    if (m_product_status != 0)
        return sglBuildStatusFileError;
    utString const type = m_product.value(pruPRODUCT_TYPE);
    if (type.case_compare("CR") == 0)
        return sglBuildFull;
    if (type.case_compare("RC") == 0)
        return sglBuildReleaseCandidate;
    if (type.case_compare("ALPHA") == 0)
        return sglBuildAlpha;
    if (type.case_compare("BETA") == 0)
        return sglBuildBeta;
    return sglBuildProject;
}

utString sglApp::release_value() const
{
    utString const release = m_product.value(pruPRODUCT_RELEASE);
    return release.invalid() ? m_version : release;
}

utString sglApp::titlebar_string() const
{
    return m_company_name + " " + m_name_no_version + " Summit " + release_value();
}

utString sglApp::copyright_message() const
{
    utString text = m_company_name + " " + m_product.short_name() + "\n";
    text += sglResourceString("vmrgrlib", 1332, m_version + m_build_number);
    text += sglResourceString("vmrgrlib", 1333, m_build_date);
    text += sglResourceString("vmrgrlib", 1334, sglReleaseStatus::release_string());
    text += "\n";
    bool error = false;
    apString const sign = m_ut_encoding->to_ap("\xC2\xA9", error);
    utString const shown = m_ut_encoding->to_ut(sign, error);
    if (!error)
        text += shown;
    return text + " " + m_copyright_text;
}

/// Whether a file could be loaded. Without a display no window is made of it, and the toolkit takes longer to
/// build its tree than all the rest of such a start.
static bool is_resource_file(utString const & file)
{
    utString error, text;
    auto const document = xxmDocumentFactory().load_file(apPathName::from_utf8(file.view()), error);
    return document && document->value("/resource", text);
}

bool sglApp::load_xrc_files()
{
    auto const directory = m_directories.schema_dir(sdbHRKDirectory::xrc);
    utString main_file = directory.find_file("vmrgrlib.xrc");
    if (main_file.invalid())
        return false;
    sdb_fix_resource_path(main_file);
    utString shared_file = directory.find_file("vmrshared.xrc");
    if (shared_file.invalid())
        return false;
    sdb_fix_resource_path(shared_file);

    delete wxXmlResource::Set(new wxXmlResource(0, wxString()));
    if (!m_has_display)
        return is_resource_file(shared_file) && is_resource_file(main_file);
    sgl_add_xrc_handlers(*wxXmlResource::Get());
    return wxXmlResource::Get()->Load(wxtStringConverter::to_wx(shared_file)) &&
           wxXmlResource::Get()->Load(wxtStringConverter::to_wx(main_file));
}

bool sglApp::OnInit()
{
    m_info->set_info(sduCOMPANYNAME, m_company_name);
    m_info->set_build_number("Build " + m_build_number + " " + m_build_date);
    if (!load_xrc_files())
        return false;

    utString const language_key = release_value();
    nlsDomainManager::set_application_settings(
        std::make_unique<sglWxNlsApplicationSettings>(m_config, language_key));
    getNlsHelp()->locale_dir(m_directories.search_path(sdbHRKDirectory::message_catalogues));
    getNlsHelp()->set_wx_language();

    utString const cache =
        m_directories.schema_dir(sdbHRKDirectory::translator_cache).find_file("translators.lst");
    utString const preferred = m_startup_info.find_field("preferred_output_format");
    tell_of_changeable_translators();
    build_translator_dlls(cache, m_directories.search_path(sdbHRKDirectory::translators), preferred);
    return true;
}

int sglApp::OnExit()
{
    return wxApp::OnExit();
}

void sglApp::initialise_services()
{
    m_services.initialise_services(m_info.get(), m_directories.search_path(sdbHRKDirectory::services),
                                   &m_analytics);
}
