#include "ui/main_window/form_main.h"

#include <QAction>
#include <QCoreApplication>
#include <QFileInfo>
#include <QSettings>

#include "core/col_file.h"
#include "core/collection.h"
#include "core/editing.h"
#include "ui/main_window/main_window_files.h"
#include "ui/main_window/page_setup_dialog.h"

// The recent files of the File menu and the settings the window keeps.

using namespace main_window;

void FormMain::ReadSettings() {
    QSettings settings(QSettings::IniFormat, QSettings::UserScope, kSettingsApplication, kSettingsApplication);
    zep04_->setVisible(false);
    bool any = false;
    for (int i = 1; i <= kRecentCount; ++i) {
        recent_[i]->setVisible(false);
        const QString title = settings.value(QString("Reciente/Titulo%1").arg(i)).toString();
        recentPaths_[i] = settings.value(QString("Reciente/Archivo%1").arg(i)).toString();
        recent_[i]->setText(title);
        if (!recentPaths_[i].isEmpty()) {
            recent_[i]->setVisible(true);
            any = true;
        }
    }
    zep04_->setVisible(any);
    lastPath_ = settings.value("LastPath/Path").toString();
    lastPdfPath_ = settings.value("LastPath/PdfPath").toString();
    app_.Page = ReadPageSetup();
}

void FormMain::WriteSettings() {
    QSettings settings(QSettings::IniFormat, QSettings::UserScope, kSettingsApplication, kSettingsApplication);
    settings.setValue("Ver/EdicBotones", Item("mnu_Ver_BotEdic")->isChecked() ? "S" : "N");
    for (int i = 1; i <= kRecentCount; ++i) {
        settings.setValue(QString("Reciente/Titulo%1").arg(i), recent_[i]->text());
        settings.setValue(QString("Reciente/Archivo%1").arg(i), recentPaths_[i]);
    }
    settings.setValue("LastPath/Path", lastPath_);
    settings.setValue("LastPath/PdfPath", lastPdfPath_);
    settings.sync();
}

QStringList FormMain::RecentPaths() const {
    QStringList paths;
    for (int i = 1; i <= kRecentCount; ++i) paths << recentPaths_[i];
    return paths;
}
QStringList FormMain::RecentTitles() const {
    QStringList titles;
    for (int i = 1; i <= kRecentCount; ++i) titles << recent_[i]->text();
    return titles;
}


void FormMain::AddRecentFile(const std::string& path) {
    const QString name = QString::fromStdString(path);
    int k = kRecentCount;
    for (int i = 1; i <= kRecentCount; ++i)
        if (recentPaths_[i].compare(name, Qt::CaseInsensitive) == 0) {
            k = i;
            break;
        }
    for (int i = k - 1; i >= 1; --i) {
        recent_[i + 1]->setText(recent_[i]->text());
        recentPaths_[i + 1] = recentPaths_[i];
        if (!recentPaths_[i + 1].isEmpty()) {
            recent_[i + 1]->setVisible(true);
            zep04_->setVisible(true);
        }
    }
    recent_[1]->setText(QFileInfo(name).fileName());
    recentPaths_[1] = name;
    // Shown at once: a file just saved belongs in the list now, not after a restart.
    recent_[1]->setVisible(true);
    zep04_->setVisible(true);
}


void FormMain::RecentCommand(int index) {
    if (!AskSaving()) return;
    SetWaitCursor(true);
    const QString path = recentPaths_[index];
    if (!path.isEmpty() && QFileInfo::exists(path)) {
        const std::string kept = app_.CurrentFileName;
        app_.CurrentFileName = path.toStdString();
        // A file that is refused leaves the collection on screen with its own name.
        if (!OpenFile(app_) && app_.ProblemCount() > 0) {
            app_.CurrentFileName = kept;
            ShowFileCaption(app_);
        }
    } else {
        SetWaitCursor(false);
        showMessage("Error: File no exist.", ProgramName(), MessageIcon::Warning);
    }
    SetWaitCursor(false);
    Geometry();
}

