#include "nls/vmrnlsTranslatorAndFormatter.h"

#include <algorithm>

namespace {

/// A word or phrase that a message is about and that has a translation of its own.
bool is_term(utTextArgument const & argument)
{
    auto const * text = std::get_if<std::string>(&argument);
    return text && text->starts_with("term::");
}

} // namespace

vmrnlsTranslatorAndFormatter::vmrnlsTranslatorAndFormatter(vmrnlsTranslator const * translator,
                                                           vmrnlsFormatter const * formatter)
    : m_translator(translator), m_formatter(formatter)
{
}

utString vmrnlsTranslatorAndFormatter::vtsprintf(char const * domain, char const * key,
                                                 utTextArguments const & arguments) const
{
    auto const text = m_translator->translate(domain, key);
    if (std::none_of(arguments.begin(), arguments.end(), is_term))
        return m_formatter->format(text, arguments);
    auto translated = arguments;
    for (auto & argument : translated) {
        if (is_term(argument))
            argument = m_translator->translate(domain, std::get<std::string>(argument).c_str()).str();
    }
    return m_formatter->format(text, translated);
}
