#include "runtime/shown_state.h"

namespace cijferwerf {

shown_state state_of(const form& on, const control& shown, look_settings with) {
    shown_state now{{shown.left, shown.top, shown.width, shown.height},
                    shown.visible,
                    shown.enabled,
                    shown.caption,
                    shown.accessible_name,
                    shown.description,
                    shown.mnemonic,
                    {},
                    0,
                    full_face_of(on, shown, with)};
    if (shown.kind == control_kind::list_box) {
        now.items = static_cast<const list_box&>(shown).items;
        now.selected = static_cast<const list_box&>(shown).selected;
    }
    if (shown.kind == control_kind::option_button) now.selected = static_cast<const option_button&>(shown).selected;
    return now;
}

} // namespace cijferwerf
