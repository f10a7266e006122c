/// \file
/// The names of the public classes, for headers that pass them around by reference, pointer or handle.
///
/// What is used by value, or asked anything, needs its own header or gkcntr.h. Enumerations and errors live
/// inside classes and cannot be named here.
#ifndef GK_GKCNTR_FWD_H
#define GK_GKCNTR_FWD_H

// Numbers of the plane.
class gkAngle8;
class gkDegree;
class gkRadian;
template <class T> class gkPair;
template <int N> class gkMatrix;
template <int N> class gkVector;
template <int N> class gkXform;
class gkRandomUniform;

// Simple shapes, what is fitted, and transforms.
class gkCircle;
class gkEllipse;
class gkLine;
class gkLineSeg;
class gkPoint;
class gkPolygon;
class gkRect;
class gkEllipseFitDefs;
class gkEllipseFitParams;
class gkEllipseFitResults;
class gk2Rigid;
class gk2XformBase;
class gk2XformLinear;

// Objects, handles, the archive and errors.
class gkPersistent;
class gkRepBase;
template <class T> class gkPtrHandle;
template <class T> class gkPtrHandle_const;
class gkArchive;
class gkArchiveFile;
class gkArchiveMemory;
class gkFileName;
class gkException;
class gkExceptionWithString;
class gkAssertionFailed;
class gkBadPointer;
class gkMathError;
class gkPel;

// Drawing, and the edge point.
class gkColor;
class gkUITablet;
class gkRecordingTablet;
class gkSvgTablet;
class gkEdgelet;

// Contours, regions and sets of regions.
class gkContourDefs;
class gkContour;
class gkRegion;
class gkRegionSet;
class gk_InertiaData;
template <class Datum> class gkContourT;
template <class Datum> class gkRegionT;
template <class Datum> class gkRegionSetT;

#endif
