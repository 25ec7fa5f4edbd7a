// The message box as a form: any front end shows it, in the middle of the form that asked, as it shows any other.
// Which box is open, and what follows from the answer, is the event gate's.
#pragma once

#include "runtime/form.h"

namespace cijferwerf {

class berichtvenster : public form {
public:
    // The answer goes to answered().
    berichtvenster(outside& with, const std::function<void(box_answer)>& answered);

    // Puts a box on the form, which grows with its text; before the form is shown.
    void leg_voor(const message_box& box);

    // Closing it answers what is safe: no, or that it was read.
    void close_requested() override { press(standaard()); }

    frame vlak;
    label opschrift, tekst;
    button ja, nee, ok;

private:
    button& standaard() { return nee.visible ? nee : ok; }
};

} // namespace cijferwerf
