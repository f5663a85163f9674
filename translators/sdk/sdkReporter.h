#pragma once

#include "sdk/sdkText.h"

#include <cstdint>

enum class sdkStream { output, error };

// Where readers and writers say what they do and count what became of the entities. A message of the output
// stream informs (units, counts, what the format cannot hold); one of the error stream names something that
// went wrong.
class sdkReporter {
public:
    virtual ~sdkReporter() = default;

    template <class... Arguments>
    void output(std::string_view key, Arguments const &... arguments)
    {
        message(sdkStream::output, sdkText(key, arguments...));
    }

    template <class... Arguments>
    void error(std::string_view key, Arguments const &... arguments)
    {
        message(sdkStream::error, sdkText(key, arguments...));
    }

    virtual void message(sdkStream stream, sdkText const & text) = 0;

    // Counted where the fate of an entity is known: processed once a writer has it in its file, failed
    // wherever it was lost. An entity is a face, a curve that bounds no face, or a point that bounds no
    // curve, of a part; the number of places at which an assembly uses the part does not matter.
    void processed(std::int64_t entities) { m_processed += entities; }
    void failed(std::int64_t entities) { m_failed += entities; }
    std::int64_t processed() const { return m_processed; }
    std::int64_t failed() const { return m_failed; }

private:
    std::int64_t m_processed = 0;
    std::int64_t m_failed = 0;
};
