#pragma once
#include <map>
#include <string>
#include <vector>

#include "typesetter/drawing_surface.h"

// A surface that records what is drawn and measures text by fixed rules, so that the
// engine's arithmetic can be checked by hand: every character is 0.5 em wide (1 em for
// characters outside ASCII), the line height is 1.15 em and the ascent 0.9 em, with em the
// size in twips (20 per point). Bold adds 10 %, italic nothing.
class RecordingSurface : public DrawingSurface {
public:
    struct Text {
        std::string text;
        double x, y;
        std::string font;
        double size;
        bool bold, italic;
        std::uint32_t color;
    };
    struct Stroke {
        double x1, y1, x2, y2;
        std::uint32_t color;
        int width;
        bool filled;
    };
    std::vector<Text> texts;
    std::vector<Stroke> strokes;
    double width = 794, height = 1123, tpp = 15;

    std::string FontName() const override { return name_; }
    void SetFontName(const std::string& n) override { name_ = n; fontNames.push_back(n); }
    double FontSize() const override { return size_; }
    void SetFontSize(double p) override { size_ = p; }
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
    static std::size_t Characters(const std::string& s, std::size_t* wide = nullptr) {
        std::size_t n = 0, w = 0;
        for (unsigned char c : s) {
            if ((c & 0xC0) != 0x80) ++n;
            if (c >= 0xC0) ++w;
        }
        if (wide) *wide = w;
        return n;
    }
    double Em() const { return size_ * 20; }
    double TextWidth(const std::string& s) override {
        std::size_t wide = 0;
        const std::size_t n = Characters(s, &wide);
        return ((n - wide) * 0.5 + wide * 1.0) * Em() * (bold_ ? 1.1 : 1.0);
    }
    double TextHeight(const std::string&) override { return 1.15 * Em(); }
    void PrintText(const std::string& s) override {
        texts.push_back({s, x_, y_, name_, size_, bold_, italic_, color_});
        x_ += TextWidth(s);
    }
    void Line(double x1, double y1, double x2, double y2, std::optional<std::uint32_t> c) override {
        strokes.push_back({x1, y1, x2, y2, c.value_or(color_), drawWidth_, false});
    }
    void FilledBox(double x, double y, double dx, double dy, std::optional<std::uint32_t> c) override {
        strokes.push_back({x, y, x + dx, y + dy, c.value_or(color_), drawWidth_, true});
    }
    struct Round {
        double cx, cy, r;
    };
    std::vector<Round> circles;
    void Circle(double cx, double cy, double r) override { circles.push_back({cx, cy, r}); }
    int DrawWidth() const override { return drawWidth_; }
    void SetDrawWidth(int w) override { drawWidth_ = w < 1 ? 1 : w; }
    int FillStyle() const override { return fill_; }
    void SetFillStyle(int f) override { fill_ = f; }
    struct Picture {
        std::string file;
        double x, y, w, h;
    };
    std::vector<Picture> pictures;
    bool picturesDraw = true; // false: every picture fails to decode when drawn
    bool PaintPicture(const std::string& f, double x, double y, double w, double h) override {
        if (!picturesDraw) return false;
        pictures.push_back({f, x, y, w, h});
        return true;
    }
    double Width() const override { return width; }
    double Height() const override { return height; }
    double TwipsPerPixelX() const override { return tpp; }
    double TwipsPerPixelY() const override { return tpp; }
    double Ascent() override { return 0.9 * Em() / tpp; }

    // All printed text joined.
    std::string Joined() const {
        std::string s;
        for (const auto& t : texts) s += t.text;
        return s;
    }
    std::vector<std::string> fontNames;

private:
    std::string name_ = "Times New Roman";
    double size_ = 12;
    bool bold_ = false, italic_ = false, underline_ = false, strike_ = false;
    std::uint32_t color_ = 0;
    double x_ = 0, y_ = 0;
    int drawWidth_ = 1, fill_ = 1;
};
