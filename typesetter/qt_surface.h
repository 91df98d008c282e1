#pragma once
#include <QColor>
#include <QDateTime>
#include <QFont>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QList>
#include <QHash>
#include <QImage>
#include <QPainter>
#include <QString>
#include <QStringList>
#include <QRawFont>
#include <QSize>
#include <map>
#include <memory>
#include <tuple>
#include <vector>

#include "typesetter/drawing_surface.h"

class QPagedPaintDevice;
struct TypesetterState;

// The pictures of one typesetter state. The size of a file comes from its header; the
// picture is decoded when it is first drawn and kept, one copy per file, so that a picture
// that a hundred problems show is read once and a PDF holds it once. A file that changes
// (another size or time on disk) is read again.
struct PictureCache {
    struct Entry {
        qint64 bytes = -1;
        qint64 modified = 0; // nanoseconds since the epoch
        QSize size;          // from the header; invalid when the header says nothing
        bool decoded = false; // picture holds the decoding, null when it failed
        QImage picture;
    };
    QHash<QString, Entry> entries;
    int headerReads = 0; // files opened for their size
    int decodes = 0;     // files decoded whole
};
// The picture loader that UseQtPictures gives a typesetter state: sizes and pictures come
// from its cache, which the state's surfaces share (QtSurface::UsePictures).
struct QtPictureLoader {
    std::shared_ptr<PictureCache> pictures;
    bool operator()(const std::string& file, double& width, double& height) const;
};
// The cache of a state's loader, null when the state has another loader.
PictureCache* StatePictures(const TypesetterState& state);
// The size of a picture file in pixels, by its header (decoding it only when the header
// doesn't say); false when it can't be read as a picture.
bool CachedPictureSize(PictureCache& cache, const std::string& file, double& width, double& height);
// The decoded picture, read once; null when the file can't be decoded.
const QImage& CachedPicture(PictureCache& cache, const std::string& file);

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
    // A drawing of one page on any other device (an SVG file): laid out as the screen
    // picture is, Width and Height in pixels of 15 twips, but strokes are not snapped to
    // pixels and text is drawn in runs, as on paper.
    QtSurface(QPaintDevice& device, int widthPixels, int heightPixels);
    ~QtSurface() override;

    QPainter& Painter() { return painter_; }
    // Ends the painter (before a QPdfWriter or QPrinter is destroyed).
    void End();
    // The next sheet of a printer or PDF. Text waits to be drawn in runs, so the next sheet
    // must be asked for here, not of the device; false on the screen picture.
    bool NewPage();
    // Draws pictures from the state's cache (UseQtPictures makes it), so that they are
    // decoded once for all the surfaces of that state. Without it the surface keeps its own.
    void UsePictures(const TypesetterState& state);

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
    // One glyph of a laid-out text: which of the font's faces, its index there, and its
    // place from the top left of the text, twips.
    struct PlacedGlyph {
        int face;
        quint32 index;
        QPointF offset;
    };
    struct FontEntry {
        QFont drawFont;
        QFontMetricsF metrics;
        double ascent; // twips
        double height; // twips
        QHash<char32_t, double> widths;
        // Faces that the glyphs come from (the font and its fallbacks), as empty runs that
        // carry the face and the run's flags.
        QList<QGlyphRun> faces;
        // Laid out once, drawn many times: by code point, and longer texts by their text.
        QHash<char32_t, QList<PlacedGlyph>> glyphs;
        QHash<QString, QList<PlacedGlyph>> texts;
    };
    // Glyphs printed but not yet drawn: consecutive text of one colour is drawn as one run
    // per face, and any other drawing first draws what waits, so the order stays.
    struct PendingRun {
        FontEntry* font;
        int face;
        QList<quint32> indexes;
        QList<QPointF> positions;
    };
    FontEntry& Current();
    void Begin(QPaintDevice& device);
    QList<PlacedGlyph> LayOut(FontEntry& f, const QString& text);
    void Queue(FontEntry& f, const QList<PlacedGlyph>& glyphs);
    void Flush();

    QPainter painter_;
    QPaintDevice* device_ = nullptr;
    std::uint32_t penColor_ = 0xFFFFFFFF; // the painter's pen for text, to set it only on a change
    bool screenPicture_ = false; // straight strokes are snapped to whole pixels there
    bool paged_ = false;         // a printer or PDF: it has a next sheet
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
    std::vector<PendingRun> pending_;
    std::uint32_t pendingColor_ = 0;
    std::shared_ptr<PictureCache> pictures_;
};

// Gives the typesetter its picture loader, with the cache its surfaces draw from, and its
// folders: "img" beside the program (or the data folder of a checkout), and the per-user
// "temp" folder.
void UseQtPictures(TypesetterState& state);
// The folders that may hold the program's own files (img/ with the figures, the subject
// pictures, the manual), best first: beside the program, the installed share/sumforge
// (the program in bin/), and the data folder of a build or a checkout.
QStringList ProgramDataFolderCandidates(const QString& programFolder);
// The first candidate that holds img/; the program's own folder when none does.
QString ProgramDataFolder();
// The folder of the figure pictures: img/ of ProgramDataFolder; empty when there is none.
std::string ProgramPictureFolder();
// The size of a picture file, by its header when it has one, without a cache; false when
// it isn't a picture this system can read.
bool ReadPictureSize(const std::string& file, double& width, double& height);
