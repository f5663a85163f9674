#include "step/stepPmiKinds.h"

#include <algorithm>
#include <array>

namespace {

using Subject = stepPmiLink::Subject;
using Holds = stepPmiLink::Holds;

constexpr std::array links{
    stepPmiLink{"DIMENSIONAL_CHARACTERISTIC_REPRESENTATION", Subject::first, Holds::first},
    stepPmiLink{"PLUS_MINUS_TOLERANCE", Subject::last, Holds::last},
    stepPmiLink{"GEOMETRIC_ITEM_SPECIFIC_USAGE", Subject::first, Holds::first},
    stepPmiLink{"ITEM_IDENTIFIED_REPRESENTATION_USAGE", Subject::first, Holds::first},
    stepPmiLink{"SHAPE_ASPECT_RELATIONSHIP", Subject::first_two, Holds::first_and_datum},
    stepPmiLink{"SHAPE_ASPECT_ASSOCIATIVITY", Subject::first_two, Holds::first_and_datum},
    stepPmiLink{"SHAPE_ASPECT_DERIVING_RELATIONSHIP", Subject::first_two, Holds::first_and_datum},
    stepPmiLink{"FEATURE_FOR_DATUM_TARGET_RELATIONSHIP", Subject::first_two, Holds::first_two},
    stepPmiLink{"TOLERANCE_ZONE", Subject::any, Holds::tolerances},
    stepPmiLink{"TOLERANCE_ZONE_WITH_DATUM", Subject::any, Holds::tolerances},
    stepPmiLink{"TOLERANCE_ZONE_DEFINITION", Subject::first, Holds::first},
    stepPmiLink{"PROJECTED_ZONE_DEFINITION", Subject::first, Holds::first},
    stepPmiLink{"PROJECTED_ZONE_DEFINITION_WITH_OFFSET", Subject::first, Holds::first},
    stepPmiLink{"NON_UNIFORM_ZONE_DEFINITION", Subject::first, Holds::first},
    stepPmiLink{"RUNOUT_ZONE_DEFINITION", Subject::first, Holds::first},
    stepPmiLink{"GEOMETRIC_TOLERANCE_RELATIONSHIP", Subject::both, Holds::nothing},
    stepPmiLink{"MEASURE_QUALIFICATION", Subject::first, Holds::first},
    stepPmiLink{"PROPERTY_DEFINITION", Subject::last, Holds::last},
    stepPmiLink{"PROPERTY_DEFINITION_REPRESENTATION", Subject::first, Holds::first},
    stepPmiLink{"SHAPE_DEFINITION_REPRESENTATION", Subject::first, Holds::first},
    stepPmiLink{"ID_ATTRIBUTE", Subject::last, Holds::nothing},
    stepPmiLink{"NAME_ATTRIBUTE", Subject::last, Holds::nothing},
    stepPmiLink{"DESCRIPTION_ATTRIBUTE", Subject::last, Holds::nothing},
    stepPmiLink{"DRAUGHTING_MODEL_ITEM_ASSOCIATION", Subject::not_second, Holds::from_third_on},
    stepPmiLink{"DRAUGHTING_MODEL_ITEM_ASSOCIATION_WITH_PLACEHOLDER", Subject::not_second,
                Holds::from_third_on},
    stepPmiLink{"CHARACTERIZED_ITEM_WITHIN_REPRESENTATION", Subject::first, Holds::nothing},
    stepPmiLink{"MODEL_GEOMETRIC_VIEW", Subject::first, Holds::nothing},
    stepPmiLink{"DEFAULT_MODEL_GEOMETRIC_VIEW", Subject::first, Holds::nothing},
    stepPmiLink{"CAMERA_USAGE", Subject::first, Holds::nothing},
    stepPmiLink{"DRAUGHTING_CALLOUT", Subject::listed, Holds::shown},
    stepPmiLink{"LEADER_DIRECTED_CALLOUT", Subject::listed, Holds::shown},
    stepPmiLink{"DRAUGHTING_CALLOUT_RELATIONSHIP", Subject::both, Holds::nothing},
    stepPmiLink{"ANNOTATION_PLANE", Subject::listed, Holds::shown},
    stepPmiLink{"DRAUGHTING_MODEL", Subject::listed, Holds::shown},
    stepPmiLink{"MECHANICAL_DESIGN_AND_DRAUGHTING_RELATIONSHIP", Subject::first_two, Holds::model},
    stepPmiLink{"INVISIBILITY", Subject::listed, Holds::nothing},
    stepPmiLink{"CONSTRUCTIVE_GEOMETRY_REPRESENTATION_RELATIONSHIP", Subject::first_two, Holds::nothing},
};

bool has(stepKinds const & kinds, std::string_view kind)
{
    return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

template <class Test>
bool any(stepKinds const & kinds, Test test)
{
    return std::any_of(kinds.begin(), kinds.end(), test);
}

bool is_dimension(std::string_view kind)
{
    return kind.starts_with("DIMENSIONAL_SIZE") || kind.starts_with("DIMENSIONAL_LOCATION") ||
           kind == "DIRECTED_DIMENSIONAL_LOCATION" || kind == "ANGULAR_SIZE" || kind == "ANGULAR_LOCATION";
}

bool is_tolerance(std::string_view kind)
{
    return (kind.ends_with("_TOLERANCE") && kind != "PLUS_MINUS_TOLERANCE") ||
           kind.starts_with("GEOMETRIC_TOLERANCE_WITH_");
}

bool is_annotation(std::string_view kind)
{
    return kind.find("ANNOTATION_") != std::string_view::npos &&
           (kind.ends_with("_OCCURRENCE") || kind.ends_with("_OCCURRENCE_WITH_LEADER_LINE"));
}

} // namespace

char const * step_pmi_item(stepKinds const & kinds)
{
    if (any(kinds, is_dimension)) {
        return "term::dimension";
    }
    if (any(kinds, is_tolerance)) {
        return "term::geometric tolerance";
    }
    if (step_is_datum(kinds)) {
        return "term::datum";
    }
    if (any(kinds, is_annotation) && !has(kinds, "ANNOTATION_PLANE")) {
        return "term::annotation";
    }
    return any(kinds, [](auto kind) { return kind.starts_with("CAMERA_MODEL_D3"); }) ? "term::view" : nullptr;
}

stepPmiLink const * step_pmi_link(stepKinds const & kinds)
{
    auto const found =
        std::find_if(links.begin(), links.end(), [&](auto const & link) { return has(kinds, link.kind); });
    return found == links.end() ? nullptr : &*found;
}

bool step_is_group(stepKinds const & kinds)
{
    auto const * link = step_pmi_link(kinds);
    return link != nullptr && link->subject == Subject::listed;
}

bool step_is_drawn_model(stepKinds const & kinds)
{
    return has(kinds, "DRAUGHTING_MODEL");
}

bool step_names_geometry(stepKinds const & kinds)
{
    return has(kinds, "GEOMETRIC_ITEM_SPECIFIC_USAGE") || has(kinds, "ITEM_IDENTIFIED_REPRESENTATION_USAGE");
}

bool step_is_plain_style(stepKinds const & kinds)
{
    return any(kinds, [](auto kind) { return kind.ends_with("STYLED_ITEM"); }) &&
           step_pmi_item(kinds) == nullptr && !has(kinds, "ANNOTATION_PLANE");
}

bool step_is_topology(stepKinds const & kinds)
{
    return any(kinds, [](std::string_view kind) {
        return kind.ends_with("_FACE") || kind == "FACE_SURFACE" || kind == "EDGE_CURVE" ||
               kind.ends_with("_EDGE") || kind == "VERTEX_POINT" || kind.ends_with("_SHELL") ||
               kind.ends_with("CONNECTED_FACE_SET") || kind.ends_with("_BREP") || kind == "BREP_WITH_VOIDS" ||
               kind.ends_with("_SURFACE_MODEL") || kind == "TESSELLATED_SOLID" || kind == "CSG_SOLID";
    });
}

bool step_is_datum(stepKinds const & kinds)
{
    return has(kinds, "DATUM") || has(kinds, "COMMON_DATUM");
}

bool step_is_product(stepKinds const & kinds)
{
    return any(kinds, [](std::string_view kind) {
        return (kind.starts_with("PRODUCT") && kind != "PRODUCT_CONTEXT") ||
               kind == "NEXT_ASSEMBLY_USAGE_OCCURRENCE";
    });
}
