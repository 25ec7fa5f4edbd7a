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
        maak_blad(180, 90, 5820, 2);
        stapper& stap = stappen({180, 4740, 2580, 570}, 660, "getal", getal_, 100, 1'000);
        stap.vorm = [](int getal) { return regel(kaal(duizend(getal))); };
        stap.getal->font_size = 15;
        keuze("afronden", {2940, 4740, 1470, 570}, "tiental", [this] { op_ = 10; });
        keuze("afronden", {4530, 4740, 1470, 570}, "honderdtal", [this] { op_ = 100; });
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
        schrijf_midden(blad, {15, inkt}, {2690, 2640}, waarom);
        schrijf_midden(blad, {26, donker}, {2690, 3460}, uitkomst);
        return regel("Tussen", duizend(onder), " en", duizend(boven), ". ", waarom, " ", uitkomst, ".");
    }

private:
    static constexpr int links = 600, rechts = 4780, lijn_y = 1400;

    int getal_ = 347, op_ = 10;
};

// A sum, exact or with rounded numbers, and how far the two results lie apart.
class schatting : public voorbeeld {
public:
    schatting() {
        maak_blad(180, 90, 5820, 2);
        stappen({180, 4740, 2790, 570}, 960, "som", nummer_, 1, static_cast<int>(sommen.size()));
        rond_ = &knop("rond", {3210, 4740, 2790, 570}, theme_role::action, "", [this] { afgerond_ = !afgerond_; });
    }

protected:
    std::string toon() override {
        const som& s = sommen[static_cast<std::size_t>(nummer_ - 1)];
        const int precies = uitkomst(s.links, s.teken, s.rechts);
        const int ongeveer = uitkomst(s.rond_links, s.teken, s.rond_rechts);
        rond_->caption = afgerond_ ? "precies" : "rond af";

        const std::string nu =
            afgerond_ ? tekst(s.rond_links, s.teken, s.rond_rechts) : tekst(s.links, s.teken, s.rechts);
        schrijf_midden(blad, {34, donker}, {2690, 500}, nu);
        schrijf_midden(blad, {14, inkt}, {2690, 1020}, afgerond_ ? "afgerond: dit kan uit je hoofd" : "de som zelf");
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
        schrijf_midden(blad, {20, donker}, {2690, 3650}, naast);
        return regel("Afgerond: ", nu, " =", duizend(ongeveer), ". Precies is het", duizend(precies), ". ", naast);
    }

private:
    struct som {
        int links;
        char teken;
        int rechts, rond_links, rond_rechts;
    };
    static constexpr std::array<som, 6> sommen{{{398, '+', 205, 400, 200},
                                                {802, '-', 203, 800, 200},
                                                {49, 'x', 21, 50, 20},
                                                {287, '+', 512, 300, 500},
                                                {6, 'x', 298, 6, 300},
                                                {1'195, ':', 5, 1'200, 5}}};
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
        maak_blad(180, 90, 5820, 2);
        stappen({180, 4740, 2280, 570}, 660, "geld", euros_, 10, 25);
        for (int i = 0; i < 3; ++i) {
            const std::string naam(manieren[static_cast<std::size_t>(i)].naam);
            keuze("manier", {2580 + i * 1150, 4740, 1120, 570}, naam, [this, i] { manier_ = i; }).accessible_name =
                manieren[static_cast<std::size_t>(i)].voluit;
        }
    }

protected:
    std::string toon() override {
        const manier& zo = manieren[static_cast<std::size_t>(manier_)];
        const auto rond = [&](int cent) { return (cent + zo.erbij) / 100; };
        int precies = 0, samen = 0;
        schrijf_rechts(blad, {14, donker}, {3500, 60}, "precies");
        schrijf_rechts(blad, {14, donker}, {5260, 60}, zo.voluit);
        for (int y = 450; const auto& [naam, cent] : lijst) {
            schrijf(blad, {16, inkt}, {100, y}, naam);
            schrijf_rechts(blad, {16, inkt}, {3500, y}, bedrag(cent));
            schrijf_rechts(blad, {16, donker}, {5260, y}, bedrag(rond(cent) * 100));
            precies += cent;
            samen += rond(cent);
            y += 420;
        }
        blad.line_width = 2;
        blad.line(60, 2240, 5320, 2240, donker);
        schrijf(blad, {18, donker}, {100, 2320}, "samen");
        schrijf_rechts(blad, {18, inkt}, {3500, 2320}, bedrag(precies));
        schrijf_rechts(blad, {18, donker}, {5260, 2320}, bedrag(samen * 100));

        const std::string oordeel = zeker(samen);
        schrijf_midden(blad, {16, inkt}, {2690, 3200}, regel("Je hebt ", bedrag(euros_ * 100), ". Je schatting zegt:"));
        schrijf_midden(blad, {18, donker}, {2690, 3700}, oordeel);
        return regel("Kosten, ", zo.voluit, " afgerond: ", bedrag(samen * 100), ". Precies: ", bedrag(precies),
                     ". Je hebt ", bedrag(euros_ * 100), ". ", oordeel);
    }

private:
    struct manier {
        std::string_view naam, voluit;
        int erbij; // cents, before the cents are dropped
    };
    static constexpr std::array<manier, 3> manieren{
        {{"boven", "naar boven", 99}, {"beneden", "naar beneden", 0}, {"gewoon", "gewoon", 50}}};
    struct boodschap {
        std::string_view naam;
        int cent;
    };
    static constexpr std::array<boodschap, 4> lijst{{{"kaas", 640}, {"brood", 275}, {"druiven", 195}, {"sap", 430}}};
    static std::string bedrag(int cent) { return regel(kaal(euro(cent))); }

    std::string zeker(int samen) const {
        if (manier_ == 0) return samen <= euros_ ? "Je hebt zeker genoeg." : "Misschien is het te weinig.";
        if (manier_ == 1) return samen > euros_ ? "Je hebt zeker te weinig." : "Misschien is het genoeg.";
        return samen <= euros_ ? "Waarschijnlijk genoeg." : "Waarschijnlijk te weinig.";
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
