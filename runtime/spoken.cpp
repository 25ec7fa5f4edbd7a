#include "runtime/spoken.h"

#include "runtime/picture_reading.h"

#include <algorithm>

namespace cijferwerf {

std::string spoken_name(const control& told) {
    std::string name = told.accessible_name.empty() ? told.caption : told.accessible_name;
    std::ranges::replace(name, '\r', ' ');
    return name.erase(0, name.find_first_not_of(' '));
}

std::string spoken_description(const control& told) {
    return told.kind == control_kind::picture_box ? read_picture(static_cast<const picture_box&>(told))
                                                  : told.description;
}

std::string spoken_item(const list_box& told, std::size_t item) {
    const auto mark = item < told.marks.size() ? told.marks[item] : list_box::item_mark::none;
    return told.items[item] + (mark == list_box::item_mark::first   ? ", eerste poging goed"
                               : mark == list_box::item_mark::later ? ", al gedaan"
                                                                    : "");
}

bool silent(const control& told) {
    const bool no_words = spoken_name(told).empty();
    if (told.kind == control_kind::frame) return no_words;
    if (told.kind == control_kind::picture_box) return spoken_description(told).empty();
    return told.kind == control_kind::label && (no_words || static_cast<const label&>(told).card != nullptr);
}

} // namespace cijferwerf
