#include "runtime/form.h"

namespace cijferwerf {

namespace {

bool keeps_enter(const control& focused) {
    return focused.kind == control_kind::option_button ? !static_cast<const option_button&>(focused).selected
           : focused.kind == control_kind::button      ? static_cast<const button&>(focused).keeps_enter
                                                       : false;
}

} // namespace

void form::show() {
    if (!loaded_) {
        loaded_ = true;
        load();
    }
    buiten.show(*this);
}

void form::open() {
    show();
    activate();
}

void form::unload() {
    if (!loaded_) return;
    loaded_ = false;
    buiten.unload(*this);
}

void form::press(control& pressed) {
    if (!pressed.usable()) return;
    if (pressed.kind == control_kind::option_button) {
        for (control* other : controls_)
            if (other->kind == control_kind::option_button)
                static_cast<option_button*>(other)->selected = other == &pressed;
        focus = &pressed;
    }
    if (pressed.click) pressed.click();
}

bool form::key(char pressed, control* focused) {
    const bool enter = pressed == '\r';
    if (enter && focused != nullptr && focused->kind == control_kind::list_box) {
        const auto& list = static_cast<const list_box&>(*focused);
        if (list.usable() && list.keypress) list.keypress(list_box::enter_key);
        return true;
    }
    if (enter && focused != nullptr && focused->usable() && keeps_enter(*focused)) {
        press(*focused);
        return true;
    }
    for (control* listed : controls_)
        if (listed->usable() && listed->keys.find(pressed) != std::string::npos) {
            press(*listed);
            return true;
        }
    if (focused == nullptr || !focused->usable() || focused->kind == control_kind::list_box) return false;
    if (enter || pressed == ' ') press(*focused);
    return enter || pressed == ' ';
}

void form::put(control& moved, place at) {
    moved.left = at.left;
    moved.top = at.top;
    moved.width = at.width;
    moved.height = at.height;
}

void form::add(control& added, std::string control_name, place at, theme_role role, std::string control_caption) {
    added.name = std::move(control_name);
    put(added, at);
    added.role = role;
    added.caption = std::move(control_caption);
    controls_.push_back(&added);
}

void form::add(timer& added, std::string control_name, int interval_ms) {
    added.name = std::move(control_name);
    added.interval = interval_ms;
    controls_.push_back(&added);
}

} // namespace cijferwerf
