#pragma once

#include <memory>
#include <string>
#include <vector>

#include "ap/apFileName.h"
#include "ap/apIStringCompare.h"
#include "co/itIterator.h"
#include "sdb/sdbTranslatorInfo.h"
#include "sdb/sdbTranslatorInfoFactory.h"
#include "sdb/sdbTranslatorModule.h"

enum class sdbTranslatorSide { input, output };

/// The catalogue of the translators of one side. It does not change after it was made; its entries, which it
/// owns, stand in the order of their format names, case ignored, and live as long as it does.
class sdbTranslatorDlls {
public:
    /// The comparison is not owned and must outlive the catalogue.
    sdbTranslatorDlls(sdbTranslatorSide side, std::shared_ptr<sdbCatalogueContents const> contents,
                      sdbTranslatorInfoFactory const & infos, apIStringCompare const * compare,
                      utString const & preferred_output_format);

    /// The translator whose format name equals `name` exactly, or null.
    sdbTranslatorInfo const * translator_for_format(utString const & name) const;

    /// The translator for a file, or null. On the input side the content decides first: a format one of whose
    /// signatures fits the file, of several the one that has the file's extension too. The extension, in
    /// upper or lower case, decides where no signature fits and where the file does not exist or cannot be
    /// read. On the output side, where the content is about to be replaced, the extension decides alone. What
    /// exists and is no regular file has no translator.
    sdbTranslatorInfo const * translator_for_file(utString const & path) const;

    /// The output translator proposed for an input translator, asked of the output catalogue: the user's
    /// preferred format, then the one that the input's manifest proposes, then the first that produces a
    /// file; never the input's own format. Null when none is left.
    sdbTranslatorInfo const * default_output_format(sdbTranslatorInfo const * input) const;

    itIterator<sdbFormatName> formats() const;
    itIterator<sdbUntranslatedFilterElement> filter_elements() const;
    itIterator<apFileName> resource_file_names() const; ///< without directories, one for each translator

    std::shared_ptr<sdbCatalogueContents const> contents() const { return m_contents; } ///< of both sides
    std::vector<std::unique_ptr<sdbTranslatorInfo>> const & translators() const { return m_translators; }

private:
    sdbTranslatorInfo const * other_format(utString const & name, sdbTranslatorInfo const & than) const;
    bool has_extension(sdbTranslatorInfo const & translator, apString const & extension) const;

    sdbTranslatorSide m_side;
    std::shared_ptr<sdbCatalogueContents const> m_contents;
    apIStringCompare const * m_compare;
    utString m_preferred_output_format;
    std::vector<std::unique_ptr<sdbTranslatorInfo>> m_translators;
};
