// Vectors, matrices, transforms, angles and random numbers. No expression here both multiplies and adds: what
// is to be shown is that the headers' own inline functions do not.
#include "platform/core/math/angle.h"
#include "platform/core/math/matrix.h"
#include "platform/core/math/pair.h"
#include "platform/core/math/random.h"
#include "platform/core/math/real.h"
#include "platform/core/math/vector.h"
#include "platform/core/math/xform.h"
#include "platform/core/transform/rigid.h"
#include "platform/core/transform/xform_linear.h"
#include "tests/bits/operations.h"

namespace {

using bits::Record;
using bits::World;

// Calls ask(a, b) for neighbouring probes.
template <class Ask> void pairs(const World& world, Ask ask) {
    for (std::size_t i = 0; i + 1 < world.probes.size(); ++i) ask(world.probes[i], world.probes[i + 1]);
}

gkMatrix<2> matrixOf(const gkVector<2>& a, const gkVector<2>& b) {
    return gkMatrix<2>(a.x(), a.y(), b.x(), b.y());
}

void add(Answer& answer, const gkXform<2>& xform) {
    answer.add(xform.matrix());
    answer.add(xform.translation());
}

void vectorSums(const World& world, Record& record) {
    pairs(world, [&](const gkVector<2>& a, const gkVector<2>& b) {
        record.fill([&](Answer& answer) {
            answer.add(a + b);
            answer.add(a - b);
            answer.add(-a);
            gkVector<2> changed = a;
            changed += b;
            answer.add(changed);
            changed -= a;
            answer.add(changed);
            answer.add(a == b);
            answer.add(changed != b);
            answer.add(gfRealEq(a, b, 1e-6));
        });
    });
}

void vectorProducts(const World& world, Record& record) {
    pairs(world, [&](const gkVector<2>& a, const gkVector<2>& b) {
        record.fill([&](Answer& answer) {
            answer.add(a * b.x());
            answer.add(b.y() * a);
            answer.add(a / b.x());
            gkVector<2> changed = a;
            changed *= b.y();
            answer.add(changed);
            changed /= b.x();
            answer.add(changed);
            answer.add(a * b);
            answer.add(a.cross(b));
        });
    });
}

void vectorLengths(const World& world, Record& record) {
    pairs(world, [&](const gkVector<2>& a, const gkVector<2>& b) {
        record.value([&] { return a.length(); });
        record.value([&] { return a.distance(b); });
        record.value([&] { return a.unit(); });
    });
}

void vectorAngles(const World& world, Record& record) {
    for (const gkVector<2>& p : world.probes) record.value([&] { return p.angle().toDouble(); });
    for (const double angle : world.angles) record.value([&] { return gkVector<2>(2.5, gkRadian(angle)); });
}

void pairValues(const World& world, Record& record) {
    for (const gkVector<2>& p : world.probes) {
        record.value([&] { return gkVector<2>(gkPair<double>(p.x(), p.y())); });
    }
    record.value([&] { return gkVector<2>(gkPair<long>(static_cast<long>(world.index), -7)); });
}

void matrixSums(const World& world, Record& record) {
    pairs(world, [&](const gkVector<2>& a, const gkVector<2>& b) {
        record.fill([&](Answer& answer) {
            const gkMatrix<2> m = matrixOf(a, b);
            const gkMatrix<2> n = matrixOf(b, -a);
            answer.add(m + n);
            answer.add(m - n);
            answer.add(-m);
            answer.add(m * a.x());
            answer.add(b.y() * n);
            answer.add(m / a.y());
            answer.add(m.transposed());
            answer.add(m == n);
            answer.add(gfRealEq(m, n, 1e-6));
        });
    });
}

void matrixProducts(const World& world, Record& record) {
    pairs(world, [&](const gkVector<2>& a, const gkVector<2>& b) {
        const gkMatrix<2> m = matrixOf(a, b);
        record.value([&] { return m * matrixOf(b, a); });
        record.value([&] { return m * b; });
        record.value([&] { return m.determinant(); });
        record.value([&] { return m.inverse(); });
    });
    record.value([] { return gkMatrix<2>::identity().element(2, 0); });
}

void matrixOfAngles(const World& world, Record& record) {
    for (const double angle : world.angles) {
        record.value([&] { return gkMatrix<2>(gkRadian(angle), gkRadian(-angle), 2.0, 0.75); });
    }
}

void xformValues(const World& world, Record& record) {
    for (const gkXform<2>& xform : world.xforms) {
        for (const gkVector<2>& p : world.probes) record.value([&] { return xform * p; });
        record.fill([&](Answer& answer) { add(answer, xform.inverse()); });
        for (const gkXform<2>& first : world.xforms) {
            record.fill([&](Answer& answer) { add(answer, xform * first); });
            record.value([&] { return gfRealEq(xform, first, 1e-6); });
        }
    }
}

void xformObjects(const World& world, Record& record) {
    for (const gkXform<2>& xform : world.xforms) {
        const gk2XformLinear linear(xform);
        for (const gkVector<2>& p : world.probes) {
            record.value([&] { return linear.mapPoint(p); });
            record.value([&] { return linear.inverseBase()->mapPoint(p); });
        }
    }
}

void rigidValues(const World& world, Record& record) {
    for (const double angle : world.angles) {
        pairs(world, [&](const gkVector<2>& a, const gkVector<2>& b) {
            const gk2Rigid rigid(gkRadian(angle), a);
            record.value([&] { return rigid.mapPoint(b); });
            record.value([&] { return rigid.inverse().mapPoint(b); });
            record.value([&] { return (rigid * gk2Rigid(gkRadian(1.0), b)).translation(); });
            record.fill([&](Answer& answer) { add(answer, rigid.xform()); });
        });
    }
}

void angleValues(const World& world, Record& record) {
    for (const double value : world.angles) {
        const gkRadian radians(value);
        const gkDegree degrees(value);
        record.fill([&](Answer& answer) {
            answer.add(gkDegree(radians).toDouble());
            answer.add(gkRadian(degrees).toDouble());
            answer.add(radians.norm().toDouble());
            answer.add(degrees.norm().toDouble());
            answer.add((-radians + gkRadian(0.1)).toDouble());
            answer.add((degrees - gkDegree(0.1)).toDouble());
            answer.add((radians * 3.3).toDouble());
            answer.add((0.7 * degrees).toDouble());
            answer.add((radians / 3.0).toDouble());
            answer.add(radians < gkRadian(1.0));
        });
        record.fill([&](Answer& answer) {
            const gkAngle8 steps(radians);
            answer.add(static_cast<int>(steps.toByte()));
            answer.add(static_cast<int>(gkAngle8(degrees).toByte()));
            answer.add(static_cast<int>((-steps + gkAngle8(77)).toByte()));
            answer.add(static_cast<int>((steps - gkAngle8(200)).toByte()));
            answer.add(gkRadian(steps).toDouble());
            answer.add(gkDegree(steps).toDouble());
        });
    }
}

void realValues(const World& world, Record& record) {
    for (const gkVector<2>& p : world.probes) {
        record.value([&] { return gfRealEq(p.x(), p.y(), 1e-6); });
        record.value([&] { return gfIFloor(p.x()); });
    }
}

void randomNumbers(const World& world, Record& record) {
    gkRandomUniform random(static_cast<unsigned long>(world.index));
    for (int i = 0; i < 8; ++i) {
        record.value([&] { return random.next(); });
        record.value([&] { return random.next(-3.0, 11.0); });
    }
}

} // namespace

bits::Operations bits::valueOperations() {
    return {{"vector.sums", &vectorSums},         {"vector.products", &vectorProducts},
            {"vector.lengths", &vectorLengths},   {"vector.angles", &vectorAngles},
            {"pair.values", &pairValues},         {"matrix.sums", &matrixSums},
            {"matrix.products", &matrixProducts}, {"matrix.ofAngles", &matrixOfAngles},
            {"xform.values", &xformValues},       {"xform.objects", &xformObjects},
            {"rigid.values", &rigidValues},       {"angle.values", &angleValues},
            {"real.values", &realValues},         {"random.numbers", &randomNumbers}};
}
