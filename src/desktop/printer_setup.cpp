#include "desktop/printer_setup.h"

#include "desktop/arrow_pointer.h"
#include "desktop/printing.h"

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

namespace tav {
namespace {

struct Choice {
    QString Printer;  // its name; empty: the system's own
    bool ToFile = false;
};

Choice& TheChoice() {
    static Choice choice;
    return choice;
}

class SetupDialog : public QDialog {
  public:
    SetupDialog(int orientation, QWidget* parent) : QDialog(parent) {
        setWindowTitle(QStringLiteral("Printer Setup"));
        FillPrinters();
        (orientation == 0 ? portrait_ : landscape_)->setChecked(true);
        auto* const orientations = new QVBoxLayout;
        orientations->addWidget(portrait_);
        orientations->addWidget(landscape_);
        auto* const rows = new QFormLayout;
        rows->addRow(QStringLiteral("&Printer:"), printers_);
        rows->addRow(QStringLiteral("Paper:"),
                     new QLabel(QStringLiteral("Letter, 8.5 by 11 inches"), this));
        rows->addRow(QStringLiteral("Orientation:"), orientations);
        auto* const buttons =
            new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
        connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        auto* const column = new QVBoxLayout(this);
        column->addLayout(rows);
        column->addSpacing(8);
        column->addWidget(buttons);
        column->setSizeConstraint(QLayout::SetFixedSize);
    }

    int Orientation() const { return landscape_->isChecked() ? 1 : 0; }

    Choice Chosen() const {
        const bool toFile =
            printers_->count() > 1 && printers_->currentIndex() == printers_->count() - 1;
        return {toFile ? TheChoice().Printer : printers_->currentText(), toFile};
    }

  private:
    // The file is the last entry.
    void FillPrinters() {
        printers_->addItems(QPrinterInfo::availablePrinterNames());
        printers_->addItem(QStringLiteral("PDF file"));
        printers_->setMinimumContentsLength(30);
        const int shown = PrintsToFile() ? printers_->count() - 1
                                         : printers_->findText(ChosenPrinter().printerName());
        printers_->setCurrentIndex(std::max(shown, 0));
    }

    QComboBox* printers_ = new QComboBox(this);
    QRadioButton* portrait_ = new QRadioButton(QStringLiteral("P&ortrait"), this);
    QRadioButton* landscape_ = new QRadioButton(QStringLiteral("&Landscape"), this);
};

}  // namespace

QPrinterInfo ChosenPrinter() {
    const QPrinterInfo chosen = QPrinterInfo::printerInfo(TheChoice().Printer);
    if (!chosen.isNull()) return chosen;
    const QPrinterInfo own = QPrinterInfo::defaultPrinter();
    const QStringList names = QPrinterInfo::availablePrinterNames();
    return own.isNull() && !names.isEmpty() ? QPrinterInfo::printerInfo(names.front()) : own;
}

bool PrintsToFile() {
    return TheChoice().ToFile || QPrinterInfo::availablePrinterNames().isEmpty();
}

int ShowPrinterSetup(int orientation, QWidget* parent) {
    const ArrowPointer arrow;
    SetupDialog dialog(orientation, parent);
    if (dialog.exec() != QDialog::Accepted) return orientation;
    TheChoice() = dialog.Chosen();
    return dialog.Orientation();
}

}  // namespace tav
