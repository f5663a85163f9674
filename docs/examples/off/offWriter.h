#pragma once

#include "sdk/geometry/sdkFacetMesh.h"
#include "sdk/sdkModule.h"

#include <optional>

// Writes all faces of the document as one mesh in the object file format, with the points that triangles
// share written once.
class offWriter : public sdkWriter {
public:
    explicit offWriter(sdkContext & context) : m_context(context) {}

    sdkResult transfer(sdkDocument & document, Message_ProgressRange const & range) override;
    sdkResult write(std::string const & path, Message_ProgressRange const & range) override;

private:
    sdkContext & m_context;
    std::optional<sdkFacetMesh> m_mesh; // in millimetres
};
