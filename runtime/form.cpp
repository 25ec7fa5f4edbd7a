#include "runtime/form.h"

namespace cijferwerf {

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

bool form::press(char key) {
    for (control* pressed : controls_)
        if (pressed->visible && pressed->enabled && pressed->click && pressed->keys.find(key) != std::string::npos) {
            pressed->click();
            return true;
        }
    return false;
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
