#include "generators/hub.h"

#include <algorithm>
#include <cctype>
#include <cfenv>
#include <stdexcept>

#include "generators/catalogue.h"
#include "mathservices/faults.h"
#include "mathservices/utf8_text.h"

namespace {
// The pending arithmetic fault, from the floating-point flags the routine left.
int PendingFloatingFault() {
    if (std::fetestexcept(FE_DIVBYZERO)) return kFaultDivisionByZero;
    if (std::fetestexcept(FE_OVERFLOW)) return kFaultOverflow;
    if (std::fetestexcept(FE_INVALID)) return kFaultInvalidCall;
    return 0;
}
} // namespace

GeneratorHub::GeneratorHub(std::vector<GeneratorModule> modules) : modules_(std::move(modules)) {}

GeneratorHub::GeneratorHub() {
    modules_ = {MakeKvolMathAlg(), MakeKvolMathEcu(), MakeKvolMathGa2(), MakeKvolMathGa3(), MakeKvolMathGde(),
                MakeKvolMathInt(), MakeKvolMathLfd(), MakeKvolMathNrp(), MakeKvolMathPes(), MakeKvolMathTri()};
}

std::string FaultStatement(int number, const std::string& description, const std::string& code,
                           const std::string& moduleName) {
    return "<ERROR>  Number= " + std::to_string(number) + "&LFError description =" + description +
           " &LFCommand=" + code + "&LFModule=" + moduleName + "&LF";
}

void GeneratorHub::RunGenerator(const std::string& moduleName, const ProblemCodeFields& code,
                                std::string& statement, std::string& solution) {
    Run(moduleName, code, "", statement, solution);
}

void GeneratorHub::RunGenerator(const std::string& moduleName, const std::string& code, std::string& statement,
                                std::string& solution) {
    Run(moduleName, ReadProblemCode(code), code, statement, solution);
}

void GeneratorHub::Run(const std::string& moduleName, const ProblemCodeFields& code, const std::string& codeText,
                       std::string& statement, std::string& solution) {
    const std::string name = Upper(moduleName);
    const auto module =
        std::find_if(modules_.begin(), modules_.end(), [&](const GeneratorModule& m) { return m.name == name; });
    if (module == modules_.end()) {
        statement = "<ERROR: Cannot re-create the problem.> Perhaps its a wrong version.&LF";
        solution = "<ERROR>&LF";
        return;
    }
    int fault = 0;
    std::string description;
    std::feclearexcept(FE_ALL_EXCEPT);
    try {
        const std::string routineText = codeText.empty() ? ZeroFilled(code.RoutineId, 3)
                                                         : codeText.substr(0, std::min<std::size_t>(3, codeText.size()));
        RunRoutine(ws_, *module, code, routineText, statement, solution);
    } catch (const GeneratorFault& f) {
        fault = f.number;
        description = f.what();
    } catch (const std::out_of_range&) {
        fault = kFaultSubscript;
    } catch (const std::exception&) {
        fault = kFaultInvalidCall;
    }
    if (fault == 0) fault = PendingFloatingFault();
    std::feclearexcept(FE_ALL_EXCEPT);
    if (fault != 0) {
        if (description.empty()) description = FaultDescription(fault);
        statement =
            FaultStatement(fault, description, codeText.empty() ? MakeProblemCode(code) : codeText, moduleName);
        solution = "<ERROR>&LF";
    }
}

void GeneratorHub::ReadCatalogue() {
    if (!catalogue_.empty()) return;
    std::string unused;
    for (const auto& module : modules_) {
        const std::string text = RunRouter(ws_, module, "", unused, unused, -1);
        const auto colon = text.find(':');
        const std::string head = text.substr(0, colon + 1);
        const std::string lines = text.substr(colon + 1);
        // Lines are fixed 400 characters ending in CR LF; split at the line ends so that
        // characters of more than one byte stay whole.
        std::size_t start = 0;
        while (start < lines.size() && catalogue_.size() < kCatalogueCapacity) {
            const auto end = lines.find("\r\n", start);
            if (end == std::string::npos) break;
            catalogue_.push_back(head + lines.substr(start, end + 2 - start));
            start = end + 2;
        }
    }
}
