#include "support/generator_sweep.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>

#include <gtest/gtest.h>

#include "support/markup_lint.h"

GeneratedProblem GenerateProblem(GeneratorHub& hub, const std::string& module, const ProblemCodeFields& fields) {
    GeneratedProblem p;
    p.fields = fields;
    p.code = MakeProblemCode(fields);
    hub.RunGenerator(module, p.code, p.statement, p.solution);
    return p;
}


std::vector<std::string> StatementItems(const std::string& statement) {
    // An item runs from ")&-B&+I " to the next item's column mark.
    std::vector<std::string> out;
    std::size_t pos = 0;
    const std::string open = ")&-B&+I ";
    while ((pos = statement.find(open, pos)) != std::string::npos) {
        pos += open.size();
        auto end = statement.find("&SP=", pos);
        if (end == std::string::npos) end = statement.size();
        std::string item = statement.substr(pos, end - pos);
        while (item.size() >= 3 && item.compare(item.size() - 3, 3, "&LF") == 0) item.erase(item.size() - 3);
        if (item.size() >= 3 && item.compare(item.size() - 3, 3, "&-I") == 0) item.erase(item.size() - 3);
        out.push_back(item);
        pos = end;
    }
    return out;
}

std::vector<std::string> SolutionItems(const std::string& solution) {
    std::vector<std::string> out;
    std::size_t pos = 0;
    const std::string open = ")&-B ";
    while ((pos = solution.find(open, pos)) != std::string::npos) {
        pos += open.size();
        auto end = solution.find("&SP=", pos);
        if (end == std::string::npos) end = solution.size();
        std::string item = solution.substr(pos, end - pos);
        while (item.size() >= 3 && item.compare(item.size() - 3, 3, "&LF") == 0) item.erase(item.size() - 3);
        out.push_back(item);
        pos = end;
    }
    return out;
}

std::vector<std::string> LetteredItems(const std::string& text, const std::string& tail) {
    std::vector<std::size_t> starts, ends;
    std::size_t pos = 0;
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        const std::string mark = std::string("&+B") + letter + tail;
        const auto at = text.find(mark, pos);
        if (at == std::string::npos) break;
        if (!starts.empty()) ends.push_back(at);
        starts.push_back(at + mark.size());
        pos = at + mark.size();
    }
    ends.push_back(text.size());
    std::vector<std::string> items;
    for (std::size_t i = 0; i < starts.size(); ++i) {
        std::string item = text.substr(starts[i], ends[i] - starts[i]);
        // What belongs to the layout goes: line breaks and the next item's column mark,
        // which may carry the switch that ends an italic run.
        while (true) {
            if (item.size() >= 3 && item.compare(item.size() - 3, 3, "&LF") == 0) {
                item.erase(item.size() - 3);
                continue;
            }
            const auto mark = item.rfind("&SP=");
            if (mark == std::string::npos) break;
            const auto colon = item.find(':', mark);
            if (colon == item.size() - 1 || (colon == item.size() - 4 && item.compare(colon + 1, 3, "&-I") == 0)) {
                item.erase(mark);
                continue;
            }
            break;
        }
        items.push_back(item);
    }
    return items;
}

int SweepSeedCount(int seedCount) {
    // The sanitizer run takes a share of each sweep (SUMFORGE_SWEEP_FRACTION); the plain run
    // takes them whole. Never fewer than 310 seeds: that many walk every item count 0..30
    // and every group size 1..10 once.
    const char* text = std::getenv("SUMFORGE_SWEEP_FRACTION");
    if (text == nullptr) return seedCount;
    const double fraction = std::atof(text);
    if (!(fraction > 0.0) || fraction >= 1.0) return seedCount;
    return std::min(seedCount, std::max(310, static_cast<int>(seedCount * fraction)));
}

void SweepRoutine(const std::string& module, int routine, int seedCount,
                  const std::function<void(const GeneratedProblem&)>& check) {
    seedCount = SweepSeedCount(seedCount);
    GeneratorHub hub;
    int failures = 0;
    double totalMilliseconds = 0;
    int generated = 0;
    for (int seed = 0; seed < seedCount && failures < 10; ++seed) {
        ProblemCodeFields f;
        f.RoutineId = routine;
        f.VariantNumber = (seed * 37) % 900;
        f.Seed = seed;
        f.ItemCount = seed % 31;
        f.GroupSize = 1 + (seed / 31) % 10;
        f.GroupIndex = 1 + seed % f.GroupSize;
        const auto start = std::chrono::steady_clock::now();
        const GeneratedProblem p = GenerateProblem(hub, module, f);
        const auto elapsed = std::chrono::steady_clock::now() - start;
        const int before = ::testing::UnitTest::GetInstance()->current_test_info()->result()->total_part_count();
        EXPECT_EQ(p.statement.find("<ERROR"), std::string::npos) << p.code << ": " << p.statement;
        EXPECT_EQ(p.solution.find("<ERROR"), std::string::npos) << p.code << ": " << p.solution;
        EXPECT_EQ(LintMarkup(p.statement), "") << p.code << ": " << p.statement;
        EXPECT_EQ(LintMarkup(p.solution), "") << p.code << ": " << p.solution;
        const auto items = StatementItems(p.statement);
        for (std::size_t i = 0; i < items.size(); ++i) {
            for (std::size_t j = 0; j < i; ++j) {
                EXPECT_NE(items[i], items[j]) << p.code << ": items " << j + 1 << " and " << i + 1 << " repeat";
            }
        }
        totalMilliseconds += std::chrono::duration<double, std::milli>(elapsed).count();
        ++generated;
        if (check) check(p);
        if (::testing::UnitTest::GetInstance()->current_test_info()->result()->total_part_count() > before) ++failures;
    }
    // The mean, not each problem: a single problem can be delayed by a loaded machine.
    // Benchmarks give the real figures; this only catches a generator gone slow.
    if (generated > 0) {
        EXPECT_LT(totalMilliseconds / generated, 10.0) << module << " " << routine;
    }
}
