// Where files lie and how text relates to the platform: the part of the application object that runs first.

#include "sglApp.h"

#include "sglMessageBox.h"

#include "ap/apStringEncodingChooser.h"
#include "ap/apStringUTF8Encoding.h"
#include "wxt/wxtApStringConverter.h"
#include "wxt/wxtStringConverter.h"

#include <clocale>
#include <wx/filename.h>
#include <wx/msgdlg.h>
#include <wx/stdpaths.h>

void sglApp::find_string_encodings()
{
    m_ut_encoding = std::make_shared<apStringUTF8Encoding>();
    // A name with a dot and a number behind it, as in "German_Germany.1252", gives a code page.
    m_mb_encoding = apStringEncodingChooser::multi_byte_encoding(std::setlocale(LC_TIME, nullptr));

    m_info->set_ut_encoding(m_ut_encoding.get());
    m_info->set_mb_encoding(m_mb_encoding.get());
}

void sglApp::initialise_directory_mapper()
{
    wxString volume, path, name, extension;
    auto & standard_paths = wxStandardPaths::Get();
    wxFileName::SplitPath(standard_paths.GetExecutablePath(), &volume, &path, &name, &extension);
    if (!volume.empty())
        volume += ":";

    apPathName const product(m_ut_encoding->to_ap(m_name_no_version));
    apPathName const user_base =
        wxtApStringConverter::to_path(standard_paths.GetUserConfigDir() + "/Quorvane");
    apPathName temp;
    if (wxString const directory = standard_paths.GetTempDir(); !directory.empty())
        temp = wxtApStringConverter::to_path(directory);

    int const result =
        m_directories.initialise(wxtStringConverter::to_ut(volume), wxtStringConverter::to_ut(path), product,
                                 m_info.get(), user_base, temp);
    if (result == 1)
        sglMessageBox("vmrgrlib", 1338, wxICON_HAND);
    else if (result != 0)
        sglMessageBox("vmrgrlib", 1340, wxICON_HAND);
}

void sglApp::read_start_up_info()
{
    bool found = false;
    apPathName const path = m_directories.search_path(sdbHRKDirectory::resources).directory_path(found);
    // Without a place for the user's files there are no settings, least of all in the present directory.
    if (!found)
        return;
    apPathName const file = path.adjoin(apFileName(L"startup.hrk"));
    m_startup_info.load(m_ut_encoding->to_ut(file.string()).c_str());
}
