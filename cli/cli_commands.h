#pragma once
#include <memory>
#include <string>
#include <vector>

class QGuiApplication;
struct ApplicationState;
struct TypesetterState;

// One command of the command-line tool: its arguments after the command word; returns
// the exit status. Errors go to standard error with a clear message.
using CliArguments = std::vector<std::string>;

int RunCatalogueCommand(const CliArguments& args);
int RunGenerateCommand(const CliArguments& args);
// markup TEXT -o OUT.png [--pdf OUT.pdf] [--size POINTS] [--zoom FACTOR]
int RunMarkupCommand(const CliArguments& args);
// new CHOICE... [-o FILE.col] [--pdf FILE.pdf] [collection settings]
int RunNewCommand(const CliArguments& args);
// render FILE.col [--pdf OUT.pdf] [--png DIR] [page options]
int RunRenderCommand(const CliArguments& args);
// versions FILE.col N [--pdf OUT] [--col DIR] [--key-only|--sheets-only] [page options]
int RunVersionsCommand(const CliArguments& args);
// latex FILE.col -o OUT.tex
int RunLatexCommand(const CliArguments& args);
// pictures FILE.col DIR [--pages] [--svg] [--png] [--solutions] [--transparent] [--dpi N]
int RunPicturesCommand(const CliArguments& args);

// Output files go through the safe writer: the old file stays whole unless the new one is
// complete. Each says what failed on standard error and returns false.
class QByteArray;
class QImage;
// Whether path can be written at all, checked before any page is drawn.
bool CheckOutputFile(const std::string& path, const char* command);
bool SaveOutputFile(const std::string& path, const QByteArray& bytes, const char* command);
bool SavePng(const std::string& path, const QImage& image, const char* command);

// Exit status for a call whose words are wrong.
inline constexpr int kUsageError = 2;

// The Qt side the typesetter needs: a gui application, offscreen unless told otherwise
// (none when one runs already).
std::unique_ptr<QGuiApplication> StartGui();
// Picture folders: "img" beside the program, and the per-user temp folder.
void SetFolders(ApplicationState& app, TypesetterState& typesetter);
