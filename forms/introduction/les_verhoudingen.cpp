// Ratios: two amounts that grow together, by way of one, and the scale of a drawing.
#include "forms/introduction/les.h"
#include "forms/introduction/schrijf.h"
#include "runtime/number_text.h"

namespace cijferwerf {

namespace {

// A row of a ratio table: what is counted, and its numbers.
struct tabelrij {
    std::string_view naam;
    std::vector<int> getallen;
};

constexpr int rijhoogte = 560;

// Two rows under one another, one of the columns marked.
void teken_verhoudingstabel(drawing& on, int boven, int naam_breedte, const std::array<tabelrij, 2>& rijen,
                            std::size_t gemerkt) {
    constexpr int links = 60, rechts = 5320;
    for (int y = boven; const tabelrij& rij : rijen) {
        teken_vak(on, {links, y, naam_breedte, rijhoogte}, licht, donker);
        schrijf_naast(on, {14, donker}, {links + 90, y + rijhoogte / 2}, rij.naam);
        const int breed = (rechts - links - naam_breedte) / static_cast<int>(rij.getallen.size());
        for (std::size_t i = 0; i < rij.getallen.size(); ++i) {
            const vlak vak{links + naam_breedte + static_cast<int>(i) * breed, y, breed, rijhoogte};
            teken_vak(on, vak, i == gemerkt ? half : wit, donker);
            schrijf_midden(on, {18, inkt}, vak.midden(), kaal(rij.getallen[i]));
        }
        y += rijhoogte;
    }
}

// Pancakes: two eggs go with three cups of milk, and so many times more of the one with as many times more of the
// other.
class eieren_en_melk : public voorbeeld {
public:
    eieren_en_melk() {
        stappen(links_onder, "eieren", eieren_, per_keer_ei, 5 * per_keer_ei, per_keer_ei);
        stappen(rechts_onder, "melk", bekers_, per_keer_melk, 5 * per_keer_melk, per_keer_melk);
    }

protected:
    std::string toon() override {
        // Whichever of the two was changed, the other follows.
        keer_ = eieren_ / per_keer_ei != keer_ ? eieren_ / per_keer_ei : bekers_ / per_keer_melk;
        eieren_ = keer_ * per_keer_ei;
        bekers_ = keer_ * per_keer_melk;

        for (int i = 0; i < keer_; ++i) {
            const vlak vak{60 + i * 1052, 120, 1052, 1700};
            teken_vak(blad, vak, wit, half);
            for (int ei = 0; ei < per_keer_ei; ++ei) teken_ei({vak.links + 336 + ei * 380, 560});
            for (int beker = 0; beker < per_keer_melk; ++beker) teken_beker(vak.links + 90 + beker * 310, 1070);
        }
        tabelrij eieren{"eieren", {}}, melk{"bekers melk", {}};
        for (int i = 1; i <= 5; ++i) {
            eieren.getallen.push_back(i * per_keer_ei);
            melk.getallen.push_back(i * per_keer_melk);
        }
        teken_verhoudingstabel(blad, 2250, 1620, {eieren, melk}, static_cast<std::size_t>(keer_ - 1));
        const std::string sommen =
            regel(kaal(keer_), " x 2 = ", kaal(eieren_), "   en   ", kaal(keer_), " x 3 = ", kaal(bekers_));
        schrijf_midden(blad, {20, donker}, {blad_midden, 3820}, sommen);
        return regel(kaal(eieren_), " eieren en ", kaal(bekers_), " bekers melk: van allebei ", kaal(keer_),
                     " keer zoveel.");
    }

private:
    static constexpr int per_keer_ei = 2, per_keer_melk = 3;

    void teken_ei(point midden) {
        blad.ellipse(midden.x, midden.y, 140, 190, half, true);
        blad.line_width = 2;
        blad.ellipse(midden.x, midden.y, 140, 190, donker, false);
    }
    void teken_beker(int links, int boven) {
        const auto beker = [&](int top, int smaller) {
            return std::vector<point>{{links + smaller, boven + top},
                                      {links + 250 - smaller, boven + top},
                                      {links + 210, boven + 520},
                                      {links + 40, boven + 520}};
        };
        blad.polygon(beker(120, 9), half, true);
        blad.line_width = 2;
        blad.polygon(beker(0, 0), donker, false);
    }

    int keer_ = 2, eieren_ = 4, bekers_ = 6;
};

// How far a car goes on some litres, by way of one litre.
class via_een : public voorbeeld {
public:
    via_een() { stappen(midden_onder, "liter", liter_, 1, 12); }

protected:
    std::string toon() override {
        const int km = liter_ * km_per_liter;
        teken_verhoudingstabel(blad, 640, 1160,
                               {{{"liter", {getankt, 1, liter_}}, {"km", {getankt * km_per_liter, km_per_liter, km}}}},
                               2);
        // From the first column to the middle one, and on to the third: above the table and below it.
        for (const auto& [x, stap] : {std::pair{2588, regel(": ", kaal(getankt))}, {3954, regel("x ", kaal(liter_))}}) {
            teken_sprong(x, 600, -260, stap);
            teken_sprong(x, 640 + 2 * rijhoogte + 40, 260, stap);
        }

        constexpr int links = 160, per_liter = 420, y = 3040;
        schrijf(blad, {14, inkt}, {links, 2510},
                regel(kaal(liter_), " x ", kaal(km_per_liter), " km = ", kaal(km), " km"));
        for (int i = 0; i < 12; ++i) {
            const vlak vak{links + i * per_liter, y, per_liter, 420};
            teken_vak(blad, vak, i < liter_ ? half : wit, donker);
            schrijf_midden(blad, {12, inkt}, vak.midden(), kaal(km_per_liter));
        }
        const std::string getankte = regel(kaal(liter_), " liter");
        schrijf(blad, {14, donker}, {links + std::max(0, liter_ * per_liter - text_width(getankte, 14)) / 2, y + 480},
                getankte);
        return regel("Op 1 liter rijdt de auto ", kaal(km_per_liter), " km, op ", kaal(liter_), " liter ", kaal(km),
                     " km.");
    }

private:
    static constexpr int getankt = 4, km_per_liter = 15;

    // An arrow from the middle of one column to that of the next, which bends so far up or down.
    void teken_sprong(int midden, int y, int hoogte, std::string_view tekst) {
        constexpr int arm = 560;
        blad.line_width = 3;
        blad.line(midden - arm, y, midden - arm, y + hoogte, donker);
        blad.line(midden - arm, y + hoogte, midden + arm, y + hoogte, donker);
        blad.line(midden + arm, y + hoogte, midden + arm, y + hoogte / 4, donker);
        const int punt = hoogte < 0 ? -110 : 110;
        blad.polygon({{midden + arm, y}, {midden + arm - 70, y + punt}, {midden + arm + 70, y + punt}}, donker, true);
        blad.line_width = 1;
        schrijf_midden(blad, {16, donker}, {midden, y + hoogte + (hoogte < 0 ? -190 : 205)}, tekst);
    }

    int liter_ = 6;
};

// A length on a map and what it is in reality.
class schaal : public voorbeeld {
public:
    schaal() {
        for (int i = 0; const int to_one : {1'000, 10'000, 40'000})
            keuze("schaal", bovenaan(i++), naam(to_one), [this, to_one] { schaal_ = to_one; });
        stappen(midden_onder, "cm", cm_, 1, 9);
    }

protected:
    std::string toon() override {
        const int echt = cm_ * schaal_; // cm
        constexpr int links = 140, per_cm = 567, lijn = 1250;
        schrijf(blad, {14, inkt}, {links, 720}, "op de kaart");
        blad.filled_box(links, lijn - 90, cm_ * per_cm, 180, half);
        teken_vak(blad, {links, lijn + 90, 9 * per_cm, 460}, wit, donker);
        for (int i = 0; i <= 90; ++i) {
            const int x = links + i * per_cm / 10;
            blad.line(x, lijn + 90, x, lijn + (i % 10 == 0 ? 290 : i % 5 == 0 ? 230 : 180), donker);
        }
        for (int i = 1; i < 9; ++i) schrijf_midden(blad, {11, inkt}, {links + i * per_cm, lijn + 420}, kaal(i));

        const std::string meters = regel(kaal(duizend(echt / 100)), " m");
        schrijf(blad, {14, inkt}, {links, 2250}, "in het echt");
        schrijf(blad, {20, donker}, {links, 2650},
                regel(kaal(cm_), " x ", kaal(duizend(schaal_)), " cm = ", kaal(groepen(echt)), " cm"));
        schrijf(blad, {20, donker}, {links, 3350}, regel("dat is ", meters));
        return regel("Schaal ", naam(schaal_), ": ", kaal(cm_), " cm op de kaart is in het echt ", kaal(groepen(echt)),
                     " cm, dat is ", meters, ".");
    }

private:
    static std::string naam(int to_one) { return regel("1 : ", kaal(duizend(to_one))); }

    int schaal_ = 1'000, cm_ = 4;
};

} // namespace

const lesreeks les_verhoudingen{{
    {"Een verhouding",
     {"Voor pannenkoeken neem je 2 eieren op 3 bekers melk. Dat is een verhouding.",
      "Neem je meer eieren? Dan heb je in verhouding ook meer melk nodig."},
     {probeer, "Neem meer of minder eieren of melk. Kijk hoe het andere meegaat."},
     nieuw<eieren_en_melk>},
    {"Reken eerst naar 1",
     {"Een auto rijdt 60 km op 4 liter. Hoe ver komt hij op 6 liter?",
      "Reken eerst uit hoe ver hij komt op 1 liter. Dan kun je daarna met elk getal vermenigvuldigen."},
     {probeer, "Kies hoeveel liter je tankt en volg de pijlen."},
     nieuw<via_een>},
    {"Schaal",
     {"Een schaal is ook een verhouding.", "Bij schaal 1 : 1.000 is 1 cm op de kaart in werkelijkheid 1.000 cm.",
      "Van cm naar m deel je door 100."},
     {probeer, "Kies een schaal en een lengte op de kaart. Hoe lang is dat in het echt?"},
     nieuw<schaal>},
}};

} // namespace cijferwerf
