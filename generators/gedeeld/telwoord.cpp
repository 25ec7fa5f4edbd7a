#include "generators/gedeeld/telwoord.h"

#include "runtime/stop_run.h"

#include <array>
#include <string_view>

namespace cijferwerf {

namespace {

constexpr std::array<std::string_view, 20> tot_twintig{
    "nul",  "één", "twee",   "drie",    "vier",     "vijf",     "zes",     "zeven",     "acht",     "negen",
    "tien", "elf", "twaalf", "dertien", "veertien", "vijftien", "zestien", "zeventien", "achttien", "negentien"};
constexpr std::array<std::string_view, 10> tientallen{"",        "",       "twintig",  "dertig",  "veertig",
                                                      "vijftig", "zestig", "zeventig", "tachtig", "negentig"};

std::string_view woord(const auto& lijst, int n) { return lijst.at(static_cast<std::size_t>(n)); }

// A word below twenty within a longer one.
std::string_view los(int n, spelling schrijfwijze) {
    return n == 1 && schrijfwijze == spelling::gewoon ? "een" : woord(tot_twintig, n);
}

// 1 to 99, tied to what stands around it.
std::string tiental(int n, spelling schrijfwijze) {
    if (n < 20) return std::string(los(n, schrijfwijze));
    std::string tekst;
    if (n % 10 > 0) {
        tekst = los(n % 10, schrijfwijze);
        // Without the dots the e of "twee" and that of "en" would be read as one.
        tekst += schrijfwijze == spelling::gewoon && (n % 10 == 2 || n % 10 == 3) ? "ën" : "en";
    }
    return tekst.append(woord(tientallen, n / 10));
}

// 1 to 999, with no word for 1 where a hundred or a thousand follows.
std::string honderdtal(int n, spelling schrijfwijze) {
    std::string tekst;
    if (n >= 200) tekst = woord(tot_twintig, n / 100);
    if (n >= 100) tekst += "honderd";
    return n % 100 > 0 ? tekst + tiental(n % 100, schrijfwijze) : tekst;
}

// 1 stands alone and keeps its accents.
std::string groep(int n, spelling schrijfwijze) {
    return n == 1 ? std::string(woord(tot_twintig, 1)) : honderdtal(n, schrijfwijze);
}

} // namespace

std::vector<std::string> telwoord_in_groepen(int getal, spelling schrijfwijze) {
    if (getal < 0 || getal > 999'999'999) stop_run("a number without words");
    if (getal == 0) return {"nul"};
    std::vector<std::string> groepen;
    if (const int miljoenen = getal / 1'000'000; miljoenen > 0)
        groepen.push_back(groep(miljoenen, schrijfwijze) + " miljoen");
    if (const int duizenden = getal / 1'000 % 1'000; duizenden > 0)
        groepen.push_back((duizenden > 1 ? honderdtal(duizenden, schrijfwijze) : "") + "duizend");
    if (const int rest = getal % 1'000; rest > 0) groepen.push_back(groep(rest, schrijfwijze));
    return groepen;
}

std::string telwoord(int getal, spelling schrijfwijze) {
    if (getal > 0 && getal < 1'000) return groep(getal, schrijfwijze);
    std::string tekst;
    for (const std::string& groep : telwoord_in_groepen(getal, schrijfwijze)) {
        if (!tekst.empty()) tekst += ' ';
        tekst += groep;
    }
    return tekst;
}

std::string Telwoord(int getal) {
    std::string tekst = telwoord(getal);
    if (tekst.starts_with("é"))
        tekst.replace(0, std::string_view("é").size(), "E");
    else
        tekst[0] = static_cast<char>(tekst[0] - 'a' + 'A');
    return tekst;
}

std::string rangtelwoord(int getal) {
    if (getal < 1 || getal > 999) stop_run("a number without a ranking word");
    const int eind = getal % 100;
    if (eind == 1 || eind == 3)
        return (getal > 100 ? honderdtal(getal - eind, {}) : "") + (eind == 1 ? "eerste" : "derde");
    return honderdtal(getal, {}) + (eind == 0 || eind == 8 || eind >= 20 ? "ste" : "de");
}

} // namespace cijferwerf
