#pragma once

#include "sdk/sdkModule.h"

#include <STEPCAFControl_Reader.hxx>

#include <optional>

// Reads ISO 10303-21 files of the application protocols 203, 214 and 242.
class stepReader : public sdkReader {
public:
    explicit stepReader(sdkContext & context);

    sdkResult parse(std::string const & path, Message_ProgressRange const & range) override;
    sdkResult transfer(sdkDocument & document, Message_ProgressRange const & range) override;

private:
    sdkContext & m_context;
    std::optional<STEPCAFControl_Reader> m_reader;
};
