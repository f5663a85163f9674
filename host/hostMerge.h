#pragma once

#include "sdk/sdkDocument.h"

#include <string>

// Puts what several inputs have brought into one assembly, in which each input is a component named after its
// file.
class hostMerge {
public:
    hostMerge(sdkDocument & document, std::string const & output_file);

    // To be called after each input with the free shapes that it has added. An input that has brought several
    // free shapes becomes an assembly of its own.
    void add(TDF_LabelSequence const & shapes, std::string const & input_file);

    // To be called once at the end.
    void finish();

private:
    TDF_Label place(TDF_Label const & assembly, TDF_Label const & shape);

    sdkDocument & m_document;
    TDF_Label m_assembly;
};
