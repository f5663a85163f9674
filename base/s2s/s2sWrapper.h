#pragma once

#include "s2s/s2sEngineParts.h"
#include "s2s/s2sFileGuard.h"
#include "s2s/s2sTranslationElements.h"
#include "s2s/s2sWrapperBase.h"

/// One translation of any number of inputs into one output. From its making to its end it keeps the input
/// files from being deleted by sdu_remove_file. A translation whose output is one of its inputs is refused.
class s2sWrapper : public s2sWrapperBase {
public:
    /// The elements are copied; everything else must outlive this object. A null `loader` leaves out the
    /// checks of the translators before the start.
    s2sWrapper(s2sVmr2vmr const & context, vmrabsAppInfo const & app_info, s2sThreadComm & comm,
               s2sTranslatorLoader const * loader, vmrabsOutput * output_stream, vmrabsOutput * error_stream,
               s2sTranslationElements const & elements);

    int run() const override; ///< 1 when the translation ran to its end, else 0

private:
    s2sEngineParts m_parts;
    s2sTranslationElements m_elements;
    s2sFileGuard m_files;
};
