#include "calculator/calculator.h"

#include "calculator/decimal.h"

namespace cijferwerf {

namespace {

// The keys by index, from 10 on; those before are the digits.
enum toets { komma = 10, wis, wis_alles, plus, min, maal, delen, geheugen_plus, geheugen_terug, procent, is_gelijk };

constexpr std::size_t most_digits = 10; // that fit on the display
constexpr std::size_t most_shown = 11;  // characters of a result, with its comma
constexpr std::size_t most_kept = 400;  // characters of a result that does not fit; a longer one is not kept

// Parts a text at its point (or comma); without one there are no decimals.
void splits(const std::string& number, char point, std::string& geheel, std::string& decimalen) {
    const std::size_t at = number.find(point);
    geheel = number.substr(0, at);
    decimalen = at == std::string::npos ? "" : number.substr(at + 1);
}

} // namespace

calculator::message calculator::press(int key) {
    if (key < 0 || key >= keys) return message::none;

    // The two fields that a key before may have left empty.
    if (stand_.eerste_decimalen.empty()) stand_.eerste_decimalen = "0";
    if (stand_.geheugen_decimalen.empty()) stand_.geheugen_decimalen = "0";
    if (display_ == "0,") wis_invoer();

    switch (key) {
    case komma:
        if (!invoer_vol()) stand_.komma_gezet = "ja";
        return message::none;
    case wis:
        wis_invoer();
        stand_.komma_gezet = stand_.uitkomst_getoond = "nee";
        ververs_display();
        return message::none;
    case wis_alles: {
        // The per cent key stays pressed.
        const std::string percent = stand_.procent;
        stand_ = {};
        stand_.procent = percent;
        ververs_display();
        return message::none;
    }
    case plus: kies_bewerking("PLUS"); return message::none;
    case min: kies_bewerking("MIN"); return message::none;
    case maal: kies_bewerking("MAAL"); return message::none;
    case delen: kies_bewerking("DELEN"); return message::none;
    case geheugen_plus: tel_op_in_geheugen(); return message::none;
    case geheugen_terug: lees_geheugen(); return message::none;
    case procent: stand_.procent = "ja"; return message::none;
    case is_gelijk: return is();
    default: return cijfer(key);
    }
}

calculator::message calculator::cijfer(int digit) {
    if (invoer_vol()) return message::too_many_digits;
    if (stand_.uitkomst_getoond == "ja") return message::none;

    const char face = static_cast<char>('0' + digit);
    if (stand_.komma_gezet == "ja")
        stand_.invoer_decimalen += face;
    else if (stand_.invoer_geheel != "0")
        stand_.invoer_geheel += face;
    else if (digit != 0)
        stand_.invoer_geheel = face;
    else
        return message::none; // no leading zeros, and the display keeps what it shows
    ververs_display();
    return message::none;
}

// The display goes on showing the first number until a digit of the second comes.
void calculator::kies_bewerking(const char* operation) {
    stand_.bewerking = operation;
    stand_.eerste_geheel = stand_.invoer_geheel;
    stand_.eerste_decimalen = stand_.invoer_decimalen;
    wis_invoer();
    stand_.komma_gezet = stand_.uitkomst_getoond = "nee";
}

void calculator::tel_op_in_geheugen() {
    const decimal memory(stand_.geheugen_geheel, stand_.geheugen_decimalen);
    const decimal entry(stand_.invoer_geheel, stand_.invoer_decimalen);
    splits((memory + entry).text(), '.', stand_.geheugen_geheel, stand_.geheugen_decimalen);
    stand_.uitkomst_getoond = "ja";
}

void calculator::lees_geheugen() {
    stand_.invoer_geheel = stand_.geheugen_geheel;
    stand_.invoer_decimalen = stand_.geheugen_decimalen == "0" ? "" : stand_.geheugen_decimalen;
    ververs_display();
}

calculator::message calculator::is() {
    const decimal a(stand_.eerste_geheel, stand_.eerste_decimalen);
    const decimal b(stand_.invoer_geheel, stand_.invoer_decimalen);
    decimal result("0", "");
    if (stand_.bewerking == "PLUS") {
        const decimal hundredth("0", "01");
        result = a + (stand_.procent == "ja" ? a * hundredth * b : b);
    } else if (stand_.bewerking == "MIN")
        result = a - b;
    else if (stand_.bewerking == "MAAL")
        result = a * b;
    else if (stand_.bewerking == "DELEN") {
        if (b.zero()) return message::division_by_zero;
        result = a / b;
    }

    stand_.uitkomst_getoond = "ja";
    stand_.procent = "nee";
    const std::string text = result.text();
    if (text.size() > most_kept) return message::too_many_digits;
    std::string& geheel = stand_.invoer_geheel;
    std::string& decimalen = stand_.invoer_decimalen;
    splits(text, '.', geheel, decimalen);
    if (geheel.size() > most_digits) return message::too_many_digits;

    splits((geheel + "," + decimalen).substr(0, most_shown), ',', geheel, decimalen);
    if (decimalen == "0") decimalen = "";
    ververs_display();
    return message::none;
}

bool calculator::invoer_vol() const {
    return stand_.invoer_geheel.size() + stand_.invoer_decimalen.size() >= most_digits;
}

void calculator::wis_invoer() {
    stand_.invoer_geheel = "0";
    stand_.invoer_decimalen = "";
}

void calculator::ververs_display() { display_ = stand_.invoer_geheel + "," + stand_.invoer_decimalen; }

} // namespace cijferwerf
