// One object of each class, for a debugger to look at. They are global, so that no build moves or removes them.
#include "gkcntr.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>
#include <utility>
#include <vector>

namespace debugged {

using Points = std::vector<gkVector<2>>;

gkPair<long> pixel(3, -4);
gkPair<double> drawn(0.5, 2.0);
gkVector<2> vector(1.5, -2.0);
gkVector<2> notANumber(std::nan(""), 1e300);
gkMatrix<2> matrix(1.0, 2.0, 3.0, 4.5);
gkXform<2> xform(gkMatrix<2>::identity(), gkVector<2>(10.0, 20.0));
gk2XformLinear linear(xform);
gk2Rigid rigid(gkRadian(0.5), gkVector<2>(1.0, 2.0));
gkRadian radian(0.25);
gkDegree degree(90.0);
gkAngle8 angle8(64);
gkPoint point(7.0, 8.0);
gkLine line(gkVector<2>(1.0, 2.0), gkVector<2>(0.0, 1.0));
gkLineSeg segment(gkVector<2>(1.0, 2.0), gkVector<2>(3.0, 4.0));
gkRect rect(gkVector<2>(1.0, 2.0), gkVector<2>(4.0, 3.0));
gkCircle circle(gkPoint(1.0, 2.0), 3.0);
gkEllipse ellipse(gkEllipse::gkEllipseGeom(gkPoint(1.0, 2.0), gkVector<2>(4.0, 2.0), gkRadian(0.5)));
gkPolygon polygon(Points{{0, 0}, {4, 0}, {0, 3}}, gkPolygon::eNonZero);
gkColor color = gkColor::red();
gkEdgelet edgelet(gkVector<2>(1.0, 2.0), 300, gkAngle8(128));
gk_InertiaData inertia(6.0, gkVector<2>(1.0, 2.0), gkMatrix<2>(1.0, 0.5, 0.5, 2.0));

gkContour empty;
gkContour triangle(Points{{0, 0}, {4, 0}, {0, 3}}, true, 7);
gkContour stroke(Points{{0, 0}, {4, 0}}, false, 0);
gkContour broken(Points{{0, 0}, {std::nan(""), 0}, {4, 0}, {0, 3}}, true, 0);
gkContour measured(Points{{0, 0}, {4, 0}, {0, 3}}, true, 1);
gkPtrHandle<gkRegion> hole(new gkRegion(Points{{1, 1}, {2, 1}, {1, 2}}));
gkPtrHandle<gkRegion> null;
gkRegion region(Points{{0, 0}, {9, 0}, {9, 9}, {0, 9}});
gkRegionSet set;
gkContourT<gkEdgelet> edgeContour(std::vector<gkEdgelet>{{{5, 6}, 10, gkAngle8(0)}});
const std::vector<gkEdgelet> edgelets{
    {{0, 0}, 1, gkAngle8(0)}, {{4, 0}, 2, gkAngle8(64)}, {{0, 3}, 3, gkAngle8(128)}};
gkRegionT<gkEdgelet> edgeRegion(edgelets, 5);
gkPtrHandle<gkRegionT<gkEdgelet>> held(new gkRegionT<gkEdgelet>(edgelets, 9));
gkPtrHandle_const<gkRegion> asPlain;
gkRegionSetT<gkEdgelet> edgeSet;

// The lists that shapes keep to themselves, for no compiler describes a list that it has not made.
std::vector<std::pair<gkXform<2>, gkRect>> boxes{{gkXform<2>(), rect}};
std::vector<std::pair<gkRadian, std::int32_t>> extremes{{radian, 0}};

// Memory in which nothing has been made yet, as a debugger finds it before a constructor has run.
template <class T> struct Raw {
    alignas(T) unsigned char bytes[sizeof(T)];
    T* object() { return reinterpret_cast<T*>(bytes); }
};
Raw<gkContour> rawContour;
Raw<gkRegion> rawRegion;
Raw<gkRegionSet> rawSet;
Raw<gkContourT<gkEdgelet>> rawEdgeContour;
Raw<gkRegionT<gkEdgelet>> rawEdgeRegion;
Raw<gkRegionSetT<gkEdgelet>> rawEdgeSet;
Raw<gkPolygon> rawPolygon;
Raw<gkPtrHandle<gkRegion>> rawHandle;

gkContour* unmadeContour = rawContour.object();
gkRegion* unmadeRegion = rawRegion.object();
gkRegionSet* unmadeSet = rawSet.object();
gkContourT<gkEdgelet>* unmadeEdgeContour = rawEdgeContour.object();
gkRegionT<gkEdgelet>* unmadeEdgeRegion = rawEdgeRegion.object();
gkRegionSetT<gkEdgelet>* unmadeEdgeSet = rawEdgeSet.object();
gkPolygon* unmadePolygon = rawPolygon.object();
gkPtrHandle<gkRegion>* unmadeHandle = rawHandle.object();
template <class T> void fill(Raw<T>& raw, int byte) { std::memset(raw.bytes, byte, sizeof raw.bytes); }

void fillAll(int byte) {
    fill(rawContour, byte);
    fill(rawRegion, byte);
    fill(rawSet, byte);
    fill(rawEdgeContour, byte);
    fill(rawEdgeRegion, byte);
    fill(rawEdgeSet, byte);
    fill(rawPolygon, byte);
    fill(rawHandle, byte);
}

} // namespace debugged

// Where the debugger stops: everything is made.
void made() {}

int main() {
    using namespace debugged;
    region.holes(std::vector<gkPtrHandle<gkRegion>>{hole});
    set.add(gkPtrHandle_const<gkRegion>(new gkRegion(Points{{5, 5}, {6, 5}, {5, 6}})),
            gkContourDefs::eKeepIntersections);
    edgeRegion.holes({gkPtrHandle_const<gkRegionT<gkEdgelet>>(held)});
    asPlain = gkPtrHandle_const<gkRegion>(new gkRegionT<gkEdgelet>(edgelets, 9));
    edgeSet = gkRegionSetT<gkEdgelet>(std::vector<gkPtrHandle<gkRegionT<gkEdgelet>>>{
        gkPtrHandle<gkRegionT<gkEdgelet>>(new gkRegionT<gkEdgelet>(edgelets, 9))});
    measured.length();
    measured.encloseRect(gkXform<2>());
    measured.extremalVertexIndex(gkRadian(0.0));
    region.area(false);
    fillAll(0xCD);
    made();
    return 0;
}
