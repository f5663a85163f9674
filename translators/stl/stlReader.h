#pragma once

#include "sdk/sdkModule.h"
#include "stl/stlInput.h"

// Reads stereolithography files, text and binary. Each solid becomes a part with one face that has triangles
// only.
class stlReader : public sdkReader {
public:
    explicit stlReader(sdkContext & context) : m_context(context) {}

    sdkResult parse(std::string const & path, Message_ProgressRange const & range) override;
    sdkResult transfer(sdkDocument & document, Message_ProgressRange const & range) override;

private:
    void report(std::size_t triangles, std::size_t empty) const;

    sdkContext & m_context;
    stlInput m_input;
};
