#include "wxt/wxtMessageCatalogue.h"

#include "ap/apPosixOperations.h"
#include "wxt/wxtStringConverter.h"

#include <cstdint>
#include <cstring>
#include <wx/log.h>
#include <wx/translation.h>

namespace {

// The toolkit looks for catalogues by domain and language; here the file is known, so any name of the two
// will do.
char const domain[] = "texts";
char const language[] = "de";

/// Far more than all texts of a program; the toolkit reads a catalogue as a whole.
constexpr std::size_t most_bytes = 16 * 1024 * 1024;

/// Whether the tables of a catalogue point at texts inside of it; the toolkit follows them unseen. The format
/// is the one of the manual of GNU gettext, "The Format of GNU MO Files", in the byte order of this machine.
bool is_sound(std::string const & catalogue)
{
    auto const number = [&catalogue](std::size_t position) {
        std::uint32_t value = 0;
        std::memcpy(&value, catalogue.data() + position, sizeof value);
        return std::size_t(value);
    };
    if (catalogue.size() < 28 || number(0) != 0x950412de)
        return false;
    std::size_t const count = number(8);
    for (std::size_t const table : {number(12), number(16)}) {
        if (table > catalogue.size() || count > (catalogue.size() - table) / 8)
            return false;
        for (std::size_t i = 0; i < count; ++i) {
            std::size_t const length = number(table + 8 * i), begin = number(table + 8 * i + 4);
            if (begin + length >= catalogue.size() || catalogue[begin + length] != '\0')
                return false;
        }
    }
    return true;
}

class OneFile : public wxTranslationsLoader {
public:
    explicit OneFile(std::string const & content)
        : m_content(wxScopedCharBuffer::CreateNonOwned(content.data(), content.size()))
    {
    }

    wxMsgCatalog * LoadCatalog(wxString const & name, wxString const &) override
    {
        return wxMsgCatalog::CreateFromData(m_content, name);
    }
    wxArrayString GetAvailableTranslations(wxString const &) const override
    {
        return wxArrayString(1, &m_language);
    }

private:
    wxScopedCharBuffer m_content;
    wxString m_language = language;
};

} // namespace

wxtMessageCatalogue::wxtMessageCatalogue(std::unique_ptr<wxTranslations> texts) : m_texts(std::move(texts)) {}

wxtMessageCatalogue::~wxtMessageCatalogue() = default;

std::unique_ptr<wxtMessageCatalogue> wxtMessageCatalogue::open(std::string const & file)
{
    std::string content;
    if (!apPosixFileOperations().read_file(apPathName::from_utf8(file), content, most_bytes) ||
        !is_sound(content))
        return nullptr;
    wxLogNull const quiet;
    auto texts = std::make_unique<wxTranslations>();
    texts->SetLanguage(language);
    texts->SetLoader(new OneFile(content));
    if (!texts->AddCatalog(domain) || !texts->IsLoaded(domain))
        return nullptr;
    return std::unique_ptr<wxtMessageCatalogue>(new wxtMessageCatalogue(std::move(texts)));
}

std::optional<std::string> wxtMessageCatalogue::find(std::string_view context, std::string_view text) const
{
    auto const * const found = m_texts->GetTranslatedString(wxtStringConverter::to_wx(text), domain,
                                                            wxtStringConverter::to_wx(context));
    return found ? std::optional(wxtStringConverter::to_ut(*found).str()) : std::nullopt;
}
