#include "compare/cmpInstallation.h"

#include "s2s/s2sHostProgram.h"
#include "sdb/sdbFindFileByExtension.h"
#include "sdb/sdbTranslatorDllsFactory.h"
#include "sdb/sdbTranslatorInfoFactory.h"
#include "sdb/sdbTranslatorSearchPath.h"
#include "sdu/sduStartupInfo.h"

namespace {

/// Where the user's files lie; empty when the environment names no such place.
apPathName user_base(apPosixProcessEnvironmentOperations const & environment)
{
    auto const own = environment.environment("XDG_CONFIG_HOME").str();
    auto const home = environment.environment("HOME").str();
    if (own.empty() && home.empty())
        return {};
    return apPathName::from_utf8((own.empty() ? home + "/.config" : own) + "/" VMR_COMPANY_NAME);
}

} // namespace

cmpInstallation::cmpInstallation() : m_info(VMR_PRODUCT_NAME, "", "", VMR_COMPANY_NAME, "")
{
    // The user's directories are only read; that they cannot be written means nothing here.
    m_directories.initialise("", m_environment.executable_path().directory().utf8(),
                             apPathName::from_utf8(VMR_PRODUCT_NAME), &m_info, user_base(m_environment), {});
    sdbFindFileByExtension const finder(&m_files, &m_compare);
    sdbTranslatorSearchPath const places(m_directories.search_path(sdbHRKDirectory::translators), &finder);
    sdbTranslatorInfoFactory const infos(&m_loader, &m_encoding, &m_compare);
    sdbTranslatorDllsFactory factory(&m_encoding, &m_compare, &infos);
    std::unique_ptr<sdbTranslatorDlls> output;
    // A module that is no good has no format here; a file that needs it is told of.
    factory.create_translator_dlls({}, places, "", &m_info, m_input, output);
}

s2sFailure cmpInstallation::left_out() const
{
    auto const & changeable = m_directories.changeable_translators();
    if (changeable.empty())
        return std::nullopt;
    auto const folder = m_directories.schema_dir(sdbHRKDirectory::translators).user_dir();
    return s2sMessages::modules_changeable(folder.str(), changeable);
}

std::vector<std::string> cmpInstallation::language_folders() const
{
    std::vector<std::string> folders;
    for (auto const & folder : m_directories.search_path(sdbHRKDirectory::message_catalogues).directories())
        folders.push_back(folder.utf8());
    return folders;
}

std::string cmpInstallation::host_program() const
{
    return s2s_host_program(m_info).str();
}

s2sLimits cmpInstallation::limits() const
{
    bool found = false;
    auto const folder = m_directories.search_path(sdbHRKDirectory::resources).directory_path(found);
    sduStartupInfo settings;
    if (found)
        settings.load(folder.adjoin(apFileName(L"startup.hrk")).utf8().c_str());
    return s2s_limits(settings);
}
