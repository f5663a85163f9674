#include "commandline/sglLogCheck.h"

#include "commandline/sglResourceWord.h"

#include "s2s/s2sFiles.h"

#include <algorithm>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

/// Also where there is neither yet, on a file system to which capital and small letters are the same.
bool same_file(utString const & a, utString const & b)
{
    auto const place_a = s2s_real_place(a.str());
    auto const place_b = s2s_real_place(b.str());
    std::error_code error;
    return s2s_same_file(place_a, place_b) ||
           (!fs::exists(place_a, error) && !fs::exists(place_b, error) &&
            s2s_same_file(place_a.parent_path(), place_b.parent_path()) &&
            utString(place_a.filename().native()).case_compare(place_b.filename().native()) == 0);
}

bool names_output(utString const & option)
{
    return option == "-o" || option == "-output";
}

} // namespace

utString sgl_file_that_is_log(std::vector<utString> const & words, utString const & log)
{
    auto const input = std::find_if(words.begin(), words.end(), [](utString const & word) {
        return word != "-m" && word != "-modeller";
    });
    for (auto word = input; word != words.end(); ++word) {
        bool const is_file = word == input || names_output(word[-1]) || sgl_announces_resource(word[-1]) ||
                             sgl_is_resource_name(*word);
        if (is_file && same_file(*word, log))
            return *word;
    }
    return utString::make_invalid();
}
