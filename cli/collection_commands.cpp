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
#include "core/answer_key.h"
#include "core/composition.h"
#include "core/editing.h"
#include "core/page_render.h"
#include "core/versions.h"
#include "generators/catalogue.h"
#include "typesetter/qt_surface.h"

namespace fs = std::filesystem;

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

namespace {
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
    PageSetup page;
    std::string colFile;
    std::string pdfFile;
    bool haveSeed = false;
    std::int32_t seed = 0;
    int versions = 0;
};

// What the versions of a collection give: the sheets, the keys or both.
struct VersionOutput {
    int count = 0;
    bool sheets = true;
    bool keys = true;
    std::string pdfBase;    // OUT of OUT-A.pdf
    std::string colFolder;  // where each version's .col goes
    std::string colStem;    // STEM of STEM-A.col
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
                 "  --seed N                 start the random source from N instead of the clock\n"
                 "  --paper a4|letter        the paper the pages are made for (default a4)\n"
                 "  --name-line [first|every]  a name line under the title of the first or every page\n"
                 "  --versions N             with --pdf OUT: N versions, OUT-A.pdf, OUT-A-key.pdf ...\n"
                 "                           (--key-only, --sheets-only, --col DIR as in versions)\n";
}

// The composing machinery: the hidden screen picture that pages are measured on.
// Pages are measured on the sheet of the state's paper: set app.Page first.
struct Pagination {
    QImage sheet;
    TypesetterState typesetter;
    std::unique_ptr<QtSurface> surface;
    std::unique_ptr<TypesetterMeasure> measure;

    explicit Pagination(ApplicationState& app)
        : sheet(SheetPixelsWide(app.Page.paper), SheetPixelsHigh(app.Page.paper), QImage::Format_RGB32) {
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
        writer.setPageSize(QPageSize(app.Page.paper == PaperSize::Letter ? QPageSize::Letter : QPageSize::A4));
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
        QImage image(SheetPixelsWide(app.Page.paper), SheetPixelsHigh(app.Page.paper), QImage::Format_RGB32);
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

// The page options of new, render and versions. Returns -1 when args[i] is none of them,
// 0 when it was read (i then stands on its last word), kUsageError for a bad value.
int ReadPageOption(const CliArguments& args, std::size_t& i, PageSetup& page, const char* command) {
    const std::string& a = args[i];
    if (a == "--paper") {
        if (i + 1 >= args.size() || !ReadPaperName(args[i + 1], page.paper)) {
            std::cerr << "sumforge-cli " << command << ": --paper takes a4 or letter\n";
            return kUsageError;
        }
        ++i;
        return 0;
    }
    if (a == "--name-line") {
        page.nameLine = NameLinePlace::FirstPage;
        if (i + 1 < args.size()) {
            const std::string where = Upper(args[i + 1]);
            if (where == "FIRST") ++i;
            else if (where == "EVERY") page.nameLine = NameLinePlace::EveryPage, ++i;
            else if (where == "NONE") page.nameLine = NameLinePlace::None, ++i;
        }
        return 0;
    }
    return -1;
}

// The options of versions (and of new with --versions): which documents, and where the
// collection files go. Same returns as ReadPageOption.
int ReadVersionOption(const CliArguments& args, std::size_t& i, VersionOutput& o, const char* command) {
    const std::string& a = args[i];
    if (a == "--key-only") {
        o.sheets = false;
        o.keys = true;
    } else if (a == "--sheets-only") {
        o.sheets = true;
        o.keys = false;
    } else if (a == "--col") {
        if (i + 1 >= args.size()) {
            std::cerr << "sumforge-cli " << command << ": --col takes a folder\n";
            return kUsageError;
        }
        o.colFolder = args[++i];
    } else {
        return -1;
    }
    return 0;
}

bool EndsWithPdf(const std::string& name) { return name.size() >= 4 && Upper(name.substr(name.size() - 4)) == ".PDF"; }

// "out.pdf" and "out" both name out-A.pdf, out-A-key.pdf and on.
std::string PdfBase(const std::string& name) { return EndsWithPdf(name) ? name.substr(0, name.size() - 4) : name; }

std::string SheetFile(const VersionOutput& o, int v) { return o.pdfBase + "-" + VersionLetter(v) + ".pdf"; }
std::string KeyFile(const VersionOutput& o, int v) { return o.pdfBase + "-" + VersionLetter(v) + "-key.pdf"; }
std::string VersionColFile(const VersionOutput& o, int v) {
    return (fs::path(o.colFolder) / (o.colStem + "-" + VersionLetter(v) + ".col")).string();
}

// Every file the versions will write can be written: said once, before anything is made.
bool CheckVersionTargets(const VersionOutput& o, const char* command) {
    if (!o.colFolder.empty()) {
        std::error_code ec;
        fs::create_directories(o.colFolder, ec);
        if (ec || !fs::is_directory(o.colFolder)) {
            std::cerr << "sumforge-cli " << command << ": cannot make the folder '" << o.colFolder
                      << "': " << (ec ? ec.message() : "not a folder") << "\n";
            return false;
        }
    }
    for (int v = 0; v < o.count; ++v) {
        if (!o.pdfBase.empty() && o.sheets && !CheckOutputFile(SheetFile(o, v), command)) return false;
        if (!o.pdfBase.empty() && o.keys && !CheckOutputFile(KeyFile(o, v), command)) return false;
        if (!o.colFolder.empty() && !CheckOutputFile(VersionColFile(o, v), command)) return false;
    }
    return true;
}

// The versions of the collection in app, each laid out on its own state: its sheets, its
// answer key and its collection file, as o asks.
bool WriteVersions(ApplicationState& app, const VersionOutput& o, const char* command) {
    const std::vector<CollectionValue> versions = MakeVersions(app.hub, CollectionOf(app), o.count);
    for (int v = 0; v < static_cast<int>(versions.size()); ++v) {
        ApplicationState doc;
        doc.Page = app.Page;
        Pagination pagination(doc);
        LoadCollection(doc, versions[static_cast<std::size_t>(v)]);
        if (!o.colFolder.empty()) {
            doc.CurrentFileName = VersionColFile(o, v);
            std::string bytes;
            std::string error;
            if (!BuildFileBytes(doc, bytes, error)) {
                std::cerr << "sumforge-cli " << command << ": " << error << "\n";
                return false;
            }
            if (!SaveOutputFile(doc.CurrentFileName, QByteArray::fromStdString(bytes), command)) return false;
            std::cout << doc.CurrentFileName << ": " << doc.ProblemCount() << " problems\n";
        }
        if (o.pdfBase.empty()) continue;
        if (o.sheets) {
            ComposeDocument(doc, true, 1);
            if (!WritePdf(doc, SheetFile(o, v), command)) return false;
            std::cout << SheetFile(o, v) << ": " << doc.PageCount << " pages\n";
        }
        if (o.keys) {
            ComposeAnswerKey(doc);
            if (!WritePdf(doc, KeyFile(o, v), command)) return false;
            std::cout << KeyFile(o, v) << ": " << doc.PageCount << " pages\n";
        }
    }
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

int ParseNewOptions(const CliArguments& args, NewOptions& o, VersionOutput& versions) {
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
        } else if (a == "--versions" && hasValue) {
            if (!ReadInteger(args[++i], 2, kMaxVersions, value)) return fail("--versions takes a number from 2 to 26");
            o.versions = static_cast<int>(value);
        } else if (const int page = ReadPageOption(args, i, o.page, "new"); page >= 0) {
            if (page != 0) return page;
        } else if (const int version = ReadVersionOption(args, i, versions, "new"); version >= 0) {
            if (version != 0) return version;
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
    if (o.versions == 0 && (!versions.sheets || !versions.keys || !versions.colFolder.empty())) {
        std::cerr << "sumforge-cli new: --key-only, --sheets-only and --col go with --versions N\n";
        return kUsageError;
    }
    if (o.versions > 0 && o.pdfFile.empty() && versions.colFolder.empty()) {
        std::cerr << "sumforge-cli new: --versions N writes with --pdf OUT or --col DIR\n";
        return kUsageError;
    }
    versions.count = o.versions;
    if (o.versions > 0) {
        versions.pdfBase = o.pdfFile.empty() ? "" : PdfBase(o.pdfFile);
        versions.colStem = o.colFile.empty() ? "collection" : fs::path(o.colFile).stem().string();
    }
    return 0;
}
// Opens a collection file into app (composed); says why not on standard error.
bool OpenCollection(ApplicationState& app, const std::string& colFile, const char* command) {
    app.CurrentFileName = colFile;
    std::string message;
    if (OpenFile(app, &message)) return true;
    // A file that could not be read at all carries the system's reason already.
    if (message.rfind("Cannot open ", 0) == 0)
        std::cerr << "sumforge-cli " << command << ": c" << message.substr(1) << "\n";
    else
        std::cerr << "sumforge-cli " << command << ": cannot open '" << colFile
                  << "': " << (message.empty() ? "Bad file." : message) << "\n";
    return false;
}

void VersionsUsage() {
    std::cerr << "Usage: sumforge-cli versions FILE.col N [--pdf OUT] [--col DIR] [options]\n"
                 "  N                        how many versions, 2 to 26 (A is the collection itself)\n"
                 "  --pdf OUT                write OUT-A.pdf, OUT-A-key.pdf, OUT-B.pdf ...\n"
                 "  --key-only | --sheets-only   only the answer keys, or only the sheets\n"
                 "  --col DIR                write each version as DIR/NAME-A.col ...\n"
                 "  --paper a4|letter        the paper (default a4)\n"
                 "  --name-line [first|every]  a name line under the title\n";
}
} // namespace

int RunVersionsCommand(const CliArguments& args) {
    std::string colFile, pdfFile;
    long long count = 0;
    bool haveCount = false;
    PageSetup page;
    VersionOutput o;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        if (const int status = ReadPageOption(args, i, page, "versions"); status >= 0) {
            if (status != 0) return status;
        } else if (const int status2 = ReadVersionOption(args, i, o, "versions"); status2 >= 0) {
            if (status2 != 0) return status2;
        } else if (a == "--pdf" && i + 1 < args.size()) {
            pdfFile = args[++i];
        } else if (colFile.empty() && !a.empty() && a[0] != '-') {
            colFile = a;
        } else if (!haveCount && !a.empty() && a[0] != '-') {
            if (!ReadInteger(a, 2, kMaxVersions, count)) {
                std::cerr << "sumforge-cli versions: the number of versions is 2 to 26, not '" << a << "'\n";
                return kUsageError;
            }
            haveCount = true;
        } else {
            VersionsUsage();
            return kUsageError;
        }
    }
    if (colFile.empty() || !haveCount || (pdfFile.empty() && o.colFolder.empty())) {
        VersionsUsage();
        return kUsageError;
    }
    if (!EndsWithCol(colFile)) {
        std::cerr << "sumforge-cli versions: not a collection file (.col): '" << colFile << "'\n";
        return kUsageError;
    }
    o.count = static_cast<int>(count);
    o.pdfBase = pdfFile.empty() ? "" : PdfBase(pdfFile);
    o.colStem = fs::path(colFile).stem().string();
    if (!CheckVersionTargets(o, "versions")) return 1;
    auto gui = StartGui();
    ApplicationState app;
    app.Page = page;
    Pagination pagination(app);
    if (!OpenCollection(app, colFile, "versions")) return 1;
    return WriteVersions(app, o, "versions") ? 0 : 1;
}

int RunNewCommand(const CliArguments& args) {
    NewOptions o;
    VersionOutput versions;
    if (const int status = ParseNewOptions(args, o, versions); status != 0) return status;
    // A file that can't be written is said once, before any problem is made.
    if (!o.colFile.empty() && !CheckOutputFile(o.colFile, "new")) return 1;
    if (o.versions > 0) {
        if (!CheckVersionTargets(versions, "new")) return 1;
    } else if (!o.pdfFile.empty() && !CheckOutputFile(o.pdfFile, "new")) {
        return 1;
    }
    auto gui = StartGui();

    ApplicationState app;
    if (o.haveSeed) app.ClockSeed = [seed = o.seed] { return seed; };
    app.Page = o.page;
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
    std::cout << app.ProblemCount() << " problems, " << app.PageCount << " pages\n";
    if (o.versions > 0) return WriteVersions(app, versions, "new") ? 0 : 1;
    if (!o.pdfFile.empty() && !WritePdf(app, o.pdfFile, "new")) return 1;
    return 0;
}

int RunRenderCommand(const CliArguments& args) {
    std::string colFile, pdfFile, pngFolder;
    PageSetup page;
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        const bool hasValue = i + 1 < args.size();
        if (const int status = ReadPageOption(args, i, page, "render"); status >= 0) {
            if (status != 0) return status;
        } else if (a == "--pdf" && hasValue) {
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
        std::cerr << "Usage: sumforge-cli render FILE.col [--pdf OUT.pdf] [--png DIR] [--paper a4|letter]\n"
                     "                             [--name-line [first|every]]\n";
        return kUsageError;
    }
    if (!EndsWithCol(colFile)) {
        std::cerr << "sumforge-cli render: not a collection file (.col): '" << colFile << "'\n";
        return kUsageError;
    }
    if (!pdfFile.empty() && !CheckOutputFile(pdfFile, "render")) return 1;
    auto gui = StartGui();
    ApplicationState app;
    app.Page = page;
    Pagination pagination(app);
    if (!OpenCollection(app, colFile, "render")) return 1;
    if (!pdfFile.empty() && !WritePdf(app, pdfFile, "render")) return 1;
    if (!pngFolder.empty() && !WritePngs(app, pngFolder, "render")) return 1;
    std::cout << app.ProblemCount() << " problems, " << app.PageCount << " pages\n";
    return 0;
}
