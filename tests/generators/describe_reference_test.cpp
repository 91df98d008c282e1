#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "generators/hub.h"
#include "generators/module_router.h"

// The describe data of every routine of every module, and the catalogue list that the
// router builds from it, against checked-in texts. The catalogue, `sumforge-cli catalogue`
// and the wizard's tree are all made from these, so they change only on purpose: then run
// the tests with SUMFORGE_RENEW_DESCRIBE=1 and read the diff of tests/generators/data/.
namespace {
const std::string kDataDir = SUMFORGE_GENERATORS_TEST_DATA;

std::string ReadFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

void CompareOrRenew(const std::string& name, const std::string& actual) {
    const std::string path = kDataDir + "/" + name;
    if (std::getenv("SUMFORGE_RENEW_DESCRIBE") != nullptr) {
        std::ofstream(path, std::ios::binary) << actual;
        return;
    }
    const std::string expected = ReadFile(path);
    ASSERT_FALSE(expected.empty()) << path;
    EXPECT_EQ(actual, expected) << "renew with SUMFORGE_RENEW_DESCRIBE=1 only for a change made on purpose";
}

// The describe block of one routine as its module's table holds it.
std::string BlockText(const GeneratorModule& module, const RoutineEntry& entry) {
    const DescribeBlock& b = entry.describe;
    return module.name + " " + std::to_string(entry.number) + "\n" +
           "  subject: " + b.subject + "\n" +
           "  topic: " + b.topicId + " " + b.topicName + "\n" +
           "  subtopic: " + b.subtopicId + "\n" +
           "  kind: " + b.kind + "\n" +
           "  greatest item count: " + b.maxAmount + "\n" +
           "  title: " + b.title + "\n" +
           "  description: " + b.description + "\n";
}
} // namespace

TEST(DescribeReference, EveryRoutineOfEveryModule) {
    GeneratorHub hub;
    std::string text;
    for (const auto& module : hub.Modules()) {
        for (const auto& entry : module.routines) text += BlockText(module, entry);
    }
    CompareOrRenew("describe_blocks.txt", text);
}

TEST(DescribeReference, CatalogueList) {
    GeneratorHub hub;
    hub.ReadCatalogue();
    std::string text;
    for (const auto& line : hub.CatalogueList()) {
        ASSERT_GE(line.size(), 2u);
        ASSERT_EQ(line.substr(line.size() - 2), "\r\n");
        // "|" stands for the CR LF, so that the blanks before it stay visible.
        text += line.substr(0, line.size() - 2) + "|\n";
    }
    CompareOrRenew("catalogue_list.txt", text);
}
