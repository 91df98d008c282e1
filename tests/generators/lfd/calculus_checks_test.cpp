#include <gtest/gtest.h>

#include <cmath>

#include "calculus_checks.h"

// The numeric checks must tell a right answer from a wrong one.
TEST(CalculusChecks, CatchesAWrongAntiderivative) {
    EXPECT_EQ(CheckAntiderivative("&+Ix&-I_ cos_ &+Ix&-I", "&+Ix&-I_ sin_ &+Ix&-I + cos_ &+Ix&-I"), "");
    EXPECT_NE(CheckAntiderivative("&+Ix&-I_ cos_ &+Ix&-I", "&+Ix&-I_ sin_ &+Ix&-I - cos_ &+Ix&-I"), "");
    EXPECT_NE(CheckDerivative("ln_ &+Ix&-I", "#COC(2#N)(&+Ix&-I#COC)"), "");
    EXPECT_EQ(CheckDerivative("ln_ &+Ix&-I^2", "#COC(2#N)(&+Ix&-I#COC)"), "");
}
