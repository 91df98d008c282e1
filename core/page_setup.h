#pragma once
#include <string>

// How pages are set up for printing: the paper and the name line under the title. These
// are the program's settings, not the collection's: a file opens the same on any paper.
enum class PaperSize { A4, Letter };
enum class NameLinePlace { None, FirstPage, EveryPage };

struct PageSetup {
    PaperSize paper = PaperSize::A4;
    NameLinePlace nameLine = NameLinePlace::None;

    bool operator==(const PageSetup&) const = default;
};

// The paper's size in millimetres (portrait).
double PaperWidthMm(PaperSize paper);
double PaperHeightMm(PaperSize paper);
// The sheet of the page view at zoom 1, in pixels: the paper at 96 dpi and the one-pixel
// frame on each side that the screen page leaves out of its measure.
int SheetPixelsWide(PaperSize paper);
int SheetPixelsHigh(PaperSize paper);

// "a4" or "letter" (any case) to a paper; false for another word.
bool ReadPaperName(const std::string& word, PaperSize& paper);
std::string PaperName(PaperSize paper);

// The line a pupil fills in, as plain text (composition makes its markup).
inline constexpr const char* kNameLineText = "Name: ________  Class: ______  Date: ________";
// Whether page (1 = the first of the document) carries the name line.
bool PageHasNameLine(const PageSetup& setup, int page);
