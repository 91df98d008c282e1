#include "generators/module_router.h"

#include <algorithm>

#include "generators/catalogue.h"
#include "mathservices/utf8_text.h"

const RoutineEntry* GeneratorModule::Find(int number) const {
    for (const auto& entry : routines) {
        if (entry.number == number) return &entry;
    }
    return nullptr;
}

namespace {
std::string NotFoundText(const GeneratorModule& module, const std::string& routineId) {
    // The basic-geometry module words this text in Spanish.
    if (module.notFoundWording == NotFoundWording::Spanish)
        return "<ERROR EN MODULO " + module.name + ". NO EXISTE RUTINA CON ID = " + routineId + ">&LF";
    return "<ERROR IN MODULE " + module.name + ":. THE ROUTINE ID = " + routineId + " IS NOT FOUND>&LF";
}

std::string DescribeModule(GeneratorWorkspace& ws, const GeneratorModule& module) {
    std::string text;
    std::vector<std::string> headers;
    for (int number = 1; number <= module.greatestNumber; ++number) {
        ws.Subject.clear();
        if (const RoutineEntry* entry = module.Find(number)) Describe(ws, entry->describe);
        if (ws.Subject.empty()) continue;
        NormaliseDescribeFields(ws, number);
        const std::string header = TopicHeaderLine(ws);
        const std::string key = Upper(header);
        const bool seen = std::any_of(headers.begin(), headers.end(), [&](const std::string& h) { return h == key; });
        if (!seen && static_cast<int>(headers.size()) < module.greatestNumber) {
            text += header;
            headers.push_back(key);
        }
        text += CatalogueLine(ws);
    }
    return module.name + ":" + text;
}
} // namespace

std::string RunRouter(GeneratorWorkspace& ws, const GeneratorModule& module, const std::string& code,
                      std::string& statement, std::string& solution, std::int16_t describeMode) {
    ws.DescribeMode = describeMode;
    if (describeMode != 0) return DescribeModule(ws, module);
    RunRoutine(ws, module, ReadProblemCode(code), code.substr(0, std::min<std::size_t>(3, code.size())), statement,
               solution);
    return "";
}

void RunRoutine(GeneratorWorkspace& ws, const GeneratorModule& module, const ProblemCodeFields& fields,
                const std::string& routineText, std::string& statement, std::string& solution) {
    ws.DescribeMode = 0;
    ws.RoutineId = routineText;
    ws.VariantNumber = fields.VariantNumber;
    ws.Seed = fields.Seed;
    ws.ItemCount = fields.ItemCount;
    ws.GroupSize = fields.GroupSize;
    ws.GroupIndex = fields.GroupIndex;
    ws.Statement.clear();
    ws.Solution.clear();

    // The seeding, with its four warm-up draws, is part of the stored format.
    ws.stream.Draw(-1);
    ws.stream.SeedStream(ws.Seed);
    for (int i = 0; i < 4; ++i) ws.stream.Draw();

    if (const RoutineEntry* entry = module.Find(fields.RoutineId)) {
        entry->routine(ws);
    } else {
        ws.Statement = NotFoundText(module, ws.RoutineId);
        ws.Solution = "&LF";
    }
    statement = ws.Statement;
    solution = ws.Solution;
}
