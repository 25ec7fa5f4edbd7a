// Money: what a euro is changed into, paying and the change, prices that are nearly round.
#include "forms/introduction/les.h"
#include "forms/introduction/schrijf.h"
#include "generators/gedeeld/munten.h"
#include "generators/gedeeld/tekening_geld.h"

#include <algorithm>
#include <numeric>

namespace cijferwerf {

namespace {

// A euro changed into coins of one value, and how many of them go into more euros.
class wisselen : public voorbeeld {
public:
    wisselen() {
        stappen(links_onder, "munt", soort_, 0, laatste(soorten), 1,
                [](int nummer) { return regel(kaal(soorten[nummer].cent), " ct"); });
        stappen(rechts_onder, "euro's", euros_, 1, 10);
    }

protected:
    std::string toon() override {
        const auto [cent, per_rij, afstand] = soorten[soort_];
        const int aantal = 100 / cent, rijen = aantal / per_rij;
        teken_munt(blad, {620, 1080}, 520, 100);
        schrijf_midden(blad, {28, donker}, {1400, 1080}, "=");
        for (int i = 0; i < aantal; ++i) {
            const point midden{3500 + (2 * (i % per_rij) - per_rij + 1) * afstand / 2,
                               1080 + (2 * (i / per_rij) - rijen + 1) * afstand / 2};
            if (afstand >= 440) {
                teken_munt(blad, midden, afstand / 2 - 12, cent);
                continue;
            }
            // Too small for words.
            blad.filled_circle(midden.x, midden.y, afstand / 2 - 12, donkerrood);
            blad.circle(midden.x, midden.y, afstand / 2 - 12, wit);
        }

        const std::string een = regel("In ", bedrag(100), " gaan ", aantal, " ", geldstuk(cent, aantal), ".");
        const std::string meer = regel("In ", bedrag(euros_ * 100), " gaan ", euros_, " x ", aantal, " =",
                                       duizend(euros_ * aantal), " munten.");
        schrijf(blad, {15, inkt}, {60, 2700}, een);
        schrijf(blad, {16, donker}, {60, 3400}, meer);
        return een + " " + meer;
    }

private:
    // In cents; how many in a row, and how far apart.
    struct soort {
        int cent, per_rij, afstand;
    };
    static constexpr soort soorten[]{{1, 10, 205}, {2, 10, 370}, {5, 5, 500},
                                     {10, 5, 720}, {20, 5, 720}, {50, 2, 1000}};

    int soort_ = 4, euros_ = 6;
};

// A till: money that is put down for something that is bought, and the change, counted up from the price.
class kassa : public voorbeeld {
public:
    kassa() {
        stappen(links_onder, "prijs", artikel_, 0, laatste(artikelen), 1,
                [](int nummer) { return bedrag(artikelen[nummer].prijs); });
        knop("opnieuw", rechts_onder, theme_role::action, "geld terugnemen", [this] { gegeven_ = {}; });
        for (std::size_t i = 0; i < geld.size(); ++i)
            cel("geldstuk", static_cast<int>(i) + 1, plek(i), "een " + std::string(geldstuk(geld[i])), [this, i] {
                if (totaal() + geld[i] <= meest) ++gegeven_[i];
            });
    }

protected:
    std::string toon() override {
        blad.colours = &geldkleuren();
        const auto [naam, prijs] = artikelen[artikel_];
        std::string zin = regel(naam, " kost ", bedrag(prijs), ".");
        schrijf(blad, {18, donker}, {60, 40}, zin);
        for (std::size_t i = 0; i < geld.size(); ++i) {
            const point midden = plek(i).midden();
            teken_geld(blad, midden, geld[i]);
            if (gegeven_[i] > 0) schrijf_midden(blad, {12, donker}, {midden.x, 1160}, regel(kaal(gegeven_[i]), " x"));
        }
        const std::string geeft = regel("Jij geeft ", bedrag(totaal()));
        const int terug = totaal() - prijs;
        const std::string over = terug < 0    ? regel("Er moet nog ", bedrag(-terug), " bij")
                                 : terug == 0 ? "Dat is gepast"
                                              : regel("Je krijgt ", bedrag(terug), " terug");
        schrijf(blad, {15, inkt}, {60, 1500}, geeft);
        schrijf_rechts(blad, {15, terug < 0 ? inkt : donker}, {5320, 1500}, over);
        zin += regel(" ", geeft, ". ", over, ".");
        if (terug > 0) {
            vul_aan(prijs);
            leg_neer(terug);
        }
        return zin;
    }

private:
    struct artikel {
        std::string_view naam;
        int prijs;
    };
    static constexpr artikel artikelen[]{{"Een pen", 85},  {"Een schrift", 175}, {"Een pizza", 635},
                                         {"Een bal", 860}, {"Een boek", 1295},   {"Een T-shirt", 1450}};
    static constexpr std::array<int, 9> geld{2'000, 1'000, 500, 200, 100, 50, 20, 10, 5};
    static constexpr int meest = 5'000;

    // Ink is read on the notes of 5 and 10 euros.
    static const kleurtabel& geldkleuren() {
        static const kleurtabel kleuren = [] {
            kleurtabel k = voorbeeldkleuren(subject::geld);
            k[grijs] = 0xA9B4C2;
            k[rood] = 0xEC7B66;
            return k;
        }();
        return kleuren;
    }
    static constexpr bool is_briefje(int cent) { return cent >= 500; }
    static vlak plek(std::size_t soort) {
        const int i = static_cast<int>(soort);
        return i < 3 ? vlak{30 + i * 760, 600, 720, 380} : vlak{2330 + (i - 3) * 505, 540, 500, 500};
    }
    static void teken_geld(drawing& on, point midden, int cent) {
        if (is_briefje(cent))
            teken_briefje(on, midden.x - 340, midden.y - 170, 680, cent / 100);
        else
            teken_munt(on, midden, 240, cent);
    }

    int totaal() const { return std::inner_product(geld.begin(), geld.end(), gegeven_.begin(), 0); }

    // From the price to the next whole euro, and from there to what was given.
    void vul_aan(int prijs) {
        constexpr int y = 3060;
        std::vector<int> punten{prijs};
        if (const int heel = (prijs + 99) / 100 * 100; heel > prijs && heel < totaal()) punten.push_back(heel);
        punten.push_back(totaal());
        const zelfde_stand bewaard(blad, 3);
        blad.line(200, y, 5180, y, inkt);
        const int breed = 4400 / (static_cast<int>(punten.size()) - 1);
        for (int x = 490, i = 0; const int punt : punten) {
            blad.line(x, y - 60, x, y + 60, inkt);
            schrijf_midden(blad, {13, inkt}, {x, y + 230}, bedrag(punt));
            if (i > 0)
                teken_sprong(blad, x - breed, x, y, 360, {13, donker},
                             "+ " + bedrag(punt - punten[static_cast<std::size_t>(i - 1)]));
            ++i;
            x += breed;
        }
    }

    // The change in as few coins and notes as can be.
    void leg_neer(int terug) {
        std::array<stapel, geld.size()> lade{};
        std::ranges::transform(geld, lade.begin(), [](int cent) { return stapel{cent, meest / cent}; });
        int x = 60;
        for (const auto& [cent, aantal] : betaling(lade, terug))
            for (int i = 0; i < aantal; ++i) {
                const int breed = is_briefje(cent) ? 680 : 480;
                teken_geld(blad, {x + breed / 2, 3900}, cent);
                x += breed + 40;
            }
    }

    int artikel_ = 2;
    std::array<int, geld.size()> gegeven_{0, 1}; // pieces of each kind
};

// A price that is nearly round, some times over.
class bijna_rond : public voorbeeld {
public:
    bijna_rond() {
        stappen(links_onder, "aantal", aantal_, 1, 6);
        stappen(rechts_onder, "prijs", keus_, 0, laatste(prijzen), 1, [](int keus) { return bedrag(prijzen[keus]); });
    }

protected:
    std::string toon() override {
        const int prijs = prijzen[keus_], rond = (prijs + 99) / 100 * 100;
        const int verschil = rond - prijs;
        for (int i = 0; i < aantal_; ++i) {
            teken_kaartje({40 + i * 890, 500, 830, 760}, bedrag(prijs));
            schrijf_midden(blad, {12, donker}, {40 + i * 890 + 415, 1500}, regel("+ ", bedrag(verschil)));
        }
        const std::string sommen[]{regel(kaal(aantal_), " x ", bedrag(rond), " = ", bedrag(aantal_ * rond)),
                                   regel(kaal(aantal_), " x ", bedrag(verschil), " = ", bedrag(aantal_ * verschil)),
                                   regel("€", komma(aantal_ * rond, 2), " - €", komma(aantal_ * verschil, 2), " = €",
                                         komma(aantal_ * prijs, 2))};
        for (int i = 0; i < 3; ++i) schrijf(blad, {20, i == 2 ? donker : inkt}, {60, 2300 + i * 620}, sommen[i]);
        schrijf_rechts(blad, {13, inkt}, {5320, 2370}, "rond");
        schrijf_rechts(blad, {13, inkt}, {5320, 2990}, "te veel");
        schrijf_rechts(blad, {13, donker}, {5320, 3610}, "precies");
        return regel(kaal(aantal_), " keer ", bedrag(prijs), ". Rond: ", sommen[0], ". Te veel: ", sommen[1],
                     ". Precies: ", sommen[2], ".");
    }

private:
    static constexpr int prijzen[]{99, 198, 295, 499, 995};

    void teken_kaartje(const vlak& op, std::string_view tekst) {
        const std::vector<point> omtrek{{op.links, op.boven + 240},
                                        {op.midden().x, op.boven},
                                        {op.rechts(), op.boven + 240},
                                        {op.rechts(), op.onder()},
                                        {op.links, op.onder()}};
        const zelfde_stand bewaard(blad, 2);
        blad.polygon(omtrek, wit, true);
        blad.polygon(omtrek, donker, false);
        blad.circle(op.midden().x, op.boven + 160, 55, donker);
        schrijf_midden(blad, {13, inkt}, {op.midden().x, op.boven + 500}, tekst);
    }

    int aantal_ = 4, keus_ = 2;
};

} // namespace

const lesreeks les_geld{{
    {"Geld wisselen",
     {"Eén euro is 100 eurocent.", "Wisselen is ruilen: je krijgt ander geld, maar het blijft evenveel waard.",
      "Hoeveel munten van 20 eurocent gaan er in één euro? Reken uit: 100 : 20 = 5."},
     {probeer, "Kies een andere munt. Kies daarna hoeveel euro's je wisselt."},
     nieuw<wisselen>},
    {"Betalen en terugkrijgen",
     {"Geef je te veel? Dan krijg je geld terug.",
      "Vul aan vanaf de prijs. Ga eerst tot een hele euro en dan tot wat je gaf.", "Wat je aanvult, krijg je terug."},
     {probeer, "Neem het geld terug. Klik daarna op briefjes en munten tot je genoeg geeft."},
     nieuw<kassa>},
    {"Bijna rond",
     {"Veel prijzen zijn net geen rond bedrag. € 2,95 is bijna € 3,-.", "Reken eerst met het ronde bedrag.",
      "Haal er daarna af wat je te veel hebt genomen."},
     {probeer, "Verander het aantal en de prijs. Klopt het steeds?"},
     nieuw<bijna_rond>},
}};

} // namespace cijferwerf
