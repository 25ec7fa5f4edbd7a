// Powers to be written down: a long product in short, and which of four people writes the calculation of a story
// rightly. The wrong ones swap base and exponent, or two other numbers.
#include "generators/gedeeld/kleuren.h"
#include "generators/gedeeld/machtnaam.h"
#include "generators/machten/macht.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

namespace {

// One power, or two that are added. Those of one value are equal: 2^4 and 4^2.
struct machtsom {
    macht een, ander;
    long long waarde = 0;

    machtsom() = default;
    machtsom(const macht& a, const macht& b = {}) : een(a), ander(b), waarde(a.waarde() + b.waarde()) {}
    bool dubbel() const { return ander.grondtal > 0; }
    friend bool operator==(const machtsom& a, const machtsom& b) { return a.waarde == b.waarde; }
    friend auto operator<=>(const machtsom& a, const machtsom& b) { return a.waarde <=> b.waarde; }
};

plakregel in_het_kort(const machtsom& som) {
    return som.dubbel() ? plak_even({som.een.op_plaatje(), " + ", som.ander.op_plaatje()}) : som.een.op_plaatje();
}

plakregel verkeerd_geteld(const macht& m) {
    return plak_even({"Je hebt niet goed geteld hoe vaak het getal", m.grondtal, " er staat."});
}

constexpr std::string_view verwisseld = "Je hebt het grondtal en de exponent verwisseld.";

std::vector<keuze<machtsom>> vergissingen_bij(const macht& m) {
    const auto& [a, k] = m;
    const auto ander_grondtal = [a = a](int b) {
        return melding{"Je hebt het verkeerde grondtal gekozen.",
                       regel("In de som staat niet het getal", b, ", maar", a, ".")};
    };
    std::vector<keuze<machtsom>> lijst{{{{a, k - 1}}, {verkeerd_geteld(m)}},
                                       {{{a, k + 1}}, {verkeerd_geteld(m)}},
                                       {{m.verwisseld()}, {verwisseld}},
                                       {{{a + 1, k}}, ander_grondtal(a + 1)}};
    if (k > 3) lijst.push_back({{{a, k - 2}}, {verkeerd_geteld(m)}});
    if (a > 2) lijst.push_back({{{a - 1, k}}, ander_grondtal(a - 1)});
    return lijst;
}

std::vector<keuze<machtsom>> vergissingen_bij(const macht& een, const macht& ander) {
    const auto& [a, k] = een;
    const auto& [b, n] = ander;
    std::vector<keuze<machtsom>> lijst{
        {{{a, k + 1}, ander}, {verkeerd_geteld(een)}},
        {{een, {b, n + 1}}, {verkeerd_geteld(ander)}},
        {{een.verwisseld(), ander.verwisseld()}, {"Je hebt de grondtallen en de exponenten verwisseld."}},
        {{{a, n}, {b, k}}, {"Je hebt de exponenten bij de verkeerde grondtallen", "gezet."}}};
    if (k > 2) lijst.push_back({{{a, k - 1}, ander}, {verkeerd_geteld(een)}});
    if (n > 2) lijst.push_back({{een, {b, n - 1}}, {verkeerd_geteld(ander)}});
    return lijst;
}

constexpr point rekeningen{200, 270};
constexpr int regelhoogte = 430;

} // namespace

void oefeningen::L_korter_00_11_click() {
    kies_variant(2);
    const bool dubbel = variant == 2;
    // Of two powers neither the bases nor the exponents are equal.
    const auto ander_dan = [this](int getal, int tot) {
        const int drawn = trek_van(2, tot - 1);
        return drawn < getal ? drawn : drawn + 1;
    };
    const int a = trek_van(2, dubbel ? 6 : 9);
    const int k = dubbel ? trek_van(2, 5) : trek_van(3, 6);
    const macht een{a, k};
    macht ander;
    if (dubbel) {
        ander.grondtal = ander_dan(a, 9);
        ander.exponent = ander_dan(k, 5);
    }
    const auto aantal = [](const macht& m) {
        return regel("Het getal", m.grondtal, " zie je", m.exponent, " keer staan, dus dat");
    };
    const auto dat_is = [](const macht& m) { return regel("is", m.grondtal, " ", machtnaam_voluit(m.exponent), "."); };

    bord(lichtgrijs, zwart, 18);
    kleurkeuze(
        {900, 175}, 455, {geel, blauw, rood, groen},
        vier_opties(machtsom{een, ander}, in_het_kort, dubbel ? vergissingen_bij(een, ander) : vergissingen_bij(een)));

    vraag("Hieronder staat een som.", "Hoe kun je deze som", "korter opschrijven?", "Kies de goede kleur.", leeg,
          dubbel ? een.uitgeschreven() + " + " + ander.uitgeschreven() : een.uitgeschreven());

    const std::string kleur_is = regel("De juiste kleur is dus ", juiste_antwoord(), ".");
    if (dubbel)
        uitleg(aantal(een), dat_is(een), aantal(ander), dat_is(ander), "Die twee machten worden opgeteld.", kleur_is);
    else
        uitleg(aantal(een), dat_is(een), kleur_is);
}

void oefeningen::M_bloembollen_00_11_click() {
    kies_variant(2);
    const int langs_kant = trek_van(5, 15, 5);
    const int b = trek_van(4, 8);
    const int a = langs_kant * b;
    // Of 125, 1.000 or 3.375 boxes this is a whole number; 10 % and its division by 10 never meet.
    const int p = trek_van(4, 24, 4);
    const int doosjes = langs_kant * langs_kant * langs_kant;
    const int afgekeurd = doosjes * p / 100;
    // Per cents come first or last; what is put in the wrong order is the two sides, or p and 100.
    const bool eerst_keer = variant == 1;
    const auto rekening = [&](int exponent, bool goede_volgorde) {
        const std::string kist = macht{a, exponent}.op_plaatje(), doosje = macht{b, exponent}.op_plaatje();
        if (eerst_keer)
            return goede_volgorde ? regel("(", kist, " : ", doosje, ") x", p, " : 100")
                                  : regel("(", doosje, " : ", kist, ") x", p, " : 100");
        return goede_volgorde ? regel("(", kist, " : ", doosje, ") : 100 x", p)
                              : regel("(", kist, " : ", doosje, ") :", p, " x 100");
    };

    bord(wit, donkerblauw, 14);
    vier_rekenaars(
        rekeningen, regelhoogte, {"Erna....... ", "Frank...... ", "Willy....... ", "Boris...... "},
        {{rekening(3, true)},
         {rekening(2, true), {"De macht heb je niet goed gekozen."}},
         {rekening(3, false), {"Je hebt een verkeerde volgorde gekozen.", "De macht is wel goed."}},
         {rekening(2, false), {"Je hebt twee dingen fout gedaan: de volgorde en", "de macht niet goed gekozen"}}});

    vraag(regel("Een kist van", a, "³ cm is vol met doosjes"), "bloembollen. De doosjes hebben de vorm van",
          regel("een kubus met zijden van", b, " cm. Bij controle"),
          regel("van de kwaliteit van de bloembollen wordt", p, " %"), "van de doosjes afgekeurd. Wie berekent op de",
          "goede manier het aantal afgekeurde doosjes?");

    uitleg(regel("Langs elke kant van de kist passen", a, " :", b, " =", langs_kant, " doosjes."),
           regel("In de hele kist passen dus", a, "³ :", b, "³ =", langs_kant, "³ =", duizend(doosjes), " doosjes."),
           eerst_keer
               ? regel("Afgekeurd wordt", p, " %:", duizend(doosjes), " x", p, " : 100 =", afgekeurd, " doosjes.")
               : regel("Afgekeurd wordt", p, " %:", duizend(doosjes), " : 100 x", p, " =", afgekeurd, " doosjes."),
           regel(juiste_antwoord(), " heeft het goed."));
}

void oefeningen::M_fabriekshal_00_11_click() {
    kies_variant(4);
    const int a = trek(5) + 5 * variant;
    const int prijs = trek_van(12, 48);
    // Base times exponent, or a slip in the square.
    const bool maal_twee = kop();
    const int vierkante_meters = a * a, verkeerde = maal_twee ? a * 2 : a * (a + 1);
    const auto in_euros = [](int bedrag) { return kaal(euro(100LL * bedrag)); };
    const auto rekening = [&](const macht& m, int oppervlakte) {
        return regel(m.op_plaatje(), " x ", in_euros(prijs), " = ", in_euros(oppervlakte * prijs));
    };
    const macht m{a, 2};

    bord(wit, donkerblauw, 14);
    vier_rekenaars(rekeningen, regelhoogte,
                   {"Hr. Vermaat..... ", "Hr. van Belt... ", "Mevr. Sloot..... ", "Mevr. Kroos.... "},
                   {{rekening(m, vierkante_meters)},
                    {rekening(m.verwisseld(), vierkante_meters),
                     {"Je hebt de exponent en het grondtal door elkaar", "gehaald. Het bedrag is wel goed."}},
                    {rekening(m, verkeerde),
                     {"De macht is goed opgeschreven, maar het bedrag",
                      maal_twee ? regel("is fout: er is", a, " x 2 gerekend in plaats van", a, " x", a, ".")
                                : regel("is fout. Reken", a, " x", a, " nog eens na.")}},
                    {rekening(m.verwisseld(), verkeerde),
                     {"Je hebt de exponent en het grondtal door elkaar", "gehaald, en ook het bedrag is niet goed."}}});

    vraag("In een fabriekshal moet een wand", regel("van", a, " x", a, " m betegeld worden. De tegels"),
          regel("kosten ", in_euros(prijs), " per m². Vier mensen hebben"), "uitgerekend hoeveel dat gaat kosten.",
          "Wie heeft het goed opgeschreven en", "de kosten goed uitgerekend?");

    uitleg(regel("De oppervlakte van de wand is", a, " x", a, " =", vierkante_meters, " m²."),
           regel("Als macht is dat", a, "²: het grondtal is", a, " en de exponent is 2."),
           regel("De kosten zijn", vierkante_meters, " x ", in_euros(prijs), " = ", in_euros(vierkante_meters * prijs),
                 "."),
           regel(juiste_antwoord(), " heeft het goed."));
}

void oefeningen::M_stroopwafels_00_11_click() {
    static constexpr std::array<std::array<std::string_view, 4>, 3> leerlingen{
        {{"Ineke....... ", "Carel....... ", "Jopie....... ", "Bep......... "},
         {"Jiska....... ", "Tim......... ", "Pieter...... ", "Ilse........ "},
         {"Jochem...... ", "Linda....... ", "Joost....... ", "Suzan....... "}}};
    kies_variant(3);
    const int k = kies(std::array{2, 4, 5, 6, 7, 8, 9, 10}); // swapped, 3^3 is what it was
    const int n = trek_van(8, 40, 2);
    // Base times exponent, or a layer too many.
    const bool maal_drie = kop();
    const int dozen = k * k * k, verkeerde = maal_drie ? k * 3 : k * k * (k + 1);
    const auto rekening = [n](const macht& m, int aantal) {
        return regel(m.op_plaatje(), " x", n, " =", duizend(aantal * n));
    };
    const macht m{k, 3};

    bord(wit, donkerblauw, 14);
    vier_rekenaars(rekeningen, regelhoogte, rij(leerlingen, variant),
                   {{rekening(m, dozen)},
                    {rekening(m.verwisseld(), dozen), {verwisseld, "Het aantal stroopwafels is wel goed."}},
                    {rekening(m, verkeerde),
                     {"De macht is goed opgeschreven, maar het aantal",
                      maal_drie ? regel("is fout: er is", k, " x 3 gerekend in plaats van ", m.uitgeschreven(), ".")
                                : "is fout: er is een laag dozen te veel gerekend."}},
                    {rekening(m.verwisseld(), verkeerde), {verwisseld, "Ook het aantal stroopwafels is niet goed."}}});

    vraag("Een stapel dozen heeft de vorm van een", "kubus. Elke doos is ook kubusvormig en",
          regel("bevat", n, " stroopwafels. Er liggen", k, " lagen"), "dozen op elkaar. Vier leerlingen hebben het",
          "aantal stroopwafels berekend. Wie heeft", "dat op de goede manier gedaan?");

    uitleg(regel("Een kubus van", k, " lagen is ook", k, " dozen lang en", k, " dozen breed."),
           regel("Het aantal dozen is dus", k, "³ = ", m.uitgeschreven(), " =", duizend(dozen), "."),
           regel("In elke doos zitten", n, " stroopwafels:", duizend(dozen), " x", n, " =", duizend(dozen * n), "."),
           regel(juiste_antwoord(), " heeft het goed."));
}

} // namespace cijferwerf
