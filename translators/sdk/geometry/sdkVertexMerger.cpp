#include "sdk/geometry/sdkVertexMerger.h"

#include <array>
#include <bit>
#include <cmath>

namespace {

std::uint64_t mixed(std::uint64_t seed, double value)
{
    // Doubles that come from floats have all their variety in the upper half.
    std::uint64_t bits = std::bit_cast<std::uint64_t>(value) + seed;
    bits *= 0x9e3779b97f4a7c15ULL;
    return bits ^ (bits >> 29);
}

} // namespace

std::size_t sdkVertexMerger::Hash::operator()(Cell const & cell) const
{
    return static_cast<std::size_t>(mixed(mixed(mixed(0, cell.x), cell.y), cell.z));
}

sdkVertexMerger::sdkVertexMerger(double tolerance, std::size_t expected)
    : m_tolerance(tolerance), m_cell_size(4 * tolerance)
{
    m_cells.reserve(expected);
    m_points.reserve(expected);
    m_earlier.reserve(expected);
}

int sdkVertexMerger::add(gp_XYZ const & point)
{
    if (int const near = find_near(point); near >= 0) {
        m_moved += m_points[static_cast<std::size_t>(near)].IsEqual(point, 0) ? 0 : 1;
        return near;
    }
    int const number = static_cast<int>(m_points.size());
    auto const [cell, added] = m_cells.try_emplace(cell_of(point), number);
    m_earlier.push_back(added ? -1 : cell->second);
    cell->second = number;
    m_points.push_back(point);
    return number;
}

int sdkVertexMerger::find_near(gp_XYZ const & point) const
{
    std::array<std::array<double, 2>, 3> range{};
    for (int axis = 0; axis < 3; ++axis) {
        gp_XYZ offset;
        offset.SetCoord(axis + 1, m_tolerance);
        auto const low = cell_of(point - offset);
        auto const high = cell_of(point + offset);
        range[static_cast<std::size_t>(axis)] = axis == 0   ? std::array{low.x, high.x}
                                                : axis == 1 ? std::array{low.y, high.y}
                                                            : std::array{low.z, high.z};
    }
    auto const steps = [](std::array<double, 2> const & ends) { return ends[0] == ends[1] ? 1U : 2U; };
    for (std::size_t x = 0; x < steps(range[0]); ++x) {
        for (std::size_t y = 0; y < steps(range[1]); ++y) {
            for (std::size_t z = 0; z < steps(range[2]); ++z) {
                auto const found = m_cells.find({range[0][x], range[1][y], range[2][z]});
                int number = found == m_cells.end() ? -1 : found->second;
                for (; number >= 0; number = m_earlier[static_cast<std::size_t>(number)]) {
                    if ((m_points[static_cast<std::size_t>(number)] - point).Modulus() <= m_tolerance) {
                        return number;
                    }
                }
            }
        }
    }
    return -1;
}

sdkVertexMerger::Cell sdkVertexMerger::cell_of(gp_XYZ const & point) const
{
    // Adding zero turns a negative zero into the other one, which is equal but has other bits.
    if (m_tolerance == 0) {
        return {point.X() + 0.0, point.Y() + 0.0, point.Z() + 0.0};
    }
    return {std::floor(point.X() / m_cell_size) + 0.0, std::floor(point.Y() / m_cell_size) + 0.0,
            std::floor(point.Z() / m_cell_size) + 0.0};
}
