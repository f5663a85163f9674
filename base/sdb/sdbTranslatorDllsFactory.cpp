#include "sdb/sdbTranslatorDllsFactory.h"

#include "sdb/sdbTranslatorCache.h"
#include "sdb/sdbTranslatorScan.h"

sdbTranslatorDllsFactory::sdbTranslatorDllsFactory(apIStringEncoding const *,
                                                   apIStringCompare const * compare,
                                                   sdbTranslatorInfoFactory const * infos)
    : m_compare(compare), m_infos(infos)
{
}

sdbTranslatorLoadStatus sdbTranslatorDllsFactory::create_translator_dlls(
    apPathName const & cache_file, sdbTranslatorSearchPath const & search_path,
    utString const & preferred_output_format, vmrabsAppInfo const *,
    std::unique_ptr<sdbTranslatorDlls> & input, std::unique_ptr<sdbTranslatorDlls> & output)
{
    std::shared_ptr<sdbCatalogueContents const> contents;
    if (!cache_file.empty())
        contents = sdbTranslatorCache::read(cache_file.utf8(), search_path.directories());
    m_scanned = !contents;
    if (m_scanned)
        contents = sdb_scan_translators(search_path);

    auto const catalogue = [&](sdbTranslatorSide side) {
        return std::make_unique<sdbTranslatorDlls>(side, contents, *m_infos, m_compare,
                                                   preferred_output_format);
    };
    input = catalogue(sdbTranslatorSide::input);
    output = catalogue(sdbTranslatorSide::output);

    sdbTranslatorLoadStatus status(sdbTranslatorLoadStart);
    for (auto const & failure : contents->failures)
        status.add_file_failure(apPathName::from_utf8(failure.file), utString(failure.reason));
    return status;
}
