#pragma once

#include "sdk/exchange/sdkStatics.h"
#include "sdk/sdkInputFile.h"
#include "sdk/sdkModule.h"
#include "step/stepGaps.h"
#include "step/stepLosses.h"
#include "step/stepMappings.h"
#include "step/stepPmiSource.h"

#include <STEPCAFControl_Reader.hxx>

#include <memory>
#include <optional>
#include <vector>

// Reads ISO 10303-21 files of the application protocols 203, 214 and 242.
class stepReader : public sdkReader {
public:
    explicit stepReader(sdkContext & context);

    sdkResult parse(std::string const & path, Message_ProgressRange const & range) override;
    sdkResult transfer(sdkDocument & document, Message_ProgressRange const & range) override;

private:
    sdkResult check_text(sdkInputFile & file);
    sdkResult check_transformations() const;
    sdkResult without_shapes() const;
    void build_missing();
    void take_inventory();
    void take_external_inventories();
    void prepare_layers() const;

    sdkContext & m_context;
    sdkStatics m_statics;
    std::optional<STEPCAFControl_Reader> m_reader;
    std::string m_schema;
    stepTextualLinks m_links;
    std::vector<stepMappings::Copy> m_copies;
    stepLosses m_losses;
    std::shared_ptr<stepPmiSource> m_pmi; // null when the file has none
};
