// Edgelets and transforms for the tests of the shapes that carry them.
#ifndef GK_TESTS_CH_CORE_EDGELETS_H
#define GK_TESTS_CH_CORE_EDGELETS_H

#include "ch_core/cntrtmpl.h"
#include "platform/core/archive/archive_memory.h"
#include "platform/core/object/errors.h"
#include "platform/core/transform/xform_linear.h"
#include "tests/support/hex.h"
#include "tests/support/shapes.h"

using EdgeletContour = gkContourT<gkEdgelet>;
using EdgeletRegion = gkRegionT<gkEdgelet>;
using EdgeletSet = gkRegionSetT<gkEdgelet>;
using Transform = gkPtrHandle_const<gk2XformBase>;

// A triangle with magnitudes 7, 8, 9 and angles 64, 65, 66.
inline std::vector<gkEdgelet> triangle() {
    return {gkEdgelet({0, 0}, 7, gkAngle8(64)), gkEdgelet({4, 0}, 8, gkAngle8(65)),
            gkEdgelet({0, 2}, 9, gkAngle8(66))};
}

inline Transform scale(double factor) {
    return Transform(new gk2XformLinear(gkXform<2>(gkMatrix<2>(factor, 0, 0, factor), {0, 0})));
}

// The points of the text times `factor` as positions, each with a magnitude and an angle of its own.
inline std::vector<gkEdgelet> edgelets(const std::string& text, double factor) {
    std::vector<gkEdgelet> data;
    for (const gkVector<2>& p : points(text)) {
        const auto number = static_cast<unsigned char>(data.size() + 1);
        data.emplace_back(p * factor, number, gkAngle8(number));
    }
    return data;
}

// The identity up to x = 1000, where its picture ends: beyond, mapPoint throws OutOfRange. Counts its inverses
// and refuses as many as it is told to.
class LensTransform : public gk2XformBase {
public:
    static inline int inversesMade = 0;
    static inline int inversesRefused = 0;

    gkVector<2> mapPoint(const gkVector<2>& point) const override {
        if (point.x() > 1000) throw gkMathError::OutOfRange();
        return point;
    }
    Transform inverseBase() const override {
        if (inversesRefused > 0) {
            --inversesRefused;
            throw gkMathError::Singular();
        }
        ++inversesMade;
        return clone();
    }
    Transform clone() const override { return Transform(new LensTransform); }

protected:
    void dispatchSerialize(gkArchive&) override {} // no test archives one
};

template <class Shape> std::vector<unsigned char> archived(Shape& shape) {
    gkArchiveMemory out;
    out || static_cast<gkPersistent&>(shape);
    return out.bytes();
}

template <class Shape> void loadInto(Shape& shape, const std::vector<unsigned char>& bytes) {
    gkArchiveMemory in(bytes);
    in || static_cast<gkPersistent&>(shape);
    in.finish();
}

// The bytes of an in-place record, without the archive's header.
template <class Shape> std::string recordOf(Shape& shape) {
    const std::size_t header = gkArchiveMemory().bytes().size();
    const std::vector<unsigned char> bytes = archived(shape);
    return toHex(std::vector<unsigned char>(bytes.begin() + static_cast<std::ptrdiff_t>(header), bytes.end()));
}

inline std::vector<unsigned char> archiveOf(const std::string& record) {
    std::vector<unsigned char> bytes = gkArchiveMemory().bytes();
    const std::vector<unsigned char> tail = fromHex(record);
    bytes.insert(bytes.end(), tail.begin(), tail.end());
    return bytes;
}

#endif
