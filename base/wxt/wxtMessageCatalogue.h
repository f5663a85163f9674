#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

class wxTranslations;

/// One compiled message catalogue (the .mo format of GNU gettext), read by the toolkit, which every program
/// here has in memory anyway. After opening any thread may look up.
class wxtMessageCatalogue {
public:
    /// Null when there is no such file, it is no catalogue or it has more than 16 MB; nothing is reported.
    static std::unique_ptr<wxtMessageCatalogue> open(std::string const & file);
    ~wxtMessageCatalogue();

    /// An empty context stands for none.
    std::optional<std::string> find(std::string_view context, std::string_view text) const;

private:
    explicit wxtMessageCatalogue(std::unique_ptr<wxTranslations> texts);

    std::unique_ptr<wxTranslations> m_texts;
};
