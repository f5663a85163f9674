#pragma once

#include <memory>

#include "ap/apIStringCompare.h"
#include "ap/apPathName.h"
#include "sdb/sdbTranslatorDlls.h"
#include "sdb/sdbTranslatorInfoFactory.h"
#include "sdb/sdbTranslatorLoadStatus.h"
#include "sdb/sdbTranslatorSearchPath.h"

class apIStringEncoding;
class vmrabsAppInfo;

/// Makes the two catalogues of translators, from the cache file where it is good and from the translator
/// directories otherwise.
class sdbTranslatorDllsFactory {
public:
    /// None of the three is owned. The comparison must outlive the catalogues.
    sdbTranslatorDllsFactory(apIStringEncoding const * encoding, apIStringCompare const * compare,
                             sdbTranslatorInfoFactory const * infos);

    /// Sets both pointers in any case. An empty `cache_file` stands for none, and a cache that is damaged or
    /// out of date counts as none. The status has the modules that could not be taken into the catalogues.
    sdbTranslatorLoadStatus create_translator_dlls(apPathName const & cache_file,
                                                   sdbTranslatorSearchPath const & search_path,
                                                   utString const & preferred_output_format,
                                                   vmrabsAppInfo const * info,
                                                   std::unique_ptr<sdbTranslatorDlls> & input,
                                                   std::unique_ptr<sdbTranslatorDlls> & output);

    /// True when the last catalogues came from a scan, so that a cache is worth writing.
    bool scanned() const { return m_scanned; }

private:
    apIStringCompare const * m_compare;
    sdbTranslatorInfoFactory const * m_infos;
    bool m_scanned = false;
};
