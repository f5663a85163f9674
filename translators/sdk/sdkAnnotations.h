#pragma once

#include "sdk/sdkDocument.h"

#include <TopoDS_Shape.hxx>

#include <memory>
#include <string>
#include <vector>

// One dimension, geometric tolerance, datum, annotation or view of a source (product and manufacturing
// information), as far as it can be compared with another. Documents hold no more of it than this: what
// carries it from file to file is known to the format alone.
struct sdkAnnotation {
    std::string kind;  // a word for it that is a key, such as "term::dimension"
    std::string name;  // may be empty
    std::string place; // in its file, "#123"
    // All that it says, with its units; the same words and numbers give the same text, in whatever order the
    // file has them.
    std::string content;
    // The shapes of the document that it is attached to, each where its part has it. Null where a file names
    // one that gave no shape.
    std::vector<TopoDS_Shape> shapes;
};

// What a reader needs to give to the writer of its own format besides, so that it can write them again.
class sdkAnnotationSource {
public:
    virtual ~sdkAnnotationSource() = default;
};

// The annotations of one file, and what can write them.
struct sdkAnnotationSet {
    std::vector<sdkAnnotation> annotations;
    std::shared_ptr<sdkAnnotationSource const> source;
};

// For readers, once after the transfer; several readers of one document add up.
void sdk_add_annotations(sdkDocument const & document, sdkAnnotationSet set);

// In the order in which they were added. Valid as long as the document is and none is added.
std::vector<sdkAnnotationSet> const & sdk_annotations(sdkDocument const & document);
