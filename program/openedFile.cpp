#include "openedFile.h"

#include "wxt/wxtStringConverter.h"

#include <filesystem>

wxString vmr_opened_file(utString const & argument)
{
    std::error_code error;
    auto const path = std::filesystem::absolute(std::string(argument.view()), error);
    return wxtStringConverter::to_wx(error ? argument.view()
                                           : std::string_view(path.lexically_normal().native()));
}
