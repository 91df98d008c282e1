#include "generators/generator_contract.h"

#include <cctype>
#include <cmath>

namespace {
std::string Field(int value, std::size_t width) {
    std::string text = std::string(width, '0') + std::to_string(value);
    return text.substr(text.size() - width);
}

int Slice(const std::string& code, std::size_t from, std::size_t width) {
    if (code.size() < from + width) return 0;
    int value = 0;
    for (std::size_t i = from; i < from + width; ++i) {
        const char c = code[i];
        if (!std::isdigit(static_cast<unsigned char>(c))) break;
        value = value * 10 + (c - '0');
    }
    return value;
}
} // namespace

std::string MakeProblemCode(const ProblemCodeFields& f) {
    return Field(f.RoutineId, 3) + Field(f.VariantNumber, 3) + Field(f.Seed, 4) + Field(f.ItemCount, 2) +
           Field(f.GroupSize, 2) + Field(f.GroupIndex, 2);
}

ProblemCodeFields ReadProblemCode(const std::string& code) {
    ProblemCodeFields f;
    f.RoutineId = Slice(code, 0, 3);
    f.VariantNumber = Slice(code, 3, 3);
    f.Seed = Slice(code, 6, 4);
    f.ItemCount = Slice(code, 10, 2);
    f.GroupSize = Slice(code, 12, 2);
    f.GroupIndex = Slice(code, 14, 2);
    return f;
}

bool IsProblemCode(const std::string& code) {
    if (code.size() != 16) return false;
    for (char c : code) {
        if (!std::isdigit(static_cast<unsigned char>(c))) return false;
    }
    return true;
}

void Describe(GeneratorWorkspace& ws, const DescribeBlock& block) {
    ws.Subject = block.subject;
    ws.TopicId = block.topicId;
    ws.TopicName = block.topicName;
    ws.SubtopicId = block.subtopicId;
    ws.Kind = block.kind;
    if (!block.maxAmount.empty()) ws.MaxAmount = block.maxAmount;
    ws.Title = block.title;
    ws.Description = block.description;
}

int TwoLevelType(GeneratorWorkspace& ws, int typeCount) {
    const double percentage = std::floor(ws.GroupIndex * 100 / ws.GroupSize);
    if (typeCount < 2) return 0;
    const int half = typeCount / 2;
    if (ws.GroupSize == 1) return ws.Seed % typeCount;
    if (percentage <= 50) return ws.Seed % half;
    return half + ws.Seed % (typeCount - half);
}
