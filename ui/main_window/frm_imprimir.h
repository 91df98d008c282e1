#pragma once
#include <QDialog>
#include <array>
#include <functional>
#include <string>

class QComboBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QCheckBox;
class QScrollBar;
class QPushButton;
class QTabWidget;

inline constexpr int kPageFlagCount = 199;
// The entry that is always offered, so that printing is never impossible.
inline constexpr const char* kPdfPrinterName = "PDF file";

// Shared between the print dialog and the print command.
struct PrintOptions {
    bool accepted = false;
    bool collate = false;
    int copies = 1;
    std::array<bool, kPageFlagCount> pageFlags{};
};

// Reads the page list ("1, 3-5, 9"): sets the flags of the pages it names. False when a
// part names a page outside 1..199 (a part "5-" reads its end as 0). The text is trimmed
// by the caller and isn't empty.
bool ReadPageList(const std::string& text, std::array<bool, kPageFlagCount>& flags);

// The print dialog: printer, pages, copies and collation.
class FrmImprimir : public QDialog {
    Q_OBJECT
public:
    // printers: device names in the system's order, the PDF entry last; current: the
    // program's printer.
    FrmImprimir(PrintOptions& options, int currentPage, const QStringList& printers, const QString& current,
                QWidget* parent = nullptr);

    // Message boxes and the beep; tests replace them.
    std::function<void(const QString& text, const QString& title)> message;
    std::function<void()> beep;
    // Called with the printer chosen in Combo1.
    std::function<void(const QString& device)> printerChosen;

    QString ChosenPrinter() const;

    void CmdImprimirClick();
    void CmdCancelarClick();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Text1Changed();
    void ShowCollatePicture();

    PrintOptions& options_;
    int currentPage_;
    QTabWidget* tabs_;
    QComboBox* combo1_;
    QLabel* label2_;
    QRadioButton* option1_;
    QRadioButton* option2_;
    QRadioButton* option3_;
    QLineEdit* text1_;
    QLineEdit* text2_;
    QScrollBar* vscroll1_;
    QCheckBox* chkCollate_;
    QLabel* imgCollate_;
    bool syncing_ = false;
};
