#pragma once

#include "co/coPageArr.h"
#include "s2s/s2sTranslatorElements.h"

/// One translation: any number of inputs into one output.
class s2sTranslationElements {
public:
    s2sTranslationElements(s2sTranslatorElementscoPageArr const & inputs,
                           s2sOutputTranslatorElements const & output)
        : m_inputs(inputs), m_output(output)
    {
    }

    s2sTranslatorElementscoPageArr const & input_elements() const { return m_inputs; }
    s2sOutputTranslatorElements const & output_elements() const { return m_output; }
    /// The file that stands for the inputs in a text; empty when there is none.
    utString first_input_file() const { return m_inputs.empty() ? utString() : m_inputs[0].file(); }

private:
    s2sTranslatorElementscoPageArr m_inputs;
    s2sOutputTranslatorElements m_output;
};

/// One entry for each translation of a batch.
using s2sTranslationElementscoPageArr = coPageArr<s2sTranslationElements>;
using s2sTranslationElementscoPageArrcoIterator = s2sTranslationElementscoPageArr::coIterator;
