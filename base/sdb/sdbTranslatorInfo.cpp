#include "sdb/sdbTranslatorInfo.h"

#include <algorithm>

#include "sdb/sdbModuleFile.h"
#include "sdb/sdbModuleReader.h"
#include "vmr/vmrResourceRegistry.h"

sdbTranslatorInfo::sdbTranslatorInfo(std::shared_ptr<sdbTranslatorModule const> module,
                                     sdbFormatDeclaration const & format, int category_order,
                                     s2sTranslatorLoader * loader)
    : m_module(std::move(module)), m_format(format), m_name(apString::from_utf8(format.name)),
      m_category_order(category_order), m_loader(loader)
{
}

void sdbTranslatorInfo::load(sdbTranslatorLoadStatus & status) const
{
    if (m_loaded)
        return;
    auto const fail = [&](std::string const & reason) {
        status.add_file_failure(apPathName::from_utf8(m_module->module_path), utString(reason));
    };
    if (auto const problem = sdb_module_file_problem(m_module->module_path); !problem.empty())
        return fail(m_module->module_path + ": " + problem);
    // The files may have been replaced since the catalogue was made, by an update for one.
    sdbModuleReader reader(m_module->manifest_path);
    auto const module = reader.read();
    if (!module)
        return fail(reader.failure().reason);
    if (std::none_of(module->formats.begin(), module->formats.end(),
                     [&](sdbFormatDeclaration const & format) { return format.name == m_format.name; }))
        return fail(m_module->manifest_path + ": the module has no format \"" + m_format.name +
                    "\" any more");
    vmr_register_resources(m_format.resources);
    m_loaded = true;
}

sdbUntranslatedFilterElement sdbTranslatorInfo::filter() const
{
    return {utString(m_format.filter_text()), sdb_module_domain, m_category_order};
}

apPathName sdbTranslatorInfo::change_extension(apPathName const & path) const
{
    return m_format.extensions.empty()
               ? path
               : path.change_extension(apString::from_utf8(m_format.extensions.front()));
}
