#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QStandardPaths>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>

#include "cli/cli_commands.h"
#include "core/col_file.h"
#include "core/collection.h"
#include "core/composition.h"
#include "core/editing.h"
#include "core/page_render.h"
#include "generators/catalogue.h"
#include "typesetter/qt_surface.h"

namespace fs = std::filesystem;

namespace {
// The sheet of the page view at zoom 1, in pixels.
constexpr int kSheetWidth = 796;
constexpr int kSheetHeight = 1125;

// One choice of the new command: module, routine, how many problems, items in each.
struct Choice {
    std::string module;
    int routine = 0;
    int amount = 1;
    int items = -1;  // -1: the default of the generator
    std::string word;
};

struct NewOptions {
    std::vector<Choice> choices;
    CollectionSettings settings;
    std::string colFile;
    std::string pdfFile;
    bool haveSeed = false;
    std::int32_t seed = 0;
};

bool ReadInteger(const std::string& text, long long low, long long high, long long& value) {
    if (text.empty()) return false;
    char* end = nullptr;
    value = std::strtoll(text.c_str(), &end, 10);
    return *end == '\0' && value >= low && value <= high;
}

// "NRP:12x3:5": module (short or full name), routine, amount, items per problem.
bool ParseChoice(const std::string& word, Choice& choice) {
    choice.word = word;
    const auto colon = word.find(':');
    if (colon == std::string::npos || colon == 0) return false;
    std::string module = Upper(word.substr(0, colon));
    choice.module = module.rfind("KVOL_", 0) == 0 ? module : "KVOL_MATH_" + module;
    std::string rest = word.substr(colon + 1);
    std::string items;
    const auto second = rest.find(':');
    if (second != std::string::npos) {
        items = rest.substr(second + 1);
        rest = rest.substr(0, second);
    }
    std::string amount;
    const auto times = rest.find_first_of("xX");
    if (times != std::string::npos) {
        amount = rest.substr(times + 1);
        rest = rest.substr(0, times);
    }
    long long value = 0;
    if (!ReadInteger(rest, 1, 999, value)) return false;
    choice.routine = static_cast<int>(value);
    if (!amount.empty()) {
        if (!ReadInteger(amount, 1, 99, value)) return false;
        choice.amount = static_cast<int>(value);
    }
    if (!items.empty()) {
        if (!ReadInteger(items, 0, 99, value)) return false;
        choice.items = static_cast<int>(value);
    }
    return true;
}

bool ParseSolutions(const std::string& text, std::int32_t& position) {
    const std::string t = Upper(text);
    if (t == "NONE" || t == "0") position = 0;
    else if (t == "AFTER" || t == "1") position = 1;
    else if (t == "END" || t == "2") position = 2;
    else if (t == "PAGE" || t == "SEPARATE" || t == "3") position = 3;
    else return false;
    return true;
}

// A colour as "#RRGGBB", "R,G,B" or the decimal value of the file (red in the low byte).
bool ParseColour(const std::string& text, std::int32_t& colour) {
    long long r = 0, g = 0, b = 0, value = 0;
    if (text.size() == 7 && text[0] == '#') {
        char* end = nullptr;
        const long v = std::strtol(text.c_str() + 1, &end, 16);
        if (*end != '\0') return false;
        r = (v >> 16) & 0xFF;
        g = (v >> 8) & 0xFF;
        b = v & 0xFF;
    } else if (text.find(',') != std::string::npos) {
        const auto c1 = text.find(',');
        const auto c2 = text.find(',', c1 + 1);
        if (c2 == std::string::npos || !ReadInteger(text.substr(0, c1), 0, 255, r) ||
            !ReadInteger(text.substr(c1 + 1, c2 - c1 - 1), 0, 255, g) || !ReadInteger(text.substr(c2 + 1), 0, 255, b))
            return false;
    } else {
        if (!ReadInteger(text, 0, 0xFFFFFF, value)) return false;
        colour = static_cast<std::int32_t>(value);
        return true;
    }
    colour = static_cast<std::int32_t>(r + 256 * g + 65536 * b);
    return true;
}

bool EndsWithCol(const std::string& name) { return name.size() >= 4 && Upper(name.substr(name.size() - 4)) == ".COL"; }

void NewUsage() {
    std::cerr << "Usage: sumforge-cli new CHOICE... [-o FILE.col] [--pdf FILE.pdf] [options]\n"
                 "  CHOICE                   MODULE:ROUTINExAMOUNT[:ITEMS], e.g. NRP:12x3:5\n"
                 "  --title TEXT             title printed at the head of every page\n"
                 "  --solutions WHERE        none, after, end or page (default after)\n"
                 "  --sorted | --shuffled    keep the order of the choices (default) or shuffle\n"
                 "  --first-problem N        number of the first problem (default 1)\n"
                 "  --prefix TEXT            text before each problem number\n"
                 "  --suffix TEXT            text after each problem number (default \")\")\n"
                 "  --colour C               number box colour: #RRGGBB, R,G,B or decimal\n"
                 "  --page-numbers CODE      0 none; 8 + 1 right, 2 left, 3 centre, 4/5 alternating\n"
                 "                           at the bottom (without 8 at the top); default 11\n"
                 "  --first-page N           number printed on the first page (default 1)\n"
                 "  --seed N                 start the random source from N instead of the clock\n";
}

// The Qt side the typesetter needs: a gui application, offscreen unless told otherwise.
std::unique_ptr<QGuiApplication> StartGui() {
    if (QGuiApplication::instance()) return nullptr;
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "sumforge-cli";
    static char* argv[] = {name, nullptr};
    return std::make_unique<QGuiApplication>(argc, argv);
}

// Picture folders: "img" beside the program, and the per-user temp folder.
void SetFolders(ApplicationState& app, TypesetterState& typesetter) {
    UseQtPictures(typesetter);
    if (typesetter.TempPictureFolder.empty()) typesetter.TempPictureFolder = (QDir::tempPath() + "/sumforge/temp").toStdString();
    app.ImageFolder = typesetter.PictureFolder;
    app.TempFolder = typesetter.TempPictureFolder;
}

// The composing machinery: the hidden screen picture that pages are measured on.
struct Pagination {
    QImage sheet{kSheetWidth, kSheetHeight, QImage::Format_RGB32};
    TypesetterState typesetter;
    std::unique_ptr<QtSurface> surface;
    std::unique_ptr<TypesetterMeasure> measure;

    explicit Pagination(ApplicationState& app) {
        sheet.fill(Qt::white);
        surface = std::make_unique<QtSurface>(sheet);
        measure = std::make_unique<TypesetterMeasure>(typesetter, *surface);
        SetFolders(app, typesetter);
        app.measure = measure.get();
    }
};

// Every page as printing lays it out, one PDF page each; made in memory and written whole
// before it takes its name.
bool WritePdf(ApplicationState& app, const std::string& path, const char* command) {
    if (!CheckOutputFile(path, command)) return false;
    QByteArray bytes;
    {
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setPageMargins(QMarginsF(0, 0, 0, 0));
        writer.setResolution(1200);
        writer.setCreator("Sumforge");
        writer.setTitle(QString::fromStdString(app.Settings.Title));
        TypesetterState typesetter;
        SetFolders(app, typesetter);
        QtSurface surface(writer);
        surface.UsePictures(typesetter);
        typesetter.PrinterSurface = &surface;
        typesetter.PrinterInstalled = true;
        for (int page = 1; page <= app.PageCount; ++page) {
            if (page > 1) surface.NewPage();
            PrintOnePage(app, typesetter, surface, page);
        }
        surface.End();
    }
    return SaveOutputFile(path, bytes, command);
}

// Every page as the page view draws it at zoom 1: DIR/page-001.png and on.
bool WritePngs(ApplicationState& app, const std::string& folder, const char* command) {
    std::error_code ec;
    fs::create_directories(folder, ec);
    if (ec || !fs::is_directory(folder)) {
        std::cerr << "sumforge-cli " << command << ": cannot make the folder '" << folder << "': "
                  << (ec ? ec.message() : "not a folder") << "\n";
        return false;
    }
    const int kept = app.CurrentPage;
    // Each page on a fresh state, all drawing from one set of pictures, read once.
    TypesetterState pictures;
    SetFolders(app, pictures);
    for (int page = 1; page <= app.PageCount; ++page) {
        QImage image(kSheetWidth, kSheetHeight, QImage::Format_RGB32);
        image.fill(Qt::white);
        {
            TypesetterState typesetter;
            SetFolders(app, typesetter);
            typesetter.LoadPicture = pictures.LoadPicture;
            QtSurface surface(image);
            surface.UsePictures(typesetter);
            app.CurrentPage = page;
            DrawCurrentPage(app, typesetter, surface);
        }
        char name[32];
        std::snprintf(name, sizeof name, "page-%03d.png", page);
        if (!SavePng((fs::path(folder) / name).string(), image, command)) return false;
    }
    app.CurrentPage = kept;
    return true;
}

// A generator of the catalogue as the new command asks for it.
struct Generator {
    std::string module;
    int routine = 0;
    int itemsMax = 0;
    int amount = 0;
    int itemsPerProblem = 0;
};

// The exercise generator of the subject's catalogue that a choice names (a topic's header
// line is no generator).
bool FindGenerator(const std::vector<std::string>& catalogue, const Choice& choice, Generator& found) {
    bool any = false;
    for (const std::string& line : catalogue) {
        const CatalogueEntry e = ReadCatalogueEntry(line);
        if (Upper(TrimBlanks(e.Subject)) != "MATHEMATICS") continue;
        if (e.Kind.size() != 1 || e.Kind[0] < '1' || e.Kind[0] > '4') continue;
        if (TrimBlanks(e.moduleName) != choice.module) continue;
        if (static_cast<int>(LeadingNumberSkippingBlanks(e.RoutineId)) != choice.routine) continue;
        found.module = TrimBlanks(e.moduleName);
        found.routine = choice.routine;
        found.itemsMax = static_cast<int>(LeadingNumberSkippingBlanks(e.MaxAmount));
        any = true;
    }
    return any;
}

int ParseNewOptions(const CliArguments& args, NewOptions& o) {
    o.settings.NumberColour = 192 + 224 * 256 + 255 * 65536;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        const bool hasValue = i + 1 < args.size();
        long long value = 0;
        auto fail = [&](const std::string& message) {
            std::cerr << "sumforge-cli new: " << message << "\n";
            return kUsageError;
        };
        if ((a == "-o" || a == "--output") && hasValue) {
            o.colFile = args[++i];
        } else if (a == "--pdf" && hasValue) {
            o.pdfFile = args[++i];
        } else if (a == "--title" && hasValue) {
            if (args[++i].size() > kMaxTitleBytes) return fail("--title takes at most 1000 bytes");
            o.settings.Title = AsFileText(args[i], kMaxTitleBytes);
        } else if (a == "--solutions" && hasValue) {
            if (!ParseSolutions(args[++i], o.settings.SolutionPosition))
                return fail("--solutions takes none, after, end or page");
        } else if (a == "--sorted") {
            o.settings.Sorted = true;
        } else if (a == "--shuffled") {
            o.settings.Sorted = false;
        } else if (a == "--first-problem" && hasValue) {
            if (!ReadInteger(args[++i], -999, 9999, value)) return fail("--first-problem takes a whole number");
            o.settings.FirstProblemNumber = static_cast<std::int32_t>(value);
        } else if (a == "--prefix" && hasValue) {
            if (args[++i].size() > kMaxAffixBytes) return fail("--prefix takes at most 1000 bytes");
            o.settings.NumberPrefix = AsFileText(args[i], kMaxAffixBytes);
        } else if (a == "--suffix" && hasValue) {
            if (args[++i].size() > kMaxAffixBytes) return fail("--suffix takes at most 1000 bytes");
            o.settings.NumberSuffix = AsFileText(args[i], kMaxAffixBytes);
        } else if ((a == "--colour" || a == "--color") && hasValue) {
            if (!ParseColour(args[++i], o.settings.NumberColour))
                return fail("--colour takes #RRGGBB, R,G,B or a decimal colour");
        } else if ((a == "--page-numbers" || a == "--page-number-position") && hasValue) {
            if (!ReadInteger(args[++i], 0, 15, value)) return fail("--page-numbers takes a code from 0 to 15");
            o.settings.PagePositionCode = static_cast<std::int32_t>(value);
        } else if (a == "--first-page" && hasValue) {
            if (!ReadInteger(args[++i], -9999, 9999, value)) return fail("--first-page takes a whole number");
            o.settings.FirstPageNumber = static_cast<std::int32_t>(value);
        } else if (a == "--seed" && hasValue) {
            if (!ReadInteger(args[++i], 0, 2147483647, value)) return fail("--seed takes a whole number");
            o.haveSeed = true;
            o.seed = static_cast<std::int32_t>(value);
        } else if (!a.empty() && a[0] != '-') {
            Choice choice;
            if (!ParseChoice(a, choice)) return fail("'" + a + "' is not a choice like NRP:12x3:5");
            o.choices.push_back(choice);
        } else {
            NewUsage();
            return kUsageError;
        }
    }
    if (o.choices.empty() || (o.colFile.empty() && o.pdfFile.empty())) {
        NewUsage();
        return kUsageError;
    }
    if (!o.colFile.empty() && !EndsWithCol(o.colFile)) {
        std::cerr << "sumforge-cli new: the collection file must end in .col: '" << o.colFile << "'\n";
        return kUsageError;
    }
    return 0;
}
} // namespace

int RunNewCommand(const CliArguments& args) {
    NewOptions o;
    if (const int status = ParseNewOptions(args, o); status != 0) return status;
    // A file that can't be written is said once, before any problem is made.
    if (!o.colFile.empty() && !CheckOutputFile(o.colFile, "new")) return 1;
    if (!o.pdfFile.empty() && !CheckOutputFile(o.pdfFile, "new")) return 1;
    auto gui = StartGui();

    ApplicationState app;
    if (o.haveSeed) app.ClockSeed = [seed = o.seed] { return seed; };
    Pagination pagination(app);

    // Each choice is a group of records of its generator, in the order of the choices.
    app.hub.ReadCatalogue();
    std::vector<Generator> chosen;
    int total = 0;
    for (const Choice& choice : o.choices) {
        Generator generator;
        if (!FindGenerator(app.hub.CatalogueList(), choice, generator)) {
            std::cerr << "sumforge-cli new: no generator " << choice.module << " " << choice.routine << " ('"
                      << choice.word << "'); see 'sumforge-cli catalogue'\n";
            return 1;
        }
        for (const Generator& before : chosen)
            if (before.module == generator.module && before.routine == generator.routine) {
                std::cerr << "sumforge-cli new: '" << choice.word << "' names a generator already chosen\n";
                return kUsageError;
            }
        const int items = choice.items < 0 ? std::min(generator.itemsMax, 10) : choice.items;
        if (generator.itemsMax > 0 && items > generator.itemsMax) {
            std::cerr << "sumforge-cli new: '" << choice.word << "' asks for " << items
                      << " items; this generator makes at most " << generator.itemsMax << "\n";
            return kUsageError;
        }
        generator.amount = choice.amount;
        generator.itemsPerProblem = generator.itemsMax > 0 ? items : 0;
        chosen.push_back(generator);
        total += choice.amount;
    }
    if (total > kMaxProblems) {
        std::cerr << "sumforge-cli new: Too much problems. (Max: 500)\n";
        return kUsageError;
    }

    app.Settings = o.settings;
    app.Settings.ProblemCount = 0;
    app.Reseed();
    app.ModuleNames.clear();
    for (const Generator& g : chosen) AppendProblemGroup(app, g.module, g.routine, g.amount, g.itemsPerProblem);
    CrearColeccion(app, 1);

    if (!o.colFile.empty()) {
        std::string bytes;
        std::string error;
        if (!BuildFileBytes(app, bytes, error)) {
            std::cerr << "sumforge-cli new: " << error << "\n";
            return 1;
        }
        if (!SaveOutputFile(o.colFile, QByteArray::fromStdString(bytes), "new")) return 1;
    }
    if (!o.pdfFile.empty() && !WritePdf(app, o.pdfFile, "new")) return 1;
    std::cout << app.ProblemCount() << " problems, " << app.PageCount << " pages\n";
    return 0;
}

int RunRenderCommand(const CliArguments& args) {
    std::string colFile, pdfFile, pngFolder;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        const bool hasValue = i + 1 < args.size();
        if (a == "--pdf" && hasValue) {
            pdfFile = args[++i];
        } else if (a == "--png" && hasValue) {
            pngFolder = args[++i];
        } else if (colFile.empty() && !a.empty() && a[0] != '-') {
            colFile = a;
        } else {
            colFile.clear();
            break;
        }
    }
    if (colFile.empty() || (pdfFile.empty() && pngFolder.empty())) {
        std::cerr << "Usage: sumforge-cli render FILE.col [--pdf OUT.pdf] [--png DIR]\n";
        return kUsageError;
    }
    if (!EndsWithCol(colFile)) {
        std::cerr << "sumforge-cli render: not a collection file (.col): '" << colFile << "'\n";
        return kUsageError;
    }
    if (!pdfFile.empty() && !CheckOutputFile(pdfFile, "render")) return 1;
    auto gui = StartGui();
    ApplicationState app;
    Pagination pagination(app);
    app.CurrentFileName = colFile;
    if (!OpenFile(app)) {
        const std::string& message = static_cast<QuietWindow*>(app.window)->lastMessage;
        // A file that could not be read at all carries the system's reason already.
        if (message.rfind("Cannot open ", 0) == 0)
            std::cerr << "sumforge-cli render: c" << message.substr(1) << "\n";
        else
            std::cerr << "sumforge-cli render: cannot open '" << colFile
                      << "': " << (message.empty() ? "Bad file." : message) << "\n";
        return 1;
    }
    if (!pdfFile.empty() && !WritePdf(app, pdfFile, "render")) return 1;
    if (!pngFolder.empty() && !WritePngs(app, pngFolder, "render")) return 1;
    std::cout << app.ProblemCount() << " problems, " << app.PageCount << " pages\n";
    return 0;
}
