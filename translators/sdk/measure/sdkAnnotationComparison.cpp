#include "sdk/measure/sdkAnnotationComparison.h"

#include <BRepGProp.hxx>
#include <BRep_Tool.hxx>
#include <GProp_GProps.hxx>
#include <Standard_Failure.hxx>
#include <TopoDS.hxx>

#include <algorithm>
#include <cmath>
#include <string>

namespace {

// Of places and measures, in millimetres and mm2, and as a share of them.
constexpr double absolute = 1e-3;
constexpr double relative = 1e-6;

// The shape that an annotation is attached to, as far as it has to be told from others.
struct Target {
    int type = TopAbs_SHAPE;
    double measure = 0;
    gp_Pnt place;
};

Target target_of(TopoDS_Shape const & shape)
{
    if (shape.IsNull()) {
        return {};
    }
    if (shape.ShapeType() == TopAbs_VERTEX) {
        return {TopAbs_VERTEX, 0, BRep_Tool::Pnt(TopoDS::Vertex(shape))};
    }
    GProp_GProps properties;
    bool const curve = shape.ShapeType() == TopAbs_EDGE || shape.ShapeType() == TopAbs_WIRE;
    try {
        if (curve) {
            BRepGProp::LinearProperties(shape, properties);
        } else {
            BRepGProp::SurfaceProperties(shape, properties);
        }
    } catch (Standard_Failure const &) {
        // What cannot be measured is told from others by its kind only.
        return {shape.ShapeType(), 0, {}};
    }
    return {shape.ShapeType(), properties.Mass(), properties.CentreOfMass()};
}

bool close(double one, double other)
{
    return std::abs(one - other) <= absolute + relative * std::max(std::abs(one), std::abs(other));
}

bool alike(Target const & one, Target const & other)
{
    return one.type == other.type && close(one.measure, other.measure) &&
           close(one.place.X(), other.place.X()) && close(one.place.Y(), other.place.Y()) &&
           close(one.place.Z(), other.place.Z());
}

struct Item {
    sdkAnnotation const * annotation;
    std::vector<Target> targets;
};

Item item_of(sdkAnnotation const & annotation)
{
    Item item{&annotation, {}};
    for (auto const & shape : annotation.shapes) {
        item.targets.push_back(target_of(shape));
    }
    return item;
}

// The two are the same, in whatever order they name their shapes.
bool same(Item const & one, Item const & other)
{
    return one.annotation->kind == other.annotation->kind &&
           one.annotation->content == other.annotation->content &&
           one.targets.size() == other.targets.size() &&
           std::is_permutation(one.targets.begin(), one.targets.end(), other.targets.begin(), alike);
}

bool same_name(Item const & one, Item const & other)
{
    return one.annotation->kind == other.annotation->kind && one.annotation->name == other.annotation->name;
}

std::vector<Item> items_of(sdkDocument const & document, sdkPromise const & promise)
{
    std::vector<Item> items;
    auto const & sets = sdk_annotations(document);
    for (std::size_t set = 0; set < sets.size(); ++set) {
        auto const & annotations = sets[set].annotations;
        for (std::size_t at = 0; at < annotations.size(); ++at) {
            if (promise.lost_annotations.count({set, at}) == 0) {
                items.push_back(item_of(annotations[at]));
            }
        }
    }
    return items;
}

template <class Fits>
void take_pairs(std::vector<Item> & source, std::vector<Item> & output, Fits fits,
                std::vector<Item> * taken = nullptr)
{
    std::erase_if(source, [&](Item const & one) {
        auto const found =
            std::find_if(output.begin(), output.end(), [&](Item const & other) { return fits(one, other); });
        if (found == output.end()) {
            return false;
        }
        output.erase(found);
        if (taken != nullptr) {
            taken->push_back(one);
        }
        return true;
    });
}

void add(std::vector<Item> const & items, sdkWeight weight, char const * kind, char const * text,
         std::vector<sdkFinding> & findings)
{
    for (auto const & item : items) {
        auto const & one = *item.annotation;
        findings.push_back({.weight = weight,
                            .kind = kind,
                            .part = {},
                            .place = one.place,
                            .text = sdkText(text, one.kind, one.name, one.place)});
    }
}

} // namespace

void sdk_compare_annotations(sdkDocument const & source, sdkDocument const & output,
                             sdkPromise const & promise, std::vector<sdkFinding> & findings)
{
    if (!promise.annotations) {
        return;
    }
    auto missing = items_of(source, promise);
    auto extra = items_of(output, {});
    std::vector<Item> changed;
    take_pairs(missing, extra, same);
    take_pairs(missing, extra, same_name, &changed);
    add(changed, sdkWeight::difference, "annotation-changed",
        "measure::The %s \"%s\" (%s in its file) says something else in the output, or is attached elsewhere",
        findings);
    add(missing, sdkWeight::loss, "annotation",
        "measure::The %s \"%s\" (%s in its file) is not in the output", findings);
    add(extra, sdkWeight::difference, "extra-annotation",
        "measure::The output has a %s \"%s\" (%s) that its source does not have", findings);
}
