#pragma once

#include "step/stepReader.h"
#include "step/stepWriter.h"
#include "translators/kit/kitFormatTest.h"

class stepFormatTest : public kitFormatTestOf<stepReader, stepWriter> {
protected:
    stepFormatTest() : kitFormatTestOf(STEP_MANIFEST, "STEP") {}
};
