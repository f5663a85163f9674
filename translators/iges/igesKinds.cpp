#include "iges/igesKinds.h"

#include <map>

namespace {

struct Type {
    sdkSourceKind kind;
    std::string_view name;
};

// IGES 5.3, chapter 4. Curves and surfaces that stand alone are curves and faces.
std::map<int, Type> const & types()
{
    using enum sdkSourceKind;
    static std::map<int, Type> const types{
        {100, {curve, "circular arc"}},
        {102, {curve, "composite curve"}},
        {104, {curve, "conic arc"}},
        {106, {curve, "copious data"}},
        {108, {face, "plane"}},
        {110, {curve, "line"}},
        {112, {curve, "parametric spline curve"}},
        {114, {face, "parametric spline surface"}},
        {116, {point, "point"}},
        {118, {face, "ruled surface"}},
        {120, {face, "surface of revolution"}},
        {122, {face, "tabulated cylinder"}},
        {126, {curve, "rational B-spline curve"}},
        {128, {face, "rational B-spline surface"}},
        {130, {curve, "offset curve"}},
        {140, {face, "offset surface"}},
        {143, {face, "bounded surface"}},
        {144, {face, "trimmed surface"}},
        {150, {solid, "block"}},
        {152, {solid, "right angular wedge"}},
        {154, {solid, "right circular cylinder"}},
        {156, {solid, "right circular cone frustum"}},
        {158, {solid, "sphere"}},
        {160, {solid, "torus"}},
        {162, {solid, "solid of revolution"}},
        {164, {solid, "solid of linear extrusion"}},
        {168, {solid, "ellipsoid"}},
        {180, {solid, "boolean tree"}},
        {182, {solid, "selected component"}},
        {184, {solid, "solid assembly"}},
        {186, {solid, "manifold solid B-rep object"}},
        {190, {face, "plane surface"}},
        {192, {face, "right circular cylindrical surface"}},
        {194, {face, "right circular conical surface"}},
        {196, {face, "spherical surface"}},
        {198, {face, "toroidal surface"}},
        {412, {root, "rectangular array of instances"}},
        {414, {root, "circular array of instances"}},
        {416, {root, "external reference"}},
        {420, {root, "network subfigure instance"}},
        {430, {solid, "solid instance"}},
        {510, {face, "face"}},
        {514, {shell, "shell"}},
    };
    return types;
}

// Copious data of these forms is lines of drawings.
bool is_drawn_lines(Handle(IGESData_IGESEntity) const & entity)
{
    return entity->TypeNumber() == 106 && entity->FormNumber() >= 20 && entity->FormNumber() <= 40;
}

} // namespace

std::optional<sdkSourceKind> iges_kind(Handle(IGESData_IGESEntity) const & entity)
{
    auto const found = types().find(entity->TypeNumber());
    if (found == types().end() || is_drawn_lines(entity)) {
        return std::nullopt;
    }
    return found->second.kind;
}

bool iges_is_annotation(Handle(IGESData_IGESEntity) const & entity)
{
    int const type = entity->TypeNumber();
    bool const analysis = type == 134 || type == 136 || type == 138 || type == 146 || type == 148;
    return (type >= 202 && type <= 230) || type == 404 || type == 410 || analysis || is_drawn_lines(entity);
}

std::string_view iges_type_name(Handle(IGESData_IGESEntity) const & entity)
{
    auto const found = types().find(entity->TypeNumber());
    return found == types().end() ? "entity" : found->second.name;
}
