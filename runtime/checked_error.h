// An error in the program itself, such as an index past its bounds: it ends the run with a clear message.
// What a pupil can do wrong is never reported this way; the forms answer that on the screen.
#pragma once

#include <stdexcept>

namespace cijferwerf {

class checked_error : public std::logic_error {
public:
    using std::logic_error::logic_error;
};

} // namespace cijferwerf
