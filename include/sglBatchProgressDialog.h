#pragma once

#include "sglGUIProgressDialog.h"

/// The dialog in front of a batch: one bar over all its translations, and in the end a summary of the files
/// by outcome. The batch makes one record, whose messages are cut out of the streams for each translation.
class sglBatchProgressDialog : public sglGUIProgressDialog {
public:
    sglBatchProgressDialog(vmrabsAppInfo const * info, wxWindow * parent);

    int progress(int percent) override; ///< of the current translation
    void translation_cancelled() override { translation_ended(); }
    void translation_ended_ok() override { translation_ended(); }
    void translation_error(utString const &) override { translation_ended(); }

protected:
    void start_translation_data(sglTranslation const * translation) override;
    void finish_translation_data(sdbProgressFinish status) override; ///< the status is not used

    void translation_ended(); ///< every end of a batch leads to the same summary

private:
    utString summary();
};
