// Sums and differences against the clock that are easy once the right numbers are put together.
// The wrong answers are near, or do half of the clever route.
#include "generators/gedeeld/kommasom.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

void oefeningen::L_aftrekken_09_01_click() {
    static constexpr std::array tijden{15, 15, 10, 10};
    static constexpr std::string_view kijk = "Je kijkt eerst of je getallen hebt die gemakkelijk";
    static constexpr std::string_view van_elkaar = "van elkaar af te trekken zijn. Hier is dat het geval: ";
    static constexpr std::string_view ook_zo = "De som kun je dus ook zo uitrekenen:";
    kies_variant(4);
    const int tijd = rij(tijden, variant);
    // So many tens, and the units that make a number awkward.
    const auto krom = [this](int tientallen_van, int tientallen_tot) {
        const int tientallen = trek_van(tientallen_van, tientallen_tot);
        return 10 * tientallen + trek_van(1, 9);
    };

    vraag("Je hebt niet veel tijd!", leeg, "Kijk hiernaast...");

    if (variant == 1) {
        const int c = krom(11, 39);
        const int rond = trek_van(200, 500, 100);
        const int b = krom(2, 9);
        const int a = c + rond;
        const int uitkomst = rond - b;
        snel_som(tijd, "Hoeveel is", a, " -", b, " -", c, " ?");
        bijna(uitkomst, 10);
        uitleg(kijk, van_elkaar, regel(kaal(a), " -", c, " =", rond, "."),
               regel("Daar trek je nog", b, " van af. Uitkomst:", uitkomst, "."));
    } else if (variant == 2) {
        const int c = krom(2, 9);
        const int rond = trek_van(200, 800, 100);
        const int samen = trek_van(60, 110, 10);
        const int b = krom(1, samen / 10 - 3);
        const int d = samen - b;
        const int a = rond + c;
        const int uitkomst = rond - samen;
        snel_som(tijd, "Hoeveel is", a, " -", b, " -", c, " -", d, " ?");
        bijna(uitkomst, 10);
        uitleg(kijk, regel(van_elkaar, kaal(a), " -", c, " =", rond, "."),
               regel("Verder is", b, " +", d, " =", samen, "."), ook_zo,
               regel(kaal(rond), " -", samen, " =", uitkomst, "."));
    } else if (variant == 3) {
        const int samen = trek_van(60, 200, 10);
        const int b = krom(2, samen / 10 - 3);
        const int c = samen - b;
        const int a = samen + krom(5, 60);
        const int uitkomst = a - samen;
        snel_som(tijd, "Hoeveel is", a, " -", b, " -", c, " ?");
        bijna(uitkomst, 10);
        uitleg("Je kijkt eerst of je getallen hebt die je gemakkelijk",
               "kunt samennemen. Hier is dat het geval:", regel(kaal(b), " +", c, " =", samen, "."), ook_zo,
               regel(kaal(a), " -", samen, " =", uitkomst, "."));
    } else {
        const int rond = trek_van(100, 600, 100);
        const int te_veel = trek_van(1, 4);
        const int b = rond - te_veel;
        const int a = rond + krom(11, 39);
        const int verschil = a - rond;
        const int uitkomst = verschil + te_veel;
        snel_som(tijd, "Hoeveel is", a, " -", b, " ?");
        // The surplus forgotten, taken off once more, added twice; or ten off.
        drie_andere(uitkomst, tekst,
                    {{verschil},
                     {verschil - te_veel},
                     {uitkomst - 10},
                     {uitkomst + te_veel},
                     {uitkomst + 10},
                     {uitkomst + 100}});
        uitleg(regel("Het getal", b, " ligt dicht bij", rond, "."), regel(kaal(a), " -", rond, " =", verschil, "."),
               regel("Je hebt er dan wel", te_veel, " te veel van afgetrokken, dus die"),
               "moet je er weer bij optellen.", regel("Uitkomst:", verschil, " +", te_veel, " =", uitkomst, "."));
    }
}

void oefeningen::Z_komma_09_06_click() {
    kies_variant(tekenpatronen);
    const kommasom som = trek_kommasom(toeval, variant);

    snel_bord(20, 20);
    teken_kommasom(plaatje, "Hoeveel is", som);

    vraag("Kijk hiernaast.", leeg, "Je hebt niet veel tijd!");

    drie_andere(som.uitkomst, tekst, som.vergissingen);

    uitleg(som.uitleg[0], som.uitleg[1], som.uitleg[2], som.uitleg[3], som.uitleg[4]);
}

} // namespace cijferwerf
