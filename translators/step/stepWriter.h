#pragma once

#include "sdk/exchange/sdkStatics.h"
#include "sdk/sdkModule.h"
#include "step/stepPmiWriting.h"

#include <STEPCAFControl_Writer.hxx>

#include <optional>

// Writes ISO 10303-21 files of the application protocols 203, 214 and 242.
class stepWriter : public sdkWriter {
public:
    explicit stepWriter(sdkContext & context);

    sdkResult transfer(sdkDocument & document, Message_ProgressRange const & range) override;
    sdkResult write(std::string const & path, Message_ProgressRange const & range) override;

private:
    void write_visibility(sdkDocument const & document, TDF_LabelSequence const & hidden_instances);
    void add_validation(sdkDocument const & document);

    sdkContext & m_context;
    sdkStatics m_statics;
    std::optional<STEPCAFControl_Writer> m_writer;
    stepPmiText m_annotations;
};
