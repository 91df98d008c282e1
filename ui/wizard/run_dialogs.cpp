#include "ui/wizard/run_dialogs.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include "core/application_state.h"
#include "typesetter/qt_surface.h"
#include "ui/properties/frm_prop_col.h"
#include "ui/wizard/frm_wizard.h"

QString SubjectPictureFolder(const ApplicationState& app) {
    QStringList candidates;
    if (!app.ImageFolder.empty()) candidates << QFileInfo(QString::fromStdString(app.ImageFolder)).absolutePath();
    candidates << ProgramDataFolder();
    QDir dir(QCoreApplication::applicationDirPath());
    for (int up = 0; up < 5; ++up) {
        candidates << dir.absolutePath() << dir.absoluteFilePath("data");
        if (!dir.cdUp()) break;
    }
    for (const QString& folder : candidates)
        if (!QDir(folder).entryList({"*.jpg"}, QDir::Files).isEmpty()) return folder;
    return QCoreApplication::applicationDirPath();
}

bool RunNewCollectionWizard(ApplicationState& app, QWidget* parent) {
    FrmWizard wizard(app, SubjectPictureFolder(app), parent);
    wizard.exec();
    return app.SettingsAccepted;
}

bool RunCollectionProperties(ApplicationState& app, QWidget* parent) {
    FrmPropCol dialog(app, parent);
    dialog.exec();
    return app.SettingsAccepted;
}
