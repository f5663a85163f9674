#include "sdk/measure/sdkGaussRule.h"

#include <math.hxx>
#include <math_Vector.hxx>

#include <algorithm>
#include <array>
#include <cstddef>

namespace {

using Rule = std::vector<std::pair<double, double>>;

constexpr int most = 61;

Rule make_rule(int points)
{
    math_Vector places(1, points);
    math_Vector weights(1, points);
    math::GaussPoints(points, places);
    math::GaussWeights(points, weights);
    Rule rule;
    for (int at = 1; at <= points; ++at) {
        rule.emplace_back(places(at), weights(at));
    }
    return rule;
}

} // namespace

Rule const & sdk_gauss_rule(int points)
{
    static std::array<Rule, most> const rules = [] {
        std::array<Rule, most> made;
        for (int number = 1; number <= most; ++number) {
            made[static_cast<std::size_t>(number - 1)] = make_rule(number);
        }
        return made;
    }();
    return rules.at(static_cast<std::size_t>(points - 1));
}

int sdk_gauss_points(int degree)
{
    return std::clamp(2 * degree, 4, 24);
}
