// Coins and notes: what they are worth together, how many go into an amount, which amounts they can pay. The wrong
// answers come from a value that was misread or from coins that were not counted.
#include "generators/gedeeld/munten.h"
#include "generators/gedeeld/persoon.h"
#include "generators/gedeeld/tekening_geld.h"
#include "generators/oefeningen.h"

#include <cmath>
#include <numeric>

namespace cijferwerf {

namespace {

int waarde(std::span<const stapel> geld) {
    return std::accumulate(geld.begin(), geld.end(), 0, [](int som, stapel s) { return som + s.aantal * s.cent; });
}

// Each kind in a row of its own: the coin or note, and how many there are.
void teken_spaargeld(drawing& on, const std::vector<stapel>& geld) {
    const int hoog = drawing::inner_height / static_cast<int>(geld.size());
    for (int midden = hoog / 2; const auto [cent, aantal] : geld) {
        if (cent >= briefwaarden.back())
            teken_briefje(on, 450, midden - 200, 800, cent / 100);
        else
            teken_munt(on, {850, midden}, 235, cent);
        on.print_at(1750, midden - halve_regel(on.text_size), regel(kaal(aantal), " ", geldstuk(cent, aantal)));
        midden += hoog;
    }
}

} // namespace

void oefeningen::B_spaarpot_05_07_click() {
    static constexpr std::array<persoon, 12> namen{{{"Jan", man},
                                                    {"Piet", man},
                                                    {"Ria", vrouw},
                                                    {"Sofie", vrouw},
                                                    {"Michael", man},
                                                    {"Arjan", man},
                                                    {"Ranu", vrouw},
                                                    {"Soesja", vrouw},
                                                    {"John", man},
                                                    {"Wessel", man},
                                                    {"Eva", vrouw},
                                                    {"Aruna", vrouw}}};
    static constexpr std::array briefjes{1000, 500};
    static constexpr std::array munten{200, 100, 50, 20, 10, 5};
    kies_variant(4);
    const persoon& wie = kies(namen);
    // Three kinds or four, without notes or with.
    const std::size_t soorten = variant <= 2 ? 3 : 4;
    const std::size_t briefsoorten = variant % 2 == 1 ? 0 : soorten - 2;
    std::vector<stapel> geld;
    for (const int cent : geschud(briefjes))
        if (geld.size() < briefsoorten) geld.push_back({cent, trek_van(1, 4)});
    for (const int cent : geschud(munten))
        if (geld.size() < soorten) geld.push_back({cent, trek_van(1, 9)});
    std::ranges::sort(geld, std::ranges::greater{}, &stapel::cent);
    const int totaal = waarde(geld);

    bord(wit, donkerblauw, 14);
    teken_spaargeld(plaatje, geld);

    vraag(regel(wie.naam, " gooit ", wie.zijn(), " spaarpot leeg."), regel("Wat er in ", wie.zijn(), " spaarpot zat,"),
          "zie je hiernaast.", leeg, "Hoeveel geld zat er in?");

    // A kind left out, one of each kind, and each value read as the one above or below it.
    int van_elk_een = 0;
    for (const stapel& s : geld) van_elk_een += s.cent;
    std::vector<keuze<int>> vergissingen{
        {van_elk_een}, {geld.front().aantal * geld.front().cent}, {totaal - geld.back().aantal * geld.back().cent}};
    for (const auto [cent, aantal] : geld)
        for (const int gelezen : cent >= briefwaarden.back() ? std::span<const int>(briefjes) : munten)
            if (2 * std::max(gelezen, cent) <= 5 * std::min(gelezen, cent))
                vergissingen.push_back({totaal + aantal * (gelezen - cent)});
    drie_andere(totaal, euro, vergissingen);
    tip_1("Kijk goed naar de waarde van elke", "munt...");
    tip_2("Kijk eerst wat de waarde van elke munt is.", "Vermenigvuldig die met het aantal en tel dan", "alles op.");

    std::array<std::string, 4> sommen{{"", "", "", std::string(leeg)}};
    for (std::size_t i = 0; i < soorten; ++i) {
        const auto [cent, aantal] = geld[i];
        const bool laatste = i + 1 == soorten;
        sommen[i] =
            regel(kaal(aantal), " x", euro(cent), " =", euro(aantal * cent), laatste ? " . In totaal: " : "  en ");
        if (laatste) sommen[i] += regel(kaal(euro(totaal)), ".");
    }
    uitleg("Eerst moet je van elke soort munten het aantal", "vermenigvuldigen met de waarde ervan:", sommen[0],
           sommen[1], sommen[2], sommen[3]);
}

void oefeningen::B_wisselen_05_07_click() {
    struct aantal_biljetten {
        int aantal;
        std::string_view woorden;
    };
    static constexpr std::array<aantal_biljetten, 4> aantallen{
        {{1, "een biljet van"}, {2, "twee biljetten van"}, {3, "drie biljetten van"}, {6, "zes biljetten van"}}};
    static constexpr std::array munten{10, 20, 50};
    kies_variant(3);
    const int munt = rij(munten, variant);
    const aantal_biljetten& biljetten = kies(aantallen);
    const int biljet = kies(std::array{20, 50, 100, 200});
    const int per_euro = 100 / munt;
    const int bedrag = biljetten.aantal * biljet;
    const std::string inwisselen = regel(biljetten.woorden, euro(biljet * 100));

    plaatje.picture("wisselen.bmp");

    vraag("Een winkelier gaat naar de bank", "om kleingeld te halen. Hij", regel("wisselt ", inwisselen),
          regel("tegen munten van", munt, " eurocent."), leeg, "Hoeveel munten krijgt hij?");

    // Another number of coins for each euro, or the number of notes forgotten.
    drie_andere(
        bedrag * per_euro, duizend,
        {{bedrag}, {bedrag * 2}, {bedrag * 5}, {bedrag * 10}, {bedrag * 20}, {bedrag * 50}, {biljet * per_euro}});
    tip_1("Bedenk eerst hoeveel van die munten je", "voor een euro krijgt...");
    tip_2("Denk eerst na over hoeveel munten je", "per euro krijgt en doe daarna een", "vermenigvuldiging....");

    uitleg(biljetten.aantal == 1 ? regel("Hij wisselt ", inwisselen, ".")
                                 : regel("Hij wisselt ", inwisselen, ", dat is", biljetten.aantal, " x",
                                         euro(biljet * 100), " =", euro(bedrag * 100), "."),
           regel("Voor een euro (100 eurocent) krijgt hij", per_euro, " munten"),
           regel("van", munt, " eurocent. Voor", euro(bedrag * 100), " krijgt hij er dus"),
           regel(kaal(duizend(bedrag)), " x", per_euro, " =", duizend(bedrag * per_euro), "."));
}

void oefeningen::L_snel_05_07_click() {
    struct muntsoort {
        int cent;
        std::string_view naam;
    };
    static constexpr std::array<muntsoort, 6> munten{{{1, "munten van 1 eurocent"},
                                                      {2, "munten van 2 eurocent"},
                                                      {5, "munten van 5 eurocent"},
                                                      {10, "munten van 10 eurocent"},
                                                      {20, "munten van 20 eurocent"},
                                                      {50, "munten van 50 eurocent"}}};
    kies_variant(6);
    const muntsoort& munt = rij(munten, variant);
    const int bedrag = kies(std::array{2, 5, 10});
    const int per_euro = 100 / munt.cent;
    const int aantal = bedrag * per_euro;

    snel_bord(10, 15);
    druk(500, 250, "Hoeveel ", munt.naam);
    druk(500, 640, "gaan er in", euro(bedrag * 100), "?");

    vraag("Kijk hiernaast.", leeg, "Je hebt niet veel tijd!");

    goed(kaal(duizend(aantal)));
    for (const int afstand : {5, 10, 15}) {
        const int ernaast = aantal - afstand + trek(2) * 2 * afstand;
        fout(kaal(duizend(ernaast < 1 ? aantal + afstand : ernaast)));
    }

    uitleg(munt.cent == 1 ? "In een euro zitten 100 eurocenten, dus"
                          : regel("In een euro gaan", per_euro, " ", munt.naam, ", dus"),
           regel("in", euro(bedrag * 100), " zitten", bedrag, " x", per_euro, " =", duizend(aantal), "."));
}

namespace {

// Every coin by itself, each kind in a column, the largest values first.
void teken_munten(drawing& on, const std::vector<stapel>& geld) {
    const int breed = drawing::inner_width / static_cast<int>(geld.size());
    for (int midden = breed / 2; const auto [cent, aantal] : geld) {
        for (int i = 0; i < aantal; ++i)
            teken_munt(on, {midden, drawing::inner_height / 2 + (2 * i + 1 - aantal) * 340}, 320, cent);
        midden += breed;
    }
}

// " 2,00 + 0,50 + 0,50 = 3,00"
std::string betaald_met(std::span<const stapel> geld, int bedrag) {
    std::string som;
    for (const auto [cent, aantal] : betaling(geld, bedrag))
        for (int i = 0; i < aantal; ++i) som += regel(som.empty() ? "" : " +", komma(cent, 2));
    return regel(som, " =", komma(bedrag, 2));
}

// The amounts between the smallest coin and all of them together: in steps that the coins leave possible, so that
// none is out of the question at first sight. Single coins are passed over.
struct tussenliggend {
    std::vector<int> gepast, niet_gepast;
};
tussenliggend tussen_munt_en_totaal(const std::vector<stapel>& geld) {
    const bedragen kan = gepast_te_betalen(geld);
    int stap = 0;
    for (const stapel& s : geld) stap = std::gcd(stap, s.cent);
    tussenliggend alle;
    for (int bedrag = geld.back().cent + stap; bedrag < waarde(geld); bedrag += stap)
        if (!kan[static_cast<std::size_t>(bedrag)])
            alle.niet_gepast.push_back(bedrag);
        else if (std::ranges::find(geld, bedrag, &stapel::cent) == geld.end())
            alle.gepast.push_back(bedrag);
    return alle;
}

} // namespace

void oefeningen::M_niet_gepast_05_07_click() {
    static constexpr std::array groot{200, 100, 50, 20, 10};
    static constexpr std::array klein{20, 10, 5, 2, 1};
    kies_variant(4);
    // Three kinds or four, large or small; at most nine coins, so that a sum of them fits a line.
    const std::size_t soorten = variant <= 2 ? 3 : 4;
    const std::vector<stapel> geld = trek_tot(
        [&] {
            std::vector<stapel> munten;
            for (const int cent : geschud(variant % 2 == 1 ? groot : klein))
                if (munten.size() < soorten) munten.push_back({cent, trek_van(1, soorten == 3 ? 3 : 2)});
            std::ranges::sort(munten, std::ranges::greater{}, &stapel::cent);
            return munten;
        },
        [](const std::vector<stapel>& munten) {
            const tussenliggend alle = tussen_munt_en_totaal(munten);
            return !alle.niet_gepast.empty() && alle.gepast.size() >= 3;
        });
    const tussenliggend alle = tussen_munt_en_totaal(geld);
    const int niet = kies(alle.niet_gepast);
    // How many of the other three are less is drawn.
    std::vector<int> gepast = geschud(alle.gepast);
    const auto meer = std::ranges::partition(gepast, [&](int bedrag) { return bedrag < niet; }).begin();
    const int minder = static_cast<int>(meer - gepast.begin()), rest = static_cast<int>(gepast.size()) - minder;
    const int eronder = trek_van(std::max(0, 3 - rest), std::min(3, minder));
    std::rotate(gepast.begin() + eronder, meer, gepast.end());
    const auto in_euro = [](int bedrag) { return regel("€", komma(bedrag, 2)); };

    bord(cyaan, wit, 12);
    teken_munten(plaatje, geld);

    vraag("Hiernaast zie je over welke", "munten je beschikt.", leeg, "Welke van de vier gegeven bedragen",
          "kun je hiermee NIET gepast", "betalen?");

    goed(in_euro(niet));
    fout(in_euro(gepast[0]), "Het bedrag dat jij koos is wel gepast te betalen.");
    fout(in_euro(gepast[1]), "Dat bedrag is wel gepast te betalen.");
    fout(in_euro(gepast[2]), "Het bedrag dat jij koos is juist wel gepast te", "betalen.");

    uitleg("Drie bedragen zijn gepast te betalen. Kijk maar:", betaald_met(geld, gepast[0]),
           betaald_met(geld, gepast[1]), betaald_met(geld, gepast[2]),
           regel("Het bedrag ", in_euro(niet), " is niet gepast te betalen."));
}

} // namespace cijferwerf
