#include <algorithm>
#include <iostream>
#include <map>

#include "cli/cli_commands.h"
#include "core/collection.h"
#include "generators/catalogue.h"
#include "generators/hub.h"
#include "mathservices/utf8_text.h"

int RunCatalogueCommand(const CliArguments& args) {
    if (!args.empty()) {
        std::cerr << "sumforge-cli catalogue: takes no arguments\n";
        return kUsageError;
    }
    GeneratorHub hub;
    hub.ReadCatalogue();
    // Topics in the order of their ids, routines by subtopic inside each, as the wizard
    // shows them.
    std::vector<CatalogueEntry> entries;
    for (const auto& line : hub.CatalogueList()) entries.push_back(ReadCatalogueEntry(line));
    std::stable_sort(entries.begin(), entries.end(), [](const CatalogueEntry& a, const CatalogueEntry& b) {
        return std::tie(a.TopicId, a.SubtopicId) < std::tie(b.TopicId, b.SubtopicId);
    });
    for (const auto& e : entries) {
        if (e.Kind == "5") {
            std::cout << e.TopicId << " " << TrimBlanks(e.TopicName) << "\n";
        } else {
            std::cout << "    " << e.moduleName << " " << e.RoutineId << "  subtopic " << e.SubtopicId << "  kind "
                      << e.Kind << "  max " << e.MaxAmount << "  " << TrimBlanks(e.Title) << "\n";
        }
    }
    return 0;
}

int RunGenerateCommand(const CliArguments& args) {
    if (args.size() != 2) {
        std::cerr << "sumforge-cli generate: expected MODULE CODE, for instance: generate KVOL_MATH_NRP "
                     "0121234567050101\n";
        return kUsageError;
    }
    if (!IsProblemCode(args[1])) {
        std::cerr << "sumforge-cli generate: the problem code must be exactly 16 digits, not '" << args[1] << "'\n";
        return kUsageError;
    }
    GeneratorHub hub;
    const std::string module = Upper(args[0]);
    const auto& modules = hub.Modules();
    if (std::none_of(modules.begin(), modules.end(), [&](const GeneratorModule& m) { return m.name == module; })) {
        std::cerr << "sumforge-cli generate: no module '" << args[0] << "'; see 'sumforge-cli catalogue'\n";
        return 1;
    }
    std::string statement;
    std::string solution;
    hub.RunGenerator(args[0], args[1], statement, solution);
    // An unknown routine or a fault inside one comes back as the problem's text.
    if (statement.rfind("<ERROR", 0) == 0) {
        std::cerr << "sumforge-cli generate: " << statement << "\n";
        return 1;
    }
    std::cout << "Statement: " << statement << "\n"
              << "Solution: " << solution << "\n";
    return 0;
}
