// What is shipped with the program: files that are read at run time, its icon, and its face for a machine without one.
// What is drawn with them is others' business.
#pragma once

#include "runtime/look.h"

#include <QIcon>
#include <QStringList>

namespace cijferwerf {

// Faces of the same widths, for which all texts are laid out; the best one first.
inline const QStringList faces(look::font_families.begin(), look::font_families.end());

// Where a shipped file is: beside the program, else in share/cijferwerf or libexec/cijferwerf beside the program's
// folder. A file that is nowhere gets a path all the same.
QString shipped_file(const QString& name);

QIcon program_icon();

// Brings in the first of the faces when the machine has none of them, so that no text is cut.
void load_shipped_face();

} // namespace cijferwerf
