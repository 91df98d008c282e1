#pragma once
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QSettings>
#include <QTemporaryDir>
#include <QToolButton>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "core/application_state.h"
#include "core/collection.h"
#include "ui/main_window/form_main.h"

// A window over a fresh state, its settings in a folder of its own, and every question a
// person would answer scripted.
struct WindowFixture : public ::testing::Test {
    QTemporaryDir settingsDir;
    std::unique_ptr<ApplicationState> app;
    std::unique_ptr<FormMain> form;
    // The scripted answers and what the window asked or did.
    int saveAnswer = 0;
    int saveQuestions = 0;
    bool replaceAnswer = true;
    int replaceQuestions = 0;
    std::vector<std::string> messages;
    QStringList started;
    QString chosenFile;
    // The wizard's choice: routine 12 of the natural numbers, this many problems.
    int wantedProblems = 3;
    int itemsPerProblem = 4;
    std::string title = "Practice";
    bool wizardAccepts = true;

    void SetUp() override {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settingsDir.path());
        QGuiApplication::clipboard()->setText("nothing");
    }
    void TearDown() override {
        form.reset();
        app.reset();
    }

    QSettings Settings() { return QSettings(QSettings::IniFormat, QSettings::UserScope, "Sumforge RUQ7", "Sumforge RUQ7"); }

    // A wizard without its window: the subject's tree, with one generator marked.
    DialogLauncher ScriptedLauncher() {
        DialogLauncher launcher;
        launcher.wizard = [this](ApplicationState& state, QWidget*) {
            if (!wizardAccepts) return false;
            LoadTOLISTBOX_BUILT_CODE(state, "Mathematics", true, true, true, true);
            for (auto& node : state.TopicTree)
                if (!node.isFolder && TrimBlanks(node.module) == "KVOL_MATH_NRP" && node.routine == 12) {
                    node.selected = true;
                    node.amount = wantedProblems;
                    node.itemsPerProblem = itemsPerProblem;
                }
            state.Settings.Title = title;
            return true;
        };
        return launcher;
    }

    void MakeWindow(const QString& commandLine = QString(), bool withWizard = true) {
        form.reset();
        app = std::make_unique<ApplicationState>();
        app->ClockSeed = [] { return 4242; };
        form = std::make_unique<FormMain>(*app, withWizard ? ScriptedLauncher() : DialogLauncher{}, commandLine);
        form->askSave = [this](const QString&) {
            ++saveQuestions;
            return saveAnswer;
        };
        form->askAbortBusy = [] { return false; };
        form->showMessage = [this](const QString& text, const QString&, MessageIcon) {
            messages.push_back(text.toStdString());
        };
        form->startProcess = [this](const QString& file) {
            started << file;
            return true;
        };
        form->fileDialog = [this](const QString&, const QString&, const QString&, bool) { return chosenFile; };
        form->askReplace = [this](const QString&) {
            ++replaceQuestions;
            return replaceAnswer;
        };
        form->openUrl = [](const QString&) { return true; };
        form->resize(1000, 800);
        form->show();
        form->Activated();
    }

    QAction* Item(const char* name) { return form->Item(name); }
    // The title as the title bar shows it: the "[*]" place holds the modified mark or nothing.
    QString ShownTitle() {
        QString title = form->windowTitle();
        return title.replace("[*]", form->isWindowModified() ? "*" : "");
    }
    bool ToolVisible(int i) { return !form->ToolButton(i)->isHidden(); }
    bool ToolEnabled(int i) { return form->ToolButton(i)->isEnabled(); }

    // Builds a collection through the New command and saves it under a name.
    QString SavedCollection(const QString& name) {
        form->NewCommand();
        chosenFile = settingsDir.filePath(name);
        form->SaveAsCommand();
        return chosenFile;
    }
};
