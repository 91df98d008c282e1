#pragma once
#include <string>
#include <vector>

// One command of the command-line tool: its arguments after the command word; returns
// the exit status. Errors go to standard error with a clear message.
using CliArguments = std::vector<std::string>;

int RunCatalogueCommand(const CliArguments& args);
int RunGenerateCommand(const CliArguments& args);
// markup TEXT -o OUT.png [--pdf OUT.pdf] [--size POINTS] [--zoom FACTOR]
int RunMarkupCommand(const CliArguments& args);
// new CHOICE... [-o FILE.col] [--pdf FILE.pdf] [collection settings]
int RunNewCommand(const CliArguments& args);
// render FILE.col [--pdf OUT.pdf] [--png DIR]
int RunRenderCommand(const CliArguments& args);

// Exit status for a call whose words are wrong.
inline constexpr int kUsageError = 2;
