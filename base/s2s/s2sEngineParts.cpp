#include "s2s/s2sEngineParts.h"

#include "vmr/vmrabsOutput.h"

void s2sEngineParts::say_error(s2sMessage const & message) const
{
    if (error_stream)
        error_stream->write(s2s_message_domain().c_str(), message.key.c_str(), message.arguments);
}
