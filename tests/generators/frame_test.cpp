#include <set>

#include <gtest/gtest.h>

#include "generators/catalogue.h"
#include "generators/hub.h"
#include "mathservices/faults.h"
#include "mathservices/utf8_text.h"

TEST(ProblemCode, BuiltFromFieldsAndReadBack) {
    ProblemCodeFields f{12, 123, 4567, 5, 1, 1};
    EXPECT_EQ(MakeProblemCode(f), "0121234567050101");
    const ProblemCodeFields back = ReadProblemCode("0121234567050101");
    EXPECT_EQ(back.RoutineId, 12);
    EXPECT_EQ(back.VariantNumber, 123);
    EXPECT_EQ(back.Seed, 4567);
    EXPECT_EQ(back.ItemCount, 5);
    EXPECT_EQ(back.GroupSize, 1);
    EXPECT_EQ(back.GroupIndex, 1);
}

TEST(ProblemCode, TooWideValuesLoseTheirHighDigits) {
    ProblemCodeFields f{1234, 5678, 123456, 123, 100, 7};
    EXPECT_EQ(MakeProblemCode(f), "2346783456230007");
}

TEST(ProblemCode, RecognisesSixteenDigits) {
    EXPECT_TRUE(IsProblemCode("0121234567050101"));
    EXPECT_FALSE(IsProblemCode("012123456705010"));
    EXPECT_FALSE(IsProblemCode("01212345670501011"));
    EXPECT_FALSE(IsProblemCode("01212345670501x1"));
}

TEST(RunGenerator, SameCodeSameText) {
    GeneratorHub hub;
    std::string s1, r1, s2, r2, other1, other2;
    hub.RunGenerator("KVOL_MATH_NRP", "0121234567050101", s1, r1);
    hub.RunGenerator("KVOL_MATH_NRP", "0120009999260101", other1, other2);
    hub.RunGenerator("KVOL_MATH_NRP", "0121234567050101", s2, r2);
    EXPECT_EQ(s1, s2);
    EXPECT_EQ(r1, r2);
    EXPECT_NE(s1, other1);
}

TEST(RunGenerator, LowerCaseModuleNameWorks) {
    GeneratorHub hub;
    std::string s1, r1, s2, r2;
    hub.RunGenerator("KVOL_MATH_NRP", "0121234567050101", s1, r1);
    hub.RunGenerator("kvol_math_nrp", "0121234567050101", s2, r2);
    EXPECT_EQ(s1, s2);
    EXPECT_EQ(r1, r2);
}

TEST(RunGenerator, UnknownModule) {
    GeneratorHub hub;
    std::string s, r;
    hub.RunGenerator("KVOL_MATH_XYZ", "0121234567050101", s, r);
    EXPECT_EQ(s, "<ERROR: Cannot re-create the problem.> Perhaps its a wrong version.&LF");
    EXPECT_EQ(r, "<ERROR>&LF");
}

TEST(RunGenerator, UnknownRoutine) {
    GeneratorHub hub;
    std::string s, r;
    hub.RunGenerator("KVOL_MATH_NRP", "0401234567050101", s, r);
    EXPECT_EQ(s, "<ERROR IN MODULE KVOL_MATH_NRP:. THE ROUTINE ID = 040 IS NOT FOUND>&LF");
    EXPECT_EQ(r, "&LF");
    hub.RunGenerator("KVOL_MATH_NRP", "0001234567050101", s, r);
    EXPECT_EQ(s, "<ERROR IN MODULE KVOL_MATH_NRP:. THE ROUTINE ID = 000 IS NOT FOUND>&LF");
    // A number in a gap of the calculus module.
    hub.RunGenerator("KVOL_MATH_LFD", "0031234567050101", s, r);
    EXPECT_EQ(s, "<ERROR IN MODULE KVOL_MATH_LFD:. THE ROUTINE ID = 003 IS NOT FOUND>&LF");
}

TEST(RunGenerator, EveryModuleHasItsRouter) {
    GeneratorHub hub;
    for (const char* name : {"KVOL_MATH_ALG", "KVOL_MATH_ECU", "KVOL_MATH_GA2", "KVOL_MATH_GA3", "KVOL_MATH_INT",
                             "KVOL_MATH_LFD", "KVOL_MATH_NRP", "KVOL_MATH_PES", "KVOL_MATH_TRI"}) {
        std::string s, r;
        hub.RunGenerator(name, "0991234567050101", s, r);
        EXPECT_EQ(s, std::string("<ERROR IN MODULE ") + name + ":. THE ROUTINE ID = 099 IS NOT FOUND>&LF");
    }
}

TEST(RunGenerator, BasicGeometryAnswersInTheOtherLanguage) {
    GeneratorHub hub;
    std::string s, r;
    hub.RunGenerator("KVOL_MATH_GDE", "0991234567050101", s, r);
    EXPECT_EQ(s, "<ERROR EN MODULO KVOL_MATH_GDE. NO EXISTE RUTINA CON ID = 099>&LF");
    EXPECT_EQ(r, "&LF");
}

TEST(FaultStatement, Shape) {
    EXPECT_EQ(FaultStatement(11, "Division by zero", "0010010001010001", "KVOL_MATH_ALG"),
              "<ERROR>  Number= 11&LFError description =Division by zero &LFCommand=0010010001010001"
              "&LFModule=KVOL_MATH_ALG&LF");
}

TEST(ReadCatalogue, LinesAreFourHundredCharacters) {
    GeneratorHub hub;
    hub.ReadCatalogue();
    ASSERT_FALSE(hub.CatalogueList().empty());
    for (const auto& entry : hub.CatalogueList()) {
        const auto colon = entry.find(':');
        ASSERT_NE(colon, std::string::npos);
        EXPECT_EQ(Utf8Length(entry.substr(colon + 1)), kCatalogueLineWidth) << entry;
        EXPECT_EQ(entry.substr(entry.size() - 2), "\r\n");
    }
}

TEST(ReadCatalogue, RoutineTwelveUnderNaturalNumbers) {
    GeneratorHub hub;
    hub.ReadCatalogue();
    bool header = false;
    bool routine = false;
    for (const auto& line : hub.CatalogueList()) {
        const CatalogueEntry e = ReadCatalogueEntry(line);
        EXPECT_EQ(e.moduleName.substr(0, 10), "KVOL_MATH_");
        EXPECT_EQ(e.Subject, Utf8PadRight("Mathematics", 65));
        if (e.moduleName == "KVOL_MATH_NRP" && e.TopicId == "010" && e.Kind == "5") {
            header = true;
            EXPECT_EQ(e.SubtopicId, "000");
            EXPECT_EQ(e.RoutineId, "000");
            EXPECT_EQ(e.MaxAmount, "000");
            EXPECT_EQ(e.TopicName, Utf8PadRight("Natural numbers", 80));
            EXPECT_EQ(e.Title, std::string(80, ' '));
        }
        if (e.moduleName == "KVOL_MATH_NRP" && e.RoutineId == "012") {
            routine = true;
            EXPECT_EQ(e.TopicId, "010");
            EXPECT_EQ(e.SubtopicId, "001");
            EXPECT_EQ(e.Kind, "2");
            EXPECT_EQ(e.MaxAmount, "026");
            EXPECT_EQ(e.Title, Utf8PadRight("Addition and subtraction of natural numbers", 80));
            EXPECT_EQ(e.Description,
                      Utf8PadRight("Exercises to practice addition and subtraction of natural numbers. (2 types)", 160));
        }
    }
    EXPECT_TRUE(header);
    EXPECT_TRUE(routine);
}

TEST(ReadCatalogue, TopicHeaderOncePerTopicPerModule) {
    GeneratorHub hub;
    hub.ReadCatalogue();
    std::set<std::string> seen;
    for (const auto& line : hub.CatalogueList()) {
        const CatalogueEntry e = ReadCatalogueEntry(line);
        if (e.Kind != "5") continue;
        EXPECT_TRUE(seen.insert(e.moduleName + e.TopicId).second) << line;
    }
}

TEST(ReadCatalogue, SecondCallDoesNothing) {
    GeneratorHub hub;
    hub.ReadCatalogue();
    const auto first = hub.CatalogueList();
    const auto stateBefore = hub.Workspace().stream.State();
    hub.Workspace().Title = "untouched";
    hub.ReadCatalogue();
    EXPECT_EQ(hub.CatalogueList(), first);
    EXPECT_EQ(hub.Workspace().Title, "untouched");
    EXPECT_EQ(hub.Workspace().stream.State(), stateBefore);
}

namespace {
// Routines written for the tests below: they exercise the fault paths of the hub.
void WritesNothing(GeneratorWorkspace&) {}
void DividesByZero(GeneratorWorkspace& ws) {
    volatile double zero = 0;
    ws.Statement = std::to_string(1.0 / zero);
}
void IndexesOutOfRange(GeneratorWorkspace& ws) {
    std::vector<int> v(3);
    ws.Statement = std::to_string(v.at(7));
}
void NeverFindsANiceDraw(GeneratorWorkspace& ws) {
    RetryBound bound(1000);
    while (true) bound.Next();
}
void TwoLevel(GeneratorWorkspace& ws) {
    ws.Statement = std::to_string(TwoLevelType(ws, 4));
}
} // namespace

TEST(Catalogue, LongFieldsAreCutWithoutMark) {
    GeneratorWorkspace ws;
    GeneratorModule module{
        "KVOL_MATH_TST", 1, {{1, WritesNothing, {"7", "Topic", "3", "2", "", std::string(100, 'T'), std::string(200, 'D')}}}};
    std::string unused;
    const std::string text = RunRouter(ws, module, "", unused, unused, -1);
    ASSERT_EQ(text.substr(0, 14), "KVOL_MATH_TST:");
    const std::string lines = text.substr(14);
    ASSERT_EQ(lines.size(), 800u);
    const CatalogueEntry e = ReadCatalogueEntry("X:" + lines.substr(400));
    EXPECT_EQ(e.TopicId, "007");
    EXPECT_EQ(e.SubtopicId, "003");
    EXPECT_EQ(e.Title, std::string(80, 'T'));
    EXPECT_EQ(e.Description, std::string(160, 'D'));
}

TEST(RunGenerator, FaultsBecomeErrorText) {
    GeneratorHub hub({GeneratorModule{"KVOL_MATH_TST", 4,
                                      {{1, DividesByZero}, {2, IndexesOutOfRange}, {3, NeverFindsANiceDraw},
                                       {4, TwoLevel}}}});
    std::string s, r;
    hub.RunGenerator("KVOL_MATH_TST", "0010000001010101", s, r);
    EXPECT_EQ(s, "<ERROR>  Number= 11&LFError description =Division by zero &LFCommand=0010000001010101"
                 "&LFModule=KVOL_MATH_TST&LF");
    EXPECT_EQ(r, "<ERROR>&LF");
    hub.RunGenerator("kvol_math_tst", "0020000001010101", s, r);
    EXPECT_EQ(s, "<ERROR>  Number= 9&LFError description =Subscript out of range &LFCommand=0020000001010101"
                 "&LFModule=kvol_math_tst&LF");
    hub.RunGenerator("KVOL_MATH_TST", "0030000001010101", s, r);
    EXPECT_EQ(s.substr(0, 19), "<ERROR>  Number= 17");
    // A group size of 0 makes the percentage of a worded problem divide by zero.
    hub.RunGenerator("KVOL_MATH_TST", "0040000001010001", s, r);
    EXPECT_EQ(s.substr(0, 19), "<ERROR>  Number= 11");
    // The pending fault is cleared: the next problem is clean.
    hub.RunGenerator("KVOL_MATH_TST", "0040000000010401", s, r);
    EXPECT_EQ(s, "0");
}

TEST(TwoLevelType, BandsOfTheGroup) {
    GeneratorWorkspace ws;
    ws.Seed = 5;
    ws.GroupSize = 4;
    ws.GroupIndex = 1;  // 25 %: the first half
    EXPECT_EQ(TwoLevelType(ws, 4), 1);
    ws.GroupIndex = 3;  // 75 %: the second half
    EXPECT_EQ(TwoLevelType(ws, 4), 3);
    ws.GroupSize = 1;
    ws.GroupIndex = 1;
    EXPECT_EQ(TwoLevelType(ws, 4), 1);
}
