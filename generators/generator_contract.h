#pragma once
#include <cstdint>
#include <string>

#include "mathservices/math_workspace.h"
#include "mathservices/number_texts.h"

// The contract between the frame and every generator routine: the problem code, the one
// block of request and result fields, and the describe block of the catalogue.

// The fields of a 16-digit problem code, in the code's own order.
struct ProblemCodeFields {
    int RoutineId = 0;      // positions 1-3
    int VariantNumber = 0;  // 4-6
    int Seed = 0;           // 7-10
    int ItemCount = 0;      // 11-12
    int GroupSize = 0;      // 13-14
    int GroupIndex = 0;     // 15-16
};

// Each value padded with zeros to its width; a value too wide keeps its low digits.
std::string MakeProblemCode(const ProblemCodeFields& fields);
// A plain decimal reading of each slice; a slice that is not a number reads as 0.
ProblemCodeFields ReadProblemCode(const std::string& code);
// True when code is exactly 16 decimal digits.
bool IsProblemCode(const std::string& code);

struct GeneratorWorkspace : MathWorkspace {
    std::int16_t DescribeMode = 0;
    // In generate mode: the code's slices.
    std::string RoutineId;
    std::int32_t VariantNumber = 0;
    std::int32_t Seed = 0;
    std::int32_t ItemCount = 0;
    double GroupSize = 0;
    double GroupIndex = 0;
    // Out, generate mode.
    std::string Statement;
    std::string Solution;
    // Out, describe mode.
    std::string Kind;
    std::string Subject;
    std::string TopicId;
    std::string TopicName;
    std::string SubtopicId;
    std::string Title;
    std::string Description;
    std::string MaxAmount;

    // The texts with which generators write numbers.
    NumberTexts symbols;
};

// The literal describe block of one routine: its catalogue data, kept in the module's
// table beside the routine. An empty maxAmount leaves the field as the previous routine
// left it: such routines read no item count. An empty subject keeps the routine out of
// the catalogue.
struct DescribeBlock {
    std::string topicId;
    std::string topicName;
    std::string subtopicId;
    std::string kind;
    std::string maxAmount;
    std::string title;
    std::string description;
    std::string subject = "Mathematics";
};

// Copies a describe block into the workspace.
void Describe(GeneratorWorkspace& ws, const DescribeBlock& block);

// The type of a worded problem whose types form two levels of difficulty: the first half
// for the percentages 0 to 50 of the group, the second half above 50. A group of one
// takes any type by the seed. A group size of 0 divides by zero: the hub reports that
// fault as the problem's text.
int TwoLevelType(GeneratorWorkspace& ws, int typeCount);
