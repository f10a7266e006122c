// Errors thrown inside the library and caught here by each class of their chain.
#ifndef GK_TESTS_BORDER_THROWN_H
#define GK_TESTS_BORDER_THROWN_H

#include "gkcntr.h"

#include <gtest/gtest.h>

#include <exception>
#include <typeinfo>

template <class Caught, class Thrown, class F> void expectCaughtAs(F throwIt) {
    try {
        throwIt();
        ADD_FAILURE() << "nothing was thrown instead of " << typeid(Thrown).name();
    } catch (const std::exception& other) { // no base of ours
        ADD_FAILURE() << typeid(other).name() << " was thrown instead of " << typeid(Thrown).name();
    } catch (const Caught& caught) {
        EXPECT_TRUE(typeid(caught) == typeid(Thrown)) << typeid(caught).name();
        EXPECT_NE(nullptr, dynamic_cast<const Thrown*>(&caught));
    } catch (...) {
        ADD_FAILURE() << typeid(Thrown).name() << " was not caught as " << typeid(Caught).name();
    }
    // The side that threw counts the errors in flight, the side that catches counts them off.
    EXPECT_EQ(0, std::uncaught_exceptions()) << typeid(Thrown).name();
}

// `Thrown`, then the bases it has beyond those that every error has.
template <class Thrown, class... Bases, class F> void expectCaughtByItsChain(F throwIt) {
    expectCaughtAs<Thrown, Thrown>(throwIt);
    (expectCaughtAs<Bases, Thrown>(throwIt), ...);
    expectCaughtAs<gkExceptionWithString, Thrown>(throwIt);
    expectCaughtAs<gkException, Thrown>(throwIt);
    expectCaughtAs<gkPersistent, Thrown>(throwIt);
}

#endif
