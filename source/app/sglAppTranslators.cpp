// The catalogues of translators, as the application object builds and caches them.

#include "sglApp.h"

#include "sglMessageBox.h"
#include "sglNlsHelp.h"

#include "ap/apStringCompareInsensitive.h"
#include "s2s/s2sMessage.h"
#include "sdb/sdbFindFileByExtension.h"
#include "sdb/sdbSchemaDir.h"
#include "sdb/sdbTranslatorCacheWriter.h"
#include "sdb/sdbTranslatorDllsFactory.h"
#include "sdb/sdbTranslatorInfoFactory.h"
#include "sdb/sdbTranslatorSearchPath.h"
#include "sdu/sduFileFunctions.h"
#include "vmr/vmrResourceRegistry.h"

void sglApp::build_translator_dlls(utString const & cache_file, sdbSearchPath const & search_path,
                                   utString const & preferred_output_format)
{
    apString const cache = m_ut_encoding->to_ap(cache_file);
    auto const * const files = m_platform.file_operations().get();
    if (!m_name_compare)
        m_name_compare = std::make_unique<apStringCompareInsensitive>(m_ut_encoding.get());

    sdbFindFileByExtension const finder(files, m_name_compare.get());
    sdbTranslatorSearchPath const places(search_path, &finder);
    sdbTranslatorInfoFactory const infos(&m_translator_loader, m_ut_encoding.get(), m_name_compare.get());
    sdbTranslatorDllsFactory factory(m_ut_encoding.get(), m_name_compare.get(), &infos);
    sdbTranslatorLoadStatus const status =
        factory.create_translator_dlls(apPathName(cache), places, preferred_output_format, m_info.get(),
                                       m_input_translators, m_output_translators);
    m_translators_were_scanned = factory.scanned();
    if (!status.ok())
        display_dll_load_error(status);
}

void sglApp::tell_of_changeable_translators() const
{
    auto const & changeable = m_directories.changeable_translators();
    if (changeable.empty())
        return;
    auto const folder = m_directories.schema_dir(sdbHRKDirectory::translators).user_dir();
    auto const message = s2sMessages::modules_changeable(folder.str(), changeable);
    sgl_show_error_text(getNlsHelp()->gsprintf(s2s_message_domain().c_str(), message.key.c_str(), folder,
                                               utString(changeable)));
}

void sglApp::display_dll_load_error(sdbTranslatorLoadStatus status) const
{
    auto files = status.translator_files_failed_to_load();
    if (files.undefined())
        return;
    utString text;
    while (++files) {
        utString const path = m_ut_encoding->to_ut(files().string());
        text += getNlsHelp()->gsprintf("vmrgrlib", "Error : unable to load %s\n", path);
    }
    sgl_show_error_text(text);
}

void sglApp::make_translator_dll_cache_file() const
{
    auto const directory = m_directories.schema_dir(sdbHRKDirectory::translator_cache);
    directory.create_user_dir();
    sdbTranslatorLoadStatus status(sdbTranslatorLoadStart);
    int write_error = 0;
    sdbTranslatorCacheWriter(directory.user_dir() + "/translators.lst", input_dlls(), output_dlls(),
                             m_ut_encoding.get(), write_error, status);
    if (!status.ok())
        display_dll_load_error(status);
}

utString sglApp::installation_resource_file(sdbTranslatorInfo const & info) const
{
    utString const name = m_ut_encoding->to_ut(info.resource_file_name().string());
    return vmrabsAppInfo::find_file_in_path(
        m_directories.schema_dir(sdbHRKDirectory::resources).installation_path(), name);
}

utString sglApp::rsc_dir(apFileName const & name) const
{
    auto const directory = m_directories.schema_dir(sdbHRKDirectory::resources);
    bool error = false;
    utString const file_name = m_ut_encoding->to_ut(name.string(), error);
    if (!error)
        if (utString const found = directory.find_file(file_name); !found.invalid())
            return found;
    // What create_default_resources writes has a capital letter, which counts on this platform: a file that
    // was made once is found again and not made anew over what the user has changed in it.
    if (utString const made = directory.user_dir() + "/" + vmr_default_resources_name;
        sdu_check_file_exists(made) == sduFileExists)
        return made;
    return directory.user_dir() + "/default";
}
