// The problem record, its code and its line.
#include <gtest/gtest.h>

#include "core/problem_record.h"
#include "generators/hub.h"

namespace {
ProblemRecord Record(int routine, int variant, int seed, int items, int size, int index) {
    ProblemRecord r;
    r.ModuleName = "KVOL_MATH_NRP";
    r.RoutineId = routine;
    r.VariantNumber = variant;
    r.Seed = seed;
    r.ItemCount = items;
    r.GroupSize = size;
    r.GroupIndex = index;
    return r;
}

bool SameFields(const ProblemCodeFields& a, const ProblemCodeFields& b) {
    return a.RoutineId == b.RoutineId && a.VariantNumber == b.VariantNumber && a.Seed == b.Seed &&
           a.ItemCount == b.ItemCount && a.GroupSize == b.GroupSize && a.GroupIndex == b.GroupIndex;
}
} // namespace

TEST(ProblemRecord, CodeFieldsAreWhatTheCodeTextSays) {
    // Wide values keep their low digits; a sign left inside a place reads as nothing.
    const int values[] = {0, 1, 7, 42, 99, 100, 123, 899, 903, 999, 1000, 1234, 8999, 9097, 9999, 12345,
                          -1, -5, -12, -99, -100, -123, -1234, -99999};
    for (int v : values) {
        for (int place = 0; place < 6; ++place) {
            int f[6] = {12, 5, 42, 3, 2, 1};
            f[place] = v;
            const ProblemRecord r = Record(f[0], f[1], f[2], f[3], f[4], f[5]);
            EXPECT_TRUE(SameFields(CodeFieldsOf(r), ReadProblemCode(ProblemCodeOf(r))))
                << "value " << v << " in place " << place << ": " << ProblemCodeOf(r);
        }
    }
}

TEST(ProblemRecord, LineReadsBackItsIdentity) {
    ProblemRecord r = Record(12, 903, 9097, 26, 5, 5);
    r.ModuleName = "KVOL_MATH_\u00D1";
    r.Statement = "not in the line";
    const std::string line = ProblemLine(r, 17);
    EXPECT_EQ(line.substr(line.size() - 22), "0129039097260505" "0017\r\n");
    const std::vector<ProblemRecord> back = ReadProblemLines(line + line, 500);
    ASSERT_EQ(back.size(), 2u);
    ProblemRecord expected = r;
    expected.Statement.clear();
    EXPECT_EQ(back[0], expected);
    EXPECT_EQ(back[1], expected);
}

TEST(ProblemRecord, BlocksThatAreNotWholeLinesGiveNoRecords) {
    const std::string line = ProblemLine(Record(1, 2, 3, 4, 5, 1), 1);
    EXPECT_TRUE(ReadProblemLines("", 500).empty());
    EXPECT_TRUE(ReadProblemLines(line + "x", 500).empty());
    EXPECT_TRUE(ReadProblemLines(line.substr(1), 500).empty());
    EXPECT_TRUE(ReadProblemLines(line + line + line, 2).empty());
    EXPECT_EQ(ReadProblemLines(line + line, 2).size(), 2u);
}

TEST(ProblemRecord, ClipboardFormIsHeadIdentityAndElement) {
    ProblemRecord r = Record(1, 2, 3, 4, 5, 1);
    r.Statement = "S";
    r.Solution = "L";
    const std::string text = ProblemClipboardText(r);
    EXPECT_TRUE(IsProblemClipboardText(text));
    EXPECT_FALSE(IsProblemClipboardText(text.substr(1)));
    EXPECT_EQ(text.substr(18 + 80), "0010020003040501#ENU(S#ENU)#SOL(L#SOL)");
    std::string statement;
    std::string solution;
    ASSERT_TRUE(SplitProblemElement(text.substr(18 + 96), statement, solution));
    EXPECT_EQ(statement, "S");
    EXPECT_EQ(solution, "L");
}

// The hub given a record's fields writes what it writes for the record's code text.
TEST(ProblemRecord, HubTakesTheFieldsAsItTakesTheCode) {
    GeneratorHub hub;
    int compared = 0;
    for (const GeneratorModule& module : hub.Modules()) {
        for (std::size_t k = 0; k < module.routines.size(); k += 3) {
            const int routine = module.routines[k].number;
            for (const ProblemRecord& shape : {Record(routine, 17, 4321, 4, 3, 2), Record(routine, 903, 9097, 0, 123, 101)}) {
                ProblemRecord r = shape;
                r.ModuleName = module.name;
                std::string s1, l1, s2, l2;
                hub.RunGenerator(r.ModuleName, ProblemCodeOf(r), s1, l1);
                hub.RunGenerator(r.ModuleName, CodeFieldsOf(r), s2, l2);
                EXPECT_EQ(s1, s2) << module.name << " " << ProblemCodeOf(r);
                EXPECT_EQ(l1, l2) << module.name << " " << ProblemCodeOf(r);
                ++compared;
            }
        }
        // A routine the module lacks, and a module no one has.
        std::string s1, l1, s2, l2;
        const ProblemRecord missing = Record(998, 1, 2, 3, 4, 1);
        hub.RunGenerator(module.name, ProblemCodeOf(missing), s1, l1);
        hub.RunGenerator(module.name, CodeFieldsOf(missing), s2, l2);
        EXPECT_EQ(s1, s2);
        EXPECT_NE(s1.find("998"), std::string::npos) << s1;
    }
    EXPECT_GT(compared, 60);
    std::string s1, l1, s2, l2;
    hub.RunGenerator("KVOL_NONE", "0010020003040501", s1, l1);
    hub.RunGenerator("KVOL_NONE", CodeFieldsOf(Record(1, 2, 3, 4, 5, 1)), s2, l2);
    EXPECT_EQ(s1, s2);
    EXPECT_EQ(l1, l2);
}
