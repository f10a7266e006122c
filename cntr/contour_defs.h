/// \file
/// The enumerations and errors that contours, regions and region sets share.
#ifndef GK_CNTR_CONTOUR_DEFS_H
#define GK_CNTR_CONTOUR_DEFS_H

#include "platform/core/object/exception.h"
#include "platform/export.h"

#include <string>

class gk_Instantiator;

/// Scope of the shapes' enumerations and errors; it holds no data.
class GKCNTR_API gkContourDefs {
public:
    /// How gkContour::diameter and gkContour::encloseCircle look for the diameter.
    enum DiameterMode : int {
        eExact = 0,      ///< the farthest pair of vertices, quadratic in their number
        eApproximate = 1 ///< centred on the first vertex, linear; between the exact diameter and twice it
    };

    /// Accepted by gkContour::draw, which draws the same segments for every value.
    enum DrawMode : int { eDrawOutline = 0, eDrawOutlineAndVertices = 1 };

    /// What a region or a region set does with outlines that cross themselves or each other.
    enum IntersectionMode : int {
        eKeepIntersections = 0, ///< nothing; any value not listed here acts alike
        eOuterHull = 1,         ///< replace by the outer hull
        eRegularize = 2         ///< replace by the regularized outline
    };

    class Errors;
    class EmptyContour;
    class EmptyRegionSet;
    class BadParams;
    class RegionCannotBeSetOpen;
};

/// Base of the shapes' own errors; catching it catches all four.
///
/// The numbers are fixed: they travel in archives and callers compare them. 0x10004681 is given to no class.
/// An archive keeps the class of an error but not its message: a loaded error has an empty one.
class GKCNTR_API gkContourDefs::Errors : public gkExceptionWithString {
public:
    Errors(const Errors& other);
    Errors& operator=(const Errors& other);
    ~Errors() override;
    long errorNumber() const override = 0;
    void suicideAndRethrow() override = 0;

protected:
    explicit Errors(const std::wstring& message);
    void dispatchSerialize(gkArchive& archive) override;
    void serialize_(gkArchive& archive, unsigned char version);
};

/// A contour or region has too few vertices for what was asked: fewer than 2, for a region's measures fewer
/// than 3.
class GKCNTR_API gkContourDefs::EmptyContour : public gkContourDefs::Errors {
public:
    explicit EmptyContour(const std::wstring& message);
    EmptyContour(const EmptyContour& other);
    EmptyContour& operator=(const EmptyContour& other);
    ~EmptyContour() override;
    long errorNumber() const override; ///< 0x10004680
    [[noreturn]] void suicideAndRethrow() override;

protected:
    void dispatchSerialize(gkArchive& archive) override;
    void serialize_(gkArchive& archive, unsigned char version);

private:
    static gkPersistent* make();
    static gk_Instantiator sExemplar;
};

/// A region set holds no region.
class GKCNTR_API gkContourDefs::EmptyRegionSet : public gkContourDefs::Errors {
public:
    explicit EmptyRegionSet(const std::wstring& message);
    EmptyRegionSet(const EmptyRegionSet& other);
    EmptyRegionSet& operator=(const EmptyRegionSet& other);
    ~EmptyRegionSet() override;
    long errorNumber() const override; ///< 0x10004682
    [[noreturn]] void suicideAndRethrow() override;

protected:
    void dispatchSerialize(gkArchive& archive) override;
    void serialize_(gkArchive& archive, unsigned char version);

private:
    static gkPersistent* make();
    static gk_Instantiator sExemplar;
};

/// An argument, or the shape itself, does not allow what was asked; the message says why.
class GKCNTR_API gkContourDefs::BadParams : public gkContourDefs::Errors {
public:
    explicit BadParams(const std::wstring& message);
    BadParams(const BadParams& other);
    BadParams& operator=(const BadParams& other);
    ~BadParams() override;
    long errorNumber() const override; ///< 0x10004683
    [[noreturn]] void suicideAndRethrow() override;

protected:
    void dispatchSerialize(gkArchive& archive) override;
    void serialize_(gkArchive& archive, unsigned char version);

private:
    static gkPersistent* make();
    static gk_Instantiator sExemplar;
};

/// A region was told to be open.
class GKCNTR_API gkContourDefs::RegionCannotBeSetOpen : public gkContourDefs::Errors {
public:
    explicit RegionCannotBeSetOpen(const std::wstring& message);
    RegionCannotBeSetOpen(const RegionCannotBeSetOpen& other);
    RegionCannotBeSetOpen& operator=(const RegionCannotBeSetOpen& other);
    ~RegionCannotBeSetOpen() override;
    long errorNumber() const override; ///< 0x10004684
    [[noreturn]] void suicideAndRethrow() override;

protected:
    void dispatchSerialize(gkArchive& archive) override;
    void serialize_(gkArchive& archive, unsigned char version);

private:
    static gkPersistent* make();
    static gk_Instantiator sExemplar;
};

#endif
