// The PDF of a fixed collection with figures, printed by the command-line tool, against
// page pictures and text that were taken from it once (data/figures-*): the pages must look
// the same, read the same words in the same order, and hold each picture once.
#include <gtest/gtest.h>

#if defined(SUMFORGE_CLI) && defined(SUMFORGE_TEST_DATA)

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <set>

namespace {
const QString kData = QStringLiteral(SUMFORGE_TEST_DATA);

bool RunTool(const QString& program, const QStringList& arguments, QByteArray* out = nullptr) {
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(120000)) return false;
    if (out) *out = process.readAllStandardOutput();
    return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

bool HaveTools() {
    return !QStandardPaths::findExecutable("pdftoppm").isEmpty() &&
           !QStandardPaths::findExecutable("pdftotext").isEmpty();
}

// The words of a text in order; the dashes that may stand for a minus are one word.
QStringList Words(QString text) {
    text.replace(QChar(0x2212), '-').replace(QChar(0x2013), '-');
    return text.split(QRegularExpression("\\s+"), Qt::SkipEmptyParts);
}

QByteArray ReadAll(const QString& path) {
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// Renders the fixed collection to dir/pages.pdf with the command-line tool.
QString RenderFixedCollection(const QTemporaryDir& dir) {
    const QString pdf = dir.filePath("pages.pdf");
    QProcess process;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("QT_QPA_PLATFORM", "offscreen");
    env.insert("XDG_DATA_HOME", dir.filePath("xdg")); // the picture temp folder stays in here
    process.setProcessEnvironment(env);
    process.start(QStringLiteral(SUMFORGE_CLI), {"render", kData + "/figures.col", "--pdf", pdf});
    if (!process.waitForFinished(120000) || process.exitCode() != 0) return {};
    return pdf;
}
} // namespace

TEST(PdfPages, LookTheSameAsTheReferencePictures) {
    if (!HaveTools()) GTEST_SKIP() << "needs poppler-utils";
    QTemporaryDir dir;
    const QString pdf = RenderFixedCollection(dir);
    ASSERT_FALSE(pdf.isEmpty());
    ASSERT_TRUE(RunTool("pdftoppm", {"-r", "40", "-gray", "-png", pdf, dir.filePath("page")}));
    int pages = 0;
    for (int page = 1; QFile::exists(kData + QString("/figures-page-%1.png").arg(page)); ++page) {
        ++pages;
        const QImage want(kData + QString("/figures-page-%1.png").arg(page));
        const QImage got(dir.filePath(QString("page-%1.png").arg(page)));
        ASSERT_FALSE(got.isNull()) << "page " << page;
        ASSERT_EQ(got.size(), want.size()) << "page " << page;
        // A small tolerance: a few glyph edges may fall otherwise, but a missing figure or
        // a moved line changes thousands of pixels.
        long long differing = 0, ink = 0;
        for (int y = 0; y < want.height(); ++y)
            for (int x = 0; x < want.width(); ++x) {
                const int a = qGray(want.pixel(x, y)), b = qGray(got.pixel(x, y));
                if (a < 128) ++ink;
                if (std::abs(a - b) > 64) ++differing;
            }
        EXPECT_GT(ink, 300) << "page " << page;
        EXPECT_LE(differing, want.width() * want.height() / 400) << "page " << page;
    }
    EXPECT_EQ(pages, 3);
    EXPECT_FALSE(QFile::exists(dir.filePath("page-4.png")));
}

TEST(PdfPages, ReadTheSameWordsInTheSameOrder) {
    if (!HaveTools()) GTEST_SKIP() << "needs poppler-utils";
    QTemporaryDir dir;
    const QString pdf = RenderFixedCollection(dir);
    ASSERT_FALSE(pdf.isEmpty());
    QByteArray text;
    ASSERT_TRUE(RunTool("pdftotext", {pdf, "-"}, &text));
    const QStringList got = Words(QString::fromUtf8(text));
    const QStringList want = Words(QString::fromUtf8(ReadAll(kData + "/figures.txt")));
    ASSERT_GT(want.size(), 200);
    EXPECT_EQ(got, want);
}

TEST(PdfPages, HoldEachPictureOnce) {
    QTemporaryDir dir;
    const QString pdf = RenderFixedCollection(dir);
    ASSERT_FALSE(pdf.isEmpty());
    std::set<QString> names;
    const QString collection = QString::fromLatin1(ReadAll(kData + "/figures.col"));
    QRegularExpression tag("#IMG\\('([^']*)'");
    for (auto it = tag.globalMatch(collection); it.hasNext();) names.insert(it.next().captured(1).toUpper());
    int uses = 0;
    for (auto it = tag.globalMatch(collection); it.hasNext(); it.next()) ++uses;
    ASSERT_GT(uses, static_cast<int>(names.size())); // some figure is shown twice
    // Every figure is a picture with a transparent part: an image and its mask.
    const QByteArray bytes = ReadAll(pdf);
    EXPECT_EQ(bytes.count("/Subtype /Image"), 2 * static_cast<qsizetype>(names.size()));
    EXPECT_EQ(bytes.count("/ImageMask true"), static_cast<qsizetype>(names.size()));
}
#endif
