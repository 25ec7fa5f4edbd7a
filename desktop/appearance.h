// What the desktop asks of every program: high contrast, larger text. Read after the first screen stands, so that the
// start does not wait for it, and again each time the program comes to the front.
// What follows from it is the look's.
#pragma once

#include "runtime/look.h"

#include <QMap>
#include <QVariantMap>

namespace cijferwerf {

// None of it until it has been read.
look_settings desktop_settings();

// Asks the desktop (its settings portal, and the environment) from now on; changed() runs when it asks for something
// else than before.
void follow_desktop_settings(std::function<void()> changed);

// The settings of a desktop by group and name, as its portal gives them.
using portal_settings = QMap<QString, QVariantMap>;
look_settings settings_from(const portal_settings& read, const QByteArray& theme_in_environment);

} // namespace cijferwerf
