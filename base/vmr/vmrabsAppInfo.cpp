#include "vmr/vmrabsAppInfo.h"

#include <filesystem>
#include <string_view>

namespace {

utString look_up(std::map<utString, utString> const & values, utString const & key)
{
    auto const found = values.find(key);
    return found == values.end() ? utString::make_invalid() : found->second;
}

} // namespace

vmrabsAppInfo::vmrabsAppInfo(utString const & program, utString const & os, utString const & user,
                             utString const & organisation, utString const & remark)
    : m_program(program), m_os(os), m_user(user), m_organisation(organisation), m_remark(remark)
{
}

void vmrabsAppInfo::set_info(utString const & key, utString const & value)
{
    m_info.insert_or_assign(key, value);
}

utString vmrabsAppInfo::info(utString const & key) const
{
    return look_up(m_info, key);
}

void vmrabsAppInfo::set_schema_path(utString const & subject, utString const & path_text)
{
    m_schema_paths.insert_or_assign(subject, path_text);
}

utString vmrabsAppInfo::schema_path(utString const & subject) const
{
    return look_up(m_schema_paths, subject);
}

utString vmrabsAppInfo::find_file_in_path(utString const & path_text, utString const & name)
{
    if (name.empty())
        return utString::make_invalid();
    auto rest = path_text.view();
    while (!rest.empty()) {
        auto const end = rest.find(path_separator);
        auto const directory = rest.substr(0, end);
        rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
        if (directory.empty())
            continue;
        auto const path = std::filesystem::path(directory) / name.view();
        std::error_code error;
        if (std::filesystem::is_regular_file(path, error))
            return path.string();
    }
    return utString::make_invalid();
}
