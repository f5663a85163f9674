#pragma once

#include "brep/brepReader.h"
#include "brep/brepWriter.h"
#include "translators/kit/kitFormatTest.h"

class brepFormatTest : public kitFormatTestOf<brepReader, brepWriter> {
protected:
    brepFormatTest() : kitFormatTestOf(BREP_MANIFEST, "BREP") {}

    // The text of the failure to read a file of that content; empty when it could be read.
    std::string failure_of(std::string const & content)
    {
        sdkDocument document;
        auto const result = read(folder().write("part.brep", content), document);
        EXPECT_TRUE(result || document.empty());
        EXPECT_TRUE(result || result.status() == sdkStatus::read_error);
        return result ? std::string() : result.text().formatted();
    }

    // The content of a file that holds the shape.
    std::string written(TopoDS_Shape const & shape, Values const & values = {})
    {
        EXPECT_TRUE(write(shape, path("written.brep"), values));
        return kit_read_file(path("written.brep"));
    }
};
