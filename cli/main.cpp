#include <functional>
#include <iostream>
#include <map>

#include "cli/cli_commands.h"
#include "sumforge_version.h"

namespace {
void PrintUsage(std::ostream& out) {
    out << "Usage: sumforge-cli COMMAND [ARGUMENTS]\n"
           "       sumforge-cli --help | --version\n"
           "\n"
           "Makes collections of mathematics exercises with their solutions, without a window.\n"
           "\n"
           "Commands:\n"
           "  catalogue               list every generator by topic\n"
           "  generate MODULE CODE    print the statement and solution markup of one problem code\n"
           "  markup TEXT -o OUT.png [--pdf OUT.pdf] [--size PT] [--zoom F]\n"
           "                          lay one markup text out on an A4 page\n"
           "  new CHOICE... [-o FILE.col] [--pdf FILE.pdf] [options]\n"
           "                          make a collection, e.g. new NRP:12x3:5 --title Practice -o p.col\n"
           "  render FILE.col [--pdf OUT.pdf] [--png DIR]\n"
           "                          print the pages of a collection file\n"
           "  versions FILE.col N [--pdf OUT] [--col DIR] [--key-only | --sheets-only]\n"
           "                          N versions of a collection with their answer keys\n"
           "  latex FILE.col -o OUT.tex\n"
           "                          write the collection as a LaTeX document, figures beside it\n"
           "  pictures FILE.col DIR [--pages] [--svg] [--png] [--solutions] [--transparent] [--dpi N]\n"
           "                          write each problem (or page) as an SVG and a PNG picture\n"
           "\n"
           "Options of new: --title TEXT, --solutions none|after|end|page, --sorted, --shuffled,\n"
           "  --first-problem N, --prefix TEXT, --suffix TEXT, --colour #RRGGBB, --page-numbers CODE,\n"
           "  --first-page N, --seed N, --versions N. Of new, render and versions: --paper a4|letter,\n"
           "  --name-line [first|every]. See the man page sumforge-cli(1) and the user's manual.\n";
}
} // namespace

int main(int argc, char** argv) {
    const std::map<std::string, std::function<int(const CliArguments&)>> commands = {
        {"catalogue", RunCatalogueCommand},
        {"generate", RunGenerateCommand},
        {"markup", RunMarkupCommand},
        {"new", RunNewCommand},
        {"render", RunRenderCommand},
        {"versions", RunVersionsCommand},
        {"latex", RunLatexCommand},
        {"pictures", RunPicturesCommand},
    };
    if (argc < 2) {
        PrintUsage(std::cerr);
        return kUsageError;
    }
    const std::string command = argv[1];
    if (command == "help" || command == "--help" || command == "-h") {
        PrintUsage(std::cout);
        return 0;
    }
    if (command == "version" || command == "--version" || command == "-V") {
        std::cout << "sumforge-cli " << kSumforgeVersion << "\n";
        return 0;
    }
    const auto found = commands.find(command);
    if (found == commands.end()) {
        std::cerr << "sumforge-cli: unknown command '" << command << "'\n";
        PrintUsage(std::cerr);
        return kUsageError;
    }
    return found->second(CliArguments(argv + 2, argv + argc));
}
