#pragma once
#include <cstdint>
#include <string>
#include <vector>

#include "generators/generator_contract.h"

// A generator routine: writes Statement and Solution from the request fields.
using GeneratorRoutine = void (*)(GeneratorWorkspace&);

// One routine of a module's table: its number, the routine, and its catalogue data,
// which the describe loop reads without running the routine.
struct RoutineEntry {
    int number;
    GeneratorRoutine routine;
    DescribeBlock describe;
};

// One module of generators: its name, the greatest number its describe loop visits, and
// its routines by number.
// The language of a module's text for a routine number it does not have.
enum class NotFoundWording { English, Spanish };

struct GeneratorModule {
    std::string name;
    int greatestNumber = 0;
    std::vector<RoutineEntry> routines;
    NotFoundWording notFoundWording = NotFoundWording::English;

    const RoutineEntry* Find(int number) const;
};

// The router every module has. In generate mode it seeds the stream from the code and
// runs one routine; in describe mode it returns "NAME:" and the module's catalogue text.
std::string RunRouter(GeneratorWorkspace& ws, const GeneratorModule& module, const std::string& code,
                      std::string& statement, std::string& solution, std::int16_t describeMode);
// Generate mode with the fields of a code: seeds the stream from them and runs the routine.
// routineText is the routine's number as the code shows it (for the text of a routine
// the module lacks).
void RunRoutine(GeneratorWorkspace& ws, const GeneratorModule& module, const ProblemCodeFields& code,
                const std::string& routineText, std::string& statement, std::string& solution);

// The ten modules, each defined in its own folder.
GeneratorModule MakeKvolMathAlg();
GeneratorModule MakeKvolMathEcu();
GeneratorModule MakeKvolMathGa2();
GeneratorModule MakeKvolMathGa3();
GeneratorModule MakeKvolMathGde();
GeneratorModule MakeKvolMathInt();
GeneratorModule MakeKvolMathLfd();
GeneratorModule MakeKvolMathNrp();
GeneratorModule MakeKvolMathPes();
GeneratorModule MakeKvolMathTri();
