#include "export/picture_export.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QSvgGenerator>
#include <algorithm>
#include <cmath>
#include <cstdio>

#include "core/composition.h"
#include "core/page_render.h"
#include "core/safe_write.h"
#include "typesetter/layout.h"
#include "typesetter/picture_files.h"
#include "typesetter/qt_surface.h"
#include "typesetter/text_util.h"

namespace {
// The sheet of the page view at zoom 1, in pixels of 96 dpi.
constexpr int kSheetWidth = 796;
constexpr int kSheetHeight = 1125;
// A problem is laid out on a sheet this many pages high, so that a long one fits whole.
constexpr int kProblemSheets = 4;
// Room around the ink of a cut-out problem, pixels at 96 dpi.
constexpr int kPad = 6;

// Pictures from the program's folder and the collection's temp folder, read once.
void UsePictureFolders(const ApplicationState& app, TypesetterState& state) {
    UseQtPictures(state);
    if (!app.ImageFolder.empty()) state.PictureFolder = app.ImageFolder;
    if (!app.TempFolder.empty()) state.TempPictureFolder = app.TempFolder;
}

bool ValidProblem(const ApplicationState& app, int problem) {
    return problem >= 1 && problem <= app.ProblemCount() && problem < static_cast<int>(app.Problems.size());
}

struct Drawn {
    double top = 0, bottom = 0; // twips, the marks around the problem
    bool fits = true;
};

// Lays text out on surface, a sheet of the page view at zoom; the marks give top and foot.
Drawn DrawSheet(const TypesetterState& pictures, const std::string& text, double zoom, QtSurface& surface,
                double sheetHeightTwips) {
    TypesetterState st;
    st.LoadPicture = pictures.LoadPicture;
    st.PictureFolder = pictures.PictureFolder;
    st.TempPictureFolder = pictures.TempPictureFolder;
    surface.UsePictures(st);
    st.ZoomScale = zoom;
    st.ScreenSurface = &surface;
    double size = 12 * zoom;
    LayoutText(st, text, size, surface);
    Drawn d;
    d.top = st.MarkCount >= 1 ? st.MarkTop[0] : 0;
    d.bottom = st.MarkCount >= 2 ? st.MarkTop[1] : sheetHeightTwips;
    d.fits = st.FlowResult >= 0;
    return d;
}

// The box of the ink between rows top and bottom of an image drawn on white (or nothing).
QRect InkBox(const QImage& image, int top, int bottom) {
    top = std::clamp(top, 0, image.height() - 1);
    bottom = std::clamp(bottom, top, image.height() - 1);
    int minX = image.width(), maxX = -1, minY = -1, maxY = -1;
    for (int y = top; y <= bottom; ++y) {
        const QRgb* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const QRgb c = row[x];
            const bool ink = qAlpha(c) > 0 && (qRed(c) < 250 || qGreen(c) < 250 || qBlue(c) < 250);
            if (!ink) continue;
            minX = std::min(minX, x);
            maxX = std::max(maxX, x);
            if (minY < 0) minY = y;
            maxY = y;
        }
    }
    if (maxX < 0) return QRect(0, top, image.width(), std::max(1, bottom - top));
    return QRect(QPoint(minX, minY), QPoint(maxX, maxY));
}

// Where a problem stands on a sheet at zoom 1: its ink with a little room around it.
struct ProblemPlace {
    QRect box; // pixels at 96 dpi
    bool ok = false;
};
ProblemPlace PlaceProblem(const ApplicationState& app, const TypesetterState& pictures, const std::string& text) {
    ProblemPlace place;
    QImage sheet(kSheetWidth, kSheetHeight * kProblemSheets, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    Drawn d;
    {
        QtSurface surface(sheet);
        d = DrawSheet(pictures, text, 1.0, surface, sheet.height() * 15.0);
    }
    const QRect ink = InkBox(sheet, static_cast<int>(std::floor(d.top / 15)), static_cast<int>(std::ceil(d.bottom / 15)));
    place.box = ink.adjusted(-kPad, -kPad, kPad, kPad).intersected(sheet.rect());
    place.ok = place.box.isValid();
    return place;
}
} // namespace

std::string ProblemPictureMarkup(const ApplicationState& app, int problem, bool withSolution) {
    if (!ValidProblem(app, problem)) return "";
    const ProblemRecord& r = app.Problems[problem];
    const long long number = static_cast<long long>(app.Settings.FirstProblemNumber) - 1 + problem;
    std::string text = "#MARK=001&+B" + NumberBox(app.Settings, number) + "&-B& " + r.Statement;
    if (withSolution && !r.Solution.empty()) {
        if (text.size() < 3 || text.compare(text.size() - 3, 3, "&LF") != 0) text += "&LF";
        text += "&+I" + SolutionWord(kBuildLanguage) + "&-I:& " + r.Solution;
    }
    return text + "&LF#MARK=002 ";
}

QImage ProblemPng(const ApplicationState& app, int problem, const ProblemPictureOptions& options) {
    const std::string text = ProblemPictureMarkup(app, problem, options.withSolution);
    if (text.empty()) return QImage();
    TypesetterState pictures;
    UsePictureFolders(app, pictures);
    const ProblemPlace place = PlaceProblem(app, pictures, text);
    if (!place.ok) return QImage();
    const double zoom = std::clamp(options.dpi, 24.0, 1200.0) / 96.0;
    const int width = static_cast<int>(std::ceil(kSheetWidth * zoom));
    // Below the problem the sheet keeps its bottom margin free, or its last line wouldn't fit.
    const double margin = 16.0 / 25.4 * 96.0;
    const int height = static_cast<int>(std::ceil((place.box.bottom() + 2 * kPad + margin + 24) * zoom));
    QImage sheet(width, height, QImage::Format_ARGB32_Premultiplied);
    sheet.fill(options.transparent ? Qt::transparent : Qt::white);
    {
        QtSurface surface(sheet);
        DrawSheet(pictures, text, zoom, surface, height * 15.0);
    }
    const QRect cut(static_cast<int>(std::floor(place.box.left() * zoom)), static_cast<int>(std::floor(place.box.top() * zoom)),
                    static_cast<int>(std::ceil(place.box.width() * zoom)), static_cast<int>(std::ceil(place.box.height() * zoom)));
    QImage picture = sheet.copy(cut.intersected(sheet.rect()));
    // Pasted into a document, the picture prints at the size it has on paper.
    const int dotsPerMetre = static_cast<int>(std::lround(options.dpi / 0.0254));
    picture.setDotsPerMeterX(dotsPerMetre);
    picture.setDotsPerMeterY(dotsPerMetre);
    return picture;
}

QByteArray ProblemSvg(const ApplicationState& app, int problem, const ProblemPictureOptions& options) {
    const std::string text = ProblemPictureMarkup(app, problem, options.withSolution);
    if (text.empty()) return QByteArray();
    TypesetterState pictures;
    UsePictureFolders(app, pictures);
    const ProblemPlace place = PlaceProblem(app, pictures, text);
    if (!place.ok) return QByteArray();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    {
        QSvgGenerator svg;
        svg.setOutputDevice(&buffer);
        svg.setResolution(96);
        svg.setSize(place.box.size());
        svg.setViewBox(place.box);
        const ProblemRecord& r = app.Problems[problem];
        svg.setTitle(QString::fromStdString(TrimBlanks(ToU32(app.Settings.Title)).empty()
                                                ? "Problem " + std::to_string(app.Settings.FirstProblemNumber - 1 + problem)
                                                : ToUtf8(TrimBlanks(ToU32(app.Settings.Title)))));
        std::string plain = MarkupPlainText(r.Statement);
        if (options.withSolution && !r.Solution.empty()) plain += "\n" + SolutionWord(kBuildLanguage) + ": " + MarkupPlainText(r.Solution);
        svg.setDescription(QString::fromStdString(plain));
        QtSurface surface(svg, kSheetWidth, kSheetHeight * kProblemSheets);
        DrawSheet(pictures, text, 1.0, surface, kSheetHeight * kProblemSheets * 15.0);
        surface.End();
    }
    return bytes;
}

namespace {
// Draws one page as the page view does, without touching the window, the shown page or the
// marks that the page view selects with.
template <typename Draw>
void WithPage(ApplicationState& app, int page, double zoom, Draw draw) {
    QuietWindow quiet;
    WindowPort* window = app.window;
    const int keptPage = app.CurrentPage;
    const double keptZoom = app.ZoomScale;
    const PageMarks keptMarks = app.Marks;
    app.window = &quiet;
    app.CurrentPage = page;
    app.ZoomScale = zoom;
    TypesetterState pictures;
    UsePictureFolders(app, pictures);
    draw(pictures);
    app.window = window;
    app.CurrentPage = keptPage;
    app.ZoomScale = keptZoom;
    app.Marks = keptMarks;
}
} // namespace

QImage PagePng(ApplicationState& app, int page, double dpi, bool transparent) {
    if (page < 1 || page > app.PageCount || app.ProblemCount() == 0) return QImage();
    const double zoom = std::clamp(dpi, 24.0, 600.0) / 96.0;
    QImage image(static_cast<int>(std::ceil(kSheetWidth * zoom)), static_cast<int>(std::ceil(kSheetHeight * zoom)),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(transparent ? Qt::transparent : Qt::white);
    WithPage(app, page, zoom, [&](TypesetterState& pictures) {
        QtSurface surface(image);
        surface.UsePictures(pictures);
        DrawCurrentPage(app, pictures, surface);
    });
    const int dotsPerMetre = static_cast<int>(std::lround(dpi / 0.0254));
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    return image;
}

QByteArray PageSvg(ApplicationState& app, int page) {
    if (page < 1 || page > app.PageCount || app.ProblemCount() == 0) return QByteArray();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    WithPage(app, page, 1.0, [&](TypesetterState& pictures) {
        QSvgGenerator svg;
        svg.setOutputDevice(&buffer);
        svg.setResolution(96);
        svg.setSize(QSize(kSheetWidth, kSheetHeight));
        svg.setViewBox(QRect(0, 0, kSheetWidth, kSheetHeight));
        svg.setTitle(QString::fromStdString(app.Settings.Title));
        std::string plain;
        for (int b = 1; b <= app.BlockCount; ++b)
            if (app.Blocks[b].page == page) plain += MarkupPlainText(app.Blocks[b].text) + "\n";
        svg.setDescription(QString::fromStdString(plain));
        QtSurface surface(svg, kSheetWidth, kSheetHeight);
        surface.UsePictures(pictures);
        DrawCurrentPage(app, pictures, surface);
        surface.End();
    });
    return bytes;
}

std::string MarkupPlainText(const std::string& markup) {
    const TypesetterState symbols;
    const std::u32string text = ToU32(markup);
    std::u32string out;
    std::size_t p = 0;
    auto at = [&](const char32_t* s) { return text.compare(p, std::char_traits<char32_t>::length(s), s) == 0; };
    while (p < text.size()) {
        const char32_t c = text[p];
        if (c == U'&') {
            if (at(U"&LF")) {
                out += U'\n';
                p += 3;
                continue;
            }
            if (at(U"&&")) {
                out += U'&';
                p += 2;
                continue;
            }
            if (at(U"& ") || at(U"&|")) {
                out += U' ';
                p += 2;
                continue;
            }
            bool value = false;
            for (const char32_t* code : {U"&FS", U"&FN", U"&FC", U"&BC", U"&LC", U"&FF", U"&SP", U"&LSAN"})
                if (at(code)) value = true;
            if (value) {
                const std::size_t colon = text.find(U':', p);
                if (text.compare(p, 3, U"&SP") == 0) out += U' ';
                p = colon == std::u32string::npos ? text.size() : colon + 1;
                continue;
            }
            int entity = 0;
            for (int i = 1; i <= kSymbolCount && entity == 0; ++i)
                if (text.compare(p, symbols.SymbolName[i].size(), symbols.SymbolName[i]) == 0) entity = i;
            if (entity != 0) {
                out += ToU32(symbols.SymbolGlyph[entity]);
                p += symbols.SymbolName[entity].size();
                continue;
            }
            p += (p + 2 < text.size() && std::u32string(U"+-").find(text[p + 1]) != std::u32string::npos) ? 3 : 1;
            continue;
        }
        if (c == U'#') {
            if (at(U"##")) {
                out += U'#';
                p += 2;
                continue;
            }
            if (at(U"#MARK=")) {
                p += 9;
                while (p < text.size() && text[p] >= U'0' && text[p] <= U'9') ++p;
                continue;
            }
            if (at(U"#N)(")) {
                out += U'/';
                p += 4;
                continue;
            }
            // Tags and the parts between pieces: "#XXX(" "#XXX)" "#PB)(" "#RI(" and so on.
            std::size_t q = p + 1;
            while (q < text.size() && q < p + 5 && text[q] != U'(' && text[q] != U')' && text[q] != U'#') ++q;
            if (q < text.size() && (text[q] == U'(' || text[q] == U')')) {
                if (q + 1 < text.size() && text[q] == U')' && text[q + 1] == U'(') ++q;
                out += U' ';
                p = q + 1;
                continue;
            }
            p += 1;
            continue;
        }
        if ((c == U'_' || c == U'^') && p + 1 < text.size()) {
            out += text[p + 1];
            p += 2;
            continue;
        }
        out += c;
        ++p;
    }
    // Spaces in a row become one.
    std::u32string clean;
    for (char32_t ch : out)
        if (!(ch == U' ' && !clean.empty() && clean.back() == U' ')) clean += ch;
    return ToUtf8(clean);
}

namespace {
bool SaveBytes(const std::string& path, const QByteArray& bytes, std::string& error) {
    const SafeWriteResult r = WriteFileSafely(path, bytes.toStdString());
    if (r.ok()) return true;
    error = "cannot write '" + path + "': " + (r.writeProtected ? std::string("Write-protected") : r.reason);
    return false;
}

QByteArray PngBytes(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

std::string Numbered(const char* stem, int n, const char* extension) {
    char name[48];
    std::snprintf(name, sizeof name, "%s-%03d.%s", stem, n, extension);
    return name;
}

// The file of a picture named by the markup, in the program's folder or the temp folder.
std::string FindPicture(const TypesetterState& folders, const std::string& name) {
    for (const std::string* folder : {&folders.PictureFolder, &folders.TempPictureFolder}) {
        if (folder->empty()) continue;
        const std::string file = FindFileIgnoringCase(*folder, name);
        if (!file.empty()) return file;
    }
    return "";
}
} // namespace

bool WritePictures(ApplicationState& app, const std::string& folder, const PictureExportOptions& options, int& count,
                   std::string& error) {
    count = 0;
    if (!QDir().mkpath(QString::fromStdString(folder)) || !QFileInfo(QString::fromStdString(folder)).isDir()) {
        error = "cannot make the folder '" + folder + "'";
        return false;
    }
    const QDir dir(QString::fromStdString(folder));
    auto path = [&](const std::string& name) { return dir.filePath(QString::fromStdString(name)).toStdString(); };
    const int last = options.perPage ? app.PageCount : app.ProblemCount();
    const char* stem = options.perPage ? "page" : "problem";
    ProblemPictureOptions one;
    one.withSolution = options.withSolution;
    one.transparent = options.transparent;
    one.dpi = options.dpi;
    for (int i = 1; i <= last; ++i) {
        if (options.svg) {
            const QByteArray svg = options.perPage ? PageSvg(app, i) : ProblemSvg(app, i, one);
            if (!svg.isEmpty()) {
                if (!SaveBytes(path(Numbered(stem, i, "svg")), svg, error)) return false;
                ++count;
            }
        }
        if (options.png) {
            const QImage png = options.perPage ? PagePng(app, i, options.dpi, options.transparent) : ProblemPng(app, i, one);
            if (!png.isNull()) {
                if (!SaveBytes(path(Numbered(stem, i, "png")), PngBytes(png), error)) return false;
                ++count;
            }
        }
    }
    return true;
}

bool WriteLatex(const ApplicationState& app, const std::string& texPath, std::string& error,
                std::vector<std::string>* leftOut) {
    const SafeWriteResult check = CheckWriteTarget(texPath);
    if (!check.ok()) {
        error = "cannot write '" + texPath + "': " + (check.writeProtected ? std::string("Write-protected") : check.reason);
        return false;
    }
    TypesetterState state;
    UsePictureFolders(app, state);
    LatexContext context;
    context.symbols = &state;
    context.pictureSize = [&state](const std::string& name, double& w, double& h) {
        const std::string file = FindPicture(state, name);
        if (file.empty()) return false;
        const QSize size = QImageReader(QString::fromStdString(file)).size();
        if (!size.isValid()) return false;
        w = size.width();
        h = size.height();
        return true;
    };
    const std::string document = CollectionToLatex(app, context);
    const QDir dir = QFileInfo(QString::fromStdString(texPath)).absoluteDir();
    // The pictures first: a document is never left behind without the pictures it names.
    for (const LatexPicture& p : context.pictures) {
        QImage image(QString::fromStdString(FindPicture(state, p.name)));
        if (image.isNull()) {
            // A picture whose header read but whose body doesn't: a blank of its size.
            image = QImage(QImageReader(QString::fromStdString(FindPicture(state, p.name))).size().expandedTo(QSize(1, 1)),
                           QImage::Format_ARGB32);
            image.fill(Qt::transparent);
        }
        // Pictures hung from the line above are stored upside down.
        if (p.mirrored) image = image.mirrored(false, true);
        if (!SaveBytes(dir.filePath(QString::fromStdString(p.file)).toStdString(), PngBytes(image), error)) return false;
    }
    if (leftOut) *leftOut = context.leftOut;
    return SaveBytes(texPath, QByteArray::fromStdString(document), error);
}
