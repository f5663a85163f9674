#pragma once

#include <Standard_Handle.hxx>

class XSAlgo_AlgoContainer;

enum class sdkHealing {
    standard, // what Open CASCADE does by itself
    none      // shapes stay as the file has them
};

// Decides, while it lives, what the STEP and IGES machinery of this process does to each shape that it reads
// or writes. Writing leaves alone what needs no change, where Open CASCADE by itself would walk through all
// of it.
class sdkShapeProcessing {
public:
    explicit sdkShapeProcessing(sdkHealing reading);
    ~sdkShapeProcessing();
    sdkShapeProcessing(sdkShapeProcessing const &) = delete;
    sdkShapeProcessing & operator=(sdkShapeProcessing const &) = delete;

private:
    Handle(XSAlgo_AlgoContainer) m_old;
};
