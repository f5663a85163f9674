#include "stepPmiPart.h"

#include "step/stepDefinitions.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <vector>

namespace {

constexpr char const * template_text = R"(
#90001=(LENGTH_UNIT()NAMED_UNIT(*)SI_UNIT(.MILLI.,.METRE.));
#90002=(CONVERSION_BASED_UNIT('INCH',#90003)LENGTH_UNIT()NAMED_UNIT(#90004));
#90003=LENGTH_MEASURE_WITH_UNIT(LENGTH_MEASURE(25.4),#90001);
#90004=DIMENSIONAL_EXPONENTS(1.,0.,0.,0.,0.,0.,0.);
#90005=(CONVERSION_BASED_UNIT('DEGREE',#90006)NAMED_UNIT(#90007)PLANE_ANGLE_UNIT());
#90006=PLANE_ANGLE_MEASURE_WITH_UNIT(PLANE_ANGLE_MEASURE(0.0174532925199433),#90008);
#90007=DIMENSIONAL_EXPONENTS(0.,0.,0.,0.,0.,0.,0.);
#90008=(NAMED_UNIT(*)PLANE_ANGLE_UNIT()SI_UNIT($,.RADIAN.));
#90009=(GEOMETRIC_REPRESENTATION_CONTEXT(3)GLOBAL_UNIT_ASSIGNED_CONTEXT((#90001,#90005))REPRESENTATION_CONTEXT('',''));
/* the faces; what stands in a comment; or in a string is no entity */
#90011=SHAPE_ASPECT('top #1;','',{shape},.T.);
#90012=GEOMETRIC_ITEM_SPECIFIC_USAGE('','',#90011,{representation},{z10});
#90013=SHAPE_ASPECT('side','',{shape},.T.);
#90014=GEOMETRIC_ITEM_SPECIFIC_USAGE('','',#90013,{representation},{x10});
#90015=ID_ATTRIBUTE('top face',#90011);
/* the size */
#90021=DIMENSIONAL_SIZE(#90011,'thickness');
#90022=DIMENSIONAL_CHARACTERISTIC_REPRESENTATION(#90021,#90023);
#90023=SHAPE_DIMENSION_REPRESENTATION('',(#90024),#90009);
#90024=(LENGTH_MEASURE_WITH_UNIT()MEASURE_REPRESENTATION_ITEM()MEASURE_WITH_UNIT(POSITIVE_LENGTH_MEASURE(0.3937007874),#90002)QUALIFIED_REPRESENTATION_ITEM((#90025))REPRESENTATION_ITEM('nominal value'));
#90025=VALUE_FORMAT_TYPE_QUALIFIER('NR2 1.3');
#90026=PLUS_MINUS_TOLERANCE(#90027,#90021);
#90027=TOLERANCE_VALUE(#90028,#90029);
#90028=LENGTH_MEASURE_WITH_UNIT(LENGTH_MEASURE(-0.001),#90002);
#90029=LENGTH_MEASURE_WITH_UNIT(LENGTH_MEASURE(0.002),#90002);
/* the angle */
#90031=ANGULAR_LOCATION('angle','',#90011,#90013,.EQUAL.);
#90032=DIMENSIONAL_CHARACTERISTIC_REPRESENTATION(#90031,#90033);
#90033=SHAPE_DIMENSION_REPRESENTATION('',(#90034),#90009);
#90034=(MEASURE_REPRESENTATION_ITEM()MEASURE_WITH_UNIT(PLANE_ANGLE_MEASURE(90.),#90005)PLANE_ANGLE_MEASURE_WITH_UNIT()REPRESENTATION_ITEM('nominal value'));
/* the flatness */
#90041=FLATNESS_TOLERANCE('flat','',#90042,#90011);
#90042=LENGTH_MEASURE_WITH_UNIT(LENGTH_MEASURE(0.1),#90001);
/* the datums */
#90051=DATUM('','',{shape},.F.,'A');
#90052=DATUM_FEATURE('','',{shape},.T.);
#90053=SHAPE_ASPECT_RELATIONSHIP('','',#90052,#90051);
#90054=GEOMETRIC_ITEM_SPECIFIC_USAGE('','',#90052,{representation},{z0});
#90055=DATUM('','',{shape},.F.,'B');
#90056=DATUM_FEATURE('','',{shape},.T.);
#90057=SHAPE_ASPECT_RELATIONSHIP('','',#90056,#90055);
#90058=GEOMETRIC_ITEM_SPECIFIC_USAGE('','',#90056,{representation},{x0});
#90059=DATUM('','',{shape},.F.,'C');
#90060=DATUM_FEATURE('','',{shape},.T.);
#90061=SHAPE_ASPECT_RELATIONSHIP('','',#90060,#90059);
#90062=GEOMETRIC_ITEM_SPECIFIC_USAGE('','',#90060,{representation},{y0});
#90063=DATUM_SYSTEM('','',{shape},.F.,(#90064,#90065,#90066));
#90064=DATUM_REFERENCE_COMPARTMENT('','',{shape},.F.,#90051,$);
#90065=DATUM_REFERENCE_COMPARTMENT('','',{shape},.F.,#90055,(SIMPLE_DATUM_REFERENCE_MODIFIER(.MAXIMUM_MATERIAL_REQUIREMENT.)));
#90066=DATUM_REFERENCE_COMPARTMENT('','',{shape},.F.,#90059,$);
/* the position */
#90071=(GEOMETRIC_TOLERANCE('position','',#90072,#90013)GEOMETRIC_TOLERANCE_WITH_DATUM_REFERENCE((#90063))GEOMETRIC_TOLERANCE_WITH_MODIFIERS((.MAXIMUM_MATERIAL_REQUIREMENT.))POSITION_TOLERANCE());
#90072=LENGTH_MEASURE_WITH_UNIT(LENGTH_MEASURE(0.004),#90002);
#90073=TOLERANCE_ZONE('','',{shape},.F.,(#90071),#90074);
#90074=TOLERANCE_ZONE_FORM('cylindrical or circular');
/* the target of a datum of its own */
#90081=DATUM('','',{shape},.F.,'D');
#90082=PLACED_DATUM_TARGET_FEATURE('','point',{shape},.T.,'1');
#90083=FEATURE_FOR_DATUM_TARGET_RELATIONSHIP('','',#90011,#90082);
#90084=SHAPE_ASPECT_RELATIONSHIP('','',#90082,#90081);
#90085=PROPERTY_DEFINITION('','',#90082);
#90086=SHAPE_DEFINITION_REPRESENTATION(#90085,#90087);
#90087=SHAPE_REPRESENTATION_WITH_PARAMETERS('',(#90088),#90009);
#90088=AXIS2_PLACEMENT_3D('orientation',#90089,$,$);
#90089=CARTESIAN_POINT('',(2.,3.,10.));
/* the note and the view */
#90101=ANNOTATION_CURVE_OCCURRENCE('note {note}',(#90102),#90105);
#90102=PRESENTATION_STYLE_ASSIGNMENT((#90103));
#90103=CURVE_STYLE('',$,POSITIVE_LENGTH_MEASURE(0.35),#90104);
#90104=COLOUR_RGB('',1.,0.5,0.);
#90105=POLYLINE('',(#90106,#90107));
#90106=CARTESIAN_POINT('',(0.,0.,15.));
#90107=CARTESIAN_POINT('',(0.25,0.,15.));
#90108=DRAUGHTING_CALLOUT('note',(#90101));
#90109=DRAUGHTING_MODEL('',(#90108,#90110,#90114),#90009);
#90110=STYLED_ITEM('',(),{z10});
#90111=MECHANICAL_DESIGN_AND_DRAUGHTING_RELATIONSHIP('','',#90109,{representation});
#90112=DRAUGHTING_MODEL_ITEM_ASSOCIATION('','',#90021,#90109,#90108);
#90113=INVISIBILITY((#90110,#90101));
#90114=CAMERA_MODEL_D3('Front',#90115,#90117);
#90115=AXIS2_PLACEMENT_3D('',#90116,$,$);
#90116=CARTESIAN_POINT('',(5.,-40.,5.));
#90117=VIEW_VOLUME(.PARALLEL.,#90116,100.,0.,.F.,0.,.F.,.F.,#90118);
#90118=PLANAR_BOX('',20.,20.,#90115);
)";

// The points of the vertices below an entity.
void add_points(stepDefinitions const & definitions, int number, std::set<int> & seen,
                std::vector<std::vector<double>> & points)
{
    if (!seen.insert(number).second) {
        return;
    }
    auto const definition = definitions.of(number);
    for (auto const & token : step_tokens(definition)) {
        if (token.kind != stepToken::Kind::reference) {
            continue;
        }
        if (!definition.starts_with("VERTEX_POINT")) {
            add_points(definitions, token.number, seen, points);
            continue;
        }
        points.emplace_back();
        for (auto const & coordinate : step_tokens(definitions.of(token.number))) {
            if (coordinate.depth == 2 && coordinate.kind == stepToken::Kind::word) {
                points.back().push_back(std::stod(std::string(coordinate.text)));
            }
        }
    }
}

// The face that lies in the plane where a coordinate has that value.
std::string face_at(stepDefinitions const & definitions, std::size_t axis, double value)
{
    for (auto const & [number, definition] : definitions.all()) {
        if (!definition.starts_with("ADVANCED_FACE")) {
            continue;
        }
        std::vector<std::vector<double>> points;
        std::set<int> seen;
        add_points(definitions, number, seen, points);
        if (std::all_of(points.begin(), points.end(),
                        [&](auto const & point) { return std::abs(point[axis] - value) < 1e-6; })) {
            return "#" + std::to_string(number);
        }
    }
    return "$";
}

std::string number_of(stepDefinitions const & definitions, std::string_view kind)
{
    for (auto const & [number, definition] : definitions.all()) {
        if (step_kinds(definition).front() == kind) {
            return "#" + std::to_string(number);
        }
    }
    return "$";
}

void replace(std::string & text, std::string const & what, std::string const & with)
{
    for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at)) {
        text.replace(at, what.size(), with);
    }
}

} // namespace

std::string step_with_pmi(std::string const & cube)
{
    stepDefinitions const definitions(cube);
    std::string entities = template_text;
    replace(entities, "{shape}", number_of(definitions, "PRODUCT_DEFINITION_SHAPE"));
    replace(entities, "{representation}", number_of(definitions, "ADVANCED_BREP_SHAPE_REPRESENTATION"));
    replace(entities, "{x0}", face_at(definitions, 0, 0));
    replace(entities, "{x10}", face_at(definitions, 0, 10));
    replace(entities, "{y0}", face_at(definitions, 1, 0));
    replace(entities, "{z0}", face_at(definitions, 2, 0));
    replace(entities, "{z10}", face_at(definitions, 2, 10));
    replace(entities, "{note}", "Ø 10 µm");
    auto const data = cube.find("DATA;") + 5;
    return cube.substr(0, data) + entities + cube.substr(data);
}

int step_count_kind(std::string const & text, std::string const & kind)
{
    stepDefinitions const definitions(text);
    return static_cast<int>(
        std::count_if(definitions.all().begin(), definitions.all().end(), [&](auto const & one) {
            auto const kinds = step_kinds(one.second);
            return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
        }));
}
