#pragma once

#include "step/stepReader.h"
#include "step/stepWriter.h"
#include "translators/kit/kitFormatTest.h"

class stepFormatTest : public kitFormatTest {
protected:
    stepFormatTest() : kitFormatTest(STEP_MANIFEST, "STEP") {}

    std::unique_ptr<sdkReader> make_reader(sdkContext & context) override
    {
        return std::make_unique<stepReader>(context);
    }
    std::unique_ptr<sdkWriter> make_writer(sdkContext & context) override
    {
        return std::make_unique<stepWriter>(context);
    }
};
