// What a front end showed of a control last, to be compared with what it must show now.
// Copying the difference to a widget is the front end's.
#pragma once

#include "runtime/look.h"

namespace cijferwerf {

struct shown_state {
    place at;
    bool visible, enabled;
    std::string caption, accessible_name, description;
    char mnemonic;
    std::vector<std::string> items;
    int selected; // an option: 1 when it is chosen, 0 when it is not
    scene face;   // at rest, a list with its rows; a picture is drawn anew after each event
    bool operator==(const shown_state&) const = default;
};

shown_state state_of(const form& on, const control& shown, look_settings with);

} // namespace cijferwerf
