#pragma once
#include <map>
#include <string>
#include <vector>

#include "generators/generator_contract.h"

// A geometry problem with a figure: the opening with the given measures, the questions,
// and the record of the shape it was built from. Each routine builds the record first
// and writes it with WriteGeometryProblem, so that tests can check the mathematics of
// the record and the text separately.

inline constexpr const char* kCm = " cm";
inline constexpr const char* kCm2 = " cm^2";
inline constexpr const char* kCm3 = " cm^3";

struct GeometryPart {
    std::string question;  // without its full stop
    double value = 0;      // the exact answer; the text rounds it
    const char* unit = kCm;
};

struct GeometryProblem {
    int type = 0;
    // The opening up to its line break; for a problem whose opening is its only question,
    // the question itself without its full stop.
    std::string opening;
    bool openingIsQuestion = false;
    std::string figure;  // the "#IMG(" tag, or empty for a problem without a picture
    std::vector<GeometryPart> parts;
    // The measures the shape was drawn with, by the labels of the figure.
    std::map<std::string, double> shape;
};

// How a routine lays its problem out.
struct GeometryLayout {
    const char* figureMark;        // before the figure in the line of the first part
    const char* singleFigureMark;  // the same when the problem has a single question
    bool letterOnSingleAnswer;     // the one answer of a single question keeps its "a)"
};

void WriteGeometryProblem(GeneratorWorkspace& ws, const GeometryProblem& problem, const GeometryLayout& layout);

// A measure as the text shows it: whole numbers as they are, others rounded to two
// decimals.
std::string MeasureText(GeneratorWorkspace& ws, double value);
// A given length, area or volume inside an opening: the number, then "& cm".
std::string GivenCm(GeneratorWorkspace& ws, double value);
std::string GivenCm2(GeneratorWorkspace& ws, double value);
std::string GivenCm3(GeneratorWorkspace& ws, double value);
// A multiple of pi inside an opening, written exactly: "25&pi".
std::string PiMultiple(double factor);
// A segment or label in italics: "&+IAB&-I".
std::string Label(const std::string& name);

// The builders of each routine's record, by Seed modulo its number of types.
GeometryProblem BuildPythagoreanProblem(GeneratorWorkspace& ws);
GeometryProblem BuildSimilarityProblem(GeneratorWorkspace& ws);
GeometryProblem BuildStraightShapeProblem(GeneratorWorkspace& ws);
GeometryProblem BuildCurvedShapeProblem(GeneratorWorkspace& ws);
GeometryProblem BuildPlaneSolidProblem(GeneratorWorkspace& ws);
GeometryProblem BuildCurvedSolidProblem(GeneratorWorkspace& ws);
