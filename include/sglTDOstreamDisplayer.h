#pragma once

#include <ostream>

#include "sglTranslationDataDisplayer.h"

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// Writes the report of a translation to a stream, two blanks for each level: the text of the log files and
/// of the clipboard. Displayers are local variables: none is deleted through a pointer to its base.
class sglTDOstreamDisplayer : public sglTranslationDataDisplayer {
public:
    sglTDOstreamDisplayer(sdbTranslationData const * record, vmrabsAppInfo const * info,
                          std::ostream * stream); ///< the stream is not owned

protected:
    void display_text(utString const & text) override;
    void increment_depth(utString const & text) override;
    void decrement_depth() override;
    void indent_and_display(utString const & text);

private:
    std::ostream * m_stream;
    int m_depth = 0;
};

#pragma GCC diagnostic pop
