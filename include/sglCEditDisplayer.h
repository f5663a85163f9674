#pragma once

#include "nls/vmrnlsDisplayer.h"

class sglEdit;

/// Feeds a text pane from a worker thread. The pane is not owned and must outlive the worker.
class sglCEditDisplayer : public vmrnlsDisplayer {
public:
    explicit sglCEditDisplayer(sglEdit & edit) : m_edit(&edit) {}

    /// Queues the text; the graphical thread appends it later, in the order of the calls.
    void display(char const * text) override;

private:
    sglEdit * m_edit;
};
