#pragma once

#include "sdk/exchange/sdkStatics.h"
#include "sdk/sdkModule.h"

#include <IGESCAFControl_Writer.hxx>

#include <optional>

// Writes files of IGES 5.3: trimmed surfaces, or solids as manifold solid B-rep objects.
class igesWriter : public sdkWriter {
public:
    explicit igesWriter(sdkContext & context);

    sdkResult transfer(sdkDocument & document, Message_ProgressRange const & range) override;
    sdkResult write(std::string const & path, Message_ProgressRange const & range) override;

private:
    void report_losses(sdkDocument & document);
    void flatten(sdkDocument & document);
    void blank_hidden(sdkDocument const & document);
    void fill_header();

    sdkContext & m_context;
    sdkStatics m_statics;
    std::optional<IGESCAFControl_Writer> m_writer;
};
