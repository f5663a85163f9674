#include "sdb/sdbTranslatorCacheWriter.h"

#include "sdb/sdbTranslatorCache.h"

sdbTranslatorCacheWriter::sdbTranslatorCacheWriter(utString const & path, sdbTranslatorDlls const & input,
                                                   sdbTranslatorDlls const & output,
                                                   apIStringEncoding const *, int & error,
                                                   sdbTranslatorLoadStatus & status)
{
    auto const problem = input.contents() == output.contents()
                             ? sdbTranslatorCache::write(path.str(), *input.contents())
                             : std::string("the two catalogues do not belong together");
    error = problem.empty() ? 0 : 1;
    if (error)
        status.add_other_failure(utString(problem));
}
