#include <filesystem>
#include <map>
#include <set>

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
