#include "ui/wizard/frm_wizard.h"

#include <QCheckBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QScrollBar>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "core/collection.h"
#include "ui/settings_pages/section_frame.h"
#include "ui/screen_fit.h"
#include "ui/settings_pages/settings_controls.h"
#include "ui/wizard/topic_tree_view.h"
#include "ui/wizard/wizard_settings.h"

namespace {
constexpr int kTileWidth = 200;
constexpr int kTileHeight = 60;

QString Utf8Mid(const std::string& text, int start, int count) {
    return QString::fromStdString(text).mid(start, count);
}
}  // namespace

// ---- SubjectTile

SubjectTile::SubjectTile(const QString& subject, const QString& picturePath, QWidget* parent)
    : QWidget(parent), subject_(subject) {
    if (!picturePath.isEmpty() && QFileInfo::exists(picturePath)) picture_.load(picturePath);
    setFixedSize(kTileWidth, kTileHeight);
    setCursor(Qt::PointingHandCursor);
    setToolTip(subject);
}

void SubjectTile::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setPen(QColor(200, 200, 214));
    painter.setBrush(QColor(250, 250, 253));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    int textLeft = 10;
    if (!picture_.isNull()) {
        const QSize size = picture_.size().scaled(QSize(72, kTileHeight - 8), Qt::KeepAspectRatio);
        painter.drawPixmap(QRect(QPoint(4, (kTileHeight - size.height()) / 2), size), picture_);
        textLeft = size.width() + 12;
    }
    QFont font = this->font();
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(QColor(40, 40, 80));
    painter.drawText(QRect(textLeft, 0, width() - textLeft - 6, height()), Qt::AlignVCenter | Qt::TextWordWrap, subject_);
}

void SubjectTile::mousePressEvent(QMouseEvent*) { emit Clicked(); }

// ---- FrmWizard

FrmWizard::FrmWizard(ApplicationState& app, const QString& pictureFolder, QWidget* parent)
    : QDialog(parent), app_(app), pictureFolder_(pictureFolder) {
    setObjectName("FrmWizard");
    setWindowTitle("Wizard");
    warningBox = [this](const QString& text) { QMessageBox::warning(this, windowTitle(), text); };

    // Load, in its order.
    savedSettings_ = app_.Settings;
    auto store = OpenSettingsStore();
    CollectionSettings& s = app_.Settings;
    s.Sorted = ReadSetting(*store, "Wizard", "Ordena", "S") == "S";
    s.SolutionPosition = ReadSetting(*store, "Wizard", "Solpos", "1").toInt();
    s.NumberPrefix = ReadSetting(*store, "Wizard", "Propre", "").toStdString();
    s.NumberSuffix = ReadSetting(*store, "Wizard", "Prosuf", ")").toStdString();
    s.PagePositionCode = ReadSetting(*store, "Wizard", "PagPos", "11").toInt();
    s.NumberColour = ReadSetting(*store, "Wizard", "Procol", "16777215").toInt();
    s.FirstPageNumber = 1;
    s.FirstProblemNumber = 1;
    s.Title.clear();

    controls = new SettingsControls(app_.Settings, WizardColourTable(), this);
    BuildPages();
    controls->LoadControls();

    pageEnabled_.fill(true);
    pageEnabled_[3] = pageEnabled_[5] = pageEnabled_[6] = false;
    const bool showStart = ReadSetting(*store, "Wizard", "Showini", "S") == "S";
    Check3->setChecked(showStart);
    pageEnabled_[1] = showStart;
    if (showStart) {
        ShowPage(1);
    } else {
        ShowPage(2);
        CmdNext->setEnabled(false);
        CmdBack->setEnabled(false);
    }
    Check2->setChecked(ReadSetting(*store, "Wizard", "Showavan", "N") == "S");
    pageEnabled_[3] = pageEnabled_[5] = pageEnabled_[6] = Check2->isChecked();
    if (page_ == 1) CmdBack->setEnabled(false);
    Load_Asignaturas();
    controls->MarkCurrentColour();
    treeSignature_.clear();
}

void FrmWizard::BuildPages() {
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(14, 14, 14, 12);
    stack_ = new QStackedWidget;
    outer->addWidget(stack_, 1);

    // Page 1: start.
    {
        auto* frame = new SectionFrame("Wizard");
        auto* layout = new QVBoxLayout(frame);
        auto* text = new QLabel("This wizard helps you to create a new problem collection.");
        auto* next = new QLabel("Click  'Next'  to start or  'Cancel'  to exit.");
        QFont big = text->font();
        big.setPointSize(big.pointSize() + 2);
        text->setFont(big);
        layout->addSpacing(30);
        layout->addWidget(text);
        layout->addSpacing(10);
        layout->addWidget(next);
        layout->addStretch();
        Check3 = new QCheckBox("Show wizard start window");
        Check3->setObjectName("Check3");
        Check2 = new QCheckBox("Show advanced options");
        Check2->setObjectName("Check2");
        layout->addWidget(Check3);
        layout->addWidget(Check2);
        Frame1[1] = frame;
    }
    // Page 2: subject.
    {
        auto* frame = new SectionFrame("Select the subject");
        LstAsig = new QListWidget(frame);
        LstAsig->setObjectName("LstAsig");
        LstAsig->hide();
        LblAsig = new QLabel("No subject selected", frame);
        LblAsig->setObjectName("LblAsig");
        LblAsig->setGeometry(80, 30, 620, 22);
        QFont bold = LblAsig->font();
        bold.setBold(true);
        LblAsig->setFont(bold);
        ShaSelec = new QFrame(frame);
        ShaSelec->setObjectName("ShaSelec");
        ShaSelec->setStyleSheet("#ShaSelec { border: 2px solid rgb(66,110,215); border-radius: 6px; }");
        ShaSelec->hide();
        frame->setMinimumSize(720, 60 + 66 * 5 + 10);
        frame->setFocusPolicy(Qt::StrongFocus);
        frame->installEventFilter(this);
        connect(LstAsig, &QListWidget::itemDoubleClicked, this, [this] {
            if (LstAsig->currentItem()) CmdNextClick();
        });
        Frame1[2] = frame;
    }
    // Page 3: types of documents.
    {
        auto* frame = new SectionFrame("Types of documents");
        auto* layout = new QVBoxLayout(frame);
        // The fourth kind in the English build's words: its caption was left in Spanish.
        const char* captions[5] = {"", "Questions", "Exercises", "Problems", "Theory topics"};
        for (int i = 1; i <= 4; ++i) {
            ChkTIP[i] = new QCheckBox(QString::fromUtf8(captions[i]));
            ChkTIP[i]->setObjectName(QString("ChkTIP_%1").arg(i));
            ChkTIP[i]->setChecked(i <= 3);
            layout->addWidget(ChkTIP[i]);
            connect(ChkTIP[i], &QCheckBox::toggled, this, [this] {
                if (page_ == 3)
                    CmdNext->setEnabled(ChkTIP[1]->isChecked() || ChkTIP[2]->isChecked() || ChkTIP[3]->isChecked() ||
                                        ChkTIP[4]->isChecked());
            });
        }
        // The fourth type is not offered: it stays in the mask, hidden.
        ChkTIP[4]->hide();
        layout->addSpacing(16);
        LblWarning = new QLabel(
            "WARNING: If you change the document type the problems and exercises selected for each topic will be lost");
        LblWarning->setObjectName("LblWarning");
        LblWarning->setWordWrap(true);
        LblWarning->setStyleSheet("color: rgb(160,40,30);");
        layout->addWidget(LblWarning);
        layout->addStretch();
        Frame1[3] = frame;
    }
    // Page 4: topics and amounts.
    {
        auto* frame = new SectionFrame("Select topics, types and amount of problems");
        auto* layout = new QHBoxLayout(frame);
        Picture1 = new TopicTreeView(app_.TopicTree);
        Picture1->setMinimumWidth(400);
        layout->addWidget(Picture1, 3);
        auto* panel = new QVBoxLayout;
        LblDescription = new QLabel;
        LblDescription->setObjectName("LblDescription");
        LblDescription->setWordWrap(true);
        LblDescription->setAlignment(Qt::AlignTop | Qt::AlignLeft);
        LblDescription->setMinimumHeight(90);
        panel->addWidget(LblDescription);
        ImageProgre = new QLabel("\u25B2 Progressive difficulty");
        ImageProgre->setObjectName("ImageProgre");
        ImageProgre->setStyleSheet("color: rgb(46,120,70); font-weight: bold;");
        panel->addWidget(ImageProgre);
        const char* amountCaptions[2] = {"Amount:", ""};
        for (int i = 0; i < 2; ++i) {
            auto* row = new QHBoxLayout;
            LblCan[i] = new QLabel(amountCaptions[i]);
            LblCan[i]->setObjectName(QString("LblCan_%1").arg(i));
            LblCan[i]->setWordWrap(true);
            TxCan[i] = new QLineEdit;
            TxCan[i]->setObjectName(QString("TxCan_%1").arg(i));
            TxCan[i]->setFixedWidth(44);
            TxCan[i]->setAlignment(Qt::AlignRight);
            TxCan[i]->setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9]*"), TxCan[i]));
            TxCan[i]->installEventFilter(this);
            VScroll2[i] = new QScrollBar(Qt::Vertical);
            VScroll2[i]->setObjectName(QString("VScroll2_%1").arg(i));
            VScroll2[i]->setRange(1, 99);
            // The up arrow raises the value.
            VScroll2[i]->setInvertedAppearance(true);
            VScroll2[i]->setInvertedControls(true);
            VScroll2[i]->setFixedSize(16, TxCan[i]->sizeHint().height());
            row->addWidget(LblCan[i], 1);
            row->addWidget(TxCan[i]);
            row->addWidget(VScroll2[i]);
            row->setSpacing(3);
            panel->addLayout(row);
            connect(TxCan[i], &QLineEdit::textChanged, this, [this, i] { TxCanChanged(i); });
            connect(VScroll2[i], &QScrollBar::valueChanged, this, [this, i](int value) {
                if (TxCan[i]->text() != QString::number(value)) TxCan[i]->setText(QString::number(value));
            });
        }
        panel->addStretch();
        auto* total = new QHBoxLayout;
        auto* totalLabel = new QLabel("TOTAL");
        QFont bold = totalLabel->font();
        bold.setBold(true);
        totalLabel->setFont(bold);
        TxTOT = new QLineEdit("0");
        TxTOT->setObjectName("TxTOT");
        TxTOT->setReadOnly(true);
        TxTOT->setFixedWidth(60);
        TxTOT->setAlignment(Qt::AlignRight);
        TxTOT->setFont(bold);
        total->addStretch();
        total->addWidget(totalLabel);
        total->addWidget(TxTOT);
        panel->addLayout(total);
        layout->addLayout(panel, 2);
        connect(TxTOT, &QLineEdit::textChanged, this, [this](const QString& text) {
            if (page_ == 4) CmdNext->setEnabled(text.toInt() != 0);
        });
        connect(Picture1, &TopicTreeView::CurrentChanged, this, &FrmWizard::AE_ItemEXProyect);
        connect(Picture1, &TopicTreeView::SelectionToggled, this, &FrmWizard::AE_ItemEXProyect);
        Frame1[4] = frame;
    }
    // Page 5: numbering.
    {
        auto* page = new QWidget;
        auto* layout = new QVBoxLayout(page);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(controls->ProblemNumbersSection());
        layout->addWidget(controls->PageNumbersSection(), 1);
        Frame1[5] = page;
    }
    // Page 6: sorting and solutions.
    {
        auto* page = new QWidget;
        auto* layout = new QVBoxLayout(page);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(controls->SortSection());
        layout->addWidget(controls->SolutionsSection(), 1);
        Frame1[6] = page;
    }
    // Page 7: title.
    {
        Frame1[7] = controls->TitleSection("Collection title (optional)");
    }
    for (int page = 1; page <= 7; ++page) {
        Frame1[page]->setObjectName(QString("Frame1_%1").arg(page));
        stack_->addWidget(Frame1[page]);
    }

    auto* buttons = new QHBoxLayout;
    CmdBack = new QPushButton("< Back");
    CmdBack->setObjectName("CmdBack");
    CmdNext = new QPushButton("Next >");
    CmdNext->setObjectName("CmdNext");
    CmdCancel = new QPushButton("Cancel");
    CmdCancel->setObjectName("CmdCancel");
    for (QPushButton* button : {CmdBack, CmdNext, CmdCancel}) {
        button->setMinimumWidth(96);
        button->setAutoDefault(false);
    }
    buttons->addStretch();
    buttons->addWidget(CmdBack);
    buttons->addWidget(CmdNext);
    buttons->addSpacing(12);
    buttons->addWidget(CmdCancel);
    outer->addLayout(buttons);
    for (QPushButton* button : {CmdBack, CmdNext, CmdCancel}) button->installEventFilter(this);
    connect(CmdNext, &QPushButton::clicked, this, &FrmWizard::CmdNextClick);
    connect(CmdBack, &QPushButton::clicked, this, &FrmWizard::CmdBackClick);
    connect(CmdCancel, &QPushButton::clicked, this, &FrmWizard::CmdCancelClick);
    connect(Check2, &QCheckBox::toggled, this, [this](bool on) { pageEnabled_[3] = pageEnabled_[5] = pageEnabled_[6] = on; });
    connect(Check3, &QCheckBox::toggled, this, [this](bool on) {
        pageEnabled_[1] = on;
        if (page_ == 2) CmdBack->setEnabled(on);
    });
    FitInsideScreen(*this, QSize(780, 540));
}

void FrmWizard::Load_Asignaturas() {
    app_.hub.ReadCatalogue();
    QStringList subjects;
    for (const std::string& line : app_.hub.CatalogueList()) {
        const auto colon = line.find(':');
        if (colon == std::string::npos) continue;
        const QString subject = Utf8Mid(line.substr(colon + 1), 6, 65).trimmed();
        if (!subjects.contains(subject) && subjects.size() < 99) subjects.append(subject);
    }
    while (subjects.size() > 15) subjects.removeLast();
    LstAsig->addItems(subjects);
    for (int i = 1; i <= subjects.size(); ++i) {
        const int column = (i - 1) % 3;
        const int row = (i - 1) / 3;
        const QString path = pictureFolder_ + "/" + subjects[i - 1] + ".jpg";
        auto* tile = new SubjectTile(subjects[i - 1], path, Frame1[2]);
        tile->setObjectName(QString("ImageASIG_%1").arg(i));
        tile->move(80 + 210 * column, 60 + 66 * row);
        tile->show();
        connect(tile, &SubjectTile::Clicked, this, [this, i] { ChooseSubject(i); });
        ImageASIG.push_back(tile);
    }
}

void FrmWizard::ChooseSubject(int index) {
    if (index < 1 || index > static_cast<int>(ImageASIG.size())) return;
    CmdNext->setEnabled(true);
    LstAsig->setCurrentRow(index - 1);
    const QRect tile = ImageASIG[index - 1]->geometry();
    ShaSelec->setGeometry(tile.adjusted(-4, -4, 4, 4));
    ShaSelec->show();
    ShaSelec->lower();
    LblAsig->setText(LstAsig->item(index - 1)->text());
}

void FrmWizard::SubjectKey(int key, bool shift) {
    const int count = static_cast<int>(ImageASIG.size());
    if (count == 0) return;
    int index = LstAsig->currentRow() + 1;
    if (key == Qt::Key_Backtab) shift = true;
    switch (key) {
        case Qt::Key_Right:
        case Qt::Key_PageDown:
            index = index >= count ? 1 : index + 1;
            break;
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            if (shift)
                index = index <= 1 ? count : index - 1;
            else
                index = index >= count ? 1 : index + 1;
            break;
        case Qt::Key_Left:
        case Qt::Key_PageUp:
            index = index <= 1 ? count : index - 1;
            break;
        case Qt::Key_Down:
            index += 3;
            if (index > count) {
                index %= 3;
                if (index == 0) index = 3;
                if (index > count) index = count;
            }
            break;
        case Qt::Key_Up:
            if (index - 3 >= 1) {
                index -= 3;
            } else {
                // The last row of the same column.
                const int column = (std::max(index, 1) - 1) % 3;
                index = column + 1;
                while (index + 3 <= count) index += 3;
                if (index > count) index = count;
                if (index < 1) index = 1;
            }
            break;
        case Qt::Key_Home:
            index = 1;
            break;
        case Qt::Key_End:
            index = count;
            break;
        default:
            return;
    }
    ChooseSubject(index);
}

// A key on the subject page: Enter and Space go on, the moving keys move in the grid.
// False for any other key.
bool FrmWizard::SubjectPageKey(int key, bool shift) {
    switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        if (CmdNext->isEnabled()) CmdNextClick();
        return true;
    case Qt::Key_Right:
    case Qt::Key_Left:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Home:
    case Qt::Key_End:
        SubjectKey(key, shift);
        return true;
    default:
        return false;
    }
}

bool FrmWizard::event(QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Escape) {
            CmdCancelClick();
            return true;
        }
        if (page_ == 2 && SubjectPageKey(key->key(), key->modifiers() & Qt::ShiftModifier)) return true;
    }
    if (event->type() == QEvent::ShortcutOverride && page_ == 2) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab) {
            event->accept();
            return true;
        }
    }
    return QDialog::event(event);
}

bool FrmWizard::eventFilter(QObject* watched, QEvent* event) {
    // The subject grid holds the focus on its page, so that its keys reach it before a
    // button or the focus chain takes them; a button clicked there passes them on too.
    const bool gridKeys = watched == Frame1[2] || watched == CmdNext || watched == CmdBack || watched == CmdCancel;
    if (gridKeys && page_ == 2) {
        if (event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress) {
            const int key = static_cast<QKeyEvent*>(event)->key();
            if (key == Qt::Key_Tab || key == Qt::Key_Backtab) {
                event->accept();
                if (event->type() == QEvent::ShortcutOverride) return true;
            }
            if (event->type() == QEvent::KeyPress) {
                if (key == Qt::Key_Escape) {
                    CmdCancelClick();
                    return true;
                }
                return SubjectPageKey(key, static_cast<QKeyEvent*>(event)->modifiers() & Qt::ShiftModifier);
            }
        }
    }
    for (int i = 0; i < 2; ++i) {
        if (watched != TxCan[i] || event->type() != QEvent::KeyPress) continue;
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            VScroll2[i]->setValue(VScroll2[i]->value() + (key == Qt::Key_Up ? 1 : -1));
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void FrmWizard::ShowPage(int page) {
    page_ = page;
    stack_->setCurrentWidget(Frame1[page]);
    if (page == 2) Frame1[2]->setFocus(Qt::OtherFocusReason);
}

void FrmWizard::CmdNextClick() {
    if (!CmdNext->isEnabled()) return;
    if (page_ == 4) {
        if (app_.Settings.ProblemCount >= 501) {
            warningBox("Too much problems. (Max: 500)");
            return;
        }
        if (controls->TxTITULO->text().isEmpty()) controls->TxTITULO->setText(GetDefaultTitle());
    }
    if (page_ == 7) {
        Finish();
        return;
    }
    int page = page_;
    do {
        ++page;
    } while (page < 7 && !pageEnabled_[page]);
    CmdNext->setText(page == 7 ? "Finish" : "Next >");
    ShowPage(page);
    CmdBack->setEnabled(!(page == 2 && !pageEnabled_[1]));
    ArriveForward();
}

void FrmWizard::ArriveForward() {
    switch (page_) {
        case 2:
            CmdNext->setEnabled(LstAsig->currentItem() != nullptr);
            break;
        case 3:
            CmdNext->setEnabled(ChkTIP[1]->isChecked() || ChkTIP[2]->isChecked() || ChkTIP[3]->isChecked() ||
                                ChkTIP[4]->isChecked());
            break;
        case 4: {
            const QString mask = QString::number(int(ChkTIP[1]->isChecked()) + 10 * int(ChkTIP[2]->isChecked()) +
                                                 100 * int(ChkTIP[3]->isChecked()) + 1000 * int(ChkTIP[4]->isChecked()));
            const QString subject = LstAsig->currentItem() ? LstAsig->currentItem()->text() : QString();
            if (subject + mask != treeSignature_) {
                treeSignature_ = subject + mask;
                LoadTOLISTBOX_BUILT_CODE(app_, subject.toStdString(), ChkTIP[1]->isChecked(), ChkTIP[2]->isChecked(),
                                         ChkTIP[3]->isChecked(), ChkTIP[4]->isChecked());
            }
            ArriveBack();
            break;
        }
        case 7:
            controls->TxTITULO->setFocus();
            break;
        default:
            break;
    }
}

void FrmWizard::ArriveBack() {
    if (page_ == 4) {
        CmdNext->setEnabled(TxTOT->text().toInt() != 0);
        Picture1->ActualizaTree();
        Picture1->SetCurrentRow(1);
        Picture1->setFocus();
        AE_ItemEXProyect();
    }
}

void FrmWizard::CmdBackClick() {
    if (page_ == 1 || (page_ == 2 && !pageEnabled_[1])) return;
    int page = page_;
    do {
        --page;
    } while (page > 1 && !pageEnabled_[page]);
    CmdNext->setText("Next >");
    CmdNext->setEnabled(true);
    ShowPage(page);
    if (page == 2) CmdNext->setEnabled(LstAsig->currentItem() != nullptr);
    if (page == 3) LblWarning->show();
    ArriveBack();
    const bool first = page == 1 || (page == 2 && !pageEnabled_[1]);
    CmdBack->setEnabled(!first);
}

void FrmWizard::Finish() {
    app_.SettingsAccepted = true;
    GuardarAjustes();
    accept();
}

void FrmWizard::CmdCancelClick() {
    app_.Settings = savedSettings_;
    app_.SettingsAccepted = false;
    QDialog::reject();
}

void FrmWizard::reject() { CmdCancelClick(); }

void FrmWizard::GuardarAjustes() {
    auto store = OpenSettingsStore();
    const CollectionSettings& s = app_.Settings;
    WriteSetting(*store, "Wizard", "Ordena", s.Sorted ? "S" : "N");
    WriteSetting(*store, "Wizard", "Solpos", QString::number(s.SolutionPosition));
    WriteSetting(*store, "Wizard", "Propre", QString::fromStdString(s.NumberPrefix));
    WriteSetting(*store, "Wizard", "Prosuf", QString::fromStdString(s.NumberSuffix));
    WriteSetting(*store, "Wizard", "Pagpos", QString::number(s.PagePositionCode));
    WriteSetting(*store, "Wizard", "Procol", QString::number(s.NumberColour));
    WriteSetting(*store, "Wizard", "Asignatura", LstAsig->currentItem() ? LstAsig->currentItem()->text() : QString());
    WriteSetting(*store, "Wizard", "Showini", Check3->isChecked() ? "S" : "N");
    WriteSetting(*store, "Wizard", "Showavan", Check2->isChecked() ? "S" : "N");
    store->sync();
}

void FrmWizard::RECUENTA() {
    int total = 0;
    for (const TopicNode& node : app_.TopicTree)
        if (node.selected) total += node.amount;
    app_.Settings.ProblemCount = total;
    TxTOT->setText(QString::number(total));
}

void FrmWizard::ActualizaTree() { Picture1->ActualizaTree(); }

void FrmWizard::AE_ItemEXProyect() {
    const int nodeIndex = Picture1->CurrentNode();
    loadingPanel_ = true;
    auto hideAmounts = [this] {
        for (int i = 0; i < 2; ++i) {
            LblCan[i]->hide();
            TxCan[i]->hide();
            VScroll2[i]->hide();
        }
    };
    if (nodeIndex < 0) {
        ImageProgre->hide();
        LblDescription->clear();
        hideAmounts();
    } else {
        TopicNode& node = app_.TopicTree[nodeIndex];
        const QString description = QString::fromStdString(node.description);
        if (description.startsWith("&DP")) {
            ImageProgre->show();
            LblDescription->setText(description.mid(3));
        } else {
            ImageProgre->hide();
            LblDescription->setText(description);
        }
        if (!node.isFolder && node.selected) {
            LblCan[0]->show();
            TxCan[0]->show();
            VScroll2[0]->show();
            if (node.amount == 0) node.amount = 1;
            VScroll2[0]->setValue(node.amount);
            TxCan[0]->setText(QString::number(node.amount));
            if (node.kind == kNodeQuestions || node.kind == kNodeExercises) {
                if (node.itemsPerProblem == 0) node.itemsPerProblem = 6;
                LblCan[1]->setText(node.kind == kNodeQuestions ? "N\u00BA of question for each one"
                                                               : "N\u00BA of exercises for each one");
                LblCan[1]->show();
                TxCan[1]->show();
                VScroll2[1]->show();
                VScroll2[1]->setValue(std::clamp(node.itemsPerProblem, 1, 99));
                TxCan[1]->setText(QString::number(node.itemsPerProblem));
            } else {
                LblCan[1]->hide();
                TxCan[1]->hide();
                VScroll2[1]->hide();
            }
        } else {
            hideAmounts();
        }
    }
    loadingPanel_ = false;
    RECUENTA();
}

void FrmWizard::TxCanChanged(int index) {
    bool ok = false;
    int value = TxCan[index]->text().toInt(&ok);
    if (ok && value >= 1 && value <= 99) {
        VScroll2[index]->setValue(value);
    } else {
        value = VScroll2[index]->value();
        TxCan[index]->setText(QString::number(value));
        return;  // the new text comes back through here
    }
    const int nodeIndex = Picture1->CurrentNode();
    if (nodeIndex < 0 || app_.TopicTree[nodeIndex].isFolder) return;
    TopicNode& node = app_.TopicTree[nodeIndex];
    if (index == 0) {
        node.amount = value;
        if (!loadingPanel_) RECUENTA();
    } else {
        if (node.itemsMax > 0 && value > node.itemsMax) {
            value = node.itemsMax;
            TxCan[1]->setText(QString::number(value));
            return;
        }
        node.itemsPerProblem = value;
    }
}

QString FrmWizard::GetDefaultTitle() const {
    const auto& tree = app_.TopicTree;
    QString word;
    for (const TopicNode& node : tree) {
        if (node.kind < 1 || node.kind > 4 || !node.selected) continue;
        switch (node.kind) {
            case 1: word = (word.isEmpty() || word == "Questions") ? "Questions" : "Problems"; break;
            case 2: word = (word.isEmpty() || word == "Exercises") ? "Exercises" : "Problems"; break;
            case 3: word = "Problems"; break;
            default: word = "Theory"; break;
        }
    }
    QString topic;
    for (int i = 0; i < static_cast<int>(tree.size()); ++i) {
        const TopicNode& node = tree[i];
        if (node.kind < 1 || node.kind > 4 || !node.selected) continue;
        int folder = i - 1;
        while (folder >= 0 && !tree[folder].isFolder) --folder;
        if (folder < 0) continue;
        const QString label = QString::fromStdString(tree[folder].label);
        if (!topic.isEmpty() && topic != label)
            return word + " of " + (tree.empty() ? QString() : QString::fromStdString(tree[0].label));
        topic = label;
    }
    return word + " of " + topic;
}
