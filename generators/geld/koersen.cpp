// Foreign money: a table of rates, of which the higher one is paid by who buys and the lower one paid to who returns.
// The wrong answers take the other rate or another currency's, or divide where one multiplies.
#include "generators/gedeeld/kommagetal.h"
#include "generators/gedeeld/persoon.h"
#include "generators/gedeeld/tekening_tabel.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

namespace {

constexpr std::array<persoon, 10> reizigers{{{"Natasja", vrouw},
                                             {"Youri", man},
                                             {"Ronald", man},
                                             {"Jolanda", vrouw},
                                             {"Hennie", vrouw},
                                             {"Lesley", man},
                                             {"Conny", vrouw},
                                             {"Milan", man},
                                             {"Millie", vrouw},
                                             {"Henk", man}}};

// A country's money, and from where to where the lower rate lies: in cents for one of it.
struct valuta {
    std::string_view land, meer, een, in_tabel;
    int laagst, hoogst;
};
constexpr std::array<valuta, 5> valutas{
    {{"de Verenigde Staten", "Amerikaanse dollars", "Amerikaanse dollar", "Amer. Dollar", 83, 92},
     {"Australië", "Australische dollars", "Australische dollar", "Austr. Dollar", 55, 67},
     {"Canada", "Canadese dollars", "Canadese dollar", "Canadese Dollar", 62, 74},
     {"Engeland", "Engelse ponden", "Engelse pond", "Engels Pond", 112, 128},
     {"Zwitserland", "Zwitserse francs", "Zwitserse franc", "Zwitserse Franc", 101, 109}}};

struct koers {
    int laag, hoog; // cents
};
using koersen = std::array<koers, 5>;

koersen koersen_van_vandaag(random_draws& toeval) {
    koersen alle{};
    for (std::size_t i = 0; i < alle.size(); ++i) {
        const auto& [land, meer, een, in_tabel, laagst, hoogst] = valutas[i];
        alle[i].laag = laagst + toeval.below(hoogst - laagst + 1);
        alle[i].hoog = alle[i].laag + 4 + toeval.below(4);
    }
    return alle;
}

void teken_koersen(drawing& on, const koersen& alle) {
    constexpr int links = 250, breedte = 4880, kop = 60, rijhoogte = 280;
    on.print_at(links, kop, "KOERSEN");
    on.print_right(links + breedte, kop, "OVERZICHT");
    tabel t(on, links, kop + 320, breedte, rijhoogte,
            {{"in euro's", links + 80}, {"bank koopt", 3500, true}, {"bank verkoopt", 5000, true}});
    for (std::size_t i = 0; i < valutas.size(); ++i)
        t.rij(valutas[i].in_tabel, komma(alle[i].laag, 2), komma(alle[i].hoog, 2));
}

} // namespace

void oefeningen::L_vreemd_geld_1_05_07_click() {
    kies_variant(5);
    const persoon& wie = kies(reizigers);
    const valuta& geld = rij(valutas, variant);
    const koersen alle = koersen_van_vandaag(toeval);
    const koers nu = rij(alle, variant);
    const int euros = trek_van(150, 950, 25);
    const int centen = euros * 100;
    const int aantal = centen / nu.hoog;

    bord(wit, donkerblauw, 11);
    teken_koersen(plaatje, alle);

    vraag(regel(wie.naam, " gaat op vakantie naar"), regel(geld.land, ". ", wie.naam, " besluit"),
          regel("voor", euro(centen), " aan ", geld.meer), "mee te nemen.", regel("Hoeveel hele ", geld.meer),
          regel("kan ", wie.hij(), " kopen?"));

    // The lower rate, multiplied, rounded up or worked out carelessly, or the rate of another row.
    std::vector<keuze<int>> vergissingen{
        {centen / nu.laag}, {euros * nu.hoog / 100}, {euros * nu.laag / 100}, {aantal + 1}, {aantal - 1},
        {aantal - 10}};
    for (const koers& andere : alle) vergissingen.push_back({centen / andere.hoog});
    drie_andere(aantal, duizend, vergissingen);
    tip_1("Weet je dat je de hoogste koers", "moet gebruiken?");
    tip_2("Doe een deling en gebruik de hoogste", "koers...");

    // A quotient that goes on behind two decimals is broken off, as its dots tell.
    const bool deelbaar = centen * 100 % nu.hoog == 0;
    const number_text quotient = komma_kort(centen * 100 / nu.hoog, 2);
    uitleg("Als je vreemd geld koopt, moet je altijd tegen",
           regel("de hoogste koers kopen. Nu geldt de koers:", komma(nu.hoog, 2), ","),
           regel("dat wil zeggen voor een ", geld.een, " moet"),
           regel("je", euro(nu.hoog), " betalen. Deel dus het aantal euro's"),
           regel("door dat getal:", euros, "/", kaal(komma(nu.hoog, 2)), " =", quotient, deelbaar ? "." : "..."),
           regel("Dat zijn", duizend(aantal), " HELE ", geld.meer, "."));
}

void oefeningen::L_vreemd_geld_2_05_07_click() {
    kies_variant(5);
    const persoon& wie = kies(reizigers);
    const valuta& geld = rij(valutas, variant);
    const koersen alle = koersen_van_vandaag(toeval);
    const koers nu = rij(alle, variant);
    const int bedrag = trek_van(120, 950, 10);
    const int centen = bedrag * nu.laag;
    const int euros = centen / 100;

    bord(wit, donkerblauw, 11);
    teken_koersen(plaatje, alle);

    vraag(regel(wie.naam, " komt van vakantie terug uit"), regel(geld.land, ". ", wie.naam, " wisselt"),
          regel("voor", bedrag, " ", geld.meer), "in euro's.", regel("Hoeveel hele euro's kan ", wie.naam), "krijgen?");

    // The higher rate, divided, rounded up or worked out carelessly, or the rate of another row.
    std::vector<keuze<int>> vergissingen{{bedrag * nu.hoog / 100},
                                         {bedrag * 100 / nu.laag},
                                         {bedrag * 100 / nu.hoog},
                                         {euros + 1},
                                         {euros - 1},
                                         {euros - 10}};
    for (const koers& andere : alle) vergissingen.push_back({bedrag * andere.laag / 100});
    drie_andere(euros, duizend, vergissingen);
    tip_1("Weet je dat je de laagste koers", "moet gebruiken?");
    tip_2("Doe een vermenigvuldiging en gebruik de", "laagste koers...");

    const bool afgerond = centen % 100 != 0;
    uitleg("Als je vreemd geld teruggeeft, krijg je geld terug",
           regel("tegen de laagste koers:", komma(nu.laag, 2), ","),
           regel("Dit betekent dat je voor elke ", geld.een, euro(nu.laag)),
           regel("terug krijgt. Voor", bedrag, " ", geld.meer, " krijg je"),
           regel("dus", bedrag, " x", komma(nu.laag, 2), " =", afgerond ? komma(centen, 2) : tekst(euros),
                 afgerond ? ". Dat zijn, naar beneden afgerond," : ". Dat zijn"),
           regel(kaal(duizend(euros)), " HELE euro's terug."));
}

} // namespace cijferwerf
