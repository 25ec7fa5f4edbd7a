#include "desktop/report_printer.h"

#include <QLibrary>
#include <QPrinter>
#include <QPrinterInfo>

#include <optional>

namespace cijferwerf {

namespace {

constexpr double millimetres_margin = 15;
constexpr double twips_per_inch = 1440;

// Why the print queue did not take the job that was sent last; nothing where it did, or where none can be asked. The
// toolkit sends a job and does not look whether it was taken, but the library that it sends it with remembers.
std::optional<std::string> refusal() {
    QLibrary queues("cups", 2);
    const auto last_error = reinterpret_cast<int (*)()>(queues.resolve("cupsLastError"));
    const auto last_words = reinterpret_cast<const char* (*)()>(queues.resolve("cupsLastErrorString"));
    constexpr int first_that_is_no_success = 0x100;
    constexpr int not_accepting_jobs = 0x506;
    if (last_error == nullptr || last_words == nullptr || last_error() < first_that_is_no_success) return std::nullopt;
    return last_error() == not_accepting_jobs ? "de printer neemt nu geen opdrachten aan." : last_words();
}

print_result print(const page_to_print& page) {
    using outcome = print_result::outcome;
    QPrinter printer(QPrinter::HighResolution);
    if (!page.pdf_file.isEmpty()) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(page.pdf_file);
    } else {
        const QPrinterInfo standard = QPrinterInfo::defaultPrinter();
        if (standard.isNull()) return {outcome::no_printer, {}};
        printer.setPrinterName(standard.printerName());
        if (!printer.isValid())
            return {outcome::failed, "de printer " + standard.printerName().toStdString() + " antwoordt niet."};
    }
    printer.setDocName(page.title);
    printer.setPageLayout(
        QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                    QMarginsF(millimetres_margin, millimetres_margin, millimetres_margin, millimetres_margin),
                    QPageLayout::Millimeter));

    QPainter on;
    if (!on.begin(&printer)) return {outcome::failed, "de printer kan niet worden geopend."};
    page.paint(on, printer.logicalDpiX() / twips_per_inch);
    if (!on.end() || printer.printerState() == QPrinter::Error) return {outcome::failed, "de printer meldt een fout."};
    if (const auto reason = page.pdf_file.isEmpty() ? refusal() : std::nullopt) return {outcome::failed, *reason};
    return {};
}

} // namespace
} // namespace cijferwerf

void print_page(const cijferwerf::page_to_print& page, cijferwerf::print_result& result) {
    result = cijferwerf::print(page);
}
