#pragma once
#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "core/page_setup.h"
#include "core/ports.h"
#include "core/problem_record.h"
#include "core/safe_write.h"
#include "generators/hub.h"
#include "mathservices/number_texts.h"

// Build constants: compile-time texts, not settings.
inline constexpr const char* kBuildLanguage = "ENG";
inline constexpr const char* kBuildMark = "TOLM";
inline constexpr const char* kProductId = "SUMFORGE-RUQ7";

inline constexpr int kMaxProblems = 500;
inline constexpr int kMaxBlocks = 1024;
inline constexpr int kMaxTopicNodes = 256;
inline constexpr int kMaxModuleNames = 999;
inline constexpr int kMarkCapacity = 500;
inline constexpr int kMaxPages = 500;
inline constexpr int kToolCount = 12;

struct CollectionSettings {
    std::int32_t FirstPageNumber = 1;
    // 0 none; bit value 8 bottom, else top; low three bits 1 right, 2 left, 3 centre,
    // 4 odd right even left, 5 odd left even right.
    std::int32_t PagePositionCode = 11;
    std::int32_t ProblemCount = 0;
    // Red in the low byte, then green, then blue.
    std::int32_t NumberColour = 16777215;
    std::string NumberPrefix;
    std::string NumberSuffix = ")";
    std::int32_t FirstProblemNumber = 1;
    // 0 none, 1 after each problem, 2 together at the end, 3 in a separate page.
    std::int32_t SolutionPosition = 1;
    std::string Title;
    bool Sorted = true;

    bool operator==(const CollectionSettings&) const = default;
};

// An undo or redo point: the settings and the first n records, n the count then.
struct CollectionSnapshot {
    CollectionSettings settings;
    std::vector<ProblemRecord> problems;
    // The file the collection belonged to then: undoing a step that dropped the name
    // brings it back.
    std::string fileName;
    bool available = false;
};

struct DocumentBlock {
    std::string text;
    std::int32_t page = 0;
    // Positive: the problem whose statement the block holds; negative: a solution block.
    std::int32_t problem = 0;
};

enum NodeKind : std::int16_t {
    kNodeQuestions = 1,
    kNodeExercises = 2,
    kNodeProblems = 3,
    kNodeTheory = 4,
    kNodeFolder = 5,
    kNodeSubject = 6,
};

struct TopicNode {
    int level = 0;
    bool isFolder = false;
    bool expanded = false;
    std::string label;
    std::string description;
    int routine = 0;
    std::string module;  // 80 characters, padded with blanks
    bool selected = false;
    int amount = 0;
    int itemsPerProblem = 0;
    int itemsMax = 0;
    int listIndex = 0;
    int kind = 0;
};

// The marks the typesetter leaves after drawing a page; the page view selects with them.
struct PageMarks {
    int MarkCount = 0;
    std::vector<double> MarkTop;
    std::vector<double> MarkBottom;
    std::vector<bool> MarkSelected;
    std::vector<std::int32_t> MarkProblem;

    void Clear();
    // Appends a mark with the number it holds.
    void Add(std::int32_t problem, double top, double bottom);
};

// The one state of the program, made once and handed by reference.
struct ApplicationState {
    ApplicationState();
    // A state over other generators than the program's (for tests).
    explicit ApplicationState(GeneratorHub generators);
    ApplicationState(const ApplicationState&) = delete;
    ApplicationState& operator=(const ApplicationState&) = delete;

    std::string ApplicationTitle = "Tolmen - Sumforge";
    std::string CurrentFileName;
    CollectionSettings Settings;
    // Paper and name line: the program's settings, kept out of the file and of undo.
    PageSetup Page;
    CollectionSnapshot UndoSnapshot;
    CollectionSnapshot RedoSnapshot;
    // The stores of the undo and redo descriptions, as the menu shows them.
    std::string UndoCaption = "Cannot undo";
    std::string RedoCaption = "Cannot redo";

    std::vector<TopicNode> TopicTree;        // nodes 1..n kept at indices 0..n-1
    std::vector<std::string> CandidateList;  // sorted ascending

    // Records 1..500 at indices 1..500; index 0 is unused.
    std::vector<ProblemRecord> Problems;
    // Blocks 1..1024 at indices 1..1024.
    std::vector<DocumentBlock> Blocks;
    std::int32_t BlockCount = 0;
    std::int32_t PageCount = 0;
    bool SettingsAccepted = false;
    int CurrentPage = 1;
    bool Modified = false;
    double ZoomScale = 1.0;
    bool BusyFlag = false;
    PageMarks Marks;

    NumberTexts numberTexts;
    std::string ProductId = kProductId;

    std::array<bool, kToolCount> ToolVisible{};
    std::array<bool, kToolCount> ToolEnabled{};
    // The check of mnu_Ver_BotEdic: whether the editing buttons show.
    bool EditButtonsShown = false;
    std::vector<std::string> ModuleNames;

    // Where pictures are looked for and where the pictures of opened files land.
    std::string ImageFolder;
    std::string TempFolder;

    // The generators, and the random stream that creation draws the seeds from.
    GeneratorHub hub;
    // The value the random source is reseeded with ("from the clock").
    std::function<std::int32_t()> ClockSeed;
    // How saves put their bytes on the disk; empty for the system's write (tests inject
    // a disk that fills up).
    ByteWriter fileWriter;

    // The window's side; the quiet ones until a window sets its own.
    ClipboardPort* clipboard;
    MenuPort* menus;
    WindowPort* window;
    PageMeasurePort* measure;

    int ProblemCount() const { return Settings.ProblemCount; }
    float Random() { return hub.Workspace().stream.Draw(); }
    void Reseed();

private:
    QuietClipboard quietClipboard_;
    QuietMenus quietMenus_;
    QuietWindow quietWindow_;
    FitAllMeasure fitAll_;
};

// The two states of the whole window.
void NoColeccion(ApplicationState& app);
void HayColeccion(ApplicationState& app);

// The solution headings, which only the exact "ENG" and "ESP" set.
std::string SolutionWord(const std::string& language);
std::string SolutionsWord(const std::string& language);

// Appends a module name that is not known yet (at most 999 names).
void AddModuleName(ApplicationState& app, const std::string& name);
