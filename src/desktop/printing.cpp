#include "desktop/printing.h"

#include "core/platform.h"
#include "desktop/arrow_pointer.h"
#include "desktop/page_painter.h"
#include "desktop/pdf_file.h"
#include "desktop/printer_setup.h"
#include "desktop/text.h"

#include <QApplication>
#include <QPageLayout>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>
#include <numeric>

namespace tav {
namespace {

constexpr double kTwipsPerInch = 1440;

const ReportPage& PageOf(const ReportDocument& document, int page) {
    return document.Pages.at(static_cast<std::size_t>(page - 1));
}

void Lay(QPrinter& printer, const ReportPage& page) {
    printer.setPageOrientation(page.Orientation == 0 ? QPageLayout::Portrait
                                                     : QPageLayout::Landscape);
}

// Paper that is smaller than the page takes the page on a smaller scale, in the middle.
void PaintOnPaper(QPainter& painter, const QPrinter& printer, const ReportPage& page) {
    const QRectF paper = printer.paperRect(QPrinter::DevicePixel);
    const double perTwip = printer.resolution() / kTwipsPerInch;
    const double fit = std::min(
        {1.0, paper.width() / (page.Width * perTwip), paper.height() / (page.Height * perTwip)});
    const double scale = perTwip * fit;
    painter.save();
    if (fit < 1) {
        painter.translate((paper.width() - page.Width * scale) / 2,
                          (paper.height() - page.Height * scale) / 2);
    }
    painter.scale(scale, scale);
    PaintInk(painter, page);
    painter.restore();
}

std::vector<int> AllPages(const ReportDocument& document) {
    std::vector<int> pages(document.Pages.size());
    std::iota(pages.begin(), pages.end(), 1);
    return pages;
}

// A printer that is given the ranges of the pages picks them itself.
std::vector<int> PagesFor(const QPrinter& printer, const ReportDocument& document) {
    const QPageRanges ranges = printer.pageRanges();
    const bool chosenHere = printer.printRange() == QPrinter::PageRange ||
                            printer.outputFormat() == QPrinter::PdfFormat;
    std::vector<int> pages = AllPages(document);
    if (chosenHere && !ranges.isEmpty()) {
        std::erase_if(pages, [&](int page) { return !ranges.contains(page); });
    }
    return pages;
}

// In the order in which they are to come out, and each as often as it is wanted where the printer
// makes no copies itself.
std::vector<int> InOrder(std::vector<int> pages, const QPrinter& printer) {
    if (printer.pageOrder() == QPrinter::LastPageFirst) std::reverse(pages.begin(), pages.end());
    const int copies = printer.supportsMultipleCopies() ? 1 : std::max(printer.copyCount(), 1);
    const std::size_t block = printer.collateCopies() ? pages.size() : 1;
    std::vector<int> all;
    for (std::size_t at = 0; at < pages.size(); at += block) {
        for (int copy = 0; copy < copies; ++copy)
            for (std::size_t i = at; i < at + block; ++i)
                all.push_back(pages[i]);
    }
    return all;
}

ReportDocument PartOf(const ReportDocument& document, const std::vector<int>& pages) {
    ReportDocument part;
    part.Title = document.Title;
    for (const int page : pages)
        part.Pages.push_back(PageOf(document, page));
    return part;
}

void TellThatItCantPrint(const QPrinter& printer) {
    ThePlatform().ShowMessage(
        {"The report could not be printed.\r\rPrinter:  " + FromQt(printer.printerName()) +
             "\r\rMake sure that the printer is connected and switched on, or choose another one "
             "or a PDF file with Printer Setup, and print the report again.",
         "Report Not Printed", MessageIcon::Critical});
}

void AskAndPrint(const ReportDocument& document) {
    QPrinter printer(ChosenPrinter(), QPrinter::HighResolution);
    printer.setDocName(ToQt(document.Title));
    printer.setPageSize(QPageSize(QPageSize::Letter));
    Lay(printer, document.Pages.front());
    QPrintDialog dialog(&printer, QApplication::activeWindow());
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintPageRange |
                      QAbstractPrintDialog::PrintCollateCopies);
    dialog.setMinMax(1, document.PageCount());
    dialog.setFromTo(1, document.PageCount());
    dialog.setPrintRange(QAbstractPrintDialog::AllPages);
    if (dialog.exec() != QDialog::Accepted) return;
    const std::vector<int> pages = PagesFor(printer, document);
    if (pages.empty()) return;
    if (printer.outputFormat() == QPrinter::PdfFormat) {
        SavePdf(PartOf(document, pages), printer.outputFileName());
    } else if (!PrintPages(printer, document, InOrder(pages, printer))) {
        TellThatItCantPrint(printer);
    }
}

}  // namespace

bool PrintPages(QPrinter& printer, const ReportDocument& document, const std::vector<int>& pages) {
    printer.setFullPage(true);
    QPainter painter;
    for (const int number : pages) {
        const ReportPage& page = PageOf(document, number);
        Lay(printer, page);
        const bool ready = painter.isActive() ? printer.newPage() : painter.begin(&printer);
        if (!ready) return false;
        PaintOnPaper(painter, printer, page);
    }
    return painter.end() && printer.printerState() != QPrinter::Error;
}

void PrintReport(const std::shared_ptr<const ReportDocument>& document) {
    if (!document || document->Pages.empty()) return;
    const ArrowPointer arrow;
    if (PrintsToFile()) {
        AskAndSavePdf(*document);
    } else {
        AskAndPrint(*document);
    }
}

}  // namespace tav
