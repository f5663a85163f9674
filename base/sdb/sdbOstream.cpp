#include "sdb/sdbOstream.h"

#include <string>

sdbOstream::sdbOstream(apISynchOperations const * operations) : m_section(operations) {}

void sdbOstream::add_ostream(std::ostream * stream)
{
    apCriticalSectionScope const scope(m_section);
    if (stream)
        m_streams.push_back(stream);
}

void sdbOstream::auto_flush(int on)
{
    apCriticalSectionScope const scope(m_section);
    m_auto_flush = on != 0;
}

void sdbOstream::print(char const * text)
{
    if (!text || !*text)
        return;
    apCriticalSectionScope const scope(m_section);
    if (m_in_row && *text != '\n')
        write("\n");
    m_in_row = false;
    write(text);
}

void sdbOstream::print_row_label(char const * text)
{
    apCriticalSectionScope const scope(m_section); // entered once more by print
    print(text);
    m_in_row = true;
}

void sdbOstream::print_dot()
{
    apCriticalSectionScope const scope(m_section);
    m_in_row = true;
    write(".");
}

void sdbOstream::print_percent(int value)
{
    apCriticalSectionScope const scope(m_section);
    m_in_row = true;
    write(std::to_string(value) + "%");
}

void sdbOstream::write(std::string_view text)
{
    for (auto * stream : m_streams) {
        stream->write(text.data(), static_cast<std::streamsize>(text.size()));
        if (m_auto_flush)
            stream->flush();
    }
}
