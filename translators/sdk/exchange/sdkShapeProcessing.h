#pragma once

#include <Standard_Handle.hxx>

class XSAlgo_AlgoContainer;

class sdkContext;

enum class sdkHealing {
    standard,   // what Open CASCADE does by itself
    boundaries, // faces whose boundary does not close are repaired, all else stays as the file has it
    none        // shapes stay as the file has them
};

// What a reader does that has such an option of whether to repair. A file that is read back to be measured is
// repaired as little as can be: more would hide what is wrong with it, and take longer.
sdkHealing sdk_reading_healing(sdkContext & context, char const * option);

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
