#pragma once
#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "mathservices/number_texts.h"

class DrawingSurface;

// The metric record of one string or construct. Distances are measured from the box's
// nominal top, the y at which its first line of text is printed.
struct LayoutBox {
    double lead = 0;   // room needed left of the pen; the parent moves the pen right by it
    double width = 0;  // advance after lead
    double over = 0;   // ink above the nominal top
    double axis = 0;   // nominal top down to the alignment axis
    double bottom = 0; // ink below the nominal top
    std::u32string source;
    double drawX = 0; // pen at which the draw pass entered the box
    double drawY = 0;
};

inline constexpr int kMaxBoxes = 200;        // boxes of one line, box 0 unused
inline constexpr int kMaxChildren = 9;       // child places of one construct
inline constexpr int kMaxSegments = 50;      // constructs of one string
inline constexpr int kMaxMarks = 500;
inline constexpr int kMaxLines = 10000;
inline constexpr int kSymbolCount = 78;
// Constructs inside constructs that layout follows; a deeper one shows the red error.
inline constexpr int kMaxConstructDepth = 32;

// The tables of the typesetter, one group for each lifetime. TypesetterState joins them;
// a routine that needs one group only takes that group.

// Filled once by InitSymbolTables, read-only afterwards.
struct SymbolTables {
    // Entities 1..78 with the glyph printed for each (UTF-8) and its code in the symbol
    // font it comes from.
    std::array<std::u32string, kSymbolCount + 1> SymbolName;
    std::array<std::string, kSymbolCount + 1> SymbolGlyph;
    std::array<int, kSymbolCount + 1> SymbolCode{};
    // Operator rise, row "+", minus, "=", column by size class 1..3; single precision.
    std::array<std::array<float, 3>, 3> OperatorShift{};
    double PiValue = 0;
};

// Set by the caller before LayoutText, and the page geometry (twips) that LayoutText takes
// from the surface at the start of each call.
struct PageDevices {
    double ZoomScale = 1.0;
    double PageWidth = 0, PageHeight = 0;
    double MarginLeft = 0, MarginRight = 0, MarginTop = 0, MarginBottom = 0;

    // Which surface is the screen picture, which one the printer, whether the system has a
    // printer, whether to draw the margin guides.
    DrawingSurface* ScreenSurface = nullptr;
    DrawingSurface* PrinterSurface = nullptr;
    bool PrinterInstalled = true;
    bool ShowMarginGuides = false;
    // The page number stands at the foot of the text: the lines leave it its height and
    // half a line clear above the bottom margin.
    bool PageNumberAtFoot = false;
    // Called between lines so that a window stays alive during a long layout.
    std::function<void()> YieldToEvents;

    // The texts that stand for the locale codes and before a power of ten.
    NumberTexts numberTexts;

    // Folders searched for the pictures of the image construct, in this order: the
    // program's pictures, then the per-user folder where generators may leave pictures.
    std::string PictureFolder;
    std::string TempPictureFolder;
    // Reads a picture file's size in pixels; false when it can't be read as a picture.
    std::function<bool(const std::string& file, double& width, double& height)> LoadPicture;
    // Pictures found by their name in the markup, kept through one pagination (the caller
    // empties it when one starts): every measuring pass of a page with a figure asks for
    // it, and each search asks the disk several times.
    struct FoundPicture {
        std::string file; // empty when no folder has it as a picture
        double width = 0, height = 0;
    };
    std::map<std::string, FoundPicture> FoundPictures;
};

// Lives through one LayoutText call and carries from line to line.
struct FlowState {
    double LineIndent = 0; // set by "&LSAN=", in force for the lines after it
    std::uint32_t FillColor = 0;
    std::uint32_t LineColor = 0;
    // Pictures hung from the line above (negative height) reach below their own line: the
    // draw pass notes where each one stands on the page, so that later lines keep clear.
    struct HungPicture {
        double left = 0, right = 0, bottom = 0;
    };
    std::vector<HungPicture> HungPictures;
};

// The counters of one pass over a line; each pass starts from a fresh set.
struct PassCounters {
    int BoxCounter = 0;
    int FractionDepth = 0;
    int ScriptDepth = 0;
    bool DrawPass = false;
    // Set when a line asked for more boxes than the table holds: the piece being read stops,
    // in both passes at the same place, and layout goes on with the next line.
    bool BoxOverflow = false;
    // Constructs open around the text being read now.
    int ConstructDepth = 0;
};

// The boxes of one line: written by its measure pass, read by its draw pass. The driver
// starts every line with fresh tables.
struct LineBoxes : PassCounters {
    std::array<LayoutBox, kMaxBoxes + 1> BoxTable;
    std::array<std::array<int, kMaxChildren + 1>, kMaxBoxes + 1> ChildTable{};
    // For a construct with more pieces than ChildTable has places (the chemical equation):
    // the box numbers of all its pieces, in order, recorded by the measure pass.
    std::array<std::vector<int>, kMaxBoxes + 1> CellTable;
    // How far below the line's top its lowest hung picture ends (measure pass).
    double LineHang = 0;
};

// What LayoutText leaves for its caller.
struct LayoutResults {
    std::int32_t FlowResult = 0;
    std::int32_t MarkCount = 0;
    std::array<double, kMaxMarks> MarkTop{};
    std::array<double, kMaxMarks> MarkBottom{};
    std::array<bool, kMaxMarks> MarkSelected{};
    std::array<std::int32_t, kMaxMarks> MarkProblem{};
    // Which drawings of a page stand together: LayoutText counts up before each line it
    // draws and the interpreter at each column position ("&SP") of the draw pass. The
    // engine doesn't read it; a checker of finished pages tells items apart by it.
    int InkGroup = 0;
};

// Every table of the typesetter, made by the caller and handed to each call. A test makes
// a fresh one; nothing of the typesetter lives anywhere else.
struct TypesetterState : SymbolTables, PageDevices, FlowState, LineBoxes, LayoutResults {
    TypesetterState();
};

// Fills the entity table, PiValue and OperatorShift. The constructor calls it.
void InitSymbolTables(SymbolTables& tables);

// The start of a pass over a line: box 1 is the line's, the depths are 0.
inline void StartPass(PassCounters& counters, bool drawPass) {
    counters = PassCounters{.BoxCounter = 1, .DrawPass = drawPass};
}

// The start of a line: fresh boxes, and the measure pass begins. The tables are cleared in
// place: building a fresh set (about 35 KB, a string and a list per box) for every line
// of every measuring pass was a third of composing a collection.
inline void StartLine(LineBoxes& boxes) {
    static_assert(sizeof(LayoutBox) == 7 * sizeof(double) + sizeof(std::u32string), "clear the new field below");
    for (LayoutBox& b : boxes.BoxTable) {
        b.lead = b.width = b.over = b.axis = b.bottom = b.drawX = b.drawY = 0;
        b.source.clear();
    }
    boxes.ChildTable = {};
    for (std::vector<int>& cells : boxes.CellTable) cells.clear();
    boxes.LineHang = 0;
    StartPass(boxes, false);
}

// "r;g;b", a decimal number or a colour name (English or Spanish, any case); 0 when unknown.
std::uint32_t ParseColor(const std::string& text);
std::uint32_t ParseColor(const std::u32string& text);

inline constexpr std::uint32_t Rgb(int r, int g, int b) {
    return static_cast<std::uint32_t>(r) + 256u * static_cast<std::uint32_t>(g) + 65536u * static_cast<std::uint32_t>(b);
}
