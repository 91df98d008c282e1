#pragma once
#include <cstdint>
#include <optional>
#include <string>

// What the layout engine needs of a page it draws on: the screen picture, a printer or a
// PDF page. Coordinates are twips (1/1440 inch), doubles, y downwards. Text hangs from the
// top of its line box: PrintText puts the top of the line box at CurrentY.
// Colours are 0x00BBGGRR. Strings are UTF-8.
class DrawingSurface {
public:
    virtual ~DrawingSurface() = default;

    // Font state; reading gives back what the surface really took.
    virtual std::string FontName() const = 0;
    virtual void SetFontName(const std::string& name) = 0;
    virtual double FontSize() const = 0; // points
    virtual void SetFontSize(double points) = 0;
    virtual bool FontBold() const = 0;
    virtual void SetFontBold(bool on) = 0;
    virtual bool FontItalic() const = 0;
    virtual void SetFontItalic(bool on) = 0;
    virtual bool FontUnderline() const = 0;
    virtual void SetFontUnderline(bool on) = 0;
    virtual bool FontStrikethru() const = 0;
    virtual void SetFontStrikethru(bool on) = 0;

    // Text and default line colour.
    virtual std::uint32_t ForeColor() const = 0;
    virtual void SetForeColor(std::uint32_t color) = 0;

    // The pen.
    virtual double CurrentX() const = 0;
    virtual void SetCurrentX(double x) = 0;
    virtual double CurrentY() const = 0;
    virtual void SetCurrentY(double y) = 0;

    // Size of a string in the current font; TextHeight is the line height whatever the string.
    virtual double TextWidth(const std::string& text) = 0;
    virtual double TextHeight(const std::string& text) = 0;

    // Prints text with the top of its line box at CurrentY and its left at CurrentX; CurrentX
    // moves to the end of the text, CurrentY stays.
    virtual void PrintText(const std::string& text) = 0;

    // A straight line from a point to a point, in the given colour or ForeColor.
    virtual void Line(double x1, double y1, double x2, double y2, std::optional<std::uint32_t> color = std::nullopt) = 0;
    // A straight line from a point by an offset.
    void LineBy(double x, double y, double dx, double dy, std::optional<std::uint32_t> color = std::nullopt) {
        Line(x, y, x + dx, y + dy, color);
    }
    // A box filled in the given colour (ForeColor when absent), from a point by an offset.
    virtual void FilledBox(double x, double y, double dx, double dy, std::optional<std::uint32_t> color = std::nullopt) = 0;

    // A circle by centre and radius, in ForeColor.
    virtual void Circle(double cx, double cy, double radius) = 0;

    // Line width in pixels of the surface, at least 1.
    virtual int DrawWidth() const = 0;
    virtual void SetDrawWidth(int pixels) = 0;

    // 0 solid, 1 transparent.
    virtual int FillStyle() const = 0;
    virtual void SetFillStyle(int style) = 0;

    // Draws the picture file, scaled to the given rectangle. Returns false when the file
    // can't be read as a picture (nothing is drawn then).
    virtual bool PaintPicture(const std::string& pictureFile, double x, double y, double width, double height) = 0;

    // Size: pixels on the screen picture, twips on a printer.
    virtual double Width() const = 0;
    virtual double Height() const = 0;

    virtual double TwipsPerPixelX() const = 0;
    virtual double TwipsPerPixelY() const = 0;

    // The current font's ascent in pixels of the surface's device.
    virtual double Ascent() = 0;
};
