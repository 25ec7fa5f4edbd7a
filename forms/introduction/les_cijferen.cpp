// Written sums, column by column: adding and carrying, subtracting and borrowing; and the calculator.
#include "calculator/toetsen.h"
#include "forms/introduction/les.h"
#include "forms/introduction/schrijf.h"
#include "forms/practice/layout.h"

namespace cijferwerf {

namespace {

constexpr int kolommen = 3;

// The digit of a number in column 0 (units), 1 or 2.
constexpr int cijfer(int getal, int kolom) {
    for (; kolom > 0; --kolom) getal /= 10;
    return getal % 10;
}

struct opgave {
    int boven, onder;
};

// What is done in a column: what is written above it and below it, and what is said of it.
struct kolomstap {
    std::string klein; // above the upper digit: what was carried, or what borrowing made of it
    bool doorgestreept = false;
    int uitkomst = 0;
    std::vector<std::string> uitleg;
};
using kolomstappen = std::array<kolomstap, kolommen>;

kolomstappen tel_op(opgave som) {
    kolomstappen stappen;
    for (int kolom = 0, onthouden = 0; kolom < kolommen; ++kolom) {
        const int a = cijfer(som.boven, kolom), b = cijfer(som.onder, kolom), samen = a + b + onthouden;
        kolomstap& stap = stappen[static_cast<std::size_t>(kolom)];
        if (onthouden > 0) stap.klein = kaal(onthouden);
        stap.uitkomst = samen % 10;
        stap.uitleg = {regel(onthouden > 0 ? "1 + " : "", kaal(a), " + ", kaal(b), " = ", kaal(samen)),
                       samen > 9 ? regel("Schrijf ", kaal(samen % 10), " op en onthoud 1.")
                                 : regel("Schrijf ", kaal(samen), " op.")};
        onthouden = samen / 10;
    }
    return stappen;
}

kolomstappen trek_af(opgave som) {
    kolomstappen stappen;
    for (int kolom = 0, geleend = 0; kolom < kolommen; ++kolom) {
        const int a = cijfer(som.boven, kolom), b = cijfer(som.onder, kolom), over = a - geleend;
        const bool lenen = over < b;
        const int met = lenen ? over + 10 : over;
        kolomstap& stap = stappen[static_cast<std::size_t>(kolom)];
        stap.doorgestreept = met != a;
        if (stap.doorgestreept) stap.klein = kaal(met);
        stap.uitkomst = met - b;
        if (geleend > 0) stap.uitleg.push_back(regel("De ", kaal(a), " is door het lenen ", kaal(over), " geworden."));
        if (lenen) stap.uitleg.push_back(regel(kaal(over), " - ", kaal(b), " kan niet. Leen 10 van links."));
        stap.uitleg.push_back(regel(kaal(met), " - ", kaal(b), " = ", kaal(met - b)));
        geleend = lenen ? 1 : 0;
    }
    return stappen;
}

// A sum of two numbers of three digits, done one column at a time from the right.
class kolomsom : public voorbeeld {
protected:
    using werkwijze = kolomstappen (*)(opgave);

    kolomsom(werkwijze hoe, std::string_view teken, const std::vector<opgave>& sommen)
        : hoe_(hoe),
          teken_(teken),
          som_(sommen.front()) {
        for (int i = 0; const opgave each : sommen)
            keuze("som", bovenaan(i++), regel(kaal(each.boven), " ", teken_, each.onder), [this, each] {
                som_ = each;
                stap_ = 0;
            });
        stappen(midden_onder, "stap", stap_, 0, kolommen);
    }

    std::string toon() override {
        const kolomstappen alle = hoe_(som_);
        if (stap_ > 0) {
            const vlak nu{midden(stap_ - 1) - 400, 560, 800, 2290};
            blad.filled_box(nu.links, nu.boven, nu.breedte, nu.hoogte, wit);
        }
        std::string uitkomst;
        for (int kolom = 0; kolom < kolommen; ++kolom) {
            const kolomstap& stap = alle[static_cast<std::size_t>(kolom)];
            const int x = midden(kolom);
            schrijf_midden(blad, {14, donker}, {x, 700}, kolom == 0 ? "E" : kolom == 1 ? "T" : "H");
            schrijf_midden(blad, {30, inkt}, {x, 1340}, kaal(cijfer(som_.boven, kolom)));
            schrijf_midden(blad, {30, inkt}, {x, 1880}, kaal(cijfer(som_.onder, kolom)));
            if (kolom >= stap_) continue;
            if (!stap.klein.empty()) schrijf_midden(blad, {15, rood}, {x, 970}, stap.klein);
            if (stap.doorgestreept) {
                blad.line_width = 3;
                blad.line(x - 170, 1500, x + 170, 1180, rood);
                blad.line_width = 1;
            }
            schrijf_midden(blad, {30, groen}, {x, 2520}, kaal(stap.uitkomst));
            uitkomst = regel(kaal(stap.uitkomst), uitkomst);
        }
        blad.filled_box(1000, 2170, 3200, 40, inkt);
        schrijf_midden(blad, {30, inkt}, {4400, 1880}, teken_);
        const std::string som = regel(kaal(som_.boven), " ", teken_, " ", kaal(som_.onder));
        if (stap_ == 0) {
            const std::string begin = "Begin rechts, bij de eenheden.";
            schrijf_midden(blad, {15, inkt}, {blad_midden, 3640}, begin);
            return regel(som, ". ", begin);
        }
        std::string zin = regel("Stap ", kaal(stap_), ":");
        for (int y = 3050; const std::string& regeltje : alle[static_cast<std::size_t>(stap_ - 1)].uitleg) {
            schrijf_midden(blad, {15, inkt}, {blad_midden, y}, regeltje);
            zin += ' ' + regeltje + (regeltje.ends_with('.') ? "" : ".");
            y += 310;
        }
        if (stap_ == kolommen) {
            const std::string antwoord = regel(som, " = ", uitkomst);
            schrijf_midden(blad, {18, donker}, {blad_midden, 4020}, antwoord);
            zin += ' ' + antwoord + '.';
        }
        return zin;
    }

private:
    static constexpr int midden(int kolom) { return 3550 - kolom * 900; }

    const werkwijze hoe_;
    const std::string teken_;
    opgave som_;
    int stap_ = 0;
};

class optellen : public kolomsom {
public:
    optellen() : kolomsom(tel_op, "+", {{478, 256}, {326, 491}, {145, 327}}) {}
};
class aftrekken : public kolomsom {
public:
    aftrekken() : kolomsom(trek_af, "-", {{532, 278}, {647, 382}, {713, 458}}) {}
};

// A calculator of its own, without the message boxes of the other.
class eigen_rekenmachine : public voorbeeld {
public:
    eigen_rekenmachine()
        : voorbeeld(std::nullopt),
          display_(woorden("display", {180, 180, 5820, 690}, 22, theme_role::readout)) {
        constexpr int rijen[4][5]{{7, 8, 9, 16, 11}, {4, 5, 6, 15, 12}, {1, 2, 3, 14, 17}, {0, 10, 19, 13, 18}};
        display_.right_aligned = true;
        for (int y = 1020; const auto& rij : rijen) {
            for (int x = 180; const int key : rij) {
                toets(key, {x, y, 1068, 720});
                x += 1188;
            }
            y += 840;
        }
        toets(20, {180, 4380, 5820, 870});
    }

protected:
    std::string toon() override {
        const displaytekst kleiner = leg_display(machine_.display(), kamer);
        const bool past = text_width(machine_.display(), 22, 1.0) <= kamer;
        display_.caption = past ? machine_.display() : kleiner.tekst;
        display_.font_size = past ? 22 : kleiner.punten;
        return "Op het display staat " + display_.caption;
    }

private:
    static constexpr int kamer = 5400; // for the number

    void toets(int key, place waar) {
        const auto& [face, keys, spoken] = rekentoetsen[key];
        button& made = knop("k", waar, is_cijfertoets(key) ? theme_role::key : theme_role::operator_key,
                            std::string(face), [this, key] { machine_.press(key); });
        made.index = key;
        made.font_size = 16;
        made.keys = keys;
        std::erase(made.keys, '\x1b'); // leads back
        made.keeps_enter = false;      // Enter is "=" on every key
        made.accessible_name = spoken;
    }

    calculator machine_;
    label& display_;
};

} // namespace

const lesreeks les_cijferen{{
    {"Onder elkaar optellen",
     {"Zet de getallen onder elkaar: eenheden onder eenheden, tientallen onder tientallen.",
      "Begin rechts. Komt er 10 of meer uit? Schrijf de eenheden op en onthoud 1 voor de volgende kolom."},
     {probeer, "Kies een som en zet steeds een stap."},
     nieuw<optellen>},
    {"Aftrekken en lenen",
     {"Zet het grootste getal boven. Begin weer rechts.",
      "Is het bovenste cijfer te klein? Leen dan 10 van het cijfer links ervan. Dat cijfer wordt 1 minder."},
     {probeer, "Kies een som en zet steeds een stap. In welke kolom moet je lenen?"},
     nieuw<aftrekken>},
    {"De rekenmachine",
     {"Soms mag je de rekenmachine gebruiken. Schat altijd eerst wat er ongeveer uitkomt.",
      "M+ telt de uitkomst op bij het geheugen. MR laat het geheugen zien. Met C begin je een nieuw getal."},
     {probeer, "Toets: 3 x 2,45 = M+ C 2 x 1,2 = M+ MR. Wat staat er?"},
     nieuw<eigen_rekenmachine>},
}};

} // namespace cijferwerf
