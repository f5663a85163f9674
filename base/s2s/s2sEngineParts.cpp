#include "s2s/s2sEngineParts.h"

#include "vmr/vmrabsOutput.h"

void s2sEngineParts::say_error(s2sMessage const & message) const
{
    if (error_stream)
        error_stream->write(s2s_message_domain().c_str(), message.key.c_str(), message.arguments);
}

void s2sEngineParts::say(s2sMessage const & message) const
{
    if (output_stream)
        output_stream->write(s2s_message_domain().c_str(), message.key.c_str(), message.arguments);
}

utString s2sEngineParts::text(utString const & domain, utString const & key,
                              utTextArguments const & arguments) const
{
    auto const stream = output_stream ? output_stream : error_stream;
    if (!stream)
        return {};
    auto text = stream->text(domain.c_str(), key.c_str(), arguments);
    text.remove_trailing_chars("\n");
    return text;
}
