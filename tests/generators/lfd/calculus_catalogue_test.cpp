#include <gtest/gtest.h>

#include "generators/catalogue.h"
#include "generators/hub.h"
#include "mathservices/utf8_text.h"

namespace {
struct Expected {
    const char* module;
    const char* routine;
    const char* topic;
    const char* topicName;
    const char* subtopic;
    const char* kind;
    const char* maxAmount;  // empty: the routine sets none
    const char* title;
    const char* description;
};

const Expected kExpected[] = {
    {"KVOL_MATH_LFD", "027", "140", "Limits", "010", "3", "", "Limits involving rational functions",
     "Calculation of limits involving rational functions (the ratio of two polynomial functions). (3 types)"},
    {"KVOL_MATH_LFD", "026", "140", "Limits", "020", "3", "", "Limits involving roots",
     "Calculation of limits involving divisions and roots. (2 types)"},
    {"KVOL_MATH_LFD", "077", "140", "Limits", "030", "3", "", "Limits involving subtraction of roots",
     "Calculation of limits involving subtraction of roots. (1 type)"},
    {"KVOL_MATH_LFD", "025", "140", "Limits", "040", "3", "", "Limits of powers involving the number e",
     "Calculation of limits of powers involving the number e. (3 types)"},
    {"KVOL_MATH_LFD", "067", "150", "Functions and derivatives", "010", "2", "020", "Domain of a function",
     "Exercises to calculate the domain of a function. (16 types of functions)"},
    {"KVOL_MATH_LFD", "001", "150", "Functions and derivatives", "012", "2", "020", "Derivative of functions (I)",
     "Exercises to find the derivative of a function. Easy level (19 types)"},
    {"KVOL_MATH_LFD", "002", "150", "Functions and derivatives", "013", "2", "020", "Derivative of functions (II)",
     "Exercises to find the derivative of a function. More difficult level  (19 types)"},
    {"KVOL_MATH_LFD", "029", "150", "Functions and derivatives", "015", "2", "020",
     "Tangent and normal lines to a curve at a point",
     "Calculate the tangent and normal lines to a curve at a point involving derivatives. (6 types of functions)"},
    {"KVOL_MATH_LFD", "032", "150", "Functions and derivatives", "020", "3", "",
     "Finding polynomial functions involving derivatives",
     "&DPFinding polynomial functions coefficients (quadratic and cubic) involving derivatives. (10 types)"},
    {"KVOL_MATH_LFD", "033", "150", "Functions and derivatives", "035", "2", "021",
     "Maximums and minimums of a function",
     "Calculation of maximums and minimums of a given function. (2 types of functions)"},
    {"KVOL_MATH_LFD", "068", "150", "Functions and derivatives", "040", "3", "", "Continuity of a function",
     "Study the continuity of a function at a point. (5 types of functions, 17 cases)"},
    {"KVOL_MATH_LFD", "069", "150", "Functions and derivatives", "050", "3", "", "Derivability of a function",
     "Study the continuity and derivability of a function at a point. (5 types of functions, 15 cases)"},
    {"KVOL_MATH_INT", "001", "160", "Indefinite integrals", "015", "2", "026", "Integrals of rational functions (I)",
     "Integrals of rational functions, by decomposing the rational function into a sum of small rational "
     "functions) (2 types)"},
    {"KVOL_MATH_INT", "002", "160", "Indefinite integrals", "020", "2", "026", "Integrals of rational functions (II)",
     "Integrals of rational functions (with a quadratic denominator that cannot be factorised) (1 type)"},
    {"KVOL_MATH_INT", "006", "160", "Indefinite integrals", "027", "2", "026",
     "Integration by substitution or direct methods",
     "Exercises to solve indefinite integrals using substitution or direct methods. (32 types)"},
    {"KVOL_MATH_INT", "005", "160", "Indefinite integrals", "030", "2", "026", "Integration by parts",
     "Exercises to solve indefinite integrals using 'integration by parts' method. (23 types)"},
    {"KVOL_MATH_INT", "003", "170", "Definite integrals", "005", "3", "", "Area calculation involving one function",
     "&DPArea calculation involving one function using definite integrals. (8 types)"},
    {"KVOL_MATH_INT", "004", "170", "Definite integrals", "015", "3", "",
     "Area calculation involving two functions and/or parameters",
     "Area calculation involving two functions and/or a parameter using definite integrals. (4 types)"},
};
} // namespace

TEST(CalculusCatalogue, EveryRoutineDescribesItselfAsListed) {
    GeneratorHub hub;
    hub.ReadCatalogue();
    int lfd = 0, integrals = 0;
    for (const Expected& x : kExpected) {
        bool found = false, header = false;
        for (const auto& line : hub.CatalogueList()) {
            const CatalogueEntry e = ReadCatalogueEntry(line);
            if (e.moduleName != x.module) continue;
            if (e.Kind == "5" && e.TopicId == x.topic) {
                header = true;
                EXPECT_EQ(e.TopicName, Utf8PadRight(x.topicName, 80));
            }
            if (e.Kind == "5" || e.RoutineId != x.routine) continue;
            found = true;
            EXPECT_EQ(e.TopicId, x.topic) << x.title;
            EXPECT_EQ(e.TopicName, Utf8PadRight(x.topicName, 80)) << x.title;
            EXPECT_EQ(e.SubtopicId, x.subtopic) << x.title;
            EXPECT_EQ(e.Kind, x.kind) << x.title;
            if (*x.maxAmount) {
                EXPECT_EQ(e.MaxAmount, x.maxAmount) << x.title;
            }
            EXPECT_EQ(e.Title, Utf8PadRight(x.title, 80));
            EXPECT_EQ(e.Description, Utf8PadRight(x.description, 160));
        }
        EXPECT_TRUE(found) << x.module << " " << x.routine;
        EXPECT_TRUE(header) << x.module << " " << x.topic;
    }
    for (const auto& line : hub.CatalogueList()) {
        const CatalogueEntry e = ReadCatalogueEntry(line);
        if (e.Kind == "5") continue;
        if (e.moduleName == "KVOL_MATH_LFD") ++lfd;
        if (e.moduleName == "KVOL_MATH_INT") ++integrals;
    }
    EXPECT_EQ(lfd, 12);
    EXPECT_EQ(integrals, 6);
}
