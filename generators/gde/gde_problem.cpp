#include "generators/gde/gde_problem.h"

#include "mathservices/arithmetic.h"
#include "mathservices/number_markup.h"

namespace {
const char* const kLetters = "abcdefghijklmnopqrstuvwxyz";

// The figure hangs below the line of the first question; the lines after it keep the
// next text from running into the picture.
constexpr int kLinesBesideFigure = 5;
} // namespace

std::string MeasureText(GeneratorWorkspace& ws, double value) {
    if (IsWhole(value)) return NumberToMarkup(value);
    return NumberToMarkup(RoundAtPosition(ws, value, -3));
}

std::string GivenCm(GeneratorWorkspace& ws, double value) { return MeasureText(ws, value) + "& cm"; }
std::string GivenCm2(GeneratorWorkspace& ws, double value) { return MeasureText(ws, value) + "& cm^2"; }
std::string GivenCm3(GeneratorWorkspace& ws, double value) { return MeasureText(ws, value) + "& cm^3"; }

std::string PiMultiple(double factor) {
    return (factor == 1 ? std::string() : NumberToMarkup(factor)) + "&pi";
}

std::string Label(const std::string& name) { return "&+I" + name + "&-I"; }

void WriteGeometryProblem(GeneratorWorkspace& ws, const GeometryProblem& problem, const GeometryLayout& layout) {
    const bool single = problem.parts.size() == 1;
    std::string statement;
    int lines = 0;
    if (single) {
        statement = problem.openingIsQuestion ? std::string() : problem.opening;
        statement += "&SP=3:";
        statement += problem.openingIsQuestion ? problem.opening : problem.parts[0].question;
        statement += ".";
        if (!problem.figure.empty()) statement += layout.singleFigureMark + problem.figure;
        statement += "&LF";
        lines = 1;
    } else {
        statement = problem.opening;
        for (std::size_t i = 0; i < problem.parts.size(); ++i) {
            statement += "&SP=5:&+B" + std::string(1, kLetters[i]) + ")&-B  " + problem.parts[i].question + ".";
            if (i == 0 && !problem.figure.empty()) statement += layout.figureMark + problem.figure;
            statement += "&LF";
            ++lines;
        }
    }
    if (!problem.figure.empty()) {
        for (; lines < kLinesBesideFigure; ++lines) statement += "&LF";
    }

    std::string solution = "&SP=10: ";
    for (std::size_t i = 0; i < problem.parts.size(); ++i) {
        if (i > 0) solution += ";    ";
        if (!single || layout.letterOnSingleAnswer) solution += "&+B" + std::string(1, kLetters[i]) + ")&-B  ";
        solution += MeasureText(ws, problem.parts[i].value) + problem.parts[i].unit;
    }
    solution += ".&LF";
    ws.Statement = statement;
    ws.Solution = solution;
}
