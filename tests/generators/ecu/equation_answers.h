#pragma once
#include <map>
#include <string>
#include <vector>

// Reading equations, systems and their answers apart; the parts are read as numbers with
// ReadMarkupReal.

// An equation or inequation split at its relation: left, relation ("=", "<", ">", "<=",
// ">="), right. The relation is the one between "& " marks at the top level.
struct SplitRelation {
    std::string left;
    std::string relation;
    std::string right;
};
SplitRelation SplitAtRelation(const std::string& markup);

// The rows of a "#RWS(" construct, in order.
std::vector<std::string> SystemRows(const std::string& markup);

// The values of an answer such as "x = 3;    x = -2", "x = ± 5", "x_1 = 0,   x_2 = 4" or
// "x = (3 ± 2√3)/2": every value, a "±" giving both. Names before "=" are skipped.
std::vector<double> AnswerValues(const std::string& answer);
// The named values of an answer "x = 1,  y = 2,  z = 3" in order of appearance, grouped
// by ";" into solutions.
std::vector<std::map<char, double>> AnswerPoints(const std::string& answer);
