#pragma once

#include "iges/igesReader.h"
#include "iges/igesWriter.h"
#include "translators/kit/kitFormatTest.h"

class igesFormatTest : public kitFormatTest {
protected:
    igesFormatTest() : kitFormatTest(IGES_MANIFEST, "IGES") {}

    std::unique_ptr<sdkReader> make_reader(sdkContext & context) override
    {
        return std::make_unique<igesReader>(context);
    }
    std::unique_ptr<sdkWriter> make_writer(sdkContext & context) override
    {
        return std::make_unique<igesWriter>(context);
    }
};
