#pragma once
#include <string>

#include "generators/generator_contract.h"

// The 400-character lines of the catalogue.
inline constexpr std::size_t kCatalogueLineWidth = 400;
inline constexpr std::size_t kCatalogueCapacity = 1024;

// Trims, pads and cuts the describe fields to their widths, as the router does after
// copying a routine's describe block.
void NormaliseDescribeFields(GeneratorWorkspace& ws, int routineNumber);
// The header line of the routine's topic (kind "5").
std::string TopicHeaderLine(const GeneratorWorkspace& ws);
// The routine's own line.
std::string CatalogueLine(const GeneratorWorkspace& ws);

// The fields of one catalogue line, read back.
struct CatalogueEntry {
    std::string moduleName;
    std::string TopicId;
    std::string SubtopicId;
    std::string Subject;
    std::string TopicName;
    std::string Title;
    std::string Kind;
    std::string RoutineId;
    std::string MaxAmount;
    std::string Description;
};
// Splits "MODULE:" and a 400-character line into its fields (text fields keep their blanks).
CatalogueEntry ReadCatalogueEntry(const std::string& entry);
