#include <QApplication>
#include <QCursor>
#include <QTimer>
#include <cstdio>
#include <cstring>

#include "core/application_state.h"
#include "ui/dialog_launcher.h"
#include "ui/wizard/run_dialogs.h"
#include "ui/main_window/form_main.h"
#include "ui/main_window/form_splash.h"
#include "sumforge_version.h"

// The system hands the arguments already split: one argument is the whole name (blanks
// and all), several are the quoted list.
static QString JoinedCommandLine(const QStringList& arguments) {
    if (arguments.size() <= 1) return arguments.value(0);
    QString line;
    for (const QString& argument : arguments) line += "\"" + argument + "\" ";
    return line;
}

int main(int argc, char** argv) {
    // Answered before any window: a file of these names can still be opened as "./--version".
    if (argc == 2 && (std::strcmp(argv[1], "--version") == 0 || std::strcmp(argv[1], "--help") == 0)) {
        if (std::strcmp(argv[1], "--version") == 0) {
            std::printf("sumforge %s\n", kSumforgeVersion);
        } else {
            std::printf("Usage: sumforge [FILE.col...]\n"
                        "Opens the collections named, the first in this window and each further one in a\n"
                        "window of its own; without a name, starts with no collection. See sumforge(1).\n");
        }
        return 0;
    }
    QApplication application(argc, argv);
    QApplication::setApplicationName("Sumforge RUQ7");
    QApplication::setOverrideCursor(Qt::WaitCursor);

    ApplicationState app;
    FormSplash splash(QString::fromStdString(app.ApplicationTitle));
    splash.show();
    // Painted now, so that it is seen while the main window loads.
    QApplication::processEvents();
    DialogLauncher launcher;
    launcher.wizard = RunNewCollectionWizard;
    launcher.properties = RunCollectionProperties;
    FormMain form(app, launcher, JoinedCommandLine(application.arguments().mid(1)));
    QApplication::restoreOverrideCursor();
    QObject::connect(splash.Timer1(), &QTimer::timeout, [&] {
        form.show();
        form.activateWindow();
        splash.close();
        // Without a window manager the window may never become active; its first
        // activation still has to fit the page and open the waiting files.
        QTimer::singleShot(300, &form, [&form] {
            if (form.FirstActivation()) form.Activated();
        });
    });
    splash.Timer1()->start();
    return application.exec();
}
