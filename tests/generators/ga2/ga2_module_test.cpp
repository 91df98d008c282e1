#include <gtest/gtest.h>

#include "generators/hub.h"
#include "support/generator_sweep.h"

TEST(Ga2Module, DescribeBlocks) {
    GeneratorHub hub;
    hub.ReadCatalogue();
    const char* const kTitles[] = {"Vectors I", "Vectors II", "Lines I", "Lines II", "Conics I: Circle",
                                   "Conics II: Ellipse", "Conics III: Hyperbola", "Conics IV: Parabola"};
    const char* const kSubtopics[] = {"010", "020", "030", "040", "100", "120", "140", "160"};
    int headers = 0, routines = 0;
    for (const std::string& entry : hub.CatalogueList()) {
        if (entry.rfind("KVOL_MATH_GA2:", 0) != 0) continue;
        const std::string line = entry.substr(14);
        ASSERT_EQ(line.size(), 400u);
        EXPECT_EQ(line.substr(0, 3), "120");
        if (line.substr(231, 1) == "5") {
            ++headers;
            EXPECT_EQ(line.substr(71, 25), "Plane analytical geometry");
            continue;
        }
        const int routine = std::stoi(line.substr(232, 3));
        ASSERT_GE(routine, 1);
        ASSERT_LE(routine, 8);
        ++routines;
        EXPECT_EQ(line.substr(3, 3), kSubtopics[routine - 1]);
        EXPECT_EQ(line.substr(231, 1), "3");
        const std::string title = kTitles[routine - 1];
        EXPECT_EQ(line.substr(151, title.size()), title);
        EXPECT_EQ(line[151 + title.size()], ' ');
    }
    EXPECT_EQ(headers, 1);
    EXPECT_EQ(routines, 8);
}

TEST(Ga2Module, UnknownRoutine) {
    GeneratorHub hub;
    for (int routine : {0, 9, 120}) {
        const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_GA2", {routine, 0, 1, 0, 1, 1});
        char number[4];
        std::snprintf(number, sizeof number, "%03d", routine);
        EXPECT_EQ(p.statement,
                  std::string("<ERROR IN MODULE KVOL_MATH_GA2:. THE ROUTINE ID = ") + number + " IS NOT FOUND>&LF");
        EXPECT_EQ(p.solution, "&LF");
    }
}

// Textbook writing: no division by zero, no "+ -", no rational number taken for a multiple of pi.
TEST(Ga2Module, TextbookWriting) {
    GeneratorHub hub;
    for (int routine = 1; routine <= 8; ++routine) {
        for (int seed = 0; seed < 400; ++seed) {
            const GeneratedProblem p = GenerateProblem(hub, "KVOL_MATH_GA2", {routine, seed % 900, seed * 7 % 9000, 0, 1, 1});
            for (const std::string& text : {p.statement, p.solution}) {
                for (const char* bad : {"#N)(0#COC)", "& +& -", "& -& -", "&pi", "nan", "inf", "E+", "E-"}) {
                    EXPECT_EQ(text.find(bad), std::string::npos) << p.code << " has " << bad << ": " << text;
                }
            }
        }
    }
}
