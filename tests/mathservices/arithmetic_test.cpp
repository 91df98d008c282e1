#include <cmath>
#include <map>

#include <gtest/gtest.h>

#include "mathservices/arithmetic.h"

TEST(RandomInRange, EqualEndsReturnLowWithoutADraw) {
    MathWorkspace ws;
    const auto before = ws.stream.State();
    EXPECT_EQ(RandomInRange(ws, 5, 5, 1, 1), 5);
    EXPECT_EQ(ws.stream.State(), before);
}

TEST(RandomInRange, NonZeroNeverGivesZero) {
    MathWorkspace ws;
    bool sawZero = false;
    for (int i = 0; i < 20000; ++i) {
        EXPECT_NE(RandomInRange(ws, -3, 3, 1, 1), 0);
        if (RandomInRange(ws, -3, 3, 1, 0) == 0) sawZero = true;
    }
    EXPECT_TRUE(sawZero);
}

TEST(RandomInRange, TenthsAreWholeMultiplesAndOneIsExact) {
    MathWorkspace ws;
    bool sawOne = false;
    for (int i = 0; i < 20000; ++i) {
        const double r = RandomInRange(ws, 0, 1, 0.1, 0);
        const double tenths = std::round(r * 10);
        EXPECT_EQ(r, tenths * 0.1) << r;
        EXPECT_GE(r, 0);
        EXPECT_LE(r, 1);
        if (r == 1) sawOne = true;
    }
    EXPECT_TRUE(sawOne);
}

TEST(RandomInRange, GridEndsAreHalfAsLikely) {
    MathWorkspace ws;
    std::map<double, int> counts;
    const int n = 120000;
    for (int i = 0; i < n; ++i) counts[RandomInRange(ws, 1, 4, 1, 1)]++;
    ASSERT_EQ(counts.size(), 4u);
    EXPECT_NEAR(counts[1] / double(n), 1.0 / 6, 0.01);
    EXPECT_NEAR(counts[2] / double(n), 1.0 / 3, 0.01);
    EXPECT_NEAR(counts[3] / double(n), 1.0 / 3, 0.01);
    EXPECT_NEAR(counts[4] / double(n), 1.0 / 6, 0.01);
}

TEST(RandomInRange, TwoPointsAreEven) {
    MathWorkspace ws;
    int ones = 0;
    const int n = 60000;
    for (int i = 0; i < n; ++i) ones += RandomInRange(ws, 1, 2, 1, 1) == 1;
    EXPECT_NEAR(ones / double(n), 0.5, 0.01);
}

TEST(RandomInRange, DownwardRangeStaysBetweenItsEnds) {
    MathWorkspace ws;
    for (int i = 0; i < 5000; ++i) {
        const double r = RandomInRange(ws, 10, 2, 1, 0);
        EXPECT_GE(r, 2);
        EXPECT_LE(r, 10);
    }
}

TEST(RandomInRange, GivesUpOnARangeOfZeroAlone) {
    MathWorkspace ws;
    // A continuous range around zero so narrow that every draw snaps to 0.
    EXPECT_EQ(RandomInRange(ws, -1e-9, 1e-9, 0, 1), 0);
    EXPECT_EQ(ws.MathError, 1);
    RandomInRange(ws, 1, 3, 1, 1);
    EXPECT_EQ(ws.MathError, 0);
}

TEST(SnapValue, StripsNoiseFromWholeValues) {
    EXPECT_EQ(SnapValue(2.9999999999), 3);
    EXPECT_EQ(SnapValue(0.1 * 3 * 10), 3);
    EXPECT_EQ(SnapValue(2.5), 2.5);
    EXPECT_EQ(SnapValue(-4.00000000001), -4);
}

TEST(RoundAtPosition, TiesGoUpward) {
    MathWorkspace ws;
    EXPECT_EQ(RoundAtPosition(ws, 2.5, -1), 3);
    EXPECT_EQ(RoundAtPosition(ws, -2.5, -1), -2);
    EXPECT_DOUBLE_EQ(RoundAtPosition(ws, 3.14159, -3), 3.14);
    EXPECT_EQ(RoundAtPosition(ws, 1234, 0), 1230);
    EXPECT_DOUBLE_EQ(RoundAtPosition(ws, 0.123456, -5), 0.1235);
}

TEST(FractionalPart, KeepsTheSign) {
    MathWorkspace ws;
    EXPECT_DOUBLE_EQ(FractionalPart(ws, 3.25), 0.25);
    EXPECT_DOUBLE_EQ(FractionalPart(ws, -3.25), -0.25);
    EXPECT_EQ(FractionalPart(ws, 2e15), 0);
}

TEST(Gcd, EdgeCases) {
    MathWorkspace ws;
    EXPECT_EQ(Gcd(ws, 0, -6), -6);
    EXPECT_EQ(Gcd(ws, -4, 6), 2);
    EXPECT_EQ(Gcd(ws, 20000000000.0, 3), 1);
    EXPECT_EQ(Gcd(ws, 12, 18), 6);
    EXPECT_EQ(Gcd(ws, 7, 0), 7);
    // The guard looks at signed values: a large negative number passes it.
    EXPECT_EQ(Gcd(ws, -20000000000.0, 4), 4);
}

TEST(Lcm, OfPositiveNumbers) {
    MathWorkspace ws;
    EXPECT_EQ(Lcm(ws, 4, 6), 12);
    EXPECT_EQ(Lcm(ws, 7, 5), 35);
    EXPECT_EQ(Lcm(ws, 36, 48), 144);
}

TEST(IsPrime, EdgeCases) {
    MathWorkspace ws;
    EXPECT_FALSE(IsPrime(ws, 1));
    EXPECT_EQ(ws.MathError, 0);
    EXPECT_TRUE(IsPrime(ws, 2));
    EXPECT_FALSE(IsPrime(ws, 2.5));
    EXPECT_EQ(ws.MathError, 5);
    EXPECT_FALSE(IsPrime(ws, 0));
    EXPECT_FALSE(IsPrime(ws, 2e9));
    EXPECT_TRUE(IsPrime(ws, 97));
    EXPECT_FALSE(IsPrime(ws, 91));
    EXPECT_FALSE(IsPrime(ws, 9));
    EXPECT_TRUE(IsPrime(ws, 999983));
}

TEST(CrossProduct, OfUnitVectors) {
    double x, y, z;
    CrossProduct(1, 0, 0, 0, 1, 0, x, y, z);
    EXPECT_EQ(x, 0);
    EXPECT_EQ(y, 0);
    EXPECT_EQ(z, 1);
    CrossProduct(1, 2, 3, 4, 5, 6, x, y, z);
    EXPECT_EQ(x, -3);
    EXPECT_EQ(y, 6);
    EXPECT_EQ(z, -3);
}

TEST(ArcCosine, MatchesTheLibrary) {
    for (double x = -1; x <= 1; x += 0.125) EXPECT_NEAR(ArcCosine(x), std::acos(x), 1e-12) << x;
    EXPECT_EQ(ArcCosine(1), 0);
    EXPECT_DOUBLE_EQ(ArcCosine(-1), kPi);
    EXPECT_EQ(ArcCosine(1.5), 0);
}

TEST(ReduceTerms, SmallCoefficientsWithPositiveLead) {
    MathWorkspace ws;
    double a = -4, b = 6, c = 0, d = 8;
    ReduceTerms(ws, a, b, c, d);
    EXPECT_EQ(a, 2);
    EXPECT_EQ(b, -3);
    EXPECT_EQ(c, 0);
    EXPECT_EQ(d, -4);
    a = 0, b = -3, c = 6, d = 9;
    ReduceTerms(ws, a, b, c, d);
    EXPECT_EQ(b, 1);
    EXPECT_EQ(c, -2);
    EXPECT_EQ(d, -3);
    a = 0, b = 0, c = -5, d = 10;
    ReduceTerms(ws, a, b, c, d);
    EXPECT_EQ(c, 1);
    EXPECT_EQ(d, -2);
    a = 0, b = 0, c = 0, d = 7;
    ReduceTerms(ws, a, b, c, d);
    EXPECT_EQ(d, 7);
}

TEST(GroupDigits, TheRequiredLook) {
    EXPECT_EQ(GroupDigits("1000"), "1000");
    EXPECT_EQ(GroupDigits("10000"), "10_ 000");
    EXPECT_EQ(GroupDigits("1000000"), "1_ 000_ 000");
    EXPECT_EQ(GroupDigits("1438743"), "1_ 438_ 743");
    EXPECT_EQ(GroupDigits("-1438743"), "-1_ 438_ 743");
    EXPECT_EQ(GroupDigits("1234.5"), "1234.5");
    EXPECT_EQ(GroupDigits("1234567.25"), "1_ 234_ 567.25");
    EXPECT_EQ(GroupDigits("1234"), "1234");
    EXPECT_EQ(GroupDigits("12345"), "12_ 345");
    EXPECT_EQ(GroupDigits("123456"), "123_ 456");
    EXPECT_EQ(GroupDigits("123"), "123");
    EXPECT_EQ(GroupDigits("-12345"), "-12_ 345");
    EXPECT_EQ(GroupDigits("12345.6789"), "12_ 345.6789");
    EXPECT_EQ(GroupDigits("1.23456"), "1.234_ 56");
    EXPECT_EQ(GroupDigits("0.1234"), "0.1234");
    EXPECT_EQ(GroupDigits("1.5E+20"), "1.5E+20");
    EXPECT_EQ(GroupDigits("123456789"), "123_ 456_ 789");
}

TEST(PlaneTriple, GivesPythagoreanTriples) {
    MathWorkspace ws;
    for (int i = 0; i < 200; ++i) {
        double x = 0, y = 0, z = 0;
        PlaneTriple(ws, 30, x, y, z);
        EXPECT_EQ(x * x + y * y, z * z);
        EXPECT_LE(z, 30);
        EXPECT_GE(x, 3);
    }
    double x = -1, y = -1, z = -1;
    PlaneTriple(ws, 4, x, y, z);
    EXPECT_EQ(x, -1);
}

TEST(SpatialTriple, GivesSpatialTriples) {
    MathWorkspace ws;
    for (int i = 0; i < 100; ++i) {
        double x, y, z, d;
        SpatialTriple(ws, 20, i % 2 == 0, i % 3 == 0, x, y, z, d);
        EXPECT_EQ(x * x + y * y + z * z, d * d);
        EXPECT_EQ(x == y, i % 2 == 0);
    }
}
