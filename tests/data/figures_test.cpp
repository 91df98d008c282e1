#include <cmath>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include <QDir>
#include <QGuiApplication>
#include <QImage>

#include <gtest/gtest.h>

#include "generators/hub.h"
#include "support/generator_sweep.h"

namespace {
const std::filesystem::path kData = SUMFORGE_DATA_DIR;

std::string Lower(std::string s) {
    for (auto& c : s) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return s;
}

// The picture names of the "#IMG('name'" tags of a text.
std::set<std::string> PictureNames(const std::string& text) {
    std::set<std::string> names;
    std::size_t pos = 0;
    while ((pos = text.find("#IMG('", pos)) != std::string::npos) {
        pos += 6;
        const auto end = text.find('\'', pos);
        if (end == std::string::npos) break;
        names.insert(text.substr(pos, end - pos));
        pos = end;
    }
    return names;
}

// One picture tag as a generator writes it: the file and the size it is shown at.
struct FigureTag {
    std::string file;  // lower case, as stored
    double dxMm = 0;
    double dyMm = 0;
};

double TagOption(const std::string& tag, const std::string& key) {
    const auto at = tag.find(key + "=");
    if (at == std::string::npos) return 0;
    return std::stod(tag.substr(at + key.size() + 1));
}

std::vector<FigureTag> FigureTags(const std::string& text) {
    std::vector<FigureTag> tags;
    std::size_t pos = 0;
    while ((pos = text.find("#IMG('", pos)) != std::string::npos) {
        const auto end = text.find("#IMG)", pos);
        if (end == std::string::npos) break;
        const std::string tag = text.substr(pos, end - pos);
        const auto close = tag.find('\'', 6);
        tags.push_back({Lower(tag.substr(6, close - 6)), TagOption(tag, "DXmm"), TagOption(tag, "DYmm")});
        pos = end;
    }
    return tags;
}

struct FigureUse {
    std::string statement;  // one statement that shows the figure
    std::string where;      // module and routine
};

// Every figure tag that a generator writes, and the statements that show each figure.
struct FigureSurvey {
    std::vector<FigureTag> tags;
    std::map<std::string, std::vector<FigureUse>> uses;
};

FigureSurvey SurveyFigures() {
    GeneratorHub hub;
    FigureSurvey survey;
    std::set<std::string> seen;
    for (const auto& module : hub.Modules()) {
        for (const auto& routine : module.routines) {
            for (int seed = 0; seed < 300; ++seed) {
                const GeneratedProblem p =
                    GenerateProblem(hub, module.name, {routine.number, seed % 900, seed, 26, 1 + seed % 5, 1});
                for (const FigureTag& tag : FigureTags(p.statement)) {
                    const std::string key = tag.file + " " + std::to_string(tag.dxMm) + " " + std::to_string(tag.dyMm);
                    if (seen.insert(key).second) survey.tags.push_back(tag);
                    survey.uses[tag.file].push_back({p.statement, module.name + " " + std::to_string(routine.number)});
                }
            }
        }
    }
    return survey;
}

std::string ReadText(const std::filesystem::path& path) {
    std::ifstream in(path);
    std::stringstream buffer;
    buffer << in.rdbuf();
    return buffer.str();
}

std::filesystem::path SourceOf(const std::string& file) {
    return kData / "img" / "src" / (std::filesystem::path(file).stem().string() + ".svg");
}

// The labels that a figure's drawing writes: the texts of its <text> elements.
std::set<std::string> FigureLabels(const std::string& svg) {
    std::set<std::string> labels;
    static const std::regex text(R"(<text[^>]*>([^<]*)</text>)");
    for (std::sregex_iterator it(svg.begin(), svg.end(), text), end; it != end; ++it) labels.insert((*it)[1]);
    return labels;
}

// The smallest font size of a figure's labels, in millimetres of its canvas.
double SmallestLabelMm(const std::string& svg) {
    static const std::regex scale(R"(scale\(([0-9.]+)\))");
    static const std::regex size(R"re(font-size="([0-9.]+)")re");
    std::smatch m;
    const double s = std::regex_search(svg, m, scale) ? std::stod(m[1]) : 1.0;
    double least = 1e9;
    for (std::sregex_iterator it(svg.begin(), svg.end(), size), end; it != end; ++it)
        least = std::min(least, std::stod((*it)[1]) * s);
    return least;
}

double CanvasWidthMm(const std::string& svg) {
    static const std::regex width(R"(<svg[^>]* width="([0-9.]+)mm")");
    std::smatch m;
    return std::regex_search(svg, m, width) ? std::stod(m[1]) : 0;
}

QImage LoadPicture(const std::string& name) {
    // Files are kept in lower case; tags name them in any case.
    return QImage(QString::fromStdString((kData / "img" / Lower(name)).string()));
}

class Figures : public ::testing::Test {
protected:
    static void SetUpTestSuite() {
        static int argc = 1;
        static char name[] = "data_tests";
        static char* argv[] = {name, nullptr};
        if (QGuiApplication::instance() == nullptr) app_ = new QGuiApplication(argc, argv);
    }
    static inline QGuiApplication* app_ = nullptr;
};
} // namespace

TEST_F(Figures, EveryPictureAGeneratorNamesExistsAndLoads) {
    // Run every routine of every module over enough seeds to pass through all its types.
    GeneratorHub hub;
    std::map<std::string, std::string> usedBy;
    for (const auto& module : hub.Modules()) {
        for (const auto& routine : module.routines) {
            for (int seed = 0; seed < 300; ++seed) {
                const GeneratedProblem p =
                    GenerateProblem(hub, module.name, {routine.number, seed % 900, seed, 26, 1 + seed % 5, 1});
                for (const auto& name : PictureNames(p.statement + p.solution))
                    usedBy.emplace(name, module.name + " " + std::to_string(routine.number));
            }
        }
    }
    for (const auto& [name, where] : usedBy) {
        const QImage image = LoadPicture(name);
        EXPECT_FALSE(image.isNull()) << name << " (named by " << where << ") is missing or does not load";
    }
}

TEST_F(Figures, EveryFigureFileLoadsWithTheProportionsOfItsTag) {
    // The figures are drawn on a canvas with the proportions of the tags that name them.
    const std::map<std::string, double> aspect = {
        {"m_tales.gif", 31.36 / 22.8},       {"m_trianrec.gif", 32 / 25.68},   {"m_rectangu.gif", 35 / 26.0},
        {"m_tri_isos.gif", 28 / 26.81},      {"m_seme2trian.gif", 40 / 21.6},  {"m_cuadrado.gif", 21.056 / 20.992},
        {"m_rombo.gif", 13.8 / 21.72},       {"m_hexagono.gif", 21.72 / 21.18}, {"m_tri_equi.gif", 22.8 / 20.976},
        {"m_traperec.gif", 24 / 21.0},       {"m_trapecio.gif", 24 / 21.06},   {"m_paralelo.gif", 29.52 / 20.8},
        {"m_octagono.gif", 19.314 / 21.75},  {"m_tri_esca.gif", 23.2 / 21.112}, {"m_circulo.gif", 21.808 / 21.866},
        {"m_sector.gif", 1.0},               {"m_trapecir.gif", 24 / 21.0},    {"m_corona.gif", 22.04 / 21.982},
        {"m_cubo.gif", 20.898 / 21.006},     {"m_ortoedro.gif", 15.876 / 20.952}, {"m_piramide.gif", 20.304 / 21.006},
        {"m_cilindro.gif", 17.766 / 20.952}, {"m_cono.gif", 19.215 / 20.916},  {"m_esfera.gif", 21.147 / 20.976},
        {"m_ang_abc180.gif", 46 / 23.46},    {"m_ang_abc90.gif", 23 / 21.275}, {"m_trian_recsl.gif", 46 / 23.46},
        {"m_trian_sl.gif", 46 / 23.46},      {"m_pllg_sl.gif", 46 / 23.46},    {"m_trigo_tria_hch.gif", 46 / 30.94},
        {"m_trigo_tria_hhc.gif", 37 / 26.825}, {"m_trigo_romde.gif", 49 / 20.59}, {"m_trigo_rombo.gif", 42 / 26.985},
        {"m_trigo_trape.gif", 42 / 22.019}};
    for (const auto& [name, ratio] : aspect) {
        const QImage image = LoadPicture(name);
        ASSERT_FALSE(image.isNull()) << name;
        EXPECT_NEAR(double(image.width()) / image.height(), ratio, 0.02) << name;
        // Sharp on paper: about 12 pixels a millimetre.
        EXPECT_GE(image.width(), 150) << name;
    }
    int files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(kData / "img")) files += entry.path().extension() == ".gif";
    EXPECT_EQ(files, static_cast<int>(aspect.size()));
}

TEST_F(Figures, SubjectPictureLoads) {
    const QImage image(QString::fromStdString((kData / "Mathematics.jpg").string()));
    EXPECT_FALSE(image.isNull());
}

TEST_F(Figures, EveryFigureFillsTheSizeOfItsTagBelowOneFreeLine) {
    // The ink of a figure reaches across the canvas or down to its bottom (no wide empty
    // borders that would print it at half size), and a line of 12-point text (4.7 mm at the
    // tag's size) stays free at its top, where the figure hangs over the line above.
    constexpr double kLineMm = 4.7;
    for (const FigureTag& tag : SurveyFigures().tags) {
        SCOPED_TRACE(tag.file + " at " + std::to_string(tag.dxMm) + " mm");
        QImage image = LoadPicture(tag.file).convertToFormat(QImage::Format_ARGB32);
        ASSERT_FALSE(image.isNull());
        // Stored mirrored top to bottom: the tag's negative height paints it upright.
        ASSERT_LT(tag.dyMm, 0);
        image = image.mirrored(false, true);
        int left = image.width(), right = -1, top = image.height(), bottom = -1;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qAlpha(image.pixel(x, y)) == 0) continue;
                left = std::min(left, x), right = std::max(right, x);
                top = std::min(top, y), bottom = std::max(bottom, y);
            }
        }
        ASSERT_GE(right, left);
        const double pxPerMm = image.height() / -tag.dyMm;
        EXPECT_GE(top, kLineMm * pxPerMm) << "the ink reaches into the free line at the top";
        const double band = kLineMm * pxPerMm;
        const double wide = double(right - left + 1) / image.width();
        const double tall = double(bottom - top + 1) / (image.height() - band);
        EXPECT_GE(std::max(wide, tall), 0.85) << "ink covers " << wide << " of the width, " << tall << " of the height";
        EXPECT_GE(wide, 0.45);
        EXPECT_GE(tall, 0.45);
    }
}

TEST_F(Figures, LabelsPrintAtLeastEightPointsAtEveryTagSize) {
    constexpr double kEightPointsMm = 8 / 72.0 * 25.4;
    for (const FigureTag& tag : SurveyFigures().tags) {
        const std::string svg = ReadText(SourceOf(tag.file));
        ASSERT_FALSE(svg.empty()) << SourceOf(tag.file);
        const double canvas = CanvasWidthMm(svg);
        ASSERT_GT(canvas, 0) << tag.file;
        EXPECT_GE(SmallestLabelMm(svg) * tag.dxMm / canvas, kEightPointsMm) << tag.file << " at " << tag.dxMm << " mm";
    }
}

TEST_F(Figures, EveryLetterAStatementNamesIsLabelledInItsFigure) {
    // Points, sides and angles that a statement names in italics ("&+IAB&-I", "&+Ih&-I",
    // "&+I&alfa&-I") must be drawn and labelled in the figure it shows.
    static const std::regex italic(R"(&\+I([^&]*|&alfa)&-I)");
    for (const auto& [file, uses] : SurveyFigures().uses) {
        const std::set<std::string> labels = FigureLabels(ReadText(SourceOf(file)));
        ASSERT_FALSE(labels.empty()) << file;
        for (const FigureUse& use : uses) {
            for (std::sregex_iterator it(use.statement.begin(), use.statement.end(), italic), end; it != end; ++it) {
                const std::string name = (*it)[1];
                if (name == "&alfa") {
                    EXPECT_TRUE(labels.count("&#945;")) << file << " has no alpha; " << use.where;
                    continue;
                }
                for (char c : name) {
                    if (!std::isalpha(static_cast<unsigned char>(c))) continue;
                    EXPECT_TRUE(labels.count(std::string(1, c)))
                        << file << " has no label " << c << " that " << use.where << " names: " << use.statement;
                }
            }
        }
    }
}
