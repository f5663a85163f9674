#pragma once

#include "sdk/sdkAnnotations.h"
#include "step/stepPmiGraph.h"

#include <map>
#include <memory>
#include <string>
#include <string_view>

class STEPCAFControl_Reader;

// The product and manufacturing information of a file that was read, and the shapes that the entities became
// that it refers to.
class stepPmiSource : public sdkAnnotationSource {
public:
    // The texts are in the code page that the reader has been told.
    explicit stepPmiSource(std::string_view text);

    // After the transfer, once.
    void take_shapes(STEPCAFControl_Reader const & reader);

    stepPmiGraph const & graph() const { return m_graph; }
    // Whether the entity of that number is part of it.
    bool has(int number) const { return m_graph.find(number) != nullptr; }
    // What FILE_SCHEMA says in the header, such as "AP242_MANAGED_MODEL_BASED_3D_ENGINEERING_MIM_LF { 1 0
    // 10303 442 1 1 4 }"; empty when it is not known.
    std::string const & schema() const { return m_schema; }
    // Of the geometry and of the products of the graph; null where there is none.
    TopoDS_Shape shape_of(int number) const;

private:
    stepPmiGraph m_graph;
    std::string m_schema;
    std::map<int, TopoDS_Shape> m_shapes;
};

// Lets the document know of them; to be called when the document is as the transfer has made it.
void step_add_annotations(sdkDocument const & document, std::shared_ptr<stepPmiSource> const & source);
