#include "brep/brepCheck.h"

#include "brep/brepBinarySource.h"
#include "brep/brepDefect.h"
#include "brep/brepGeometryCheck.h"
#include "brep/brepHeader.h"
#include "brep/brepTextSource.h"
#include "sdk/sdkLimits.h"

#include <algorithm>

namespace {

// As the library numbers them, from compound to vertex.
enum Kind : int { compound, compound_solid, solid, shell, face, wire, edge, vertex };

// Shapes of a file, each of which uses those before it.
class Shapes {
public:
    explicit Shapes(std::size_t count) : m_places(count, 0), m_depths(count, 0) {}

    void begin(int kind)
    {
        m_kind = kind;
        m_here = kind == wire ? 0 : 1;
        m_depth = 0;
    }

    // By the number in the file, which counts backwards. False when it is none of a shape before this one.
    bool use(std::int64_t number)
    {
        auto const at = static_cast<std::int64_t>(m_places.size()) - number;
        if (number < 1 || at < 0 || at >= m_number) {
            return false;
        }
        auto const used = static_cast<std::size_t>(at);
        if (m_kind < face || m_kind == wire) {
            m_here = std::min(m_here + m_places[used], countless);
        }
        m_depth = std::max(m_depth, m_depths[used]);
        return true;
    }

    void end()
    {
        m_places[static_cast<std::size_t>(m_number)] = m_here;
        m_depths[static_cast<std::size_t>(m_number)] = m_depth + 1;
        ++m_number;
        m_most = std::max(m_most, m_here);
        m_deepest = std::max(m_deepest, m_depth + 1);
    }

    std::int64_t most() const { return m_most; }
    int deepest() const { return m_deepest; }

private:
    static constexpr std::int64_t countless = 1'000'000'000'000'000'000;

    std::vector<std::int64_t> m_places;
    std::vector<int> m_depths;
    std::int64_t m_number = 0;
    int m_kind = compound;
    std::int64_t m_here = 0;
    int m_depth = 0;
    std::int64_t m_most = 0;
    int m_deepest = 0;
};

// What the two forms of the format write in different order.
class TextForm : public brepTextSource {
public:
    TextForm(std::string_view content, brepHeader const & header)
        : brepTextSource(content, header.sections), m_points_on_surface(header.version == 2),
          m_normals(header.version >= 3)
    {
    }

    bool normals() const { return m_normals; }
    bool points_on_surface() const { return m_points_on_surface; }
    void polygon_mark() { mark("p"); }
    void normal() { real(); }

    int shape_kind()
    {
        constexpr std::string_view names[] = {"Co", "CS", "So", "Sh", "Fa", "Wi", "Ed", "Ve"};
        auto const found = std::find(std::begin(names), std::end(names), word());
        if (found == std::end(names)) {
            fail("there is no such kind of shape");
        }
        return static_cast<int>(found - std::begin(names));
    }

    void flags()
    {
        if (word().size() < 7) {
            fail("a shape has no flags");
        }
    }

    // The kind of the next representation of a vertex, with its first parameter.
    int vertex_representation()
    {
        real();
        return kind();
    }

    // A face has its triangulation on a line that begins with 2, or none.
    bool triangulated() { return next() == '2' && integer() == 2; }

    // False at the end of the list.
    bool next_member() { return mark("+-ie*") != '*'; }

private:
    bool m_points_on_surface;
    bool m_normals;
};

class BinaryForm : public brepBinarySource {
public:
    BinaryForm(std::string_view content, brepHeader const & header)
        : brepBinarySource(content, header.sections),
          m_points_on_surface(header.version == 2 || header.version == 3), m_normals(header.version >= 4)
    {
    }

    bool normals() const { return m_normals; }
    bool points_on_surface() const { return m_points_on_surface; }
    void polygon_mark() {}
    void normal() { skip(sizeof(float)); }

    int shape_kind()
    {
        int const kind = byte();
        if (kind > vertex) {
            fail("there is no such kind of shape");
        }
        return kind;
    }

    void flags() { skip(7); }

    int vertex_representation()
    {
        int const representation = byte();
        if (representation > 0) {
            real();
        }
        return representation;
    }

    bool triangulated() { return byte() == 2; }

    bool next_member()
    {
        int const mark = byte();
        if (mark > 3 && mark != '*') {
            fail("a shape has no end");
        }
        return mark != '*';
    }

private:
    bool m_points_on_surface;
    bool m_normals;
};

template <class Form>
class Check {
public:
    Check(std::string_view content, brepHeader const & header)
        : m_form(content, header), m_geometry(m_form, m_form.normals())
    {
    }

    sdkResult run(std::string const & file)
    {
        m_geometry.run();
        constexpr std::int64_t shortest = 4; // values of a shape
        auto const count = m_geometry.counted(m_form.section("TShapes"), shortest);
        Shapes shapes(static_cast<std::size_t>(count));
        for (std::int64_t number = 0; number < count; ++number) {
            shape(shapes);
        }
        if (shapes.deepest() > sdk_deepest_nest) {
            return sdkResult::too_big(sdk_too_deep(file, shapes.deepest()));
        }
        if (sdk_too_many(shapes.most(), count)) {
            return sdkResult::too_big(sdk_too_many_places(file, shapes.most()));
        }
        return sdkResult::completed();
    }

private:
    void shape(Shapes & shapes)
    {
        int const kind = m_form.shape_kind();
        shapes.begin(kind);
        if (kind == vertex) {
            read_vertex();
        } else if (kind == edge) {
            read_edge();
        } else if (kind == face) {
            read_face();
        }
        m_form.flags();
        while (m_form.next_member()) {
            if (auto const number = m_form.integer(); !shapes.use(number)) {
                m_form.fail("a shape has the part " + std::to_string(number) + ", which is not before it");
            }
            m_geometry.location_index();
        }
        shapes.end();
    }

    void reals(int count)
    {
        for (int at = 0; at < count; ++at) {
            m_form.real();
        }
    }

    void read_vertex()
    {
        reals(4);
        for (int kind = m_form.vertex_representation(); kind != 0; kind = m_form.vertex_representation()) {
            switch (kind) {
            case 1:
                m_geometry.curve_index();
                break;
            case 2:
                m_geometry.curve2d_index();
                m_geometry.surface_index();
                break;
            case 3:
                m_form.real();
                m_geometry.surface_index();
                break;
            default:
                m_form.fail("there is no such kind of point");
            }
            m_geometry.location_index();
        }
    }

    void read_edge()
    {
        m_form.real();
        for (int flag = 0; flag < 3; ++flag) {
            m_form.boolean();
        }
        for (int kind = m_form.kind(); kind != 0; kind = m_form.kind()) {
            read_edge_representation(kind);
        }
    }

    void read_edge_representation(int kind)
    {
        switch (kind) {
        case 1:
            m_geometry.curve_index();
            m_geometry.location_index();
            reals(2);
            return;
        case 2:
        case 3:
            m_geometry.curve2d_index();
            if (kind == 3) {
                m_geometry.curve2d_index();
                m_form.continuity();
            }
            m_geometry.surface_index();
            m_geometry.location_index();
            reals(m_form.points_on_surface() ? 6 : 2);
            return;
        case 4:
            m_form.continuity();
            for (int side = 0; side < 2; ++side) {
                m_geometry.surface_index();
                m_geometry.location_index();
            }
            return;
        case 5:
            m_geometry.polygon_index();
            m_geometry.location_index();
            return;
        case 6:
        case 7:
            m_geometry.polygons_on_triangulation(kind - 5);
            m_geometry.location_index();
            return;
        default:
            m_form.fail("there is no such kind of edge");
        }
    }

    void read_face()
    {
        m_form.boolean();
        m_form.real();
        m_geometry.surface_index();
        m_geometry.location_index();
        if (m_form.triangulated()) {
            m_geometry.triangulation_index();
        }
    }

    Form m_form;
    brepGeometryCheck<Form> m_geometry;
};

} // namespace

sdkResult brep_check(std::string_view content, std::string const & file)
{
    auto const header = brep_header(content);
    try {
        return header.form == brepForm::text ? Check<TextForm>(content, header).run(file)
                                             : Check<BinaryForm>(content, header).run(file);
    } catch (brepDefect const & defect) {
        return sdkResult::read_error(
            sdkText("brep::%s is damaged or cut off, %s: %s; export or copy it again", file, defect.place(),
                    std::string(defect.what())));
    }
}
