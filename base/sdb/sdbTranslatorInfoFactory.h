#pragma once

#include <memory>

#include "sdb/sdbTranslatorInfo.h"

class apIStringCompare;
class apIStringEncoding;
class s2sTranslatorLoader;

/// Makes the entries of the catalogues, bound to the application's translator loader.
class sdbTranslatorInfoFactory {
public:
    /// None of the three is owned; they must outlive the entries.
    sdbTranslatorInfoFactory(s2sTranslatorLoader * loader, apIStringEncoding const * encoding,
                             apIStringCompare const * compare);

    /// `format` belongs to `module`.
    std::unique_ptr<sdbTranslatorInfo> make(std::shared_ptr<sdbTranslatorModule const> module,
                                            sdbFormatDeclaration const & format, int category_order) const;

private:
    s2sTranslatorLoader * m_loader;
};
