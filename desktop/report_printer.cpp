#include "desktop/report_printer.h"

#include "desktop/shipped.h"
#include "desktop/theme.h"

#include <QLibrary>

namespace cijferwerf {

print_result print_report(const report& printed, const QString& pdf_file) {
    QLibrary module(shipped_file("cijferwerf_printer.so"));
    const auto print = reinterpret_cast<print_page_function*>(module.resolve("print_page"));
    print_result result{print_result::outcome::failed, "het deel dat afdrukt ontbreekt."};
    if (print != nullptr)
        print({QString::fromStdString(printed.title), pdf_file,
               [&](QPainter& on, double twip) {
                   picture_cache none;
                   theme::paint(on, scene_of(printed), {}, twip, none);
               }},
              result);
    return result;
}

} // namespace cijferwerf
