// The laws of kept results, for one table: every change x every kept result, directly and through copies.
#ifndef GK_TESTS_SUPPORT_CACHE_LAWS_H
#define GK_TESTS_SUPPORT_CACHE_LAWS_H

#include "tests/support/kept_results.h"
#include "tests/support/regions.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// The first two answers; a region's centre with holes differs between them.
template <class Shape, class Base> std::vector<Answer> askedTwice(const Shape& shape, const Kept<Base>& kept) {
    std::vector<Answer> answers;
    for (int i = 0; i < 2; ++i) answers.push_back(kept.ask(shape));
    return answers;
}

template <class Shape> struct Change {
    std::string name;
    void (*apply)(Shape&);
};

// `Base` is the class that keeps the results, `Shape` the one that is changed.
template <class Shape, class Base = Shape> struct CacheTable {
    std::vector<Kept<Base>> kept;
    std::vector<Change<Shape>> changes;
    std::vector<Change<Shape>> noChanges; // after which every result is still there
    Shape (*before)();                    // two shapes that differ in every kept result
    Shape (*after)();
    Base (*fresh)(const Shape&); // the same value in an object that never kept anything
    std::string refused;         // the one question that both shapes refuse, if any

    template <class Check> void everyResult(Check check) const {
        for (const Kept<Base>& result : kept) {
            SCOPED_TRACE(result.name);
            check(result);
        }
    }
    template <class Check> void everyPair(const std::vector<Change<Shape>>& list, Check check) const {
        for (const Change<Shape>& change : list) {
            SCOPED_TRACE(change.name);
            everyResult([&](const Kept<Base>& result) { check(change, result); });
        }
    }

    void theTwoDifferInEveryResult() const {
        everyResult([&](const Kept<Base>& result) {
            const Answer first = result.ask(before());
            EXPECT_EQ(result.name == refused, !first.error.empty()) << first;
            if (result.name != refused) {
                EXPECT_NE(first, result.ask(after()));
            }
        });
    }

    void everyResultIsKept() const {
        everyResult([&](const Kept<Base>& result) {
            const Shape shape = before();
            EXPECT_EQ(result.name != refused, computes(shape, result.ask));
            EXPECT_FALSE(computes(shape, result.ask));
        });
    }

    void everyChangeForgetsEveryResult() const {
        everyPair(changes, [&](const Change<Shape>& change, const Kept<Base>& result) {
            Shape shape = before();
            askedTwice(shape, result);
            change.apply(shape);
            EXPECT_EQ(askedTwice(fresh(shape), result), askedTwice(shape, result));
            EXPECT_FALSE(computes(shape, result.ask));
        });
    }

    void everyChangeForgetsAllResultsTogether() const {
        for (const Change<Shape>& change : changes) {
            SCOPED_TRACE(change.name);
            Shape shape = before();
            for (const Kept<Base>& result : kept) result.ask(shape);
            change.apply(shape);
            const Base expected = fresh(shape);
            everyResult([&](const Kept<Base>& result) {
                EXPECT_EQ(askedTwice(expected, result), askedTwice(shape, result));
            });
        }
    }

    void whatIsNoChangeKeepsEveryResult() const {
        everyPair(noChanges, [&](const Change<Shape>& change, const Kept<Base>& result) {
            Shape shape = before();
            const Answer second = askedTwice(shape, result).back();
            change.apply(shape);
            EXPECT_FALSE(computes(shape, result.ask));
            EXPECT_EQ(second, result.ask(shape));
        });
    }

    void aCopyAnswersWithoutComputing() const {
        everyResult([&](const Kept<Base>& result) {
            const Shape shape = before();
            const Answer second = askedTwice(shape, result).back();
            const Shape copy(shape);
            EXPECT_FALSE(computes(copy, result.ask));
            EXPECT_EQ(second, result.ask(copy));
            Shape target = after();
            askedTwice(target, result);
            target = shape;
            EXPECT_FALSE(computes(target, result.ask));
            EXPECT_EQ(second, result.ask(target));
        });
    }

    void anAssignedOneForgetsResultsTheSourceHasNot() const {
        everyResult([&](const Kept<Base>& result) {
            Shape target = before();
            askedTwice(target, result);
            const Shape source = after();
            target = source;
            EXPECT_EQ(askedTwice(fresh(source), result), askedTwice(target, result));
        });
    }

    void changingTheOriginalLeavesACopy() const {
        everyPair(changes, [&](const Change<Shape>& change, const Kept<Base>& result) {
            Shape shape = before();
            const Answer second = askedTwice(shape, result).back();
            const Shape copy(shape);
            change.apply(shape);
            EXPECT_FALSE(computes(copy, result.ask));
            EXPECT_EQ(second, result.ask(copy));
            EXPECT_EQ(askedTwice(fresh(shape), result), askedTwice(shape, result));
        });
    }

    void changingACopyLeavesTheOriginal() const {
        everyPair(changes, [&](const Change<Shape>& change, const Kept<Base>& result) {
            const Shape shape = before();
            const Answer second = askedTwice(shape, result).back();
            Shape copy(shape);
            change.apply(copy);
            EXPECT_EQ(askedTwice(fresh(copy), result), askedTwice(copy, result));
            EXPECT_FALSE(computes(shape, result.ask));
            EXPECT_EQ(second, result.ask(shape));
        });
    }

    void aCopyMadeAfterTheChangeKnowsNothingOfBefore() const {
        everyPair(changes, [&](const Change<Shape>& change, const Kept<Base>& result) {
            Shape shape = before();
            askedTwice(shape, result);
            change.apply(shape);
            const Shape copy(shape);
            EXPECT_EQ(askedTwice(fresh(shape), result), askedTwice(copy, result));
        });
    }
};

#endif
