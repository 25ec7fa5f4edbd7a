#include "desktop/report_printer.h"

#include "desktop/picture_painter.h"

#include <QFontMetricsF>
#include <QPrinter>
#include <QPrinterInfo>

namespace cijferwerf {

namespace {

constexpr double millimetres_margin = 15;
constexpr double twips_per_inch = 1440;

} // namespace

void paint_report(QPainter& on, const report& printed) {
    double top = 0;
    for (const report_line& line : printed.lines) {
        const QFont font = twip_font(line.size);
        const QFontMetricsF metrics(font);
        on.setFont(font);
        for (const report_cell& cell : line.cells)
            on.drawText(QPointF(cell.column * metrics.averageCharWidth(), top + metrics.ascent()),
                        QString::fromStdString(cell.text));
        top += metrics.lineSpacing();
    }
}

print_result print_report(const report& printed, const QString& pdf_file) {
    using outcome = print_result::outcome;
    QPrinter printer(QPrinter::HighResolution);
    if (!pdf_file.isEmpty()) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(pdf_file);
    } else {
        const QPrinterInfo standard = QPrinterInfo::defaultPrinter();
        if (standard.isNull()) return {outcome::no_printer, {}};
        printer.setPrinterName(standard.printerName());
        if (!printer.isValid())
            return {outcome::failed, "De printer " + standard.printerName().toStdString() + " antwoordt niet."};
    }
    printer.setDocName(QString::fromStdString(printed.title));
    printer.setPageLayout(
        QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                    QMarginsF(millimetres_margin, millimetres_margin, millimetres_margin, millimetres_margin),
                    QPageLayout::Millimeter));

    QPainter on;
    if (!on.begin(&printer)) return {outcome::failed, "De printer kan niet worden geopend."};
    on.scale(printer.logicalDpiX() / twips_per_inch, printer.logicalDpiY() / twips_per_inch);
    paint_report(on, printed);
    if (!on.end() || printer.printerState() == QPrinter::Error) return {outcome::failed, "De printer meldt een fout."};
    return {};
}

} // namespace cijferwerf
