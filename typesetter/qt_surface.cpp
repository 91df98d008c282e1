#include "typesetter/qt_surface.h"

#include "typesetter/typesetter_state.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QStandardPaths>
#include <QTextLayout>
#include <QPagedPaintDevice>
#include <QPen>
#include <cmath>
#include <sys/stat.h>

namespace {
// Dots per metre of a 1440 dpi device: font metrics measured on it are in twips.
constexpr int kTwipDotsPerMeter = 56693;

QString ToQString(const std::string& s) { return QString::fromUtf8(s.data(), static_cast<qsizetype>(s.size())); }
} // namespace

QStringList QtSurface::FamiliesFor(const std::string& fontName) {
    // The fonts that the markup names, and their metric twins on this system. The symbol
    // fonts' codes are printed as Unicode characters.
    if (fontName == "Times New Roman") return {"Liberation Serif", "DejaVu Serif"};
    if (fontName == "Arial") return {"Liberation Sans", "DejaVu Sans"};
    if (fontName == "Courier New") return {"Liberation Mono", "DejaVu Sans Mono"};
    // Greek letters and signs come from STIX, a Times-like serif of the text's weight that
    // has every one of them (the text face lacks the element sign, the union, the double
    // arrows...; a fallback of the system printed those from a heavier sans face).
    if (fontName == "Symbol" || fontName == "MT Extra")
        return {"STIX", "STIXGeneral", "Liberation Serif", "DejaVu Serif", "DejaVu Sans"};
    return {ToQString(fontName), "Liberation Serif", "DejaVu Sans"};
}

QColor QtSurface::ToQColor(std::uint32_t c) { return QColor(c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF); }

QtSurface::QtSurface(QImage& image) : reference_(1, 1, QImage::Format_ARGB32) {
    width_ = image.width();
    height_ = image.height();
    twipsPerPixelX_ = twipsPerPixelY_ = 15;
    screenPicture_ = true;
    Begin(image);
}

QtSurface::QtSurface(QPagedPaintDevice& device) : reference_(1, 1, QImage::Format_ARGB32) {
    twipsPerPixelX_ = 1440.0 / device.logicalDpiX();
    twipsPerPixelY_ = 1440.0 / device.logicalDpiY();
    width_ = device.width() * twipsPerPixelX_;
    height_ = device.height() * twipsPerPixelY_;
    paged_ = true;
    Begin(device);
}

QtSurface::QtSurface(QPaintDevice& device, int widthPixels, int heightPixels) : reference_(1, 1, QImage::Format_ARGB32) {
    width_ = widthPixels;
    height_ = heightPixels;
    twipsPerPixelX_ = twipsPerPixelY_ = 15;
    Begin(device);
    // Begin scales by the twips per pixel of the device's own resolution: here 15 whatever it is.
    deviceDpi_ = 96;
}

void QtSurface::Begin(QPaintDevice& device) {
    reference_.setDotsPerMeterX(kTwipDotsPerMeter);
    reference_.setDotsPerMeterY(kTwipDotsPerMeter);
    deviceDpi_ = device.logicalDpiY();
    device_ = &device;
    pictures_ = std::make_shared<PictureCache>();
    nameId_ = NameId(fontName_);
    painter_.begin(&device);
    painter_.setRenderHint(QPainter::Antialiasing, true);
    painter_.setRenderHint(QPainter::TextAntialiasing, true);
    painter_.setRenderHint(QPainter::SmoothPixmapTransform, true);
    painter_.scale(1.0 / twipsPerPixelX_, 1.0 / twipsPerPixelY_);
}

QtSurface::~QtSurface() { End(); }

void QtSurface::End() {
    if (!painter_.isActive()) return;
    Flush();
    painter_.end();
}

bool QtSurface::NewPage() {
    Flush();
    if (screenPicture_ || !paged_) return false;
    return static_cast<QPagedPaintDevice*>(device_)->newPage();
}

void QtSurface::UsePictures(const TypesetterState& state) {
    if (const auto* loader = state.LoadPicture.target<QtPictureLoader>()) pictures_ = loader->pictures;
}

QtSurface::FontEntry& QtSurface::Current() {
    if (current_) return *current_;
    const FontKey key{nameId_, fontSize_, (bold_ ? 1 : 0) | (italic_ ? 2 : 0) | (underline_ ? 4 : 0) | (strikethru_ ? 8 : 0)};
    auto found = fonts_.find(key);
    if (found == fonts_.end()) {
        QFont measure;
        measure.setFamilies(FamiliesFor(fontName_));
        measure.setPointSizeF(fontSize_ > 0.05 ? fontSize_ : 0.05);
        measure.setBold(bold_);
        measure.setItalic(italic_);
        measure.setUnderline(underline_);
        measure.setStrikeOut(strikethru_);
        measure.setHintingPreference(QFont::PreferNoHinting);
        measure.setKerning(false);
        QFontMetricsF metrics(measure, &reference_);
        QFont draw = measure;
        // The painter's unit is the twip: a font of size points must come out 20·size
        // units high on a device of deviceDpi_.
        draw.setPointSizeF(measure.pointSizeF() * 1440.0 / deviceDpi_);
        auto entry = std::unique_ptr<FontEntry>(
            new FontEntry{draw, metrics, metrics.ascent(), metrics.height(), {}, {}, {}, {}});
        found = fonts_.emplace(key, std::move(entry)).first;
    }
    current_ = found->second.get();
    return *current_;
}

int QtSurface::NameId(const std::string& name) {
    for (std::size_t i = 0; i < names_.size(); ++i)
        if (names_[i] == name) return static_cast<int>(i);
    names_.push_back(name);
    return static_cast<int>(names_.size() - 1);
}

void QtSurface::SetFontName(const std::string& name) {
    if (name == fontName_) return;
    current_ = nullptr;
    fontName_ = name;
    nameId_ = NameId(name);
}
void QtSurface::SetFontSize(double points) {
    if (!(points > 0) || !std::isfinite(points)) points = 0.05;
    if (points > 2000) points = 2000;
    if (points != fontSize_) current_ = nullptr;
    fontSize_ = points;
}
void QtSurface::SetFontBold(bool on) {
    if (on != bold_) current_ = nullptr;
    bold_ = on;
}
void QtSurface::SetFontItalic(bool on) {
    if (on != italic_) current_ = nullptr;
    italic_ = on;
}
void QtSurface::SetFontUnderline(bool on) {
    if (on != underline_) current_ = nullptr;
    underline_ = on;
}
void QtSurface::SetFontStrikethru(bool on) {
    if (on != strikethru_) current_ = nullptr;
    strikethru_ = on;
}

namespace {
// The one code point of a UTF-8 string, or 0 when it has more or none.
char32_t SingleCodePoint(const std::string& s) {
    if (s.empty()) return 0;
    const unsigned char b = static_cast<unsigned char>(s[0]);
    const std::size_t n = b < 0x80 ? 1 : (b >> 5) == 6 ? 2 : (b >> 4) == 14 ? 3 : (b >> 3) == 30 ? 4 : 0;
    if (n == 0 || s.size() != n) return 0;
    char32_t c = n == 1 ? b : n == 2 ? (b & 0x1F) : n == 3 ? (b & 0x0F) : (b & 0x07);
    for (std::size_t i = 1; i < n; ++i) c = (c << 6) | (static_cast<unsigned char>(s[i]) & 0x3F);
    return c;
}
} // namespace

double QtSurface::TextWidth(const std::string& text) {
    FontEntry& f = Current();
    const char32_t c = SingleCodePoint(text);
    if (c != 0) {
        auto it = f.widths.constFind(c);
        if (it != f.widths.constEnd()) return *it;
        const double w = f.metrics.horizontalAdvance(ToQString(text));
        f.widths.insert(c, w);
        return w;
    }
    return f.metrics.horizontalAdvance(ToQString(text));
}

double QtSurface::TextHeight(const std::string&) { return Current().height; }

double QtSurface::Ascent() { return Current().ascent / twipsPerPixelY_; }

QList<QtSurface::PlacedGlyph> QtSurface::LayOut(FontEntry& f, const QString& text) {
    // Laid out on the device with the drawing font: positions come out in twips, the
    // painter's unit, with the baseline at the font's ascent below the top.
    QTextLayout layout(text, f.drawFont, device_);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    if (line.isValid()) line.setPosition(QPointF(0, 0));
    layout.endLayout();
    // The measured ascent decides where the baseline lies, as in the measure pass.
    const double shift = f.ascent - (line.isValid() ? line.ascent() : f.ascent);
    QList<PlacedGlyph> placed;
    for (const QGlyphRun& run : layout.glyphRuns()) {
        int face = 0;
        while (face < f.faces.size() &&
               !(f.faces[face].rawFont() == run.rawFont() && f.faces[face].flags() == run.flags()))
            ++face;
        if (face == f.faces.size()) {
            QGlyphRun empty;
            empty.setRawFont(run.rawFont());
            empty.setFlags(run.flags());
            f.faces.append(empty);
        }
        const QList<quint32> indexes = run.glyphIndexes();
        const QList<QPointF> positions = run.positions();
        for (qsizetype i = 0; i < indexes.size() && i < positions.size(); ++i)
            placed.append({face, indexes[i], positions[i] + QPointF(0, shift)});
    }
    return placed;
}

void QtSurface::Queue(FontEntry& f, const QList<PlacedGlyph>& glyphs) {
    if (glyphs.isEmpty()) return;
    if (!pending_.empty() && pendingColor_ != foreColor_) Flush();
    pendingColor_ = foreColor_;
    for (const PlacedGlyph& g : glyphs) {
        PendingRun* run = nullptr;
        for (PendingRun& r : pending_)
            if (r.font == &f && r.face == g.face) {
                run = &r;
                break;
            }
        if (!run) run = &pending_.emplace_back(PendingRun{&f, g.face, {}, {}});
        run->indexes.append(g.index);
        run->positions.append(QPointF(x_, y_) + g.offset);
    }
    // The screen picture is looked at while it is being drawn (the window yields between
    // lines): there each text is drawn at once.
    if (screenPicture_) Flush();
}

void QtSurface::Flush() {
    if (pending_.empty()) return;
    if (penColor_ != pendingColor_) {
        painter_.setPen(ToQColor(pendingColor_));
        penColor_ = pendingColor_;
    }
    for (PendingRun& r : pending_) {
        QGlyphRun run = r.font->faces[r.face];
        run.setGlyphIndexes(r.indexes);
        run.setPositions(r.positions);
        painter_.drawGlyphRun(QPointF(0, 0), run);
    }
    pending_.clear();
}

void QtSurface::PrintText(const std::string& text) {
    FontEntry& f = Current();
    const char32_t c = SingleCodePoint(text);
    if (c != 0) {
        auto found = f.glyphs.constFind(c);
        if (found == f.glyphs.constEnd()) found = f.glyphs.insert(c, LayOut(f, ToQString(text)));
        Queue(f, *found);
    } else if (!text.empty()) {
        const QString key = ToQString(text);
        auto found = f.texts.constFind(key);
        if (found == f.texts.constEnd()) found = f.texts.insert(key, LayOut(f, key));
        Queue(f, *found);
    }
    const double width = TextWidth(text);
    if (underline_ || strikethru_) {
        Flush();
        const double thickness = std::max(f.metrics.lineWidth(), 1.0);
        const QColor color = ToQColor(foreColor_);
        if (underline_) painter_.fillRect(QRectF(x_, y_ + f.ascent + f.metrics.underlinePos(), width, thickness), color);
        if (strikethru_) painter_.fillRect(QRectF(x_, y_ + f.ascent - f.metrics.strikeOutPos(), width, thickness), color);
    }
    x_ += width;
}

void QtSurface::Line(double x1, double y1, double x2, double y2, std::optional<std::uint32_t> color) {
    Flush();
    QPen pen(ToQColor(color.value_or(foreColor_)));
    pen.setWidthF(drawWidth_ * twipsPerPixelX_);
    pen.setCapStyle(drawWidth_ > 1 ? Qt::RoundCap : Qt::SquareCap);
    painter_.setPen(pen);
    penColor_ = 0xFFFFFFFF;
    if (screenPicture_ && (x1 == x2 || y1 == y2)) {
        // A bar or a stem across pixel rows looks grey and blurred: put it on whole pixels.
        auto snap = [&](double v, double tpp) {
            const double px = v / tpp;
            return (drawWidth_ % 2 == 1 ? std::floor(px) + 0.5 : std::round(px)) * tpp;
        };
        if (y1 == y2) y1 = y2 = snap(y1, twipsPerPixelY_);
        else x1 = x2 = snap(x1, twipsPerPixelX_);
    }
    painter_.drawLine(QPointF(x1, y1), QPointF(x2, y2));
}

void QtSurface::FilledBox(double x, double y, double dx, double dy, std::optional<std::uint32_t> color) {
    Flush();
    QRectF box = QRectF(x, y, dx, dy).normalized();
    if (screenPicture_) {
        // Whole pixels: a box painted over part of another (the white box that ends the
        // problem number's box) must cover its soft edge too, or a pale line stays.
        const double left = std::round(box.left() / twipsPerPixelX_) * twipsPerPixelX_;
        const double top = std::round(box.top() / twipsPerPixelY_) * twipsPerPixelY_;
        double right = std::round(box.right() / twipsPerPixelX_) * twipsPerPixelX_;
        double bottom = std::round(box.bottom() / twipsPerPixelY_) * twipsPerPixelY_;
        // A thin box (a chart's axis) keeps one pixel.
        if (box.width() > 0 && right <= left) right = left + twipsPerPixelX_;
        if (box.height() > 0 && bottom <= top) bottom = top + twipsPerPixelY_;
        box = QRectF(QPointF(left, top), QPointF(right, bottom));
    }
    painter_.fillRect(box, ToQColor(color.value_or(foreColor_)));
}

void QtSurface::Circle(double cx, double cy, double radius) {
    Flush();
    QPen pen(ToQColor(foreColor_));
    pen.setWidthF(drawWidth_ * twipsPerPixelX_);
    painter_.setPen(pen);
    penColor_ = 0xFFFFFFFF;
    painter_.setBrush(fillStyle_ == 0 ? QBrush(ToQColor(foreColor_)) : QBrush(Qt::NoBrush));
    painter_.drawEllipse(QPointF(cx, cy), radius, radius);
    painter_.setBrush(Qt::NoBrush);
}

namespace {
// The cache's record of a file, read again when the file on disk changed.
PictureCache::Entry& PictureEntry(PictureCache& cache, const QString& path) {
    // One stat for size and time: every measuring pass of a page with a figure asks.
    struct stat info {};
    const bool there = ::stat(path.toLocal8Bit().constData(), &info) == 0;
    const qint64 bytes = there ? static_cast<qint64>(info.st_size) : -1;
    const qint64 modified = there ? static_cast<qint64>(info.st_mtim.tv_sec) * 1000000000 + info.st_mtim.tv_nsec : 0;
    auto it = cache.entries.find(path);
    if (it == cache.entries.end() || it->bytes != bytes || it->modified != modified) {
        PictureCache::Entry entry;
        entry.bytes = bytes;
        entry.modified = modified;
        if (bytes >= 0) {
            QImageReader reader(path);
            if (reader.canRead()) entry.size = reader.size();
            cache.headerReads += 1;
        } else {
            entry.decoded = true; // nothing there to decode
        }
        it = cache.entries.insert(path, entry);
    }
    return *it;
}

const QImage& Decoded(PictureCache& cache, PictureCache::Entry& entry, const QString& path) {
    if (!entry.decoded) {
        QImageReader reader(path);
        entry.picture = reader.read();
        entry.decoded = true;
        cache.decodes += 1;
    }
    return entry.picture;
}
} // namespace

bool CachedPictureSize(PictureCache& cache, const std::string& file, double& width, double& height) {
    const QString path = ToQString(file);
    PictureCache::Entry& entry = PictureEntry(cache, path);
    QSize size = entry.size;
    if (size.isEmpty()) size = Decoded(cache, entry, path).size();
    if (size.isEmpty()) return false;
    width = size.width();
    height = size.height();
    return true;
}

const QImage& CachedPicture(PictureCache& cache, const std::string& file) {
    const QString path = ToQString(file);
    return Decoded(cache, PictureEntry(cache, path), path);
}

bool QtSurface::PaintPicture(const std::string& pictureFile, double x, double y, double width, double height) {
    Flush();
    // Drawn from the one decoded copy: a PDF then holds each picture once.
    const QImage& picture = CachedPicture(*pictures_, pictureFile);
    if (picture.isNull()) return false;
    painter_.save();
    // A negative width or height mirrors the picture, as the rectangle runs backwards.
    painter_.translate(x, y);
    painter_.scale(width < 0 ? -1 : 1, height < 0 ? -1 : 1);
    painter_.drawImage(QRectF(0, 0, std::fabs(width), std::fabs(height)), picture);
    painter_.restore();
    return true;
}

bool QtPictureLoader::operator()(const std::string& file, double& width, double& height) const {
    return CachedPictureSize(*pictures, file, width, height);
}

PictureCache* StatePictures(const TypesetterState& state) {
    const auto* loader = state.LoadPicture.target<QtPictureLoader>();
    return loader ? loader->pictures.get() : nullptr;
}

bool ReadPictureSize(const std::string& file, double& width, double& height) {
    PictureCache once;
    return CachedPictureSize(once, file, width, height);
}

QStringList ProgramDataFolderCandidates(const QString& programFolder) {
    const QString p = programFolder;
    return {p, p + "/data", p + "/../share/sumforge", p + "/../data", p + "/../../data"};
}

QString ProgramDataFolder() {
    const QString program = QCoreApplication::instance() ? QCoreApplication::applicationDirPath() : QDir::currentPath();
    for (const QString& candidate : ProgramDataFolderCandidates(program))
        if (QDir(candidate + "/img").exists()) return QDir(candidate).absolutePath();
    return program;
}

std::string ProgramPictureFolder() {
    const QDir folder(ProgramDataFolder() + "/img");
    return folder.exists() ? folder.absolutePath().toStdString() : std::string();
}

void UseQtPictures(TypesetterState& state) {
    state.LoadPicture = QtPictureLoader{std::make_shared<PictureCache>()};
    state.PictureFolder = ProgramPictureFolder();
    const QString data = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    state.TempPictureFolder = data.isEmpty() ? std::string() : (data + "/temp").toStdString();
}
