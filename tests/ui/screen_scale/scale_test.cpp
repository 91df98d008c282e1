// Every window and dialog at scale factor 2 on a screen of 1600 x 1000 pixels (800 x 500 at
// that scale): each opens inside the screen's available area, so that no button is lost.
#include <QApplication>
#include <QFile>
#include <QScreen>
#include <QSettings>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "core/application_state.h"
#include "ui/main_window/form_main.h"
#include "ui/main_window/frm_imprimir.h"
#include "ui/properties/frm_prop_col.h"
#include "ui/wizard/frm_wizard.h"

namespace {

QRect Available() { return QGuiApplication::primaryScreen()->availableGeometry(); }

void ExpectInside(QWidget& window, const char* name) {
    window.show();
    QCoreApplication::processEvents();
    const QRect area = Available();
    EXPECT_TRUE(area.contains(window.geometry())) << name << ": " << window.x() << "," << window.y() << " "
                                                  << window.width() << "x" << window.height();
    EXPECT_TRUE(area.contains(window.frameGeometry())) << name;
    window.hide();
}

struct Scaled : public ::testing::Test {
    QTemporaryDir settingsDir;
    void SetUp() override { QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settingsDir.path()); }
};

} // namespace

TEST_F(Scaled, TheScreenIsTheSmallOne) {
    EXPECT_EQ(QGuiApplication::primaryScreen()->devicePixelRatio(), 2.0);
    EXPECT_EQ(QGuiApplication::primaryScreen()->geometry().size(), QSize(800, 500));
}

TEST_F(Scaled, TheMainWindowOpensInsideTheScreen) {
    ApplicationState app;
    FormMain form(app, DialogLauncher{});
    ExpectInside(form, "FormMain");
    EXPECT_LT(form.width(), 1100);
}

TEST_F(Scaled, TheDialogsOpenInsideTheScreen) {
    ApplicationState app;
    FormMain form(app, DialogLauncher{});
    form.show();
    FrmWizard wizard(app, QString(), &form);
    ExpectInside(wizard, "FrmWizard");
    FrmPropCol properties(app, &form);
    ExpectInside(properties, "FrmPropCol");
    PrintOptions options;
    FrmImprimir print(options, 1, form.PrinterNames(), form.CurrentPrinter(), &form);
    ExpectInside(print, "FrmImprimir");
    // The buttons that end each dialog are on the screen.
    for (QWidget* dialog : {static_cast<QWidget*>(&wizard), static_cast<QWidget*>(&properties)}) {
        dialog->show();
        QCoreApplication::processEvents();
        for (const char* name : {"CmdNext", "CmdCancel"}) {
            QWidget* button = dialog->findChild<QWidget*>(name);
            ASSERT_NE(button, nullptr) << name;
            const QRect onScreen(button->mapToGlobal(QPoint(0, 0)), button->size());
            EXPECT_TRUE(Available().contains(onScreen)) << dialog->objectName().toStdString() << " " << name;
        }
        dialog->hide();
    }
}

int main(int argc, char** argv) {
    // The screen and the scale are fixed before the application starts.
    QTemporaryDir dir;
    const QString config = dir.filePath("screen.json");
    QFile file(config);
    if (!file.open(QIODevice::WriteOnly)) return 2;
    file.write(R"({"screens": [{"name": "small", "x": 0, "y": 0, "width": 1600, "height": 1000,
                 "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    file.close();
    qputenv("QT_QPA_PLATFORM", ("offscreen:configfile=" + config).toUtf8());
    qputenv("QT_SCALE_FACTOR", "2");
    QApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
