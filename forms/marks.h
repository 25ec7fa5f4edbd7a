// The little drawings that stand for a booklet, a task or a course set, and the subject that each is about.
// It places none of them; the form that shows one does.
#pragma once

#include "runtime/picture_box.h"
#include "runtime/subject.h"

#include <string_view>

namespace cijferwerf {

// The mark of a booklet or task ("boekje01", "taak20") or of a course set, by its title. Booklets and tasks on the same
// subject share one, and so do the review tasks. Any other key gives an empty drawing.
drawing merkteken(std::string_view key);

// What it is about, by the same key; none for a review, for TELMORA's set and for any other key.
subject onderwerp(std::string_view key);

// The mark of the program itself, for a white ground.
drawing programmateken();

} // namespace cijferwerf
