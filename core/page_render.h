#pragma once
#include <string>

#include "core/application_state.h"
#include "typesetter/drawing_surface.h"
#include "typesetter/typesetter_state.h"

// The hidden screen picture as pagination uses it: every measure and the pen are those of
// the surface below, but text, lines, boxes and pictures are not painted, since nobody sees
// them. Whether a picture could be drawn changes nothing of the page's measure: only what
// is painted in its place, and here nothing is.
class MeasuringSurface : public DrawingSurface {
public:
    explicit MeasuringSurface(DrawingSurface& inner) : inner_(inner) {}
    std::string FontName() const override { return inner_.FontName(); }
    void SetFontName(const std::string& name) override { inner_.SetFontName(name); }
    double FontSize() const override { return inner_.FontSize(); }
    void SetFontSize(double points) override { inner_.SetFontSize(points); }
    bool FontBold() const override { return inner_.FontBold(); }
    void SetFontBold(bool on) override { inner_.SetFontBold(on); }
    bool FontItalic() const override { return inner_.FontItalic(); }
    void SetFontItalic(bool on) override { inner_.SetFontItalic(on); }
    bool FontUnderline() const override { return inner_.FontUnderline(); }
    void SetFontUnderline(bool on) override { inner_.SetFontUnderline(on); }
    bool FontStrikethru() const override { return inner_.FontStrikethru(); }
    void SetFontStrikethru(bool on) override { inner_.SetFontStrikethru(on); }
    std::uint32_t ForeColor() const override { return inner_.ForeColor(); }
    void SetForeColor(std::uint32_t color) override { inner_.SetForeColor(color); }
    double CurrentX() const override { return inner_.CurrentX(); }
    void SetCurrentX(double x) override { inner_.SetCurrentX(x); }
    double CurrentY() const override { return inner_.CurrentY(); }
    void SetCurrentY(double y) override { inner_.SetCurrentY(y); }
    double TextWidth(const std::string& text) override { return inner_.TextWidth(text); }
    double TextHeight(const std::string& text) override { return inner_.TextHeight(text); }
    void PrintText(const std::string& text) override { inner_.SetCurrentX(inner_.CurrentX() + inner_.TextWidth(text)); }
    void Line(double, double, double, double, std::optional<std::uint32_t>) override {}
    void FilledBox(double, double, double, double, std::optional<std::uint32_t>) override {}
    void Circle(double, double, double) override {}
    int DrawWidth() const override { return inner_.DrawWidth(); }
    void SetDrawWidth(int pixels) override { inner_.SetDrawWidth(pixels); }
    int FillStyle() const override { return inner_.FillStyle(); }
    void SetFillStyle(int style) override { inner_.SetFillStyle(style); }
    bool PaintPicture(const std::string&, double, double, double, double) override { return true; }
    double Width() const override { return inner_.Width(); }
    double Height() const override { return inner_.Height(); }
    double TwipsPerPixelX() const override { return inner_.TwipsPerPixelX(); }
    double TwipsPerPixelY() const override { return inner_.TwipsPerPixelY(); }
    double Ascent() override { return inner_.Ascent(); }

private:
    DrawingSurface& inner_;
};

// Pagination on the typesetter: each page is laid out on the hidden screen picture.
class TypesetterMeasure : public PageMeasurePort {
public:
    TypesetterMeasure(TypesetterState& typesetter, DrawingSurface& screen) : typesetter_(typesetter), screen_(screen) {}
    std::int32_t MeasurePage(const std::string& text, double zoomScale, bool pageNumberAtFoot) override;
    void StartPagination() override { typesetter_.FoundPictures.clear(); }

private:
    TypesetterState& typesetter_;
    MeasuringSurface screen_;
};

// Draws CurrentPage on the screen picture (cleared by the caller) and takes its marks.
void DrawCurrentPage(ApplicationState& app, TypesetterState& typesetter, DrawingSurface& screen);

// Lays page out on the printer (or a PDF page) at size 12 with its title, grey rule and
// page number. The caller starts the next sheet.
void PrintOnePage(ApplicationState& app, TypesetterState& typesetter, DrawingSurface& printer, int page);

// Where the page number stands, by the page position code and the margins of the last layout.
struct PageNumberPlace {
    double x = 0;
    double y = 0;
};
PageNumberPlace PlacePageNumber(int positionCode, long long number, double pageWidth, double pageHeight,
                                double textWidth, double textHeight, double marginLeft, double marginRight,
                                double marginTop, double marginBottom);
