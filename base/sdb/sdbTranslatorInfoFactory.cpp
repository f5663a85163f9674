#include "sdb/sdbTranslatorInfoFactory.h"

// Names and paths of modules are UTF-8 wherever they come from, so that the entries convert and compare
// nothing.
sdbTranslatorInfoFactory::sdbTranslatorInfoFactory(s2sTranslatorLoader * loader, apIStringEncoding const *,
                                                   apIStringCompare const *)
    : m_loader(loader)
{
}

std::unique_ptr<sdbTranslatorInfo>
sdbTranslatorInfoFactory::make(std::shared_ptr<sdbTranslatorModule const> module,
                               sdbFormatDeclaration const & format, int category_order) const
{
    return std::make_unique<sdbTranslatorInfo>(std::move(module), format, category_order, m_loader);
}
