#pragma once
#include <string>
#include <vector>

#include "core/application_state.h"

// A collection as a value: its settings and its records, problem 1 at index 0.
struct CollectionValue {
    CollectionSettings settings;
    std::vector<ProblemRecord> problems;

    bool operator==(const CollectionValue&) const = default;
};

// The collection in the window, and the other way round: settings and records (count
// included) put into a state, texts as they are, nothing composed.
CollectionValue CollectionOf(const ApplicationState& app);
void LoadCollection(ApplicationState& app, const CollectionValue& collection);

inline constexpr int kMaxVersions = 26;
// How often one problem of a version is drawn with another seed while its statement
// repeats one of an earlier version; then the last draw is kept.
inline constexpr int kVersionDraws = 6;

// The letter of version index 0..25: "A".."Z".
std::string VersionLetter(int index);
// The title of a version: "Worksheet 3 — B"; "Version B" without a title. The title is
// cut so that the whole still fits a file's title.
std::string VersionTitle(const std::string& title, char letter);

// The seed of a record's problem in version letter, at draw 0..kVersionDraws-1: the
// record's own seed moved by a step that belongs to that letter and draw alone, so no two
// versions share a seed, and by a whole number of 60, so that the problem stays of its
// kind (the generators pick kinds by the seed modulo 2, 3, 4, 5, 6, 10 or 12).
int VersionSeed(int seed, char letter, int draw);

// Versions A.. of a collection, count of them (1..26): version A is the collection as it
// is; the others replay every record with VersionSeed, in the same order with the same
// generators, item counts and groups, each drawn again while its statement repeats that
// of an earlier version. Each title carries its letter. The same collection always gives
// the same versions.
std::vector<CollectionValue> MakeVersions(GeneratorHub& hub, const CollectionValue& collection, int count);
// One version: the same as the one of that letter in MakeVersions.
CollectionValue MakeVersion(GeneratorHub& hub, const CollectionValue& collection, char letter);
