// Lengths in another unit: quick conversions, and sums of two measures.
#include "generators/meten/meten.h"
#include "generators/oefeningen.h"

#include <tuple>

namespace cijferwerf {

namespace {

// Two units of length some steps apart, and a number with at most one decimal before the first.
struct omzetting {
    kommagetal getal;
    eenheid van, naar;
    kommagetal uitkomst() const { return omgerekend(getal, van, naar); }
    int stappen() const { return macht_tussen(van, naar); } // above 0: the number becomes larger
};

omzetting maak_omzetting(int tienden, int stappen, int plaats, bool groter) {
    const eenheid &groot = lengtematen.at(static_cast<std::size_t>(plaats)),
                  &klein = lengtematen.at(static_cast<std::size_t>(plaats + stappen));
    return {kommagetal{tienden, 1}, groter ? groot : klein, groter ? klein : groot};
}

} // namespace

void oefeningen::L_snel_1_07_09_click() {
    kies_variant(2);
    const int tienden = trek_van(10, 99);
    const int stappen = trek(3) + 1;
    const int plaats = trek(7 - stappen);
    const omzetting o = maak_omzetting(tienden, stappen, plaats, variant == 1);
    std::vector<std::string_view> andere;
    for (const eenheid& e : lengtematen)
        if (e != o.van && e != o.naar) andere.push_back(e.teken);
    andere = geschud(std::move(andere));

    snel_som(20, kaal(komma_kort(o.getal)), " ", o.van.teken, " =", komma_kort(o.uitkomst()), " ...");

    vraag("Geef snel antwoord.", leeg, "Je hebt niet veel tijd...", leeg, "Welke eenheid moet op de stippen staan?");

    goed(o.naar.teken);
    for (std::size_t i = 0; i < 3; ++i) fout(andere[i]);

    uitleg(regel("Het getal is ", factor_tekst(o.stappen()), " geworden,"),
           regel("dus moet de eenheid (lengtemaat) juist ", factor_tekst(-o.stappen()), " worden."),
           regel("De nieuwe eenheid wordt dus ", o.naar.teken, ","),
           regel("want 1 ", o.van.teken, " is ", factor_tekst(o.stappen()), " als een ", o.naar.teken, "."));
}

void oefeningen::L_snel_2_07_09_click() {
    kies_variant(2);
    const int tienden = trek_van(10, 99);
    const int stappen = trek(3) + 1;
    const int plaats = trek(7 - stappen);
    const omzetting o = maak_omzetting(tienden, stappen, plaats, variant == 1);
    std::vector<keuze<kommagetal>> andere;
    for (int macht = -3; macht <= 3; ++macht)
        if (macht != 0) andere.push_back({o.getal.verschoven(macht)});

    snel_bord(10, 20);
    druk(500, 100, "Reken om:");
    druk(500, 580, kaal(komma_kort(o.getal)), " ", o.van.teken, " = ... ", o.naar.teken);

    vraag("Geef snel antwoord.", leeg, "Kijk hiernaast...");

    drie_andere(
        o.uitkomst(), [](kommagetal k) { return komma_kort(k); }, andere);

    uitleg(regel("De eenheid is ", factor_tekst(-o.stappen()), " geworden,"),
           regel("dus moet het getal juist ", factor_tekst(o.stappen()), " worden."),
           regel("Het nieuwe getal wordt dus", komma_kort(o.getal), " x", komma_kort(factor(o.van, o.naar)), " =",
                 komma_kort(o.uitkomst()), "."));
}

void oefeningen::L_optellen_1_07_09_click() {
    kies_variant(2);
    const auto stap = static_cast<std::size_t>(trek(6));
    const maatsom s =
        trek_tot([&] { return trek_maatsom(toeval, lengtematen[stap], lengtematen[stap + 1], variant == 1); },
                 [](const maatsom& drawn) { return drawn.geschikt(); });

    bord(donkerblauw, geel, 18);
    druk(400, 850, s.opgave());
    antwoord_over_stippen(plaatje.x(), 850, wit, "...", komma_kort(s.totaal()));
    druk(plaatje.x() + 110, 850, s.gevraagd().teken);

    vraag("Hiernaast zie je twee afstanden die", "je moet optellen. De eenheden zijn", "echter verschillend.", leeg,
          "Welk getal moet op de stippen staan?");

    drie_andere(
        s.totaal(), [](kommagetal k) { return komma_kort(k); }, s.vergissingen());

    std::apply([this](const auto&... regels) { uitleg(regels...); }, s.uitleg());
}

void oefeningen::L_optellen_2_07_09_click() {
    kies_variant(2);
    const auto stap = static_cast<std::size_t>(trek(6));
    const maatsom s =
        trek_tot([&] { return trek_maatsom(toeval, lengtematen[stap + 1], lengtematen[stap], variant == 1); },
                 [](const maatsom& drawn) { return drawn.geschikt(); });

    bord(groen, wit, 18);
    druk(400, 850, s.opgave());
    antwoord_over_stippen(plaatje.x(), 850, geel, "...", komma_kort(s.totaal()));
    druk(plaatje.x() + 110, 850, s.gevraagd().teken);

    vraag("Hiernaast zie je twee afstanden die", "je moet optellen. De eenheden zijn", "echter verschillend.", leeg,
          "Welk getal moet op de stippen staan?");

    drie_andere(
        s.totaal(), [](kommagetal k) { return komma_kort(k); }, s.vergissingen());

    std::apply([this](const auto&... regels) { uitleg(regels...); }, s.uitleg());
}

} // namespace cijferwerf
