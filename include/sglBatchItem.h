#pragma once

#include "sglRow.h"

/// One translation of a queue. Copies share their rows.
class sglBatchItem {
public:
    sglBatchItem(sglRowcoPrf input_row, sglRowcoPrf output_row)
        : m_input_row(std::move(input_row)), m_output_row(std::move(output_row))
    {
    }

    sglRowcoPrf const & input_row() const { return m_input_row; }
    sglRowcoPrf const & output_row() const { return m_output_row; }
    int invalid() const { return !m_input_row || !m_output_row; }

private:
    sglRowcoPrf m_input_row;
    sglRowcoPrf m_output_row;
};

using sglBatchItemcoDList = coDList<sglBatchItem>;
