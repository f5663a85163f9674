#pragma once

#include "ut/utString.h"
#include "ut/utTextArguments.h"

/// A stream of messages. A message is a key of a string table, with the table's domain and the arguments that
/// the conversions of its text take; who implements the stream makes the final text of it.
class vmrabsOutput {
public:
    /// May be called on any thread. The texts are copied where they are kept.
    virtual void write(char const * domain, char const * key, utTextArguments const & arguments) = 0;
    /// The final text that a message would have, without writing it. Any thread.
    virtual utString text(char const * domain, char const * key, utTextArguments const & arguments) const = 0;
    virtual ~vmrabsOutput() = default;

    template <class... T>
    void message(char const * domain, char const * key, T const &... values)
    {
        write(domain, key, ut_text_arguments(values...));
    }
};
