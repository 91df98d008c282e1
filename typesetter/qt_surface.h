#pragma once
#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QList>
#include <QHash>
#include <QImage>
#include <QPainter>
#include <QString>
#include <QStringList>
#include <map>
#include <memory>
#include <tuple>
#include <vector>

#include "typesetter/drawing_surface.h"

class QPagedPaintDevice;

// The one drawing surface of the program, over a QPainter on a QImage (the screen picture,
// 15 twips per pixel), a QPrinter or a QPdfWriter. The painter works in twips. Text is
// measured with unhinted design metrics at a fixed resolution, so that a text breaks at
// the same places on the screen picture, on paper and in a PDF.
class QtSurface : public DrawingSurface {
public:
    // The screen picture: Width and Height in pixels, TwipsPerPixel 15 (96 dpi).
    explicit QtSurface(QImage& image);
    // A printer or PDF page: Width and Height in twips, TwipsPerPixel from the resolution.
    explicit QtSurface(QPagedPaintDevice& device);
    ~QtSurface() override;

    QPainter& Painter() { return painter_; }
    // Ends the painter (before a QPdfWriter or QPrinter is destroyed).
    void End();

    std::string FontName() const override { return fontName_; }
    void SetFontName(const std::string& name) override;
    double FontSize() const override { return fontSize_; }
    void SetFontSize(double points) override;
    bool FontBold() const override { return bold_; }
    void SetFontBold(bool on) override;
    bool FontItalic() const override { return italic_; }
    void SetFontItalic(bool on) override;
    bool FontUnderline() const override { return underline_; }
    void SetFontUnderline(bool on) override;
    bool FontStrikethru() const override { return strikethru_; }
    void SetFontStrikethru(bool on) override;

    std::uint32_t ForeColor() const override { return foreColor_; }
    void SetForeColor(std::uint32_t color) override { foreColor_ = color; }

    double CurrentX() const override { return x_; }
    void SetCurrentX(double x) override { x_ = x; }
    double CurrentY() const override { return y_; }
    void SetCurrentY(double y) override { y_ = y; }

    double TextWidth(const std::string& text) override;
    double TextHeight(const std::string& text) override;
    void PrintText(const std::string& text) override;

    void Line(double x1, double y1, double x2, double y2, std::optional<std::uint32_t> color = std::nullopt) override;
    void FilledBox(double x, double y, double dx, double dy, std::optional<std::uint32_t> color = std::nullopt) override;
    void Circle(double cx, double cy, double radius) override;

    int DrawWidth() const override { return drawWidth_; }
    void SetDrawWidth(int pixels) override { drawWidth_ = pixels < 1 ? 1 : pixels; }
    int FillStyle() const override { return fillStyle_; }
    void SetFillStyle(int style) override { fillStyle_ = style; }

    bool PaintPicture(const std::string& pictureFile, double x, double y, double width, double height) override;

    double Width() const override { return width_; }
    double Height() const override { return height_; }
    double TwipsPerPixelX() const override { return twipsPerPixelX_; }
    double TwipsPerPixelY() const override { return twipsPerPixelY_; }
    double Ascent() override;

    // The font family that stands for one of the markup's font names.
    static QStringList FamiliesFor(const std::string& fontName);
    static QColor ToQColor(std::uint32_t color);

private:
    struct FontEntry {
        QFont drawFont;
        QFontMetricsF metrics;
        double ascent; // twips
        double height; // twips
        QHash<char32_t, double> widths;
        QHash<QString, QList<QGlyphRun>> runs; // laid out once, drawn many times
    };
    FontEntry& Current();
    void Begin(QPaintDevice& device);

    QPainter painter_;
    QPaintDevice* device_ = nullptr;
    std::uint32_t penColor_ = 0xFFFFFFFF; // the painter's pen for text, to set it only on a change
    bool screenPicture_ = false; // straight strokes are snapped to whole pixels there
    QImage reference_; // 1440 dpi: metrics come out in twips
    double deviceDpi_ = 96;
    double width_ = 0, height_ = 0;
    double twipsPerPixelX_ = 15, twipsPerPixelY_ = 15;

    std::string fontName_ = "Times New Roman";
    double fontSize_ = 12;
    bool bold_ = false, italic_ = false, underline_ = false, strikethru_ = false;
    std::uint32_t foreColor_ = 0;
    double x_ = 0, y_ = 0;
    int drawWidth_ = 1;
    int fillStyle_ = 1;

    int NameId(const std::string& name);
    std::vector<std::string> names_;
    int nameId_ = 0;
    using FontKey = std::tuple<int, double, int>;
    std::map<FontKey, std::unique_ptr<FontEntry>> fonts_;
    FontEntry* current_ = nullptr;
};

struct TypesetterState;
// Gives the typesetter its picture loader and folders: "img" beside the program (or the
// data folder of a checkout), and the per-user "temp" folder.
void UseQtPictures(TypesetterState& state);
// The folders that may hold the program's own files (img/ with the figures, the subject
// pictures, the manual), best first: beside the program, the installed share/sumforge
// (the program in bin/), and the data folder of a build or a checkout.
QStringList ProgramDataFolderCandidates(const QString& programFolder);
// The first candidate that holds img/; the program's own folder when none does.
QString ProgramDataFolder();
// The folder of the figure pictures: img/ of ProgramDataFolder; empty when there is none.
std::string ProgramPictureFolder();
// Reads a picture file whole; false when it isn't a picture this system can decode.
bool ReadPictureSize(const std::string& file, double& width, double& height);
