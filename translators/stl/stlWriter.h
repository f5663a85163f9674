#pragma once

#include "sdk/sdkModule.h"
#include "stl/stlPlacedMesh.h"

#include <vector>

// Writes stereolithography files, text or binary, of all faces of the document.
class stlWriter : public sdkWriter {
public:
    explicit stlWriter(sdkContext & context);

    sdkResult transfer(sdkDocument & document, Message_ProgressRange const & range) override;
    sdkResult write(std::string const & path, Message_ProgressRange const & range) override;

private:
    // One solid of a text file.
    struct Solid {
        std::string name;
        std::vector<stlPlacedMesh> meshes;
    };

    void collect(sdkDocument const & document, TDF_Label const & label, TopLoc_Location const & location);
    void settle_zero();
    void note_hidden();
    std::int64_t count_triangles() const;
    bool may_flatten() const;

    sdkContext & m_context;
    std::vector<Solid> m_solids;
    std::int64_t m_hidden = 0; // parts, instances and bodies of parts that are left out
};
