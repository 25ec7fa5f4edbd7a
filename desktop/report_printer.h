// Prints a report on one A4 page.
// What it says is the form's that made it, where its lines stand the report's.
#pragma once

#include "runtime/outside.h"

#include <QString>

namespace cijferwerf {

// Prints on the default printer, or, where a file is named, writes that file as PDF.
print_result print_report(const report& printed, const QString& pdf_file = {});

} // namespace cijferwerf
