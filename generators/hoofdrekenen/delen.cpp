// Divisions against the clock: away with the comma, in two parts, by way of a round number.
// The wrong answers misplace the comma or a zero, or do half of the clever route.
#include "generators/gedeeld/kommagetal.h"
#include "generators/oefeningen.h"

#include <numeric>

namespace cijferwerf {

namespace {

// Quotients with the comma misplaced, a few too many or too few, or both, so that equal digits point at none.
std::vector<keuze<kommagetal>> naast_quotient(int quotient) {
    const auto rij = [](kommagetal getal) { return keuze<kommagetal>{getal, {}}; };
    return {rij({quotient, 1}),  rij({quotient - 1, 1}), rij({quotient - 2}),  rij({quotient - 1}),
            rij({quotient + 1}), rij({quotient + 2}),    rij({10 * quotient}), rij({10 * (quotient + 1)})};
}

number_text in_cijfers(kommagetal getal) { return komma_kort(getal); }

constexpr std::string_view met_tien = "Je kunt het beste het deeltal en de deler met 10";
constexpr std::string_view ronde_getallen = "vermenigvuldigen. Je krijgt dan mooie ronde getallen.";

} // namespace

void oefeningen::L_delen_1_09_06_click() {
    static constexpr std::array<std::array<int, 8>, 2> delers{
        {{2, 3, 4, 5, 6, 7, 8, 9}, {11, 12, 13, 14, 15, 16, 18, 25}}};
    kies_variant(2);
    const int tienden = kies(rij(delers, variant));
    // The dividend has a comma too.
    std::vector<int> quotienten;
    for (int q = 3; q <= (variant == 1 ? 19 : 9); ++q)
        if (q * tienden % 10 != 0) quotienten.push_back(q);
    const int quotient = kies(quotienten);
    const int deeltal = quotient * tienden;

    snel_som(15, "Bereken", komma_kort(deeltal, 1), " :", komma_kort(tienden, 1));

    vraag("Je hebt weinig tijd!", leeg, "Kijk hiernaast...");

    drie_andere(kommagetal{quotient}, in_cijfers, naast_quotient(quotient));

    uitleg(met_tien, ronde_getallen, regel("Dan wordt het dus", deeltal, " :", tienden, " =", quotient, "."));
}

void oefeningen::M_delen_2_09_06_click() {
    static constexpr std::array tijden{15, 15, 15, 10};
    kies_variant(4);
    const int tijd = rij(tijden, variant);

    vraag("Je hebt niet veel tijd!", leeg, "Kijk hiernaast.");

    if (variant == 2) {
        const int tienden = kies(std::array{5, 15, 25, 35, 45});
        const int quotient = trek_van(4, 20, 2);
        const int deeltal = quotient * tienden / 10;
        snel_som(tijd, "Hoeveel is", deeltal, " :", komma_kort(tienden, 1), " ?");
        drie_andere(kommagetal{quotient}, in_cijfers, naast_quotient(quotient));
        uitleg(met_tien, ronde_getallen, regel("Dan wordt het dus", 10 * deeltal, " :", tienden, " =", quotient, "."));
        return;
    }
    if (variant == 4) {
        const int deler = trek_van(3, 9);
        const bool tientallen = kop();
        const int rond = tientallen ? trek_van(50, 90, 10) : trek_van(100, 600, 100);
        const int te_veel = trek_van(1, 2);
        const int quotient = rond - te_veel;
        const int overschot = te_veel * deler;
        const number_text rond_deeltal = duizend(rond * deler);
        snel_som(tijd, "Hoeveel is", duizend(quotient * deler), " :", deler, " ?");
        // Nothing taken off, added, all of the surplus taken off, the second step misplaced.
        drie_andere(quotient, tekst,
                    {{rond}, {rond + te_veel}, {rond - overschot}, {quotient - 10}, {quotient + 10}, {quotient - 1}});
        uitleg(regel("Kijk goed naar het deeltal. Dat ligt heel dicht bij", rond_deeltal, "."),
               regel("Dit kun je makkelijk delen door", deler, ":", rond_deeltal, " :", deler, " =", rond, "."),
               regel("Je hebt dan echter", overschot, " :", deler, " =", te_veel, " te veel gedeeld,"),
               regel("dat moet er weer af. Het goede antwoord is dus"),
               regel(kaal(rond), " -", te_veel, " =", quotient, "."));
        return;
    }
    // Round thousands that the divisor divides into hundreds, and a rest.
    const int deler = trek_van(3, 9);
    const int stap = deler / std::gcd(10, deler);
    const int duizenden = 1000 * trek_van(stap, 9, stap);
    const bool klein = variant == 1 && kop();
    const int rest_quotient = klein ? trek_van(2, 12) : trek_van(20, 90, 10);
    const int rest = rest_quotient * deler;
    const int samen = duizenden / deler + rest_quotient;
    const std::string eerst =
        regel("dan pas delen. Dus je doet eerst", duizend(duizenden), " :", deler, " =", duizend(duizenden / deler));
    const std::string daarna =
        regel("en daarna nog", rest, " :", deler, " =", rest_quotient, ". Samen is dat ", duizend(samen), ".");
    if (variant == 1) {
        snel_som(tijd, "Hoeveel is", duizend(duizenden + rest), " :", deler, " ?");
        drie_andere(samen, duizend,
                    {{samen - 100}, {samen - 10}, {samen - 1}, {samen + 1}, {samen + 10}, {samen + 100}});
        uitleg("Bij deze som moet je eerst het deeltal splitsen en", eerst, daarna);
        return;
    }
    const int quotient = samen / 10;
    snel_som(tijd, "Hoeveel is", duizend(duizenden + rest), " :", 10 * deler, " ?");
    // Not divided by 10, or a miscount in one of the steps.
    drie_andere(quotient, duizend,
                {{quotient - 10}, {quotient - 2}, {quotient - 1}, {quotient + 1}, {quotient + 10}, {samen}});
    uitleg("Bij deze som moet je eerst het deeltal splitsen en", eerst, daarna,
           "Nu moet je dit nog door 10 delen, want uiteindelijk moest",
           regel("je niet door", deler, " delen, maar door", 10 * deler, "."),
           regel("Het goede antwoord is dus", duizend(samen), " : 10 =", quotient, "."));
}

} // namespace cijferwerf
