#include "openedFile.h"

#include "wxt/wxtStringConverter.h"

#include <filesystem>

wxString vmr_opened_file(utString const & argument)
{
    std::error_code error;
    auto const path = std::filesystem::absolute(std::string(argument.view()), error);
    return wxtStringConverter::path_to_wx(error ? argument : utString(path.lexically_normal().native()));
}
