// The pocket calculator: 21 keys, a display with a decimal comma, one pending operator, per cent and one memory.
// It shows no message boxes and knows no screen; whoever carries it shows what press() reports.
#pragma once

#include <string>

namespace cijferwerf {

// What the calculator remembers between two keys. A number is split into the digits before its comma ("-3")
// and those behind it (may be ""); a flag is "ja" or "nee".
struct rekenmachine_stand {
    std::string invoer_geheel = "0", invoer_decimalen; // the number that is entered or shown
    std::string komma_gezet = "nee";                   // the comma key was pressed in this entry
    std::string uitkomst_getoond = "nee";              // a result is shown, of "=" or of M+
    std::string procent = "nee";                       // % was pressed, until the next "="
    std::string bewerking;                             // "PLUS", "MIN", "MAAL", "DELEN" or ""
    std::string eerste_geheel = "0", eerste_decimalen = "0";
    std::string geheugen_geheel = "0", geheugen_decimalen = "0";
};

class calculator {
public:
    static constexpr int keys = 21;

    enum class message { none, too_many_digits, division_by_zero };

    // Presses key 0 to 20; any other does nothing.
    message press(int key);
    const std::string& display() const { return display_; }
    const rekenmachine_stand& stand() const { return stand_; }

private:
    message cijfer(int digit);
    void kies_bewerking(const char* operation);
    void tel_op_in_geheugen();
    void lees_geheugen();
    message is();
    bool invoer_vol() const;
    void wis_invoer();
    void ververs_display();

    rekenmachine_stand stand_;
    std::string display_ = "0,";
};

} // namespace cijferwerf
