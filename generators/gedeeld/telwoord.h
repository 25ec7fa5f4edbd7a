// Numbers in words: counting words up to the millions and ranking words.
// Which numbers an exercise writes in words is its own affair.
#pragma once

#include <string>
#include <vector>

namespace cijferwerf {

// How words are tied together. `gewoon` is the spelling of today: "eenentwintig", "tweeëntwintig", "honderdeen".
// `schools` keeps each word as it stands alone: "éénentwintig", "tweeentwintig", "honderdéén".
enum class spelling { gewoon, schools };

// From 0 to 999.999.999, in the groups that digits are written in: "drie miljoen" "vierduizend" "honderdtwaalf".
std::vector<std::string> telwoord_in_groepen(int getal, spelling schrijfwijze = spelling::gewoon);
// The same with blanks between the groups; "honderd" and "duizend" without "één".
std::string telwoord(int getal, spelling schrijfwijze = spelling::gewoon);
// With a capital, which takes the accent from its letter: "Eén", "Twee".
std::string Telwoord(int getal);
// From 1 to 999: "eerste", "tweede", "achtste", "twintigste".
std::string rangtelwoord(int getal);

} // namespace cijferwerf
