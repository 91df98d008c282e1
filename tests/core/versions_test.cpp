// Versions of a collection: the same generators, order, item counts and groups with other
// seeds, the same every time, and a new problem wherever the generator draws numbers.
#include <gtest/gtest.h>

#include <set>

#include "core/collection.h"
#include "core/versions.h"
#include "support/generator_sweep.h"
#include "support/markup_lint.h"
#include "support/markup_reader.h"

namespace {
struct Wanted {
    std::string module;
    int routine;
    int amount;
    int items;
    int max = 0;
};

// A collection made as the wizard makes one, from a fixed clock.
CollectionValue MakeCollection(const std::vector<Wanted>& wanted, std::int32_t clock, bool sorted = true) {
    ApplicationState app;
    app.ClockSeed = [clock] { return clock; };
    app.Reseed();
    app.TopicTree = {TopicNode{}};
    for (const Wanted& w : wanted) {
        TopicNode leaf;
        leaf.module = w.module;
        leaf.routine = w.routine;
        leaf.selected = true;
        leaf.amount = w.amount;
        leaf.itemsPerProblem = w.items;
        app.TopicTree.push_back(leaf);
    }
    app.Settings.Title = "Worksheet 3";
    app.Settings.Sorted = sorted;
    Arbol_to_Var(app);
    CrearColeccion(app, 1);
    return CollectionOf(app);
}

// Every routine of every module, one problem each with a middling item count.
std::vector<Wanted> EveryRoutine() {
    ApplicationState app;
    LoadTOLISTBOX_BUILT_CODE(app, "Mathematics", true, true, true, true);
    std::vector<Wanted> wanted;
    std::set<std::pair<std::string, int>> seen;
    for (const TopicNode& node : app.TopicTree) {
        if (node.isFolder || !seen.insert({TrimBlanks(node.module), node.routine}).second) continue;
        wanted.push_back({TrimBlanks(node.module), node.routine, 1, std::min(node.itemsMax, 6), node.itemsMax});
    }
    return wanted;
}

// The statements of one problem in all versions before version v that equal version v's.
bool RepeatsEarlier(const std::vector<CollectionValue>& versions, std::size_t v, std::size_t i) {
    for (std::size_t u = 0; u < v; ++u)
        if (versions[u].problems[i].Statement == versions[v].problems[i].Statement) return true;
    return false;
}
} // namespace

TEST(VersionSeed, KeepsTheKindAndGivesEveryLetterAndDrawItsOwnSeed) {
    for (int seed = 0; seed < 10000; seed += 7) {
        std::set<int> seeds = {seed};
        for (char letter = 'B'; letter <= 'Z'; ++letter)
            for (int draw = 0; draw < kVersionDraws; ++draw) {
                const int moved = VersionSeed(seed, letter, draw);
                EXPECT_GE(moved, 0);
                EXPECT_LE(moved, 9999);
                EXPECT_EQ(moved % 60, seed % 60) << seed << " " << letter << " " << draw;
                EXPECT_TRUE(seeds.insert(moved).second) << seed << " " << letter << " " << draw;
            }
    }
}

TEST(VersionTitle, CarriesTheLetterAndFitsAFile) {
    EXPECT_EQ(VersionTitle("Worksheet 3", 'B'), "Worksheet 3 \u2014 B");
    EXPECT_EQ(VersionTitle("", 'C'), "Version C");
    const std::string tail = " \u2014 Z";
    const std::string title = VersionTitle(std::string(1200, 'x'), 'Z');
    EXPECT_LE(title.size(), 1000u);
    EXPECT_EQ(title.substr(title.size() - tail.size()), tail);
    EXPECT_EQ(VersionLetter(0), "A");
    EXPECT_EQ(VersionLetter(25), "Z");
}

TEST(Versions, AreTheSameEveryTime) {
    const std::vector<Wanted> wanted = {{"KVOL_MATH_NRP", 12, 3, 8}, {"KVOL_MATH_ECU", 2, 2, 4}, {"KVOL_MATH_GDE", 3, 2, 0}};
    const CollectionValue collection = MakeCollection(wanted, 777);
    GeneratorHub first, second;
    const std::vector<CollectionValue> a = MakeVersions(first, collection, 5);
    const std::vector<CollectionValue> b = MakeVersions(second, collection, 5);
    ASSERT_EQ(a.size(), 5u);
    EXPECT_EQ(a, b);
    // One version alone is the same as in the whole set.
    GeneratorHub third;
    EXPECT_EQ(MakeVersion(third, collection, 'D'), a[3]);
    // Version A is the collection itself under its lettered title.
    CollectionValue expectedA = collection;
    expectedA.settings.Title = "Worksheet 3 \u2014 A";
    EXPECT_EQ(a[0], expectedA);
}

TEST(Versions, KeepGeneratorsOrderItemsAndGroupsAndDifferWhereNumbersAreDrawn) {
    const CollectionValue collection = MakeCollection(EveryRoutine(), 4242, false);
    ASSERT_GT(collection.problems.size(), 90u);
    GeneratorHub hub;
    const int count = 6;
    const std::vector<CollectionValue> versions = MakeVersions(hub, collection, count);
    int repeats = 0;
    for (std::size_t v = 1; v < versions.size(); ++v) {
        const char letter = static_cast<char>('A' + v);
        const CollectionValue& version = versions[v];
        ASSERT_EQ(version.problems.size(), collection.problems.size());
        EXPECT_EQ(version.settings.Title, VersionTitle("Worksheet 3", letter));
        EXPECT_EQ(version.settings.Sorted, collection.settings.Sorted);
        for (std::size_t i = 0; i < version.problems.size(); ++i) {
            const ProblemRecord& mine = version.problems[i];
            const ProblemRecord& original = collection.problems[i];
            EXPECT_EQ(mine.ModuleName, original.ModuleName);
            EXPECT_EQ(mine.RoutineId, original.RoutineId);
            EXPECT_EQ(mine.ItemCount, original.ItemCount);
            EXPECT_EQ(mine.GroupSize, original.GroupSize);
            EXPECT_EQ(mine.GroupIndex, original.GroupIndex);
            EXPECT_EQ(mine.VariantNumber, original.VariantNumber);
            EXPECT_EQ(mine.Seed % 60, original.Seed % 60);
            if (!RepeatsEarlier(versions, v, i)) continue;
            // A repeat stands only where every draw the bound allows repeated an earlier
            // version: a generator that draws no numbers.
            ++repeats;
            for (int draw = 0; draw < kVersionDraws; ++draw) {
                ProblemRecord again = mine;
                again.Seed = VersionSeed(original.Seed, letter, draw);
                GenerateRecord(hub, again);
                bool earlier = false;
                for (std::size_t u = 0; u < v; ++u) earlier = earlier || versions[u].problems[i].Statement == again.Statement;
                EXPECT_TRUE(earlier) << mine.ModuleName << " " << mine.RoutineId << " version " << letter << " draw "
                                     << draw << " was new but not taken";
            }
        }
    }
    // Nearly every generator draws numbers.
    EXPECT_LT(repeats, static_cast<int>(collection.problems.size() * (count - 1) / 20)) << repeats;
}

// The checks every generated problem must pass hold for versions as well: they are just
// other seeds. And the natural-number drill's answers are the values of its expressions.
TEST(Versions, AnswersHoldAsInTheCollection) {
    std::vector<Wanted> wanted = EveryRoutine();
    for (Wanted& w : wanted)
        if (w.max > 0) w.items = std::min(w.max, 1 + (w.routine * 7) % 20);
    const CollectionValue collection = MakeCollection(wanted, 99);
    GeneratorHub hub;
    const std::vector<CollectionValue> versions = MakeVersions(hub, collection, 4);
    for (const CollectionValue& version : versions) {
        for (const ProblemRecord& p : version.problems) {
            const std::string where = p.ModuleName + " " + std::to_string(p.RoutineId) + " " + version.settings.Title;
            EXPECT_EQ(p.Statement.find("<ERROR"), std::string::npos) << where << ": " << p.Statement;
            EXPECT_EQ(p.Solution.find("<ERROR"), std::string::npos) << where << ": " << p.Solution;
            EXPECT_EQ(LintMarkup(p.Statement), "") << where;
            EXPECT_EQ(LintMarkup(p.Solution), "") << where;
            const auto items = StatementItems(p.Statement);
            for (std::size_t a = 0; a < items.size(); ++a)
                for (std::size_t b = 0; b < a; ++b) EXPECT_NE(items[a], items[b]) << where;
            if (p.ModuleName == "KVOL_MATH_NRP" && p.RoutineId == 12) {
                const auto answers = SolutionItems(p.Solution);
                ASSERT_EQ(items.size(), answers.size()) << where;
                ASSERT_FALSE(items.empty());
                for (std::size_t k = 0; k < items.size(); ++k)
                    EXPECT_DOUBLE_EQ(ReadMarkupReal(items[k]), ReadMarkupReal(answers[k])) << where << " item " << k;
            }
        }
    }
}

TEST(Versions, CountIsBetweenOneAndTwentySix) {
    const CollectionValue collection = MakeCollection({{"KVOL_MATH_NRP", 12, 1, 3}}, 5);
    GeneratorHub hub;
    EXPECT_EQ(MakeVersions(hub, collection, 40).size(), 26u);
    EXPECT_EQ(MakeVersions(hub, collection, 0).size(), 1u);
    EXPECT_EQ(MakeVersions(hub, collection, 26).back().settings.Title, "Worksheet 3 \u2014 Z");
}

TEST(Versions, LoadIntoAStateAsTheyAre) {
    const CollectionValue collection = MakeCollection({{"KVOL_MATH_NRP", 12, 4, 3}}, 5);
    ApplicationState app;
    LoadCollection(app, collection);
    EXPECT_EQ(app.ProblemCount(), 4);
    EXPECT_EQ(CollectionOf(app), collection);
    ASSERT_EQ(app.ModuleNames.size(), 1u);
    EXPECT_EQ(app.ModuleNames[0], "KVOL_MATH_NRP");
}
