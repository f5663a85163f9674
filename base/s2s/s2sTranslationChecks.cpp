#include "s2s/s2sTranslationChecks.h"

#include "s2s/s2sFiles.h"
#include "s2s/s2sTranslatorLoader.h"

namespace fs = std::filesystem;

namespace {

s2sFailure check_translator(s2sTranslatorLoader const * loader, s2sTranslatorElements const & side)
{
    return loader ? loader->check(side.translator()) : std::nullopt;
}

} // namespace

s2sOutputPlace::s2sOutputPlace(utString const & output)
{
    std::error_code error;
    named = fs::absolute(output.str(), error);
    real = s2s_real_place(named);
}

std::optional<s2sRefusal> s2s_check_translation(s2sTranslationElements const & elements,
                                                s2sTranslatorLoader const * loader,
                                                std::vector<fs::path> const & inputs)
{
    auto const & output = elements.output_elements();
    auto const first = elements.first_input_file();
    s2sOutputPlace const place(output.file());

    // Before all else, so that the user hears of it even where the input could not be read either.
    if (s2s_is_one_of(place.named, inputs))
        return s2sRefusal{s2sThreadWriteError, s2sMessages::output_is_input(place.named), first};
    if (elements.input_elements().empty())
        return s2sRefusal{s2sThreadReadError, s2sMessages::no_input(place.named), first};
    for (auto const & input : elements.input_elements()) {
        if (auto const failure = s2s_check_input(input.file().str()))
            return s2sRefusal{s2sThreadReadError, *failure, input.file()};
        if (auto const failure = check_translator(loader, input))
            return s2sRefusal{s2sThreadReadError, *failure, input.file()};
    }
    if (auto const failure = s2s_check_output(output.file().str()))
        return s2sRefusal{s2sThreadWriteError, *failure, first};
    if (auto const failure = check_translator(loader, output))
        return s2sRefusal{s2sThreadWriteError, *failure, first};
    return std::nullopt;
}
