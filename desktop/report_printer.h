// Prints a report: sets its lines at character columns on one A4 page.
// What the report says is the form's that made it.
#pragma once

#include "runtime/outside.h"

#include <QPainter>

namespace cijferwerf {

// Paints the report from (0, 0) down, in a coordinate system of twips (1/1440 inch).
void paint_report(QPainter& on, const report& printed);

// Prints on the default printer, or, where a file is named, writes that file as PDF.
print_result print_report(const report& printed, const QString& pdf_file = {});

} // namespace cijferwerf
