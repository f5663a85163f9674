#pragma once

#include "nls/vmrnlsDisplayer.h"

class sdbOstream;

/// Shows messages on the text stream of a command-line run, which it does not own.
class sdbOstreamDisplayer : public vmrnlsDisplayer {
public:
    explicit sdbOstreamDisplayer(sdbOstream * stream) : m_stream(stream) {}

    void display(char const * text) override;

private:
    sdbOstream * m_stream;
};
