// Prints a report on one A4 page. The toolkit's printing is in a module of its own, loaded when something is printed:
// its library would cost every start more than all else that a bare window does without. What the report says is the
// form's that made it, where its lines stand the report's.
#pragma once

#include "runtime/outside.h"

#include <QPainter>

#include <functional>

namespace cijferwerf {

// Prints on the default printer, or, where a file is named, writes that file as PDF.
print_result print_report(const report& printed, const QString& pdf_file = {});

// What the module gets, and its one entry.
struct page_to_print {
    QString title, pdf_file;
    std::function<void(QPainter& on, double twip)> paint; // a twip is so many of the painter's coordinates
};
using print_page_function = void(const page_to_print& page, print_result& result);

} // namespace cijferwerf

extern "C" cijferwerf::print_page_function print_page;
