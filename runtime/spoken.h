// What a screen reader is told of a control: its name, what more is said after it, and whether it says anything at all.
// How that reaches the reader is the front end's.
#pragma once

#include "runtime/control.h"

namespace cijferwerf {

std::string spoken_name(const control& told);
// Of a picture what it shows.
std::string spoken_description(const control& told);
// A title with what became of it.
std::string spoken_item(const list_box& told, std::size_t item);
// An empty text, a text that its button says already, a panel without a name, a picture of which nothing is said.
bool silent(const control& told);

} // namespace cijferwerf
