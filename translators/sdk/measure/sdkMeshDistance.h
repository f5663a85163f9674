#pragma once

#include "sdk/sdkDocument.h"

#include <gp_Pnt.hxx>

#include <memory>
#include <string>
#include <vector>

// A point of an exact surface or of an edge, with the name of its part.
struct sdkSurfacePoint {
    gp_Pnt point;
    std::string part;
};

// Points of all faces of the document at all their places: along their edges and between them. About so many
// for one face at most, and fewer for a plane one.
// `hidden` says whether those of bodies that are hidden, or that lie at hidden places, are wanted.
std::vector<sdkSurfacePoint> sdk_surface_points(sdkDocument const & document, bool hidden = true,
                                                int most_of_a_face = 64);

// Distances of points from the triangles of a document, in millimetres.
class sdkMeshDistance {
public:
    // All faces that have triangles.
    explicit sdkMeshDistance(sdkDocument const & document);
    ~sdkMeshDistance();

    bool empty() const;
    double of(gp_Pnt const & point) const;

private:
    struct Tree;
    std::unique_ptr<Tree> m_tree;
};
