#include "runtime/form.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <limits>
#include <utility>

namespace cijferwerf {

namespace {

bool is_arrow(char key) {
    return key == keys::left || key == keys::right || key == keys::up || key == keys::down || key == keys::home ||
           key == keys::end;
}

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

bool form::key(char pressed, control* focused, bool with_alt) {
    if (with_alt) {
        const auto meant = std::ranges::find_if(controls_, [pressed](const control* each) {
            return each->usable() && each->mnemonic != 0 && std::toupper(each->mnemonic) == pressed;
        });
        if (meant != controls_.end()) press(**meant);
        return meant != controls_.end();
    }
    const bool enter = pressed == keys::enter;
    if (enter && focused != nullptr && focused->kind == control_kind::list_box) {
        const auto& list = static_cast<const list_box&>(*focused);
        if (list.usable() && list.keypress) list.keypress(list_box::enter_key);
        return true;
    }
    if (enter && focused != nullptr && focused->usable() && keeps_enter(*focused)) {
        press(*focused);
        return true;
    }
    if (focused != nullptr && focused->is_button() && is_arrow(pressed)) {
        control* const next = arrow(pressed, *focused);
        if (next != nullptr && next->kind == control_kind::option_button && focused->kind == next->kind)
            press(*next);
        else if (next != nullptr)
            focus = next;
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

// The nearest in the direction of the arrow, or null at the edge; from an element of an array one of that array, from
// an option another option, and from any other button any button.
control* form::arrow(char pressed, const control& from) const {
    const auto across = [](const control& c) { return 2 * c.left + c.width; };
    const auto down = [](const control& c) { return 2 * c.top + c.height; };
    control* nearest = nullptr;
    int nearest_cost = 0;
    for (control* each : controls_) {
        if (each == &from || !each->usable() || !each->is_button()) continue;
        if (from.index ? each->name != from.name : from.kind == control_kind::option_button && each->kind != from.kind)
            continue;
        const int right = across(*each) - across(from), below = down(*each) - down(from);
        const int earlier = from.index.value_or(0) - each->index.value_or(0); // of the same array, or else 0
        int along = 0, aside = 0;
        switch (pressed) {
        case keys::left: along = -right, aside = below; break;
        case keys::right: along = right, aside = below; break;
        case keys::up: along = -below, aside = right; break;
        case keys::down: along = below, aside = right; break;
        case keys::home: along = from.index && earlier > 0 ? each->index.value_or(0) + 1 : 0; break;
        default: along = from.index && earlier < 0 ? std::numeric_limits<int>::max() + earlier : 0;
        }
        if (along <= 0) continue;
        const int cost = along + 3 * std::abs(aside);
        if (nearest == nullptr || cost < nearest_cost) nearest = each, nearest_cost = cost;
    }
    return nearest;
}

control* form::next_focus(const control* focused) {
    if (focus != nullptr) return std::exchange(focus, nullptr);
    if (focused == nullptr || focused->usable()) return nullptr;
    // The next of its array; what comes before it follows what comes after.
    control* next = nullptr;
    bool after = false;
    for (control* each : controls_) {
        if (each == focused)
            after = true;
        else if (each->name == focused->name && each->usable()) {
            if (after) return each;
            if (next == nullptr) next = each;
        }
    }
    return next;
}

control* form::tab(const control* focused, int step) const {
    const int count = static_cast<int>(controls_.size());
    const int from = static_cast<int>(std::ranges::find(controls_, focused) - controls_.begin());
    for (int i = 1; i <= count; ++i) {
        // From nothing: on to the first, or back to the last.
        const int start = from < count ? from : step > 0 ? -1 : 0;
        control* const next = controls_[static_cast<std::size_t>(((start + i * step) % count + count) % count)];
        if (next->usable() && (next->is_button() || next->kind == control_kind::list_box)) return next;
    }
    return nullptr;
}

void form::ask(message_box box, std::function<void(box_answer)> then) {
    buiten.ask(*this, std::move(box), std::move(then));
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
