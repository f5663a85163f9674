// The lists of a request: what the pages and the command line fill in before it runs.

#include "sglTranslation.h"

void sglTranslation::input_file(utString const & file, int index)
{
    m_input_files.at_grow(index) = file;
}

utString sglTranslation::input_file(int index) const
{
    return m_input_files.empty() ? utString() : m_input_files[index];
}

void sglTranslation::input_format(utString const & format, int index)
{
    m_input_formats.at_grow(index) = format;
}

utString sglTranslation::input_format(int index) const
{
    return m_input_formats.empty() ? utString() : m_input_formats[index];
}

void sglTranslation::input_resource_table(vmrTableInstance & table, int index)
{
    m_input_tables.at_grow(index) = table;
}

vmrTableInstance & sglTranslation::input_resource_table(int index) const
{
    return m_input_tables[index];
}

void sglTranslation::output_file(utString const & file, int index)
{
    m_output_files.at_grow(index) = file;
}

utString sglTranslation::output_file(int index) const
{
    return m_output_files[index];
}

void sglTranslation::output_format(utString const & format, int index)
{
    m_output_formats.at_grow(index) = format;
}

utString sglTranslation::output_format(int index) const
{
    return m_output_formats.empty() ? utString() : m_output_formats[index];
}

void sglTranslation::output_resource_table(vmrTableInstance & table, int index)
{
    m_output_tables.at_grow(index) = table;
}

vmrTableInstance & sglTranslation::output_resource_table(int index) const
{
    return m_output_tables[index];
}

void sglTranslation::output_document(annDocument * document, int index)
{
    m_output_documents.at_grow(index) = document;
}

void sglTranslation::remove_entry(int index)
{
    int const left = num_output_files() - 1;
    auto const take_out = [index, left](auto & list) {
        if (index < list.count())
            list.remove(index);
        while (list.count() > left)
            list.remove(list.count() - 1);
    };
    take_out(m_input_files);
    take_out(m_input_tables);
    take_out(m_input_formats);
    take_out(m_input_translators);
    take_out(m_output_files);
    take_out(m_output_tables);
    take_out(m_output_formats);
    take_out(m_output_translators);
}
