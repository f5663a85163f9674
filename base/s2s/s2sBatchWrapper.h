#pragma once

#include "s2s/s2sEngineParts.h"
#include "s2s/s2sFileGuard.h"
#include "s2s/s2sTranslationElements.h"
#include "s2s/s2sWrapperBase.h"

/// One translation after the other, as far as anybody can see: where the context allows several hosts, later
/// entries run ahead while an earlier one is at work, and appear when their turn comes. One that fails does
/// not stop the others, a request to stop does. The section of each in the two streams begins with the
/// marker, a header and the marker again. An output that is an input of any of the translations is refused;
/// the inputs are kept from being deleted as in s2sWrapper.
class s2sBatchWrapper : public s2sWrapperBase {
public:
    /// As for s2sWrapper.
    s2sBatchWrapper(s2sVmr2vmr const & context, vmrabsAppInfo const & app_info, s2sThreadComm & comm,
                    s2sTranslatorLoader const * loader, vmrabsOutput * output_stream,
                    vmrabsOutput * error_stream, s2sTranslationElementscoPageArr const & translations);

    int run() const override; ///< 1 when all the translations ran to their end, else 0

private:
    int run_all() const;
    void write_header(int index) const;

    s2sEngineParts m_parts;
    s2sTranslationElementscoPageArr m_translations;
    s2sFileGuard m_files;
};
