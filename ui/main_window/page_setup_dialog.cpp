#include "ui/main_window/page_setup_dialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QSettings>
#include <QVBoxLayout>

#include "core/composition.h"
#include "ui/main_window/form_main.h"

namespace {
const char* kSettingsStore = "Sumforge RUQ7";

QSettings Store() { return QSettings(QSettings::IniFormat, QSettings::UserScope, kSettingsStore, kSettingsStore); }
} // namespace

PaperSize DefaultPaper(const QLocale& locale) {
    return locale.measurementSystem() == QLocale::ImperialUSSystem ? PaperSize::Letter : PaperSize::A4;
}

PageSetup ReadPageSetup() {
    QSettings settings = Store();
    PageSetup setup;
    if (!ReadPaperName(settings.value("Page/Paper").toString().toStdString(), setup.paper))
        setup.paper = DefaultPaper(QLocale());
    const int place = settings.value("Page/NameLine", 0).toInt();
    setup.nameLine = place == 1 ? NameLinePlace::FirstPage : place == 2 ? NameLinePlace::EveryPage : NameLinePlace::None;
    return setup;
}

void WritePageSetup(const PageSetup& setup) {
    QSettings settings = Store();
    settings.setValue("Page/Paper", QString::fromStdString(PaperName(setup.paper)));
    settings.setValue("Page/NameLine", static_cast<int>(setup.nameLine));
    settings.sync();
}

PageSetupDialog::PageSetupDialog(const PageSetup& setup, QWidget* parent) : QDialog(parent) {
    setObjectName("FrmPageSetup");
    setWindowTitle("Page setup");
    auto* form = new QFormLayout;
    paper_ = new QComboBox(this);
    paper_->setObjectName("CboPaper");
    paper_->addItem("A4 (210 \u00D7 297 mm)");
    paper_->addItem("US Letter (8.5 \u00D7 11 in)");
    paper_->setCurrentIndex(setup.paper == PaperSize::Letter ? 1 : 0);
    nameLine_ = new QComboBox(this);
    nameLine_->setObjectName("CboNameLine");
    nameLine_->addItem("None");
    nameLine_->addItem("Under the title of the first page");
    nameLine_->addItem("Under the title of every page");
    nameLine_->setCurrentIndex(static_cast<int>(setup.nameLine));
    form->addRow("Paper:", paper_);
    form->addRow("Name line:", nameLine_);
    auto* hint = new QLabel(QString("The name line reads \u201C") + kNameLineText +
                                "\u201D. Both are settings of the program, not of the collection file.",
                            this);
    hint->setWordWrap(true);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(hint);
    layout->addWidget(buttons);
}

PageSetup PageSetupDialog::Chosen() const {
    PageSetup setup;
    setup.paper = paper_->currentIndex() == 1 ? PaperSize::Letter : PaperSize::A4;
    const int place = nameLine_->currentIndex();
    setup.nameLine = place == 1 ? NameLinePlace::FirstPage : place == 2 ? NameLinePlace::EveryPage : NameLinePlace::None;
    return setup;
}

void ApplyPageSetup(FormMain& form, const PageSetup& setup) {
    ApplicationState& app = form.App();
    WritePageSetup(setup);
    if (app.Page == setup) return;
    app.Page = setup;
    form.ResizeHandler();
    if (app.ProblemCount() == 0 || app.BlockCount == 0) return;
    const bool modified = app.Modified;
    ComposeDocument(app, true, 0);
    app.Modified = modified;
}

void PageSetupCommand(FormMain& form) {
    PageSetupDialog dialog(form.App().Page, &form);
    if (dialog.exec() != QDialog::Accepted) return;
    ApplyPageSetup(form, dialog.Chosen());
}
