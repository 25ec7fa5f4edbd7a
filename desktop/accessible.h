// What assistive technology is told of the screens: what each widget is, its name and description, what belongs to
// what, and announcements. The words are the core's (runtime/spoken.h) and the forms'; this only passes them on.
#pragma once

#include "desktop/form_page.h"

namespace cijferwerf {

// From now on the widgets of pages say what they are; call it when the application has been made.
void install_accessibility();

// Gives a widget the name and the description that its control has now.
void tell(QWidget& widget, const control& shown);

// Has a screen reader say this, whatever the focus is on.
void announce(QWidget& page, const std::string& text);

} // namespace cijferwerf
