#pragma once

#include "sglTranslation.h"

/// A list of independent translations: input `i` goes into output `i`. One worker runs them,
/// several at the same time where the machine allows it; their turns come in the order of the list, in front
/// of one dialog, and those that fail lose their output. An entry whose turn has not come when the user
/// cancels keeps the file that was there.
class sglBatchTranslation : public sglTranslation {
public:
    sglBatchTranslation() = default;

    /// Non-zero also when the lists disagree in length. The documents need not be as many as the rest.
    int invalid() const override;

    /// Takes one translation out. The document of the last one stays behind: documents are interchangeable.
    void remove_translation(int index);

protected:
    void create_wrapper() override;
};
