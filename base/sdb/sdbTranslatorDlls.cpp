#include "sdb/sdbTranslatorDlls.h"

#include <algorithm>
#include <set>

#include "ap/apPosixOperations.h"

namespace {

// The place of a category among all the categories of the modules, in the order of their texts.
int category_order(std::set<std::string> const & categories, std::string const & category)
{
    return static_cast<int>(std::distance(categories.begin(), categories.find(category)));
}

bool has_signature(sdbFormatDeclaration const & format, sdbFileHead const & head)
{
    return std::any_of(
        format.signatures.begin(), format.signatures.end(),
        [&](sdbFormatSignature const & signature) { return sdb_signature_fits(signature, head); });
}

} // namespace

sdbTranslatorDlls::sdbTranslatorDlls(sdbTranslatorSide side,
                                     std::shared_ptr<sdbCatalogueContents const> contents,
                                     sdbTranslatorInfoFactory const & infos, apIStringCompare const * compare,
                                     utString const & preferred_output_format)
    : m_side(side), m_contents(std::move(contents)), m_compare(compare),
      m_preferred_output_format(preferred_output_format)
{
    std::set<std::string> categories;
    for (auto const & module : m_contents->modules)
        for (auto const & format : module->formats)
            categories.insert(format.category);

    for (auto const & module : m_contents->modules)
        for (auto const & format : module->formats)
            if (side == sdbTranslatorSide::input ? format.input : format.output)
                m_translators.push_back(
                    infos.make(module, format, category_order(categories, format.category)));

    std::sort(m_translators.begin(), m_translators.end(), [&](auto const & a, auto const & b) {
        auto const & a_name = a->format_name().string();
        auto const & b_name = b->format_name().string();
        int const order = m_compare->compare(a_name, b_name);
        return order != 0 ? order < 0 : a_name < b_name;
    });
}

sdbTranslatorInfo const * sdbTranslatorDlls::translator_for_format(utString const & name) const
{
    for (auto const & translator : m_translators)
        if (name.view() == translator->declaration().name)
            return translator.get();
    return nullptr;
}

bool sdbTranslatorDlls::has_extension(sdbTranslatorInfo const & translator, apString const & extension) const
{
    auto const & own = translator.declaration().extensions;
    return !extension.empty() && std::any_of(own.begin(), own.end(), [&](std::string const & one) {
        return m_compare->compare(apString::from_utf8(one), extension) == 0;
    });
}

sdbTranslatorInfo const * sdbTranslatorDlls::translator_for_file(utString const & path) const
{
    auto const file = apPathName::from_utf8(path.view());
    apPosixFileOperations const files;
    if (file.empty() || (files.exists(file) && !files.is_file(file)))
        return nullptr;

    auto const head = m_side == sdbTranslatorSide::input ? sdbFileHead::read(file.utf8()) : std::nullopt;
    auto const extension = file.extension();
    sdbTranslatorInfo const * best = nullptr;
    int best_fit = 0;
    for (auto const & translator : m_translators) {
        bool const by_content = head && has_signature(translator->declaration(), *head);
        bool const by_name = has_extension(*translator, extension);
        // A viewer opens the files of many formats and gives way to the translator of the one.
        int const fit = 4 * by_content + 2 * by_name + !translator->is_viewer();
        if ((by_content || by_name) && fit > best_fit) {
            best = translator.get();
            best_fit = fit;
        }
    }
    return best;
}

sdbTranslatorInfo const * sdbTranslatorDlls::other_format(utString const & name,
                                                          sdbTranslatorInfo const & than) const
{
    auto const * const found = translator_for_format(name);
    return found && found->format_name() == than.format_name() ? nullptr : found;
}

sdbTranslatorInfo const * sdbTranslatorDlls::default_output_format(sdbTranslatorInfo const * input) const
{
    if (!input)
        return nullptr;
    if (auto const * const preferred = other_format(m_preferred_output_format, *input))
        return preferred;
    if (auto const * const proposed = other_format(utString(input->declaration().default_output), *input))
        return proposed;
    for (auto const & translator : m_translators)
        if (!translator->is_viewer() && translator->format_name() != input->format_name())
            return translator.get();
    return nullptr;
}

itIterator<sdbFormatName> sdbTranslatorDlls::formats() const
{
    std::vector<sdbFormatName> names;
    for (auto const & translator : m_translators)
        names.push_back(translator->format_name());
    return it_iterator_over(std::move(names));
}

itIterator<sdbUntranslatedFilterElement> sdbTranslatorDlls::filter_elements() const
{
    std::vector<sdbUntranslatedFilterElement> elements;
    for (auto const & translator : m_translators)
        elements.push_back(translator->filter());
    return it_iterator_over(std::move(elements));
}

itIterator<apFileName> sdbTranslatorDlls::resource_file_names() const
{
    std::vector<apFileName> names;
    for (auto const & translator : m_translators)
        names.push_back(translator->resource_file_name());
    return it_iterator_over(std::move(names));
}
