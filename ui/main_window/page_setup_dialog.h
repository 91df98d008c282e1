#pragma once
#include <QDialog>
#include <QLocale>

#include "core/page_setup.h"

class FormMain;
class QComboBox;

// The paper a locale expects: US Letter where the US measures are used, A4 elsewhere.
PaperSize DefaultPaper(const QLocale& locale);
// The page setup kept in the program's settings ("Page/Paper", "Page/NameLine"); a missing
// or unknown paper is the default locale's.
PageSetup ReadPageSetup();
void WritePageSetup(const PageSetup& setup);

// Paper and name line, for every collection the program shows, prints and exports.
class PageSetupDialog : public QDialog {
    Q_OBJECT
public:
    PageSetupDialog(const PageSetup& setup, QWidget* parent = nullptr);
    PageSetup Chosen() const;

private:
    QComboBox* paper_;
    QComboBox* nameLine_;
};

// Takes a new page setup: kept in the settings, and the collection in the window composed
// again for it (an unchanged collection stays unchanged: the file does not hold it).
void ApplyPageSetup(FormMain& form, const PageSetup& setup);
// File > Page setup...: the dialog, then ApplyPageSetup when accepted.
void PageSetupCommand(FormMain& form);
