#include "sglConfigStore.h"

#include "app/sglConfigText.h"

#include "ap/apPosixOperations.h"
#include "wxt/wxtStringConverter.h"

#include <wx/log.h>
#include <wx/mstream.h>

namespace {

/// Far more than the program ever keeps. The toolkit sorts names into lists as it reads them.
constexpr std::size_t most_bytes = 64 * 1024;
constexpr int most_damaged_files = 1000;

apPathName path_of(wxString const & path)
{
    return apPathName::from_utf8(wxtStringConverter::path_to_ut(path).view());
}

bool can_be_kept(wxString const & text)
{
    return wxString::FromUTF8(text.utf8_string()) == text;
}

/// A name beside a damaged file that nothing has yet; the empty path when too many have gathered.
apPathName place_beside(apPathName const & path)
{
    for (int i = 1; i <= most_damaged_files; ++i) {
        auto const beside =
            apPathName::from_utf8(path.utf8() + ".damaged" + (i == 1 ? "" : "-" + std::to_string(i)));
        if (!apPosixFileOperations().exists(beside))
            return beside;
    }
    return {};
}

} // namespace

struct sglConfigStore::File {
    explicit File(apPathName where) : path(std::move(where))
    {
        std::string content;
        auto const result = apPosixFileOperations().read_file(path, content, most_bytes);
        text = sgl_config_text(content);
        text.whole = text.whole && (result || !apPosixFileOperations().exists(path));
    }

    apPathName path;
    sglConfigText text;
};

/// The text of a file for the toolkit to read, while it is kept from saying anything.
class sglConfigStore::Source {
public:
    explicit Source(File const & file) : m_stream(file.text.lines.data(), file.text.lines.size()) {}
    wxInputStream & stream() { return m_stream; }

private:
    wxLogNull m_quiet;
    wxMemoryInputStream m_stream;
};

sglConfigStore::sglConfigStore(wxString const & application)
    : sglConfigStore(application, File(path_of(GetLocalFileName(application))),
                     File(path_of(GetGlobalFileName(application))))
{
}

sglConfigStore::sglConfigStore(wxString const & application, File const & users, File const & systems)
    : wxFileConfig(Source(users).stream(), wxConvUTF8), m_path(users.path), m_damaged(!users.text.whole),
      m_system(std::make_unique<wxFileConfig>(Source(systems).stream(), wxConvUTF8))
{
    SetAppName(application);
    SetExpandEnvVars(false);
    m_system->SetExpandEnvVars(false);
    m_kept = text_to_keep();
}

sglConfigStore::~sglConfigStore()
{
    sglConfigStore::Flush();
}

wxString sglConfigStore::absolute(wxString const & key) const
{
    return key.StartsWith("/") ? key : GetPath() + "/" + key;
}

bool sglConfigStore::HasEntry(wxString const & key) const
{
    wxLogNull const quiet;
    return wxFileConfig::HasEntry(key) || m_system->HasEntry(absolute(key));
}

bool sglConfigStore::DoReadString(wxString const & key, wxString * value) const
{
    wxLogNull const quiet;
    return wxFileConfig::DoReadString(key, value) || m_system->Read(absolute(key), value);
}

bool sglConfigStore::DoWriteString(wxString const & key, wxString const & value)
{
    wxLogNull const quiet;
    return can_be_kept(key) && can_be_kept(value) && wxFileConfig::DoWriteString(key, value);
}

std::string sglConfigStore::text_to_keep()
{
    wxLogNull const quiet;
    wxMemoryOutputStream stream;
    Save(stream, wxConvUTF8);
    std::string text(stream.GetLength(), '\0');
    stream.CopyTo(text.data(), text.size());
    return sgl_config_content(text);
}

bool sglConfigStore::replace_damaged_file(std::string const & text) const
{
    apPosixFileOperations const files;
    auto const beside = place_beside(m_path);
    if (!files.is_file(m_path) || beside.empty() || !files.rename(m_path, beside))
        return false;
    if (files.replace_file(m_path, text))
        return true;
    static_cast<void>(files.rename(beside, m_path));
    return false;
}

bool sglConfigStore::Flush(bool)
{
    std::string const text = text_to_keep();
    if (text == m_kept)
        return true;
    apPosixFileOperations const files;
    // A home that was never used has no configuration directory yet.
    if (!files.make_directories(m_path.directory()))
        return false;
    if (m_damaged && files.exists(m_path) ? !replace_damaged_file(text) : !files.replace_file(m_path, text))
        return false;
    m_damaged = false;
    m_kept = text;
    return true;
}
