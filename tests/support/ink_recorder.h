#pragma once
#include <string>
#include <vector>

#include "typesetter/drawing_surface.h"
#include "typesetter/typesetter_state.h"

// A surface that passes everything on to a real one and notes the ink box of each text
// run, rule, filled box and picture, with the group of the page it belongs to (a line, or
// a column of a row: TypesetterState::InkGroup). What is drawn outside a layout (the
// title rule, the page number) gets a group of its own. White is no ink; a picture hung
// from the line above keeps its top line clear, so that line is no ink either.
class InkRecorder : public DrawingSurface {
public:
    struct Ink {
        double x0, y0, x1, y1;
        int group;
        char kind; // 'T' text, 'L' rule, 'F' filled box, 'P' picture
        std::string what;
    };

    InkRecorder(DrawingSurface& inner, const TypesetterState& state, double zoom)
        : inner_(inner), state_(state), zoom_(zoom) {}

    std::vector<Ink> inks;

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
    void PrintText(const std::string& text) override;
    void Line(double x1, double y1, double x2, double y2, std::optional<std::uint32_t> color) override;
    void FilledBox(double x, double y, double dx, double dy, std::optional<std::uint32_t> color) override;
    void Circle(double cx, double cy, double r) override;
    int DrawWidth() const override { return inner_.DrawWidth(); }
    void SetDrawWidth(int pixels) override { inner_.SetDrawWidth(pixels); }
    int FillStyle() const override { return inner_.FillStyle(); }
    void SetFillStyle(int style) override { inner_.SetFillStyle(style); }
    bool PaintPicture(const std::string& file, double x, double y, double w, double h) override;
    double Width() const override { return inner_.Width(); }
    double Height() const override { return inner_.Height(); }
    double TwipsPerPixelX() const override { return inner_.TwipsPerPixelX(); }
    double TwipsPerPixelY() const override { return inner_.TwipsPerPixelY(); }
    double Ascent() override { return inner_.Ascent(); }

private:
    int Group() { return state_.DrawPass ? state_.InkGroup : --loose_; }
    double StrokeTwips() const;
    void Add(Ink ink);

    DrawingSurface& inner_;
    const TypesetterState& state_;
    double zoom_;
    int loose_ = 0;
};

// Two inks of different groups of the layout whose boxes overlap by more than the tolerance
// in both directions, or any ink outside the rectangle of the margins: one line each, empty
// when the page is clean.
std::vector<std::string> OverprintFaults(const std::vector<InkRecorder::Ink>& inks, double left, double top,
                                         double right, double bottom, double tolerance);

// The page number at the foot (the last ink of a page, drawn outside the layout) stands at
// least gap below every other ink of the page: one line each that comes nearer.
std::vector<std::string> FooterFaults(const std::vector<InkRecorder::Ink>& inks, double gap);
