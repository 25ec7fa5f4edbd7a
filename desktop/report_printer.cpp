#include "desktop/report_printer.h"

#include "desktop/theme.h"

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

} // namespace

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
            return {outcome::failed, "de printer " + standard.printerName().toStdString() + " antwoordt niet."};
    }
    printer.setDocName(QString::fromStdString(printed.title));
    printer.setPageLayout(
        QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                    QMarginsF(millimetres_margin, millimetres_margin, millimetres_margin, millimetres_margin),
                    QPageLayout::Millimeter));

    QPainter on;
    if (!on.begin(&printer)) return {outcome::failed, "de printer kan niet worden geopend."};
    picture_cache none;
    theme::paint(on, scene_of(printed), {}, printer.logicalDpiX() / twips_per_inch, none);
    if (!on.end() || printer.printerState() == QPrinter::Error) return {outcome::failed, "de printer meldt een fout."};
    if (const auto reason = pdf_file.isEmpty() ? refusal() : std::nullopt) return {outcome::failed, *reason};
    return {};
}

} // namespace cijferwerf
