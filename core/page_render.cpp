#include "core/page_render.h"

#include "core/composition.h"
#include "typesetter/layout.h"

namespace {
constexpr std::uint32_t kBlack = 0;
constexpr std::uint32_t kWhite = 0xFFFFFF;

std::uint32_t Grey(int level) { return Rgb(level, level, level); }

void CopyMarks(ApplicationState& app, const TypesetterState& typesetter) {
    app.Marks.Clear();
    for (int i = 0; i < typesetter.MarkCount; ++i)
        app.Marks.Add(typesetter.MarkProblem[i], typesetter.MarkTop[i], typesetter.MarkBottom[i]);
}

// The page number in Times New Roman 11 (times the zoom), plain, in the given colour.
void PrintPageNumber(ApplicationState& app, TypesetterState& typesetter, DrawingSurface& surface, int page,
                     double zoom, std::uint32_t colour, double pageWidth, double pageHeight) {
    const long long number = PrintedPageNumber(app.Settings, page);
    const std::string text = std::to_string(number);
    surface.SetFontName("Times New Roman");
    surface.SetFontSize(11 * zoom);
    surface.SetFontBold(false);
    surface.SetFontItalic(false);
    surface.SetFontUnderline(false);
    surface.SetFontStrikethru(false);
    surface.SetForeColor(colour);
    const PageNumberPlace place =
        PlacePageNumber(app.Settings.PagePositionCode, number, pageWidth, pageHeight, surface.TextWidth(text),
                        surface.TextHeight(text), typesetter.MarginLeft, typesetter.MarginRight,
                        typesetter.MarginTop, typesetter.MarginBottom);
    surface.SetCurrentX(place.x);
    surface.SetCurrentY(place.y);
    surface.PrintText(text);
}
} // namespace

std::int32_t TypesetterMeasure::MeasurePage(const std::string& text, double zoomScale, bool pageNumberAtFoot) {
    typesetter_.ZoomScale = zoomScale;
    typesetter_.PageNumberAtFoot = pageNumberAtFoot;
    typesetter_.ScreenSurface = &screen_;
    double size = 12 * zoomScale;
    LayoutText(typesetter_, text, size, screen_);
    return typesetter_.FlowResult;
}

PageNumberPlace PlacePageNumber(int positionCode, long long number, double pageWidth, double pageHeight,
                                double textWidth, double textHeight, double marginLeft, double marginRight,
                                double marginTop, double marginBottom) {
    PageNumberPlace place;
    const double right = pageWidth - marginRight - textWidth;
    const double left = marginLeft;
    const bool even = number % 2 == 0;
    switch (positionCode & 7) {
    case 1: place.x = right; break;
    case 2: place.x = left; break;
    case 3: place.x = (marginLeft + pageWidth - marginRight - textWidth) / 2; break;
    case 4: place.x = even ? left : right; break;
    case 5: place.x = even ? right : left; break;
    default: place.x = left; break;
    }
    place.y = (positionCode & 8) ? pageHeight - marginBottom - textHeight : marginTop;
    return place;
}

void DrawCurrentPage(ApplicationState& app, TypesetterState& typesetter, DrawingSurface& screen) {
    app.window->SetPageLabel("");
    if (app.ProblemCount() == 0) return;
    app.window->SetPageLabel("Pag. " + std::to_string(app.CurrentPage) + "/" + std::to_string(app.PageCount));
    std::string text = PageBlocksText(app, app.CurrentPage);
    const std::string& title = app.Settings.Title;
    text = DrawnPageHead(app, app.CurrentPage) + text;
    const double zoom = app.ZoomScale;
    const double margin = 16.0 / 25.4 * 1440.0 * zoom;
    const double pageWidth = (screen.Width() - 2) * screen.TwipsPerPixelX();
    const double pageHeight = (screen.Height() - 2) * screen.TwipsPerPixelY();
    screen.SetFontSize(12 * zoom);
    const double h = screen.TextHeight("HH");
    const int code = app.Settings.PagePositionCode;
    if (code != 0 && !(code & 8)) {
        text = " &LF" + text;
        if (!title.empty())
            screen.FilledBox(margin, 2.2 * h + margin, pageWidth - 2 * margin, 0.3 * h, Grey(160));
    } else if (!title.empty()) {
        screen.FilledBox(margin, h + margin, pageWidth - 2 * margin, 0.3 * h, Grey(160));
    }
    typesetter.ZoomScale = zoom;
    typesetter.ScreenSurface = &screen;
    typesetter.PageNumberAtFoot = (code & 8) != 0;
    // A page drawn alone finds its pictures again: files may have changed since.
    typesetter.FoundPictures.clear();
    double size = 12 * zoom;
    LayoutText(typesetter, text, size, screen);
    CopyMarks(app, typesetter);
    if (code == 0) return;
    PrintPageNumber(app, typesetter, screen, app.CurrentPage, zoom, Grey(128), pageWidth, pageHeight);
}

void PrintOnePage(ApplicationState& app, TypesetterState& typesetter, DrawingSurface& printer, int page) {
    std::string text = PageBlocksText(app, page);
    const std::string& title = app.Settings.Title;
    text = DrawnPageHead(app, page) + text;
    printer.SetFontSize(12);
    const double h = printer.TextHeight("HH");
    typesetter.PrinterSurface = &printer;
    typesetter.ZoomScale = 1.0;
    typesetter.FoundPictures.clear();
    // The rule spans the text between the margins and stands under the title line, which
    // begins at the top margin.
    const double m = kPageMargin;
    const double pageWidth = printer.Width();
    const int code = app.Settings.PagePositionCode;
    double top = 0;
    double bottom = 0;
    if (code == 0 || (code & 8)) {
        top = m + 1.05 * h;
        bottom = m + 1.65 * h;
    } else {
        text = " &LF" + text;
        top = m + 2.85 * h;
        bottom = m + 3.25 * h;
    }
    if (!title.empty()) {
        // The grey rule under the title, with a white outline.
        const double right = pageWidth - m;
        printer.SetFillStyle(0);
        printer.FilledBox(m, top, right - m, bottom - top, Grey(128));
        printer.Line(m, top, right, top, kWhite);
        printer.Line(right, top, right, bottom, kWhite);
        printer.Line(right, bottom, m, bottom, kWhite);
        printer.Line(m, bottom, m, top, kWhite);
    }
    typesetter.PageNumberAtFoot = (code & 8) != 0;
    double size = 12.0;
    LayoutText(typesetter, text, size, printer);
    if (code == 0) return;
    PrintPageNumber(app, typesetter, printer, page, 1.0, kBlack, pageWidth, typesetter.PageHeight);
}
