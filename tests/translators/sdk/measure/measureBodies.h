#pragma once

#include "sdk/measure/sdkComparison.h"
#include "sdk/measure/sdkInventory.h"

#include <TopExp_Explorer.hxx>
#include <TopLoc_Location.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Trsf.hxx>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

// What the tests of measures and comparisons share.

inline TopLoc_Location shifted(double x, double y = 0, double z = 0)
{
    gp_Trsf shift;
    shift.SetTranslation(gp_Vec(x, y, z));
    return {shift};
}

// Of a document with these shapes, each a free one with its name.
inline sdkInventory inventory_of(std::vector<std::pair<std::string, TopoDS_Shape>> const & shapes,
                                 sdkMeasureLevel level = sdkMeasureLevel::full)
{
    sdkDocument document;
    for (auto const & [name, shape] : shapes) {
        document.add_shape(shape, name);
    }
    return sdk_take_inventory(document, {.level = level});
}

// A promise of all that there is.
inline sdkComparisonOptions everything()
{
    sdkComparisonOptions options;
    options.promise.made = true;
    return options;
}

inline std::vector<std::string> kinds(std::vector<sdkFinding> const & findings)
{
    std::vector<std::string> kinds;
    for (auto const & finding : findings) {
        kinds.push_back(finding.kind);
    }
    std::sort(kinds.begin(), kinds.end());
    return kinds;
}

using Kinds = std::vector<std::string>;

inline sdkFinding const * find(std::vector<sdkFinding> const & findings, std::string const & kind)
{
    auto const found = std::find_if(findings.begin(), findings.end(),
                                    [&](auto const & finding) { return finding.kind == kind; });
    return found == findings.end() ? nullptr : &*found;
}

// All texts have the conversions that their arguments need.
inline bool all_fit(std::vector<sdkFinding> const & findings)
{
    return std::all_of(findings.begin(), findings.end(),
                       [](auto const & finding) { return finding.text.fits(); });
}

// Of a comparison; expects that their texts are good.
inline std::vector<sdkFinding> findings_of(sdkInventory const & source, sdkInventory const & output,
                                           sdkComparisonOptions const & options = everything())
{
    auto const findings = sdk_compare(source, output, options);
    EXPECT_TRUE(all_fit(findings));
    return findings;
}
