#include <gtest/gtest.h>

#include "generators/hub.h"

// Fixed codes with their exact texts: a change here changes every stored problem.
namespace {
struct Golden { const char* code; const char* statement; const char* solution; };
const Golden kGolden[] = {
    {"0320001001001001",
     "Let the function  &+If& &-I(&+Ix&-I)& =& &+Iax^2& +& bx& +& c&-I. Find the values of  &+Ia&-I,  &+Ib"
     "&-I  and  &+Ic&-I if the function has a tangent line of slope 17 at the point whose &+Ix&-I value is"
     " -4,  passes through point  (2&, 2)  and cuts Y-axis at the point whose &+Iy&-I value is 8.&LF",
     "&+Ia&-I = -2,   &+Ib&-I = 1,   &+Ic&-I = 8&LF&+If& &-I(&+Ix&-I)& =& -2&+Ix&-I^2& +& &+Ix&-I& +& 8&LF"},
    {"0320001007001007",
     "Let the function  &+If& &-I(&+Ix&-I)& =& &+Iax^3& +& bx^2& +& cx& +& d&-I. Find the values of  &+Ia&"
     "-I,  &+Ib&-I,  &+Ic&-I  and  &+Id&-I if the function has an extrema at the point  (3&, -94),  passes"
     " through point  (1&, -38)  and cuts Y-axis at the point whose &+Iy&-I value is 14.&LF",
     "&+Ia&-I = 2,   &+Ib&-I = 0,   &+Ic&-I = -54,   &+Id&-I = 14&LF&+If& &-I(&+Ix&-I)& =& 2&+Ix&-I^3& -& "
     "54&+Ix&-I& +& 14&LF"},
    {"0320001234000101",
     "Let the function  &+If& &-I(&+Ix&-I)& =& &+Iax^2& +& bx& +& c&-I. Find the values of  &+Ia&-I,  &+Ib"
     "&-I  and  &+Ic&-I if the function has an extrema at the point whose &+Ix&-I value is 0,  has a tange"
     "nt line of slope 10 at the point whose &+Ix&-I value is 5  and cuts Y-axis at the point whose &+Iy&-"
     "I value is 11.&LF",
     "&+Ia&-I = 1,   &+Ib&-I = 0,   &+Ic&-I = 11&LF&+If& &-I(&+Ix&-I)& =& &+Ix&-I^2& +& 11&LF"},
};
} // namespace

TEST(PolynomialConditionsGolden, FixedCodes) {
    GeneratorHub hub;
    for (const Golden& g : kGolden) {
        std::string statement, solution;
        hub.RunGenerator("KVOL_MATH_LFD", g.code, statement, solution);
        EXPECT_EQ(statement, g.statement) << g.code;
        EXPECT_EQ(solution, g.solution) << g.code;
    }
}
