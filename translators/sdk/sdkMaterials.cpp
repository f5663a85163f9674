#include "sdk/sdkMaterials.h"

#include <TCollection_HAsciiString.hxx>
#include <TDataStd_TreeNode.hxx>
#include <XCAFDoc.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_Material.hxx>
#include <XCAFDoc_MaterialTool.hxx>

namespace {

// The toolkit makes entries without a word for properties that it does not understand.
bool says_something(TDF_Label const & label)
{
    Handle(XCAFDoc_Material) material;
    return label.FindAttribute(XCAFDoc_Material::GetID(), material) &&
           (material->GetDensity() > 0 || (!material->GetName().IsNull() && !material->GetName()->IsEmpty()));
}

} // namespace

TDF_Label sdk_material(TDF_Label const & shape)
{
    Handle(TDataStd_TreeNode) node;
    if (shape.IsNull() || !shape.FindAttribute(XCAFDoc::MaterialRefGUID(), node) || !node->HasFather()) {
        return {};
    }
    auto const label = node->Father()->Label();
    return says_something(label) ? label : TDF_Label();
}

void sdk_set_material(sdkDocument const & document, TDF_Label const & shape, TDF_Label const & material)
{
    if (!shape.IsNull() && !material.IsNull()) {
        XCAFDoc_DocumentTool::MaterialTool(document.handle()->Main())->SetMaterial(shape, material);
    }
}

std::int64_t sdk_count_materials(sdkDocument const & document)
{
    TDF_LabelSequence shapes;
    document.shapes()->GetShapes(shapes);
    std::int64_t count = 0;
    for (auto const & shape : shapes) {
        count += sdk_material(shape).IsNull() ? 0 : 1;
    }
    return count;
}
