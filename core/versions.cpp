#include "core/versions.h"

#include <algorithm>

#include "core/col_file.h"
#include "core/collection.h"

CollectionValue CollectionOf(const ApplicationState& app) {
    CollectionValue value;
    value.settings = app.Settings;
    const int n = std::clamp(app.ProblemCount(), 0, kMaxProblems);
    value.problems.assign(app.Problems.begin() + 1, app.Problems.begin() + 1 + n);
    return value;
}

void LoadCollection(ApplicationState& app, const CollectionValue& collection) {
    app.Settings = collection.settings;
    const int n = std::min<int>(static_cast<int>(collection.problems.size()), kMaxProblems);
    for (int i = 0; i < n; ++i) {
        app.Problems[i + 1] = collection.problems[i];
        AddModuleName(app, collection.problems[i].ModuleName);
    }
    app.Settings.ProblemCount = n;
}

std::string VersionLetter(int index) { return std::string(1, static_cast<char>('A' + std::clamp(index, 0, 25))); }

std::string VersionTitle(const std::string& title, char letter) {
    if (title.empty()) return std::string("Version ") + letter;
    const std::string tail = std::string(" \u2014 ") + letter;
    return AsFileText(title, kMaxTitleBytes - tail.size()) + tail;
}

namespace {
// Seeds that differ by a multiple of this keep the kind of their problem.
constexpr int kKindPeriod = 60;
// The code keeps four digits of a seed; a seed past them wraps by this multiple of the
// period, so the kind stays.
constexpr int kSeedWrap = 166 * kKindPeriod;
} // namespace

int VersionSeed(int seed, char letter, int draw) {
    // Letter index 1..25 and draw 0..5 name one of 150 steps; 37 is prime to 166, so
    // distinct steps give distinct seeds, none of them the record's own.
    const int letterIndex = std::clamp(letter - 'A', 1, 25);
    const int step = ((letterIndex + 25 * std::clamp(draw, 0, kVersionDraws - 1)) * 37) % 166;
    int moved = ((seed % 10000) + 10000) % 10000 + step * kKindPeriod;
    if (moved >= 10000) moved -= kSeedWrap;
    return moved;
}

std::vector<CollectionValue> MakeVersions(GeneratorHub& hub, const CollectionValue& collection, int count) {
    count = std::clamp(count, 1, kMaxVersions);
    std::vector<CollectionValue> versions;
    versions.reserve(static_cast<std::size_t>(count));
    for (int v = 0; v < count; ++v) {
        const char letter = static_cast<char>('A' + v);
        CollectionValue version = collection;
        version.settings.Title = VersionTitle(collection.settings.Title, letter);
        if (v > 0) {
            for (std::size_t i = 0; i < version.problems.size(); ++i) {
                ProblemRecord& record = version.problems[i];
                auto repeats = [&] {
                    for (const CollectionValue& earlier : versions)
                        if (earlier.problems[i].Statement == record.Statement) return true;
                    return false;
                };
                for (int draw = 0; draw < kVersionDraws; ++draw) {
                    record.Seed = VersionSeed(collection.problems[i].Seed, letter, draw);
                    GenerateRecord(hub, record);
                    if (!repeats()) break;
                }
            }
        }
        versions.push_back(std::move(version));
    }
    return versions;
}

CollectionValue MakeVersion(GeneratorHub& hub, const CollectionValue& collection, char letter) {
    const int index = std::clamp(letter - 'A', 0, kMaxVersions - 1);
    return MakeVersions(hub, collection, index + 1).back();
}
