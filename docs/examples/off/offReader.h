#pragma once

#include "off/offParser.h"
#include "sdk/sdkModule.h"

// Reads meshes in the object file format. The mesh becomes one part: a face that has triangles only.
class offReader : public sdkReader {
public:
    explicit offReader(sdkContext & context) : m_context(context) {}

    sdkResult parse(std::string const & path, Message_ProgressRange const & range) override;
    sdkResult transfer(sdkDocument & document, Message_ProgressRange const & range) override;

private:
    sdkContext & m_context;
    offMesh m_mesh;
};
