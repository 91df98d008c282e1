#pragma once
#include <QObject>
#include <QString>
#include <functional>

#include "export/picture_export.h"

class FormMain;
class QAction;
class QMenu;
class QMimeData;

// File → Export (Pictures..., LaTeX...) and Edit → Copy as Picture, with the two checks of
// the picture that is copied (with its solution, on a transparent background), kept in the
// settings store under "Export".
class ExportActions : public QObject {
    Q_OBJECT
public:
    // Adds the items to the window's File and Edit menus; the window owns the object.
    ExportActions(FormMain& window, QMenu* file, QAction* fileBefore, QMenu* edit, QAction* editBefore);

    void ExportLatexCommand();
    void ExportPicturesCommand();
    void CopyAsPictureCommand();

    QAction* withSolution = nullptr;
    QAction* transparent = nullptr;

    // What would otherwise need a person; tests replace them.
    // The .tex file to write ("" to cancel).
    std::function<QString(const QString& title, const QString& folder, const QString& proposed)> texDialog;
    // The folder and the kind of pictures; false to cancel.
    std::function<bool(QString& folder, PictureExportOptions& options)> picturesDialog;

private:
    void Remember();
    FormMain& window_;
    QString lastFolder_;
};

// The clipboard's content for one problem: its picture as image/png (300 dpi) and
// image/svg+xml, and the program's own clipboard text beside them. Null when the problem
// doesn't exist.
QMimeData* ProblemPictureMimeData(const ApplicationState& app, int problem, bool withSolution, bool transparent);
