#include "vmr/vmrGeneralResources.h"

#include "vmr/vmrLengthUnit.h"

namespace {

vmrResourceDeclaration units()
{
    vmrResourceDeclaration declaration;
    declaration.name = "vmrOptOutputUnits";
    declaration.kind = vmrResourceKind::choice;
    for (int unit = vmrLengthUnitMicron; unit <= vmrLengthUnitMile; ++unit)
        declaration.choices.push_back(vmr_length_value_to_string(static_cast<vmrLengthUnit>(unit)).str());
    declaration.default_value = "mm";
    return declaration;
}

vmrResourceDeclaration flag(char const * name)
{
    vmrResourceDeclaration declaration;
    declaration.name = name;
    declaration.kind = vmrResourceKind::boolean;
    declaration.default_value = "true";
    return declaration;
}

vmrResourceDeclaration verification()
{
    vmrResourceDeclaration declaration;
    declaration.name = "vmrOptVerify";
    declaration.kind = vmrResourceKind::choice;
    declaration.choices = {"none", "counts", "full"};
    declaration.default_value = "full";
    return declaration;
}

vmrResourceDeclaration tolerance(char const * name, char const * value)
{
    vmrResourceDeclaration declaration;
    declaration.name = name;
    declaration.kind = vmrResourceKind::real;
    declaration.default_value = value;
    // A tolerance of nothing would never be met; this is the distance below which points count as one.
    declaration.minimum = 1e-7;
    return declaration;
}

} // namespace

std::vector<vmrResourceDeclaration> const & vmr_general_resources()
{
    static std::vector<vmrResourceDeclaration> const resources = {
        units(),
        flag("vmrOptProcessWireframe"),
        flag("vmrOptProcessSurfaces"),
        verification(),
        tolerance("vmrTolTriangulate3d", "0.1"),
        tolerance("vmrTolPolygonizeCurve2d", "0.01"),
        tolerance("vmrTolPolygonizeCurve3d", "0.01"),
        tolerance("vmrTolCurveOnSurface3d", "0.01")};
    return resources;
}
