// Every request for memory of an operation fails once: what remains, and whether anything is lost.
#ifndef GK_TESTS_MEMORY_SWEEP_H
#define GK_TESTS_MEMORY_SWEEP_H

#include "tests/memory/failing_new.h"

#include <gtest/gtest.h>
#include <new>

enum class Outcome { eDone, eFailed };

// Runs `act` with request `k` failing. An act that meets the shortage and ends all the same has found a way
// without that memory; it counts as done.
template <class Act> Outcome actWithout(long k, Shortage shortage, bool& met, Act act) {
    Outcome outcome = Outcome::eDone;
    const FailingNew failing(k, shortage);
    try {
        act();
    } catch (const std::bad_alloc&) {
        outcome = Outcome::eFailed;
    }
    met = failing.hasFailed();
    return outcome;
}

// make() returns a subject (by value), act(subject) is what needs memory, check(subject, outcome) holds what is
// left against what is promised. Returns how many requests failed, over both kinds of shortage.
template <class Make, class Act, class Check> long sweep(Make make, Act act, Check check) {
    {
        auto subject = make(); // what a first call makes for the whole program is no part of it
        act(subject);
        check(subject, Outcome::eDone);
    }
    long points = 0;
    for (const Shortage shortage : {Shortage::ePassing, Shortage::eLasting}) {
        for (long k = 1;; ++k) {
            SCOPED_TRACE(testing::Message()
                         << "request " << k
                         << (shortage == Shortage::ePassing ? " fails" : " and all later ones fail"));
            const long before = livingBlocks();
            bool met = false;
            {
                auto subject = make();
                const Outcome outcome = actWithout(k, shortage, met, [&] { act(subject); });
                EXPECT_TRUE(met || outcome == Outcome::eDone);
                check(subject, outcome);
            }
            EXPECT_EQ(before, livingBlocks()) << "blocks are lost";
            if (!met) break;
            ++points;
            if (testing::Test::HasFailure()) return points; // one report is enough
        }
    }
    return points;
}

#endif
