// The answer key of a collection: the solutions behind their numbers and nothing of the
// statements, short answers side by side in columns they fit.
#include <gtest/gtest.h>

#include "core/answer_key.h"
#include "core/collection.h"
#include "core/composition.h"
#include "generators/item_drill.h"
#include "typesetter/width_model.h"

namespace {
void Create(ApplicationState& app, const std::vector<std::pair<int, int>>& nrpRoutines, const char* module,
            std::int32_t clock) {
    app.ClockSeed = [clock] { return clock; };
    app.Reseed();
    app.TopicTree = {TopicNode{}};
    for (const auto& [routine, items] : nrpRoutines) {
        TopicNode leaf;
        leaf.module = module;
        leaf.routine = routine;
        leaf.selected = true;
        leaf.amount = 3;
        leaf.itemsPerProblem = items;
        app.TopicTree.push_back(leaf);
    }
    app.Settings.Title = "Test 2";
    app.Settings.FirstProblemNumber = 4;
    Arbol_to_Var(app);
    CrearColeccion(app, 1);
}

std::string AllBlocks(const ApplicationState& app) {
    std::string all;
    for (int b = 1; b <= app.BlockCount; ++b) all += app.Blocks[b].text;
    return all;
}

std::string Closed(std::string text) {
    while (text.size() >= 3 && text.compare(text.size() - 3, 3, "&LF") == 0) text.resize(text.size() - 3);
    return text;
}
} // namespace

TEST(AnswerKey, TitleCarriesTheWordsAndFitsAFile) {
    EXPECT_EQ(AnswerKeyTitle("Test 2"), "Test 2 \u2014 Answer key");
    EXPECT_EQ(AnswerKeyTitle(""), "Answer key");
    EXPECT_LE(AnswerKeyTitle(std::string(1000, 'y')).size(), 1000u);
}

TEST(AnswerKey, ShortAnswersAreOneLineWithoutColumnsOrPictures) {
    EXPECT_TRUE(IsShortAnswer("x = 3&LF"));
    EXPECT_TRUE(IsShortAnswer("#COC(1#N)(2#COC)"));
    EXPECT_FALSE(IsShortAnswer("x = 3&LFy = 4&LF"));
    EXPECT_TRUE(IsShortAnswer("&SP=10:&-I&+Ba)&-B 58 870&LF"));
    EXPECT_FALSE(IsShortAnswer("&SP=10:a) 3&SP=50:b) 4&LF"));
    EXPECT_FALSE(IsShortAnswer("#IMG(m.gif,10,10#IMG)"));
    EXPECT_FALSE(IsShortAnswer("&LSAN=12:x"));
}

TEST(AnswerKey, HoldsEverySolutionOnceAndNoStatement) {
    for (const char* module : {"KVOL_MATH_ECU", "KVOL_MATH_NRP", "KVOL_MATH_LFD", "KVOL_MATH_GDE"}) {
        ApplicationState app;
        std::vector<std::pair<int, int>> routines;
        for (int r = 1; r <= 14; ++r) routines.push_back({r, 3});
        Create(app, routines, module, 31);
        ASSERT_GT(app.ProblemCount(), 10) << module;
        std::vector<ProblemRecord> problems(app.Problems.begin() + 1, app.Problems.begin() + 1 + app.ProblemCount());
        ComposeAnswerKey(app);
        EXPECT_EQ(app.Settings.Title, "Test 2 \u2014 Answer key");
        const std::string all = AllBlocks(app);
        for (std::size_t i = 0; i < problems.size(); ++i) {
            const std::string number = std::to_string(4 + i);
            const std::string solution = Closed(problems[i].Solution);
            if (solution.empty()) continue;
            const std::string entry = AnswerKeyEntry(app.Settings, 4 + static_cast<long long>(i), problems[i].Solution);
            const auto at = all.find(entry);
            EXPECT_NE(at, std::string::npos) << module << " problem " << number;
            EXPECT_EQ(all.find(entry, at + 1), std::string::npos) << module << " problem " << number;
            // No statement: its own text is nowhere, unless a solution happens to hold it.
            const std::string& statement = problems[i].Statement;
            bool insideSolution = false;
            for (const auto& p : problems) insideSolution = insideSolution || p.Solution.find(statement) != std::string::npos;
            if (statement.size() > 12 && !insideSolution) {
                EXPECT_EQ(all.find(statement), std::string::npos) << module << " problem " << number;
            }
        }
        for (int b = 1; b <= app.BlockCount; ++b) {
            EXPECT_EQ(app.Blocks[b].text.rfind("#MARK=" + PageMark(b), 0), 0u) << b;
            EXPECT_GE(app.Blocks[b].page, 1);
        }
    }
}

TEST(AnswerKey, ShortAnswersShareLinesInColumnsThatEachFits) {
    ApplicationState app;
    std::vector<std::pair<int, int>> routines;
    for (int r = 1; r <= 14; ++r) routines.push_back({r, 1});
    Create(app, routines, "KVOL_MATH_ECU", 8);
    const std::vector<std::string> blocks = AnswerKeyBlocks(app);
    int shared = 0;
    TypesetterState model;
    for (const std::string& block : blocks) {
        // A row of answers: "&SP=0:" and the marks of the columns after it.
        if (block.rfind("&SP=0:", 0) != 0) continue;
        std::vector<std::size_t> starts;
        for (auto at = block.find("&SP="); at != std::string::npos; at = block.find("&SP=", at + 1)) starts.push_back(at);
        if (starts.size() < 2) continue;
        ++shared;
        const double columns = static_cast<double>(starts.size());
        const double share = 100.0 / columns;
        for (std::size_t c = 0; c < starts.size(); ++c) {
            const std::size_t from = block.find(':', starts[c]) + 1;
            const std::size_t to = c + 1 < starts.size() ? starts[c + 1] : block.size() - 3;
            const double width = ModelMarkupWidth(model, block.substr(from, to - from));
            EXPECT_LE(width, (share - 1) / 100 * kItemTextWidth) << block;
        }
    }
    EXPECT_GT(shared, 0) << "no line holds more than one answer";
    EXPECT_LT(blocks.size(), static_cast<std::size_t>(app.ProblemCount()));
}

TEST(AnswerKey, AProblemWithoutSolutionHasNoEntry) {
    ApplicationState app;
    app.Settings.ProblemCount = 3;
    app.Settings.FirstProblemNumber = 1;
    app.Problems[1].Solution = "x = 1";
    app.Problems[2].Solution = "&LF";
    app.Problems[3].Solution = "x = 3";
    const std::vector<std::string> blocks = AnswerKeyBlocks(app);
    std::string all;
    for (const auto& b : blocks) all += b;
    EXPECT_NE(all.find("x = 1"), std::string::npos);
    EXPECT_NE(all.find("x = 3"), std::string::npos);
    EXPECT_EQ(all.find(NumberBox(app.Settings, 2)), std::string::npos);
    EXPECT_NE(all.find(NumberBox(app.Settings, 3)), std::string::npos);
}
