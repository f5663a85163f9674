#pragma once

#include <BRepAdaptor_Surface.hxx>
#include <ShapeAnalysis_Surface.hxx>
#include <TopoDS_Face.hxx>
#include <gp_Pnt.hxx>
#include <gp_Pnt2d.hxx>

#include <vector>

// Distances of many points from a free-form surface, in millimetres, where it is only asked which of them lie
// on it: quick for those that do, and for others not exact but never too small. Use by one thread at a time.
class sdkSurfaceSearch {
public:
    // The face must have a surface. Points are taken for points of the face when they are no farther off than
    // `enough`.
    sdkSurfaceSearch(TopoDS_Face const & face, double enough);

    // Sliding down from points near by, which fails for few points that lie on the surface.
    double quick(gp_Pnt const & point);
    // With the help of the library, which finds what slides astray and takes a hundred times as long.
    double thorough(gp_Pnt const & point);

private:
    struct Seed {
        gp_Pnt point;
        gp_Pnt2d place;
    };

    bool look(gp_Pnt const & point, gp_Pnt2d place, double & best);
    void sow();
    double slide(gp_Pnt const & point, gp_Pnt2d & place) const;

    TopoDS_Face m_face;
    BRepAdaptor_Surface m_surface;
    double m_enough;
    std::vector<Seed> m_seeds;      // made when first needed
    std::vector<gp_Pnt2d> m_latest; // where the latest point was found, if one was
    Handle(ShapeAnalysis_Surface) m_library;
    int m_long_searches = 0;
};
