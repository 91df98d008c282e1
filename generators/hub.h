#pragma once
#include <string>
#include <vector>

#include "generators/generator_contract.h"
#include "generators/module_router.h"

// The hub of the generators: picks a module by its name, runs one generator, and reads
// the catalogue from the describe blocks of every module's table. It owns the one workspace,
// and so the random stream that creation of collections draws from too.
class GeneratorHub {
public:
    GeneratorHub();
    // A hub over other modules than the ten of the program (for tests).
    explicit GeneratorHub(std::vector<GeneratorModule> modules);

    // Runs one generator in generate mode with the fields of a problem code. An unknown
    // module, an unknown routine or a fault inside the routine becomes text inside the
    // problem; nothing escapes.
    void RunGenerator(const std::string& moduleName, const ProblemCodeFields& code, std::string& statement,
                      std::string& solution);
    // The same for a code as text (a typed or stored one).
    void RunGenerator(const std::string& moduleName, const std::string& code, std::string& statement,
                      std::string& solution);

    // Fills the catalogue list once; a list already filled is left alone.
    void ReadCatalogue();
    const std::vector<std::string>& CatalogueList() const { return catalogue_; }

    GeneratorWorkspace& Workspace() { return ws_; }
    const std::vector<GeneratorModule>& Modules() const { return modules_; }

private:
    // codeText: the code as it was given, or empty when it came as fields (then the text
    // is made from them where a message shows it).
    void Run(const std::string& moduleName, const ProblemCodeFields& code, const std::string& codeText,
             std::string& statement, std::string& solution);

    GeneratorWorkspace ws_;
    std::vector<GeneratorModule> modules_;
    std::vector<std::string> catalogue_;
};

// The fault text that stands in a problem whose generator failed.
std::string FaultStatement(int number, const std::string& description, const std::string& code,
                           const std::string& moduleName);
