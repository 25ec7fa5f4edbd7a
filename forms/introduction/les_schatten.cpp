// Estimating: rounding on the number line, a rounded sum beside the exact one, rounding upwards to be on the safe side.
#include "forms/introduction/les.h"
#include "forms/introduction/schrijf.h"
#include "generators/gedeeld/kommagetal.h"
#include "generators/gedeeld/tekening_lijn.h"

#include <numeric>

namespace cijferwerf {

namespace {

// A number on the line between the two round ones beside it.
class afronden : public voorbeeld {
public:
    afronden() {
        keuze("afronden", bovenaan(0), "tiental", [this] { op_ = 10; });
        keuze("afronden", bovenaan(1), "honderdtal", [this] { op_ = 100; });
        stappen(midden_onder, "getal", getal_, 100, 1'000, 1, [](int getal) { return regel(kaal(duizend(getal))); });
        for (int i = 0; i <= 10; ++i)
            cel("streepje", i, {links + i * (rechts - links) / 10 - 180, lijn_y - 120, 360, 240},
                regel("streepje ", kaal(i)), [this, i] { getal_ = std::min(getal_, 999) / op_ * op_ + i * op_ / 10; });
    }

protected:
    std::string toon() override {
        const int onder = std::min(getal_, 999) / op_ * op_, boven = onder + op_, rest = getal_ - onder;
        const int rond = static_cast<int>(deel_afgerond(getal_, op_)) * op_;
        const int hier = links + (rechts - links) * rest / op_, daar = rond == onder ? links : rechts;
        blad.text_size = 16;
        teken_vak(blad, {std::min(hier, daar), lijn_y - 45, std::abs(hier - daar), 90}, half, half);
        getallenlijn streep(blad, links, rechts, lijn_y, 10);
        streep.getal(0, kaal(duizend(onder)));
        streep.getal(10, kaal(duizend(boven)));
        teken_pijl(blad, {hier, lijn_y - 800}, {hier, lijn_y - 130}, rood);
        schrijf_midden(blad, {22, donker}, {hier, lijn_y - 1060}, kaal(duizend(getal_)));

        const bool is_rond = rest % op_ == 0;
        const std::string waarom = is_rond           ? "Dat is al een rond getal."
                                   : rest * 2 == op_ ? "Precies in het midden: rond naar boven af."
                                                     : regel("Het ligt het dichtst bij", duizend(rond), ".");
        const std::string uitkomst = regel(kaal(duizend(getal_)), is_rond ? " blijft" : " is ongeveer", duizend(rond));
        schrijf_midden(blad, {15, inkt}, {blad_midden, 2840}, waarom);
        schrijf_midden(blad, {26, donker}, {blad_midden, 3540}, uitkomst);
        return regel("Tussen", duizend(onder), " en", duizend(boven), ". ", waarom, " ", uitkomst, ".");
    }

private:
    static constexpr int links = 600, rechts = 4780, lijn_y = 1880;

    int getal_ = 347, op_ = 10;
};

// A sum, exact or with rounded numbers, and how far the two results lie apart.
class schatting : public voorbeeld {
public:
    schatting() {
        stappen(links_onder, "som", nummer_, 1, laatste(sommen) + 1);
        rond_ = &knop("rond", rechts_onder, theme_role::action, "", [this] { afgerond_ = !afgerond_; });
    }

protected:
    std::string toon() override {
        const som& s = sommen[nummer_ - 1];
        const int precies = uitkomst(s.links, s.teken, s.rechts);
        const int ongeveer = uitkomst(s.rond_links, s.teken, s.rond_rechts);
        rond_->caption = afgerond_ ? "precies" : "rond af";

        const std::string nu =
            afgerond_ ? tekst(s.rond_links, s.teken, s.rond_rechts) : tekst(s.links, s.teken, s.rechts);
        schrijf_midden(blad, {34, donker}, {blad_midden, 500}, nu);
        schrijf_midden(blad, {14, inkt}, {blad_midden, 1020},
                       afgerond_ ? "afgerond: dit kan uit je hoofd" : "de som zelf");
        const int langst = std::max(precies, ongeveer);
        balk(1350, "precies", precies, langst, half);
        if (!afgerond_) {
            schrijf(blad, {15, inkt}, {60, 2330}, "ongeveer ...");
            return regel(nu, " = ", duizend(precies), ". Nog niet afgerond.");
        }
        balk(2270, "ongeveer", ongeveer, langst, geel);
        const int verschil = std::abs(precies - ongeveer);
        const std::string naast = verschil == 0 ? "De schatting is precies goed."
                                                : regel("De schatting is ", kaal(duizend(verschil)),
                                                        ongeveer > precies ? " te veel." : " te weinig.");
        schrijf_midden(blad, {20, donker}, {blad_midden, 3650}, naast);
        return regel("Afgerond: ", nu, " =", duizend(ongeveer), ". Precies is het", duizend(precies), ". ", naast);
    }

private:
    struct som {
        int links;
        char teken;
        int rechts, rond_links, rond_rechts;
    };
    static constexpr som sommen[]{{398, '+', 205, 400, 200}, {802, '-', 203, 800, 200}, {49, 'x', 21, 50, 20},
                                  {287, '+', 512, 300, 500}, {6, 'x', 298, 6, 300},     {1'195, ':', 5, 1'200, 5}};
    static std::string tekst(int links, char teken, int rechts) {
        return regel(kaal(duizend(links)), " ", std::string_view(&teken, 1), rechts);
    }
    static constexpr int uitkomst(int links, char teken, int rechts) {
        switch (teken) {
        case '+': return links + rechts;
        case '-': return links - rechts;
        case 'x': return links * rechts;
        default: return links / rechts;
        }
    }
    void balk(int y, std::string_view naam, int waarde, int langst, kleur met) {
        schrijf(blad, {15, inkt}, {60, y}, regel(naam, duizend(waarde)));
        teken_vak(blad, {60, y + 370, 5240 * waarde / langst, 380}, met, donker);
    }

    int nummer_ = 1;
    bool afgerond_ = false;
    button* rond_;
};

// A shopping list whose prices are rounded in one of three ways, and a purse.
class genoeg_geld : public voorbeeld {
public:
    genoeg_geld() {
        for (int i = 0; i < 3; ++i)
            keuze("manier", bovenaan(i), std::string(manieren[i].naam), [this, i] { manier_ = i; });
        stappen(midden_onder, "geld", euros_, 10, 25);
    }

protected:
    std::string toon() override {
        const manier& zo = manieren[manier_];
        const auto rond = [&](int cent) { return (cent + zo.erbij) / 100; };
        int precies = 0, samen = 0;
        schrijf_rechts(blad, {14, donker}, {3400, 560}, "precies");
        schrijf_rechts(blad, {14, donker}, {5260, 560}, zo.naam);
        for (int y = 900; const auto& [naam, cent] : lijst) {
            schrijf(blad, {16, inkt}, {100, y}, naam);
            schrijf_rechts(blad, {16, inkt}, {3400, y}, bedrag(cent));
            schrijf_rechts(blad, {16, donker}, {5260, y}, bedrag(rond(cent) * 100));
            precies += cent;
            samen += rond(cent);
            y += 400;
        }
        blad.line_width = 2;
        blad.line(60, 2570, 5320, 2570, donker);
        schrijf(blad, {18, donker}, {100, 2620}, "samen");
        schrijf_rechts(blad, {18, inkt}, {3400, 2620}, bedrag(precies));
        schrijf_rechts(blad, {18, donker}, {5260, 2620}, bedrag(samen * 100));

        const std::string oordeel = zeker(samen);
        schrijf_midden(blad, {16, inkt}, {blad_midden, 3380},
                       regel("Je hebt ", bedrag(euros_ * 100), ". Je schatting zegt:"));
        schrijf_midden(blad, {18, donker}, {blad_midden, 3820}, oordeel);
        return regel("Kosten, ", zo.naam, " afgerond: ", bedrag(samen * 100), ". Precies: ", bedrag(precies),
                     ". Je hebt ", bedrag(euros_ * 100), ". ", oordeel);
    }

private:
    struct manier {
        std::string_view naam;
        int erbij; // cents, before the cents are dropped
    };
    static constexpr manier manieren[]{{"naar boven", 99}, {"naar beneden", 0}, {"gewoon", 50}};
    struct boodschap {
        std::string_view naam;
        int cent;
    };
    static constexpr boodschap lijst[]{{"kaas", 640}, {"brood", 275}, {"druiven", 195}, {"sap", 430}};

    std::string zeker(int samen) const {
        if (manier_ == 0) return samen <= euros_ ? "Je hebt zeker genoeg." : "Misschien is het te weinig.";
        if (manier_ == 1) return samen > euros_ ? "Je hebt zeker te weinig." : "Misschien is het genoeg.";
        if (samen == euros_) return "Dat weet je niet zeker.";
        return samen < euros_ ? "Waarschijnlijk genoeg." : "Waarschijnlijk te weinig.";
    }

    int euros_ = 17, manier_ = 0;
};

} // namespace

const lesreeks les_schatten{{
    {"Wat is afronden?",
     {"Een rond getal eindigt op één of meer nullen.",
      "Afronden is: neem het ronde getal dat het dichtstbij ligt. Kijk op de getallenlijn.",
      "Ligt het precies in het midden? Dan rond je naar boven af."},
     {probeer, "Verander het getal, of klik op de lijn. Rond af op een tiental of honderdtal."},
     nieuw<afronden>},
    {"Ongeveer hoeveel?",
     {"Je hoeft het niet altijd precies te weten. Rond dan eerst af.", "398 + 205 is ongeveer 400 + 200. Dat is 600.",
      "Met een schatting zie je ook of een antwoord kan kloppen."},
     {probeer, "Druk op 'rond af'. Hoe ver ligt de schatting ernaast?"},
     nieuw<schatting>},
    {"Heb je genoeg bij je?",
     {"Soms wil je zeker weten dat je genoeg hebt.", "Rond dan alle prijzen naar boven af. Dan valt het altijd mee.",
      "Rond je alles naar beneden af? Dan kan het tegenvallen."},
     {probeer, "Kies hoe je afrondt. Verander het geld dat je hebt."},
     nieuw<genoeg_geld>},
}};

} // namespace cijferwerf
