#pragma once

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

// Goes through the sections of a BREP file that hold geometry. Open CASCADE takes memory for as many entries
// as a file says before it has read one, and follows every index.
template <class Source>
class brepGeometryCheck {
public:
    // `normals` when triangulations say whether they have some; the format has that from some version on.
    brepGeometryCheck(Source & source, bool normals) : m_source(source), m_normals(normals) {}

    void run()
    {
        each("Locations", m_locations, [this](std::int64_t number) { location(number); });
        each("Curve2ds", m_curves2d, [this](std::int64_t) { curve(2); });
        each("Curves", m_curves, [this](std::int64_t) { curve(3); });
        each("Polygon3D", m_polygons, [this](std::int64_t) { polygon(); });
        std::int64_t number = 0;
        each("PolygonOnTriangulations", number, [this](std::int64_t) { polygon_on_triangulation(); });
        each("Surfaces", m_surfaces, [this](std::int64_t) { surface(); });
        each("Triangulations", number, [this](std::int64_t) { triangulation(); });
    }

    // A number of things that take so many values each.
    std::int64_t counted(std::int64_t count, std::int64_t values)
    {
        if (count < 0 || !m_source.has_room(count) || !m_source.has_room(count * values)) {
            m_source.fail("the count " + std::to_string(count) + " does not fit a file of this size");
        }
        return count;
    }

    // Indices that shapes have; 0 stands for none.
    void location_index() { index(m_locations, "location"); }
    void curve2d_index() { index(m_curves2d, "curve on a surface"); }
    void curve_index() { index(m_curves, "curve"); }
    void surface_index() { index(m_surfaces, "surface"); }
    void polygon_index() { index(m_polygons, "polygon"); }
    std::int64_t triangulation_index()
    {
        return index(static_cast<std::int64_t>(m_nodes.size()), "triangulation");
    }
    // So many indices of polygons, and that of the triangulation whose nodes they name.
    void polygons_on_triangulation(int count)
    {
        std::int64_t largest = 0;
        for (int at = 0; at < count; ++at) {
            auto const polygon = index(static_cast<std::int64_t>(m_largest_nodes.size()), "polygon");
            largest =
                std::max(largest, polygon > 0 ? m_largest_nodes[static_cast<std::size_t>(polygon - 1)] : 0);
        }
        auto const mesh = triangulation_index();
        if (mesh > 0 && largest > m_nodes[static_cast<std::size_t>(mesh - 1)]) {
            m_source.fail("a polygon has nodes that its triangulation does not have");
        }
    }

private:
    template <class Entry>
    void each(char const * heading, std::int64_t & count, Entry const & entry)
    {
        count = counted(m_source.section(heading), 1);
        for (std::int64_t number = 1; number <= count; ++number) {
            entry(number);
        }
    }

    std::int64_t index(std::int64_t most, char const * what)
    {
        auto const number = m_source.integer();
        if (number < 0 || number > most) {
            m_source.fail("the file has no " + std::string(what) + " " + std::to_string(number));
        }
        return number;
    }

    void reals(std::int64_t count)
    {
        for (std::int64_t at = 0; at < count; ++at) {
            m_source.real();
        }
    }

    int degree()
    {
        constexpr int highest = 25; // that Open CASCADE has
        int const degree = m_source.degree();
        if (degree < 1 || degree > highest) {
            m_source.fail("the degree " + std::to_string(degree) + " is not between 1 and 25");
        }
        return degree;
    }

    void location(std::int64_t number)
    {
        switch (m_source.kind()) {
        case 1:
            reals(12);
            return;
        case 2:
            for (auto base = m_source.integer(); base != 0; base = m_source.integer()) {
                constexpr std::int64_t largest_power = 1000;
                auto const power = m_source.integer();
                if (base < 0 || base >= number || power < -largest_power || power > largest_power) {
                    m_source.fail("a location is made of one that comes later, or of too many");
                }
            }
            return;
        default:
            m_source.fail("there is no such kind of location");
        }
    }

    void curve(int dimension)
    {
        int const axes = dimension == 2 ? 2 : 3; // axes of a conic as vectors
        for (;;) {
            switch (m_source.kind()) {
            case 1:
                reals(2 * dimension);
                return;
            case 2:
            case 4:
                reals(dimension + axes * dimension + 1);
                return;
            case 3:
            case 5:
                reals(dimension + axes * dimension + 2);
                return;
            case 6: {
                bool const rational = m_source.boolean();
                reals((degree() + 1) * (dimension + (rational ? 1 : 0)));
                return;
            }
            case 7:
                spline(dimension);
                return;
            case 8:
                reals(2);
                continue;
            case 9:
                reals(dimension == 2 ? 1 : 4);
                continue;
            default:
                m_source.fail("there is no such kind of curve");
            }
        }
    }

    void spline(int dimension)
    {
        bool const rational = m_source.boolean();
        m_source.boolean(); // periodic
        degree();
        auto const poles = m_source.integer();
        auto const knots = m_source.integer();
        int const values = dimension + (rational ? 1 : 0);
        reals(counted(poles, values) * values);
        read_knots(knots);
    }

    void read_knots(std::int64_t count)
    {
        counted(count, 2);
        for (std::int64_t at = 0; at < count; ++at) {
            m_source.real();
            if (auto const multiplicity = m_source.integer(); multiplicity < 1 || multiplicity > 26) {
                m_source.fail("a knot has the multiplicity " + std::to_string(multiplicity));
            }
        }
    }

    void surface()
    {
        for (;;) {
            switch (m_source.kind()) {
            case 1:
                reals(12);
                return;
            case 2:
            case 4:
                reals(13);
                return;
            case 3:
            case 5:
                reals(14);
                return;
            case 6:
                reals(3);
                curve(3);
                return;
            case 7:
                reals(6);
                curve(3);
                return;
            case 8:
                bezier_surface();
                return;
            case 9:
                spline_surface();
                return;
            case 10:
                reals(4);
                continue;
            case 11:
                reals(1);
                continue;
            default:
                m_source.fail("there is no such kind of surface");
            }
        }
    }

    void bezier_surface()
    {
        bool const rational_u = m_source.boolean();
        bool const rational = m_source.boolean() || rational_u;
        int const rows = degree() + 1;
        reals(rows * (degree() + 1) * (rational ? 4 : 3));
    }

    void spline_surface()
    {
        bool const rational_u = m_source.boolean();
        bool const rational = m_source.boolean() || rational_u;
        m_source.boolean(); // periodic in u
        m_source.boolean(); // and v
        degree();
        degree();
        auto const rows = counted(m_source.integer(), 1);
        auto const columns = counted(m_source.integer(), 1);
        auto const knots_u = m_source.integer();
        auto const knots_v = m_source.integer();
        int const values = rational ? 4 : 3;
        reals(counted(rows * columns, values) * values);
        read_knots(knots_u);
        read_knots(knots_v);
    }

    void polygon()
    {
        auto const nodes = m_source.integer();
        bool const parameters = m_source.boolean();
        m_source.real(); // deflection
        int const values = parameters ? 4 : 3;
        reals(counted(nodes, values) * values);
    }

    void polygon_on_triangulation()
    {
        auto const nodes = counted(m_source.integer(), 1);
        std::int64_t largest = 0;
        for (std::int64_t at = 0; at < nodes; ++at) {
            auto const node = m_source.integer();
            if (node < 1) {
                m_source.fail("a polygon has the node " + std::to_string(node));
            }
            largest = std::max(largest, node);
        }
        m_largest_nodes.push_back(largest);
        m_source.polygon_mark();
        m_source.real(); // deflection
        if (m_source.boolean()) {
            reals(nodes);
        }
    }

    void triangulation()
    {
        auto const nodes = m_source.integer();
        auto const triangles = m_source.integer();
        bool const parameters = m_source.boolean();
        bool const normals = m_normals && m_source.boolean();
        m_source.real(); // deflection
        int const values = parameters ? 5 : 3;
        reals(counted(nodes, values) * values);
        counted(triangles, 3);
        for (std::int64_t at = 0; at < 3 * triangles; ++at) {
            if (auto const node = m_source.integer(); node < 1 || node > nodes) {
                m_source.fail("a triangle has the node " + std::to_string(node) + " of " +
                              std::to_string(nodes));
            }
        }
        for (std::int64_t at = 0; normals && at < 3 * nodes; ++at) {
            m_source.normal();
        }
        m_nodes.push_back(nodes);
    }

    Source & m_source;
    bool m_normals;
    std::int64_t m_locations = 0;
    std::int64_t m_curves2d = 0;
    std::int64_t m_curves = 0;
    std::int64_t m_polygons = 0;
    std::int64_t m_surfaces = 0;
    std::vector<std::int64_t> m_largest_nodes; // of each polygon on a triangulation
    std::vector<std::int64_t> m_nodes;         // of each triangulation
};
