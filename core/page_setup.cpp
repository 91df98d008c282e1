#include "core/page_setup.h"

#include <cmath>

#include "mathservices/utf8_text.h"

double PaperWidthMm(PaperSize paper) { return paper == PaperSize::Letter ? 215.9 : 210.0; }
double PaperHeightMm(PaperSize paper) { return paper == PaperSize::Letter ? 279.4 : 297.0; }

int SheetPixelsWide(PaperSize paper) { return static_cast<int>(std::lround(PaperWidthMm(paper) / 25.4 * 96)) + 2; }
int SheetPixelsHigh(PaperSize paper) { return static_cast<int>(std::lround(PaperHeightMm(paper) / 25.4 * 96)) + 2; }

bool ReadPaperName(const std::string& word, PaperSize& paper) {
    const std::string w = Upper(word);
    if (w == "A4") paper = PaperSize::A4;
    else if (w == "LETTER" || w == "US-LETTER" || w == "USLETTER") paper = PaperSize::Letter;
    else return false;
    return true;
}

std::string PaperName(PaperSize paper) { return paper == PaperSize::Letter ? "letter" : "a4"; }

bool PageHasNameLine(const PageSetup& setup, int page) {
    if (setup.nameLine == NameLinePlace::EveryPage) return true;
    return setup.nameLine == NameLinePlace::FirstPage && page == 1;
}
