#pragma once

#include "sdk/sdkModule.h"

#include <TopoDS_Shape.hxx>

// Reads boundary representation files of Open CASCADE, text and binary.
class brepReader : public sdkReader {
public:
    explicit brepReader(sdkContext & context) : m_context(context) {}

    sdkResult parse(std::string const & path, Message_ProgressRange const & range) override;
    sdkResult transfer(sdkDocument & document, Message_ProgressRange const & range) override;

private:
    void keep_account();
    sdkResult heal(sdkDocument & document, TDF_LabelSequence const & parts,
                   Message_ProgressRange const & range);

    sdkContext & m_context;
    TopoDS_Shape m_shape;
};
