#pragma once

#include "sdk/sdkModule.h"

#include <IGESCAFControl_Reader.hxx>

#include <optional>

// Reads files of IGES 5.3.
class igesReader : public sdkReader {
public:
    explicit igesReader(sdkContext & context);

    sdkResult parse(std::string const & path, Message_ProgressRange const & range) override;
    sdkResult transfer(sdkDocument & document, Message_ProgressRange const & range) override;

private:
    sdkContext & m_context;
    std::optional<IGESCAFControl_Reader> m_reader;
};
