#pragma once
#include <QDialog>
#include <QString>
#include <array>
#include <functional>
#include <vector>

#include "core/application_state.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QScrollBar;
class QStackedWidget;
class SettingsControls;
class TopicTreeView;

// One subject of page 2: its picture (when the data folder has one) and its name.
class SubjectTile : public QWidget {
    Q_OBJECT
public:
    SubjectTile(const QString& subject, const QString& picturePath, QWidget* parent = nullptr);
    bool HasPicture() const { return !picture_.isNull(); }
signals:
    void Clicked();

protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;

private:
    QString subject_;
    QPixmap picture_;
};

// The new-collection wizard: start page, subject, types of documents, topics and amounts,
// numbering, sorting and solutions, title. It edits the collection settings in place and
// marks the TopicTree; the caller reads both after it has closed.
class FrmWizard : public QDialog {
    Q_OBJECT
public:
    // pictureFolder: where "<subject>.jpg" is looked for.
    FrmWizard(ApplicationState& app, const QString& pictureFolder, QWidget* parent = nullptr);

    int CurrentPage() const { return page_; }
    bool PageEnabled(int page) const { return pageEnabled_[page]; }

    void CmdNextClick();
    void CmdBackClick();
    void CmdCancelClick();
    // Chooses subject number index (1-based), as a click on its picture does.
    void ChooseSubject(int index);
    QString GetDefaultTitle() const;
    void GuardarAjustes();
    void RECUENTA();
    void AE_ItemEXProyect();
    void ActualizaTree();

    // The warning box; tests hand in their own.
    std::function<void(const QString&)> warningBox;

    QPushButton* CmdNext;
    QPushButton* CmdBack;
    QPushButton* CmdCancel;
    QCheckBox* Check2;
    QCheckBox* Check3;
    QListWidget* LstAsig;
    QLabel* LblAsig;
    QWidget* ShaSelec;
    std::vector<SubjectTile*> ImageASIG;
    std::array<QCheckBox*, 5> ChkTIP{};
    QLabel* LblWarning;
    TopicTreeView* Picture1;
    QLabel* LblDescription;
    QLabel* ImageProgre;
    std::array<QLabel*, 2> LblCan{};
    std::array<QLineEdit*, 2> TxCan{};
    std::array<QScrollBar*, 2> VScroll2{};
    QLineEdit* TxTOT;
    SettingsControls* controls;
    std::array<QWidget*, 8> Frame1{};

    void reject() override;

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildPages();
    void Load_Asignaturas();
    void ShowPage(int page);
    void ArriveForward();
    void ArriveBack();
    void TxCanChanged(int index);
    void SubjectKey(int key, bool shift);
    bool SubjectPageKey(int key, bool shift);
    void Finish();

    ApplicationState& app_;
    QString pictureFolder_;
    CollectionSettings savedSettings_;
    std::array<bool, 8> pageEnabled_{};
    int page_ = 1;
    QString treeSignature_;
    QStackedWidget* stack_;
    bool loadingPanel_ = false;
};
