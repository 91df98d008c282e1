#include <gtest/gtest.h>

#include <map>

#include "generators/catalogue.h"
#include "generators/hub.h"

namespace {
std::string Trim(const std::string& s) {
    const auto a = s.find_first_not_of(' ');
    const auto b = s.find_last_not_of(' ');
    return a == std::string::npos ? "" : s.substr(a, b - a + 1);
}

struct Expected {
    const char* topic;
    const char* sub;
    const char* kind;
    const char* title;
};
} // namespace

// The describe blocks of the polynomial, algebraic-fraction, angle and complex-number routines.
TEST(AlgebraCatalogue, DescribeBlocks) {
    const std::map<int, Expected> expected = {
        {3, {"060", "035", "2", "Algebraic fractions II: Simplifying algebraic fractions"}},
        {4, {"060", "040", "2", "Algebraic fractions III: Simplifying algebraic fractions"}},
        {16, {"060", "001", "2", "Addition and subtraction of polynomials"}},
        {17, {"060", "002", "2", "Multiplication and power of binomials"}},
        {18, {"060", "010", "2", "Factoring polynomials"}},
        {19, {"060", "015", "2", "Division of polynomials"}},
        {20, {"060", "020", "3", "Division of polynomials involving parameters"}},
        {26, {"060", "030", "2", "Algebraic fractions I: Simplifying algebraic fractions"}},
        {27, {"045", "010", "2", "Adding angle measures"}},
        {28, {"045", "020", "2", "Subtracting angle measures"}},
        {29, {"045", "030", "2", "Multiplying angle measures"}},
        {30, {"045", "040", "2", "Dividing angle measures"}},
        {31, {"045", "050", "2", "Complementary and supplementary angle calculation"}},
        {32, {"045", "060", "3", "Angle calculation in triangles and other shapes"}},
        {33, {"115", "010", "2", "Adding and subtracting complex numbers"}},
        {34, {"115", "020", "2", "Multiplying and dividing complex numbers in cartesian form"}},
        {35, {"115", "030", "2", "Cartesian-polar conversions"}},
        {36, {"115", "040", "2", "Multiplying and dividing complex numbers in polar form"}},
        {37, {"115", "050", "2", "Powers of complex numbers"}},
        {38, {"115", "060", "2", "Root extraction of complex numbers"}},
        {39, {"115", "070", "3", "Calculation of a parameter"}},
    };
    GeneratorHub hub;
    hub.ReadCatalogue();
    std::map<int, CatalogueEntry> found;
    for (const std::string& line : hub.CatalogueList()) {
        const CatalogueEntry e = ReadCatalogueEntry(line);
        if (e.moduleName == "KVOL_MATH_NRP" && e.Kind != "5") found[std::stoi(e.RoutineId)] = e;
    }
    for (const auto& [routine, x] : expected) {
        ASSERT_TRUE(found.count(routine)) << routine;
        const CatalogueEntry& e = found[routine];
        EXPECT_EQ(e.TopicId, x.topic) << routine;
        EXPECT_EQ(e.SubtopicId, x.sub) << routine;
        EXPECT_EQ(e.Kind, x.kind) << routine;
        EXPECT_EQ(Trim(e.Title), x.title) << routine;
        EXPECT_EQ(Trim(e.Subject), "Mathematics") << routine;
        const std::string topicName = Trim(e.TopicName);
        if (std::string(x.topic) == "060") EXPECT_EQ(topicName, "Polynomials and algebraic fractions");
        if (std::string(x.topic) == "045") EXPECT_EQ(topicName, "Angle calculations");
        if (std::string(x.topic) == "115") EXPECT_EQ(topicName, "Complex numbers");
        if (routine >= 27) EXPECT_EQ(e.MaxAmount, "027") << routine;
        else if (routine != 20) EXPECT_EQ(e.MaxAmount, "026") << routine;
    }
    EXPECT_EQ(Trim(found[19].Description),
              "Exercises to practice division of polynomials: Polynomial long division and Synthetic division "
              "(division through Ruffini's rule). (2 types)");
    EXPECT_EQ(Trim(found[18].Description), "Exercises to factorize polynomials (Ruffini's rule).");
}

// Drills with the item count 27 of their catalogue line still write 26 lettered items.
TEST(AlgebraCatalogue, TwentySevenItemsAreClippedToTheLetters) {
    GeneratorHub hub;
    for (int routine : {27, 31, 33, 38}) {
        std::string statement, solution;
        hub.RunGenerator("KVOL_MATH_NRP", MakeProblemCode({routine, 0, 77, 27, 1, 1}), statement, solution);
        EXPECT_NE(statement.find("&+Bz)"), std::string::npos) << routine;
        EXPECT_EQ(statement.find("&+B{"), std::string::npos) << routine;
    }
}
