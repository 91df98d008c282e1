#pragma once
#include <string>

#include "typesetter/drawing_surface.h"
#include "typesetter/typesetter_state.h"

// A surface without a device, for code that must know how wide a markup text will be
// without a window system (the generators choosing their columns). Each character is as
// wide as the widest of the four styles of its font on the Qt surface (a table measured
// from the fonts, typesetter/width_table.inc), so a width found here is never smaller than
// the one the page is drawn with. Nothing is drawn.
class WidthModelSurface : public DrawingSurface {
public:
    std::string FontName() const override { return name_; }
    void SetFontName(const std::string& name) override;
    double FontSize() const override { return size_; }
    void SetFontSize(double points) override;
    bool FontBold() const override { return bold_; }
    void SetFontBold(bool on) override { bold_ = on; }
    bool FontItalic() const override { return italic_; }
    void SetFontItalic(bool on) override { italic_ = on; }
    bool FontUnderline() const override { return underline_; }
    void SetFontUnderline(bool on) override { underline_ = on; }
    bool FontStrikethru() const override { return strike_; }
    void SetFontStrikethru(bool on) override { strike_ = on; }
    std::uint32_t ForeColor() const override { return color_; }
    void SetForeColor(std::uint32_t c) override { color_ = c; }
    double CurrentX() const override { return x_; }
    void SetCurrentX(double x) override { x_ = x; }
    double CurrentY() const override { return y_; }
    void SetCurrentY(double y) override { y_ = y; }
    double TextWidth(const std::string& text) override;
    double TextHeight(const std::string& text) override;
    void PrintText(const std::string& text) override { x_ += TextWidth(text); }
    void Line(double, double, double, double, std::optional<std::uint32_t>) override {}
    void FilledBox(double, double, double, double, std::optional<std::uint32_t>) override {}
    void Circle(double, double, double) override {}
    int DrawWidth() const override { return drawWidth_; }
    void SetDrawWidth(int pixels) override { drawWidth_ = pixels < 1 ? 1 : pixels; }
    int FillStyle() const override { return fillStyle_; }
    void SetFillStyle(int style) override { fillStyle_ = style; }
    bool PaintPicture(const std::string&, double, double, double, double) override { return true; }
    double Width() const override { return 796; }
    double Height() const override { return 1125; }
    double TwipsPerPixelX() const override { return 15; }
    double TwipsPerPixelY() const override { return 15; }
    double Ascent() override;

private:
    std::string name_ = "Times New Roman";
    int font_ = 0; // column of the table; -1 for a name the table doesn't know
    double size_ = 12;
    bool bold_ = false, italic_ = false, underline_ = false, strike_ = false;
    std::uint32_t color_ = 0;
    double x_ = 0, y_ = 0;
    int drawWidth_ = 1, fillStyle_ = 1;
};

// The width in twips of one line of markup at the given size (points, zoom 1), as the
// measure pass of the layout finds it on the width model: never smaller than on paper or
// on the screen picture at zoom 1. The state's tables are used and left in any state.
double ModelMarkupWidth(TypesetterState& state, const std::string& markup, double points = 12);
