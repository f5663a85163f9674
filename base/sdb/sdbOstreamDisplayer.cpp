#include "sdb/sdbOstreamDisplayer.h"

#include "sdb/sdbOstream.h"

void sdbOstreamDisplayer::display(char const * text)
{
    m_stream->print(text);
}
