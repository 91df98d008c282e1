// Builds the user's manual from its Markdown sources into an HTML folder and a PDF file with
// Qt's own rich-text engine (no TeX), and checks the HTML for broken links and missing
// pictures.
//
//   make_manual build OUTDIR PDFNAME CATALOGUE.txt PICTUREDIR... -- SOURCE.md...
//   make_manual check OUTDIR PDFNAME
//
// build: joins the sources in order, puts the table of subjects made from the catalogue
// listing in place of the line "<!-- catalogue -->", copies every picture named by the text
// from the first picture folder that has it to OUTDIR/html, and writes OUTDIR/html/index.html
// and OUTDIR/PDFNAME. A picture that no folder has is an error.
// check: every link and picture of OUTDIR/html/index.html must lead somewhere: a file that
// exists, or an anchor of the page; the PDF must be there and hold pages.
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QMap>
#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QSet>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>
#include <QTextStream>
#include <QUrl>
#include <algorithm>
#include <cstdio>

namespace {

// The largest a picture is shown: in pixels of the HTML page, and in points of the PDF, whose
// text is 170 by 257 mm (482 by 728 points) on A4.
constexpr double kHtmlPictureWidth = 640;
constexpr double kHtmlPictureHeight = 720;
constexpr double kPdfPictureWidth = 470;
constexpr double kPdfPictureHeight = 600;

void Fail(const QString& message) { std::fprintf(stderr, "make_manual: %s\n", qPrintable(message)); }

bool ReadText(const QString& path, QString& text) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return false;
    text = QString::fromUtf8(file.readAll());
    return true;
}

bool WriteText(const QString& path, const QString& text) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) return false;
    return file.write(text.toUtf8()) >= 0;
}

// The anchor a heading gets: lower case, blanks to dashes, other signs dropped.
QString Slug(const QString& heading) {
    QString slug;
    for (const QChar c : heading.toLower()) {
        if (c.isLetterOrNumber()) slug += c;
        else if (c == ' ' || c == '-') slug += '-';
    }
    return slug;
}

// One topic of the catalogue: its name and the kinds of exercise under it.
struct CatalogueTopic {
    QString name;
    QStringList kinds;
};

// The listing of `sumforge-cli catalogue`: a line "ID NAME" for each topic, and below it an
// indented line "MODULE ROUTINE  subtopic S  kind K  max M  TITLE" for each generator.
QList<CatalogueTopic> ReadCatalogueListing(const QString& listing) {
    static const QRegularExpression topicLine(R"(^(\d+) (.+)$)");
    static const QRegularExpression generatorLine(R"(^\s+\S+ \d+\s+subtopic \d+\s+kind (\d)\s+max \d+\s+(.*)$)");
    static const QStringList kindNames = {"", "questions", "exercises", "problems", "theory"};
    QList<CatalogueTopic> topics;
    for (const QString& line : listing.split('\n')) {
        const auto topic = topicLine.match(line);
        if (topic.hasMatch()) {
            topics.append({topic.captured(2).trimmed(), {}});
            continue;
        }
        const auto generator = generatorLine.match(line);
        if (!generator.hasMatch() || topics.isEmpty()) continue;
        QString title = generator.captured(2).trimmed();
        QString note = kindNames.value(generator.captured(1).toInt());
        // "&DP" marks a kind whose problems grow harder from the first to the last.
        if (title.startsWith("&DP")) {
            title = title.mid(3).trimmed();
            note += ", progressive";
        }
        title.replace('|', "\\|");
        topics.last().kinds << title + (note.isEmpty() ? QString() : " (" + note + ")");
    }
    return topics;
}

QString CatalogueTable(const QList<CatalogueTopic>& topics) {
    int kinds = 0;
    for (const CatalogueTopic& topic : topics) kinds += topic.kinds.size();
    QString table = QString("The catalogue holds %1 topics with %2 kinds of exercise.\n\n").arg(topics.size()).arg(kinds);
    table += "| Topic | Kinds of exercise |\n|---|---|\n";
    for (const CatalogueTopic& topic : topics)
        table += "| " + topic.name + " | " + topic.kinds.join("; ") + " |\n";
    return table;
}

bool InsertCatalogue(QString& text, const QString& cataloguePath) {
    QString listing;
    if (!ReadText(cataloguePath, listing)) {
        Fail("cannot read the catalogue listing " + cataloguePath);
        return false;
    }
    const QList<CatalogueTopic> topics = ReadCatalogueListing(listing);
    if (topics.isEmpty()) {
        Fail("the catalogue listing names no topic");
        return false;
    }
    const QString mark = "<!-- catalogue -->";
    if (!text.contains(mark)) {
        Fail("the sources have no line " + mark);
        return false;
    }
    text.replace(mark, CatalogueTable(topics));
    return true;
}

// Copies each picture named by the text into the HTML folder, from the first folder that has it.
bool CopyPictures(const QString& text, const QStringList& folders, const QString& htmlFolder) {
    static const QRegularExpression picture(R"(!\[[^\]]*\]\(([^)\s]+)\))");
    bool ok = true;
    for (auto it = picture.globalMatch(text); it.hasNext();) {
        const QString name = it.next().captured(1);
        QString found;
        for (const QString& folder : folders)
            if (QFileInfo::exists(folder + "/" + name)) {
                found = folder + "/" + name;
                break;
            }
        if (found.isEmpty()) {
            Fail("missing picture " + name);
            ok = false;
            continue;
        }
        const QString target = htmlFolder + "/" + name;
        QDir().mkpath(QFileInfo(target).absolutePath());
        QFile::remove(target);
        if (!QFile::copy(found, target)) {
            Fail("cannot copy " + found);
            ok = false;
        }
    }
    return ok;
}

// Headings become link targets, and each chapter after the first starts a page of the PDF;
// pictures are limited to the width of the text, and held by the document itself, since
// printing works on a copy that looks for no files.
void Prepare(QTextDocument& document, const QString& htmlFolder) {
    QSet<QString> used;
    bool firstChapter = true;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() == 1) {
            if (!firstChapter) {
                QTextBlockFormat format;
                format.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
                QTextCursor(block).mergeBlockFormat(format);
            }
            firstChapter = false;
        }
        if (block.blockFormat().headingLevel() > 0) {
            QString slug = Slug(block.text());
            for (int n = 2; used.contains(slug); ++n) slug = Slug(block.text()) + "-" + QString::number(n);
            used.insert(slug);
            QTextCursor cursor(block);
            cursor.setPosition(block.position() + block.length() - 1, QTextCursor::KeepAnchor);
            QTextCharFormat format;
            format.setAnchor(true);
            format.setAnchorNames({slug});
            cursor.mergeCharFormat(format);
        }
        for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment) {
            const QTextFragment piece = fragment.fragment();
            if (!piece.charFormat().isImageFormat()) continue;
            const QString name = piece.charFormat().toImageFormat().name();
            const QImage picture(htmlFolder + "/" + name);
            if (!picture.isNull()) document.addResource(QTextDocument::ImageResource, QUrl(name), picture);
        }
    }
}

// Shows every picture at most maxWidth by maxHeight, in the units of the output (pixels of
// the HTML page, points of the PDF), keeping its proportions.
void LimitPictures(QTextDocument& document, double maxWidth, double maxHeight) {
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto fragment = block.begin(); !fragment.atEnd(); ++fragment) {
            const QTextFragment piece = fragment.fragment();
            if (!piece.charFormat().isImageFormat()) continue;
            QTextImageFormat image = piece.charFormat().toImageFormat();
            const QImage picture = document.resource(QTextDocument::ImageResource, QUrl(image.name())).value<QImage>();
            if (picture.isNull()) continue;
            const double scale = std::min({1.0, maxWidth / picture.width(), maxHeight / picture.height()});
            image.setWidth(picture.width() * scale);
            image.setHeight(picture.height() * scale);
            QTextCursor cursor(&document);
            cursor.setPosition(piece.position());
            cursor.setPosition(piece.position() + piece.length(), QTextCursor::KeepAnchor);
            cursor.setCharFormat(image);
        }
    }
}

// Tables run across the width of the text, with room in their cells.
void WidenTables(QTextDocument& document) {
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        QTextTable* table = QTextCursor(block).currentTable();
        if (!table || table->cellAt(0, 0).firstCursorPosition().block() != block) continue;
        QTextTableFormat format = table->format();
        format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
        format.setCellPadding(3);
        format.setCellSpacing(0);
        format.setBorderCollapse(true);
        table->setFormat(format);
    }
}

QString PageHtml(const QTextDocument& document) {
    QString html = document.toHtml();
    // A readable column in a browser; the engine's own output has no width.
    html.replace("</style>", "body { max-width: 48em; margin: 2em auto; padding: 0 1em; }\n"
                             "table { border-collapse: collapse; }\n"
                             "td, th { padding: 3px 6px; vertical-align: top; }\n</style>");
    return html;
}

bool WritePdf(QTextDocument& document, const QString& path) {
    QPdfWriter writer(path);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins(QMarginsF(20, 20, 20, 20), QPageLayout::Millimeter);
    writer.setResolution(300);
    writer.setTitle("Sumforge User's Manual");
    writer.setCreator("Sumforge");
    document.print(&writer);
    return QFileInfo(path).size() > 0;
}

int Build(const QStringList& args) {
    const int split = args.indexOf("--");
    if (args.size() < 4 || split < 3 || split == args.size() - 1) {
        Fail("usage: build OUTDIR PDFNAME CATALOGUE.txt PICTUREDIR... -- SOURCE.md...");
        return 2;
    }
    const QString outFolder = QDir(args[0]).absolutePath();
    const QString htmlFolder = outFolder + "/html";
    const QString pdfPath = outFolder + "/" + args[1];
    const QStringList pictureFolders = args.mid(3, split - 3);
    QString text;
    for (const QString& source : args.mid(split + 1)) {
        QString part;
        if (!ReadText(source, part)) {
            Fail("cannot read " + source);
            return 1;
        }
        text += part + "\n\n";
    }
    if (!InsertCatalogue(text, args[2])) return 1;
    QDir(htmlFolder).removeRecursively();
    QDir().mkpath(htmlFolder);
    if (!CopyPictures(text, pictureFolders, htmlFolder)) return 1;

    QTextDocument document;
    document.setDefaultFont(QFont("Liberation Sans", 10));
    document.setBaseUrl(QUrl::fromLocalFile(htmlFolder + "/"));
    document.setMetaInformation(QTextDocument::DocumentTitle, "Sumforge User's Manual");
    document.setMarkdown(text, QTextDocument::MarkdownDialectGitHub);
    Prepare(document, htmlFolder);
    WidenTables(document);
    LimitPictures(document, kHtmlPictureWidth, kHtmlPictureHeight);
    if (!WriteText(htmlFolder + "/index.html", PageHtml(document))) {
        Fail("cannot write " + htmlFolder + "/index.html");
        return 1;
    }
    LimitPictures(document, kPdfPictureWidth, kPdfPictureHeight);
    if (!WritePdf(document, pdfPath)) {
        Fail("cannot write " + pdfPath);
        return 1;
    }
    std::printf("manual: %s and %s/index.html\n", qPrintable(pdfPath), qPrintable(htmlFolder));
    return 0;
}

// The number of pages a PDF file says it has, from its page objects.
int PdfPageCount(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return 0;
    const QByteArray bytes = file.readAll();
    if (!bytes.startsWith("%PDF-")) return 0;
    static const QRegularExpression page(R"(/Type\s*/Page[^s])");
    int count = 0;
    for (auto it = page.globalMatch(QString::fromLatin1(bytes)); it.hasNext(); it.next()) ++count;
    return count;
}

int Check(const QStringList& args) {
    if (args.size() != 2) {
        Fail("usage: check OUTDIR PDFNAME");
        return 2;
    }
    const QString htmlFolder = args[0] + "/html";
    QString html;
    if (!ReadText(htmlFolder + "/index.html", html)) {
        Fail("no manual page " + htmlFolder + "/index.html: build the target manual first");
        return 1;
    }
    QSet<QString> anchors;
    static const QRegularExpression anchor(R"re((?:name|id)="([^"]+)")re");
    for (auto it = anchor.globalMatch(html); it.hasNext();) anchors.insert(it.next().captured(1));

    int broken = 0;
    int links = 0;
    int pictures = 0;
    static const QRegularExpression reference(R"re((href|src)="([^"]*)")re");
    for (auto it = reference.globalMatch(html); it.hasNext();) {
        const auto match = it.next();
        const QString kind = match.captured(1);
        const QString target = match.captured(2);
        (kind == "src" ? pictures : links) += 1;
        if (target.startsWith("http://") || target.startsWith("https://") || target.startsWith("mailto:")) continue;
        QString problem;
        if (target.isEmpty()) {
            problem = "an empty " + kind;
        } else if (target.startsWith('#')) {
            if (!anchors.contains(target.mid(1))) problem = "no heading or anchor " + target;
        } else {
            const QString file = QUrl::fromPercentEncoding(target.section('#', 0, 0).toUtf8());
            const QString path = QDir::isAbsolutePath(file) ? file : htmlFolder + "/" + file;
            if (!QFileInfo::exists(path)) problem = (kind == "src" ? "missing picture " : "no file ") + file;
            else if (kind == "src" && QImage(path).isNull()) problem = "not a picture: " + file;
        }
        if (!problem.isEmpty()) {
            Fail("broken " + (kind == "src" ? QString("picture") : QString("link")) + ": " + problem);
            ++broken;
        }
    }
    const int pages = PdfPageCount(args[0] + "/" + args[1]);
    if (pages == 0) {
        Fail("no PDF manual " + args[0] + "/" + args[1]);
        ++broken;
    }
    std::printf("manual: %d links, %d pictures, %d PDF pages, %d broken\n", links, pictures, pages, broken);
    return broken == 0 ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    const QStringList args = application.arguments().mid(1);
    if (args.value(0) == "build") return Build(args.mid(1));
    if (args.value(0) == "check") return Check(args.mid(1));
    Fail("usage: make_manual build|check ...");
    return 2;
}
