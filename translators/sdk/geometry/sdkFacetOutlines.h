#pragma once

#include "sdk/geometry/sdkFacetLoops.h"

// What bounds the regions of a mesh, with as few points as their planes need: where two regions meet in a
// straight line, only its ends are left. Regions that could not be bounded so that they keep their area are
// triangles again.
class sdkFacetOutlines {
public:
    // One straight edge of an outline. Both regions beside it call it by the same number.
    struct Edge {
        int from;
        int to;
        std::uint64_t number;
    };

    // The mesh has to outlive it.
    sdkFacetOutlines(sdkFacetMesh const & mesh, bool merge);

    sdkFacetRegions const & regions() const { return m_regions; }
    // The first goes round the region, the others round its holes.
    std::vector<std::vector<Edge>> edges(int region) const;
    // How far a point lies from the planes of its regions, in millimetres.
    double reach(int point) const { return m_reach.empty() ? 0 : m_reach[static_cast<std::size_t>(point)]; }

private:
    std::vector<int> unbounded() const;
    void find_corners();
    void straighten(int region);
    void straighten(sdkFacetLoop const & line, std::size_t from, std::size_t to);
    void keep_areas();
    void measure_reach();
    bool is_merged(int region) const { return m_regions.triangles(region).size() > 1; }
    bool kept(int point) const { return m_kept[static_cast<std::size_t>(point)]; }
    void keep(int point) { m_kept[static_cast<std::size_t>(point)] = true; }
    sdkFacetLoop straightened(sdkFacetLoop const & loop) const;
    bool bounds(int region, std::vector<sdkFacetLoop> const & loops) const;

    sdkFacetMesh const & m_mesh;
    sdkFacetRegions m_regions;
    std::vector<bool> m_kept;    // per point: edges end there
    std::vector<double> m_reach; // per point
};
