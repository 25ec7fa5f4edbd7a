// Prints one A4 page that its caller paints, with the toolkit's printing: a module of its own, loaded when something is
// printed, as that library would cost every start more than all else that a bare window does without.
// What is painted is the caller's.
#pragma once

#include "runtime/outside.h"

#include <QPainter>

#include <functional>

namespace cijferwerf {

struct page_to_print {
    QString title;
    QString pdf_file;                                       // empty: the default printer
    std::function<void(QPainter& on, double twip)> painted; // a twip is so many of the painter's coordinates
};

} // namespace cijferwerf

// The module's one entry.
using print_page_function = void(const cijferwerf::page_to_print& page, cijferwerf::print_result& result);
extern "C" print_page_function print_page;
