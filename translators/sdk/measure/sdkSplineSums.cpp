#include "sdk/measure/sdkSplineSums.h"

#include "sdk/measure/sdkSplineRows.h"

#include <algorithm>

namespace {

sdkParameterBox box_of(std::vector<sdkBoundaryNode> const & nodes, sdkSpans const & spans)
{
    auto const [least, most] = std::minmax_element(nodes.begin(), nodes.end(),
                                                   [](auto const & a, auto const & b) { return a.v < b.v; });
    return {spans.front(), spans.back(), least->v, most->v};
}

// Along the boundary, and from each node through all spans. The places in a whole span are the same for all
// rows.
class SplineSums {
public:
    SplineSums(BRepAdaptor_Surface const & surface, std::vector<sdkBoundaryNode> const & nodes,
               sdkSpans const & spans, int points)
        : m_nodes(nodes), m_spans(spans), m_rule(sdk_gauss_rule(points)),
          m_rows(surface.Surface().BSpline(), surface.Trsf(), box_of(nodes, spans)), m_whole(spans.size() - 1)
    {
        for (std::size_t at = 0; at + 1 < spans.size(); ++at) {
            evaluate(spans[at], spans[at + 1], m_whole[at]);
        }
    }

    void add_to(sdkFaceSums & sums)
    {
        for (auto const & node : m_nodes) {
            if (node.u <= m_spans.front()) {
                continue;
            }
            m_rows.move_to(node.v, node.u);
            for (std::size_t at = 0; at + 1 < m_spans.size() && node.u > m_spans[at]; ++at) {
                add_span(at, node, sums);
            }
        }
    }

private:
    void evaluate(double from, double to, sdkSplineBasis & basis)
    {
        m_places.clear();
        for (auto const & [place, weight] : m_rule) {
            m_places.push_back(from + (to - from) / 2 * (1 + place));
        }
        m_rows.evaluate(m_places, basis);
    }

    void add_span(std::size_t at, sdkBoundaryNode const & node, sdkFaceSums & sums)
    {
        double const from = m_spans[at];
        double const to = std::min(node.u, m_spans[at + 1]);
        bool const whole = to == m_spans[at + 1];
        if (!whole) {
            evaluate(from, to, m_part);
        }
        m_rows.points(whole ? m_whole[at] : m_part, m_points);
        for (std::size_t point = 0; point < m_points.size(); ++point) {
            sums.add(m_points[point], (to - from) / 2 * m_rule[point].second * node.weight);
        }
    }

    std::vector<sdkBoundaryNode> const & m_nodes;
    sdkSpans const & m_spans;
    std::vector<std::pair<double, double>> const & m_rule;
    sdkSplineRows m_rows;
    std::vector<sdkSplineBasis> m_whole; // by span
    sdkSplineBasis m_part;
    std::vector<double> m_places;
    std::vector<sdkSurfacePoint> m_points;
};

} // namespace

void sdk_add_spline_rows(BRepAdaptor_Surface const & surface, std::vector<sdkBoundaryNode> const & nodes,
                         sdkSpans const & spans, int points, sdkFaceSums & sums)
{
    SplineSums(surface, nodes, spans, points).add_to(sums);
}
