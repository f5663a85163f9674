#pragma once

#include "iges/igesReader.h"
#include "iges/igesWriter.h"
#include "translators/kit/kitFormatTest.h"

class igesFormatTest : public kitFormatTestOf<igesReader, igesWriter> {
protected:
    igesFormatTest() : kitFormatTestOf(IGES_MANIFEST, "IGES") {}
};
