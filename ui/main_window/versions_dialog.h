#pragma once
#include <QDialog>
#include <QString>
#include <memory>
#include <vector>

#include "core/versions.h"

class FormMain;
class QPagedPaintDevice;
class QRadioButton;
class QSpinBox;

// What the teacher asked of the versions: how many, which documents, and what to do.
struct VersionChoice {
    enum class Action { None, Print, Pdf };
    int count = 4;
    bool sheets = true;
    bool keys = true;
    Action action = Action::None;
};

// File > Versions...: number of versions, sheets and/or answer keys, print or export.
class VersionsDialog : public QDialog {
    Q_OBJECT
public:
    VersionsDialog(VersionChoice& choice, QWidget* parent = nullptr);
    void Finish(VersionChoice::Action action);

private:
    VersionChoice& choice_;
    QSpinBox* count_;
    QRadioButton* both_;
    QRadioButton* sheets_;
    QRadioButton* keys_;
};

// One composed document (a version's sheets or its answer key) on a state of its own, with
// the hidden sheet its pages were measured on.
struct VersionDocument;
struct VersionDocuments {
    VersionDocuments();
    ~VersionDocuments();
    VersionDocuments(VersionDocuments&&) noexcept;
    std::vector<std::unique_ptr<VersionDocument>> documents;
    // The file name tail of each: "-A", "-A-key", ...
    std::vector<QString> tails;
    ApplicationState& State(std::size_t i);
};
// The documents of the choice for the collection in the window: every version's sheets
// first, then every version's key, each composed for the window's page setup.
VersionDocuments MakeVersionDocuments(ApplicationState& app, const VersionChoice& choice);
// Prints every page of the documents on a device, one after the other.
void PrintVersionDocuments(VersionDocuments& documents, QPagedPaintDevice& device);
// Writes BASE-A.pdf, BASE-A-key.pdf ... for base (without ".pdf"); each file made whole in
// memory first. Returns the files written; on a failure, error says why and the rest stop.
QStringList ExportVersionPdfs(VersionDocuments& documents, const QString& base, PaperSize paper, QString& error);

// The whole command: the dialog, then printing on the window's printer or exporting.
void VersionsCommand(FormMain& form);
// Runs a choice without the dialog; for the PDF, base names the files (asked when empty).
void RunVersionChoice(FormMain& form, const VersionChoice& choice, QString base = QString());

// Version letter of the window's collection saved as its own collection file. True on
// success; the window's collection and its file are untouched.
bool SaveVersionAs(FormMain& form, char letter, const QString& file);
// File > Save version as...: the letter, then the file name.
void SaveVersionCommand(FormMain& form);
