#pragma once

#include "sdk/sdkModule.h"

#include <IGESCAFControl_Writer.hxx>

#include <optional>

// Writes files of IGES 5.3.
class igesWriter : public sdkWriter {
public:
    explicit igesWriter(sdkContext & context);

    sdkResult transfer(sdkDocument & document, Message_ProgressRange const & range) override;
    sdkResult write(std::string const & path, Message_ProgressRange const & range) override;

private:
    sdkContext & m_context;
    std::optional<IGESCAFControl_Writer> m_writer;
};
