// tests/degenerate/degenerate_test.cpp - every operation of every kind of degenerate outline. The cells of
// docs/degenerate.md say what is expected; each question is asked of a fresh shape.
#include "cntr/contour_defs.h"
#include "platform/core/fit/ellipse_fit.h"
#include "platform/core/object/errors.h"
#include "platform/system/assert.h"
#include "tests/degenerate/rows.h"
#include "tests/degenerate/table.h"

#include <gtest/gtest.h>
#include <set>
#include <stdexcept>

namespace {

std::map<std::string, Rows> sections() {
    return {{"Contours", contourRows()},       {"Regions", regionRows()},
            {"With a hole", holeRows()},       {"Region sets", setRows()},
            {"Edgelet shapes", edgeletRows()}, {"Functions of vertex lists", functionRows()}};
}

// The name of the error being handled, as the page writes it; anything unknown is thrown on.
std::string currentError() {
    try {
        throw;
    } catch (const gkContourDefs::EmptyContour&) {
        return "EmptyContour";
    } catch (const gkContourDefs::EmptyRegionSet&) {
        return "EmptyRegionSet";
    } catch (const gkContourDefs::BadParams&) {
        return "BadParams";
    } catch (const gkEllipseFitDefs::TooFewPoints&) {
        return "TooFewPoints";
    } catch (const gkEllipseFitDefs::Degenerate&) {
        return "Degenerate";
    } catch (const gkEllipseFitDefs::NotFinite&) {
        return "NotFinite";
    } catch (const gkMathError::Singular&) {
        return "Singular";
    } catch (const gkBadPointer&) {
        return "gkBadPointer";
    } catch (const gkPel::BadWindow&) {
        return "BadWindow";
    } catch (const gkAssertionFailed&) {
        return "gkAssertionFailed";
    } catch (const std::out_of_range&) {
        return "std::out_of_range";
    }
}

void expectAnswer(std::string (*ask)(const Kind&), const Cell& cell) {
    try {
        const std::string answer = ask(kindOf(cell.column));
        EXPECT_TRUE(isPromised(answer, cell.text)) << answer << " but the page says " << cell.text;
    } catch (...) {
        EXPECT_EQ(cell.text, currentError());
    }
}

TEST(DegenerateInput, EveryCellOfThePageIsTheAnswer) {
    const std::map<std::string, Rows> rows = sections();
    for (const Cell& cell : cellsOf(GK_PAGE)) {
        SCOPED_TRACE(cell.section + ": " + cell.operation + ", " + cell.column);
        const auto section = rows.find(cell.section);
        ASSERT_NE(rows.end(), section);
        const auto row = section->second.find(cell.operation);
        ASSERT_NE(section->second.end(), row);
        expectAnswer(row->second, cell);
    }
}

TEST(DegenerateInput, EveryOperationHasItsRow) {
    std::set<std::string> onPage;
    for (const Cell& cell : cellsOf(GK_PAGE)) onPage.insert(cell.section + ": " + cell.operation);
    for (const auto& [section, rows] : sections()) {
        for (const auto& [operation, ask] : rows)
            EXPECT_EQ(1u, onPage.count(section + ": " + operation)) << section << ": " << operation;
    }
}

TEST(DegenerateInput, ACellPromisesItsTextItsBoundsOrNothing) {
    EXPECT_TRUE(isPromised("(1, 2)", "(1, 2)"));
    EXPECT_FALSE(isPromised("(1, 2)", "(1, 3)"));
    EXPECT_TRUE(isPromised("15", "12 \u00b1 3"));
    EXPECT_FALSE(isPromised("16", "12 \u00b1 3"));
    EXPECT_FALSE(isPromised("NaN", "12 \u00b1 3"));
    EXPECT_TRUE(isPromised("anything", "lost"));
}

} // namespace
