#pragma once
#include <functional>
#include <string>
#include <vector>

#include "generators/hub.h"

// One generated problem with the fields of its code.
struct GeneratedProblem {
    ProblemCodeFields fields;
    std::string code;
    std::string statement;
    std::string solution;
};

GeneratedProblem GenerateProblem(GeneratorHub& hub, const std::string& module, const ProblemCodeFields& fields);

// The texts of the lettered items of a drill's statement, in order.
std::vector<std::string> StatementItems(const std::string& statement);
// The texts of the lettered answers of a drill's solution, in order.
std::vector<std::string> SolutionItems(const std::string& solution);
// The items of a lettered list: the text after each "&+B" letter tail up to the next
// letter's mark, without the line breaks and column marks that end it.
std::vector<std::string> LetteredItems(const std::string& text, const std::string& tail = ")&-B ");

// Runs a routine over seeds 0..seedCount-1, walking item counts 0..30 and group sizes
// 1..10 with the seed, and checks what every problem must hold: no error text, well
// formed markup, no repeated item, each problem fast. check() adds the routine's own
// mathematics. Failures are reported through GoogleTest.
void SweepRoutine(const std::string& module, int routine, int seedCount,
                  const std::function<void(const GeneratedProblem&)>& check = {});
// seedCount, or the share of it that SUMFORGE_SWEEP_FRACTION asks for (at least 310).
int SweepSeedCount(int seedCount);
