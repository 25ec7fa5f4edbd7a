// Percentages as parts of a whole: a fraction, a slice of a pie, strips of a lawn.
#include "generators/gedeeld/kalender.h"
#include "generators/gedeeld/tekening_blad.h"
#include "generators/gedeeld/tekening_grafiek.h"
#include "generators/gedeeld/telwoord.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

namespace {

plakregel procent(int whole) { return plak_even({whole, " %"}); }

} // namespace

void oefeningen::L_snel_01_08_click() {
    struct paar {
        int eerste, tweede;
    };
    // By sub-variant: the percentage that is asked, and the three that are not.
    static constexpr paar vormen[4][4]{{{1, 25}, {2, 50}, {5, 75}, {10, 100}},
                                       {{2, 50}, {1, 25}, {5, 75}, {10, 100}},
                                       {{5, 1}, {75, 25}, {2, 50}, {10, 100}},
                                       {{10, 10}, {1, 25}, {2, 50}, {5, 75}}};
    kies_variant(4);
    const auto& vorm = vormen[variant - 1];
    const auto een_van = [this](const paar& p) {
        return p.eerste == p.tweede ? p.eerste : kop() ? p.eerste : p.tweede;
    };
    const int gevraagd = een_van(vorm[0]);
    const int deel = trek(8) + 2;
    const int geheel = deel * 100 / gevraagd;
    const std::string breuk = regel("1/", kaal(100 / gevraagd));

    snel_bord(12, 14);
    druk(1000, 500, "Hoeveel % is", deel, " van", geheel, "?");

    vraag("Kijk hiernaast.", leeg, "Je hebt niet zo veel tijd!");

    goed(procent(gevraagd));
    for (int i = 1; i <= 3; ++i) fout(procent(een_van(vorm[i])));

    uitleg(
        regel(kaal(deel), " is het ", breuk, " deel van", geheel, ", want", deel, " /", geheel, " =", " ", breuk, "."),
        regel("Het ", breuk, " deel is hetzelfde als", gevraagd, " %."),
        regel("Het juiste antwoord is  ", juiste_antwoord(), "."));
}

void oefeningen::B_alcohol_01_08_Click() {
    static constexpr std::array<std::string_view, 8> steden{"Amsterdam", "Rotterdam",  "Den Haag",   "Utrecht",
                                                            "Eindhoven", "Maastricht", "Middelburg", "Groningen"};
    // A percentage, its fraction and what both its parts were divided by, and a fraction that it is not (nor 1/p,
    // which would be dividing by the percentage).
    struct paar {
        int procent;
        std::string_view breuk;
        int gedeeld_door;
        std::string_view verkeerd;
    };
    static constexpr std::array<paar, 8> paren{{{2, "1/50", 2, "1/20"},
                                                {4, "1/25", 4, "1/40"},
                                                {5, "1/20", 5, "1/50"},
                                                {50, "1/2", 50, "1/5"},
                                                {15, "3/20", 5, "1/5"},
                                                {20, "1/5", 20, "1/2"},
                                                {25, "1/4", 25, "2/5"},
                                                {40, "2/5", 20, "1/4"}}};
    kies_variant(4);
    const paar& deel = rij(paren, 2 * variant - (kop() ? 1 : 0));
    const int noemer = 100 / deel.gedeeld_door;
    const int getrokken = trek(850) + 150;
    const int n = getrokken - getrokken % noemer; // so that the fraction of it is whole
    const std::string_view stad = kies(steden);
    const std::string_view dag = kies(weekdagen);
    const int juist = trek(4) + 1;

    bord(cyaan, zwart, 11);
    teken_blad(plaatje, {150, 60, 5050, 1980}, bladsoort::krant, regel("HET NIEUWS - ", dag),
               {regel("In ", stad, " is gisteravond een"), "grote alcoholcontrole gehouden.",
                regel("Volgens de politie had bijna ", kaal(deel.procent), " % van ", kaal(n)),
                "aangehouden automobilisten teveel", "gedronken."});

    vraag("Bekijk hiernaast een artikel", "over een alcoholcontrole...", leeg,
          regel("In plaats van ' ", deel.procent, " % van ", n, " ' kun je"), "ook zeggen...");

    const std::string_view keer = kop() ? " x " : " van ";
    goed(regel(deel.breuk, keer, kaal(n)));
    fout(regel(n, " : ", deel.procent), "Een percentage van iets is niet",
         "hetzelfde als delen door dat percentage...");
    fout(regel(n, " x ", deel.procent), "Een percentage van een aantal is niet hetzelfde",
         "als vermenigvuldigen met dat percentage.");
    fout(regel(deel.verkeerd, keer, kaal(n)), "Je hebt een verkeerde breuk gemaakt.", "Probeer het nog eens...");
    leg_vast(juist);

    uitleg(regel("Er staat: ", deel.procent, " % van ", n, " automobilisten..."),
           regel("Dat is 't zelfde als ", deel.procent, "/100 van ", n, "."),
           regel("Je kunt ", deel.procent, "/100 vereenvoudigen tot ", deel.breuk, ", want"),
           regel("je kunt teller en noemer door ", deel.gedeeld_door, " delen."),
           regel("Je mag dus ook zeggen: ", deel.breuk, " van ", n, " automobilisten."));
}

void oefeningen::L_bevolking_01_08_click() {
    struct gebied {
        std::string_view soort;
        std::array<std::string_view, 4> groepen;
    };
    static constexpr std::array<gebied, 10> gebieden{
        {{" een stad", {"Chinezen", "Maleisiërs", "Javanen", "Sumatranen"}},
         {" een land", {"Hindoes", "Boeddisten", "Islamieten", "Katholieken"}},
         {" een stad", {"Niet-kerkelijk", "Protestant", "Katholiek", "Islamiet"}},
         {" een land", {"Hindoestanen", "Creolen", "Javanen", "Blanken"}},
         {" een land", {"Brazilianen", "Portugezen", "Spanjaarden", "Engelsen"}},
         {" een staat", {"Amerikanen", "Spanjaarden", "Engelsen", "Peruanen"}},
         {" een werelddeel", {"Europeanen", "Aziaten", "Afrikanen", "Amerikanen"}},
         {" een stadsdeel", {"Katholiek", "Protestant", "Islamitisch", "Niet-kerkelijk"}},
         {" een staat", {"Argentijnen", "Brazilianen", "Peruanen", "Europeanen"}},
         {" een werelddeel", {"Boeddhisten", "Hindoes", "Katholieken", "Niet-kerkelijken"}}}};
    // One group that older atlases list stays out: it is named by a word that hurts people.
    //
    // The parts of a diagram in halves of a per cent.
    using delen = std::array<int, 4>;
    static constexpr delen juiste_delen{100, 50, 14, 36};
    static constexpr std::array<delen, 3> zonder_helft{{{70, 70, 40, 20}, {140, 30, 10, 20}, {60, 60, 60, 20}}};
    static constexpr std::array<delen, 2> zonder_kwart{{{100, 84, 8, 8}, {100, 34, 33, 33}}};
    static constexpr delen gelijke_resten{100, 50, 25, 25};
    static constexpr std::array<kleur, 4> kleuren{blauw, geel, rood, lichtgroen};

    kies_variant(10);
    const gebied& plaats = rij(gebieden, variant);
    const auto groepen = geschud(plaats.groepen);
    const int juist = trek(4) + 1;
    struct diagram {
        delen stukken;
        std::string_view commentaar_1, commentaar_2;
    };
    const delen& geen_helft = kies(zonder_helft);
    const delen& geen_kwart = kies(zonder_kwart);
    const auto fouten = geschud(std::array<diagram, 3>{
        {{geen_helft, "Bekijk eerst het makkelijkste percentage.", "Zie je in jouw diagram een halve cirkel?"},
         {geen_kwart, "Kijk eerst naar de makkelijke percentages.", "Zie je in jouw diagram een kwart cirkel?"},
         {gelijke_resten, "De makkelijke percentages kloppen.", "Maar 18 % hoort bij een groter stuk dan 7 %."}}});

    bord(wit, zwart, 10);
    juist_op(juist);
    for (int i = 1, volgende = 0; i <= 4; ++i) {
        const diagram getekend =
            i == juist ? diagram{juiste_delen, {}, {}} : fouten[static_cast<std::size_t>(volgende++)];
        const int x = 720 + (i - 1) * 1313;
        druk_midden(x, 20, i);
        const int begin = trek(4) * 90;
        std::vector<taartdeel> taart;
        for (std::size_t s = 0; s < 4; ++s) taart.push_back({getekend.stukken[s], kleuren[s]});
        teken_taart(plaatje, {x, 750}, 450, taart, begin);
        op_plaats(i, regel("nummer", i), getekend.commentaar_1, getekend.commentaar_2);
    }
    static constexpr std::array<std::string_view, 4> procenten{" 50 %", " 25 %", "  7 %", " 18 %"};
    for (std::size_t s = 0; s < 4; ++s) {
        const int x = s % 2 == 0 ? 480 : 2950;
        const int y = s < 2 ? 1420 : 1740;
        plaatje.filled_box(x, y + 50, 160, 140, kleuren[s]);
        plaatje.box(x, y + 50, 160, 140, zwart);
        druk(x + 250, y, groepen[s]);
        druk_rechts(x + 2020, y, procenten[s]);
    }

    vraag("In een atlas staat weergegeven", "hoe de samenstelling is van de", regel("bevolking van", plaats.soort, "."),
          "Welk van de vier diagrammen", "hoort bij de gegevens die", "daaronder vermeld staan?");

    uitleg("Je kunt het best eerst naar het makkelijkste", "percentage kijken, dus 50 %. Daar hoort een halve",
           "cirkel bij. Dan blijven er één of meer diagrammen over.",
           "Kijk dan naar de andere percentages: 25 % hoort bij een",
           "kwart cirkel en 18 % hoort bij een groter stuk dan 7 %.",
           regel("Het goede antwoord is dus nummer", juist, "."));
}

void oefeningen::B_grasveld_01_08_click() {
    // Numbers of strips of which each is a whole percentage.
    static constexpr std::array<int, 7> aantallen{4, 5, 5, 10, 10, 20, 25};
    struct veld {
        int baantjes, gemaaid;
        int procent(int aantal) const { return aantal * 100 / baantjes; }
    };
    kies_variant(2);
    const auto [n, m] = trek_tot(
        [this] {
            const int baantjes = rij(aantallen, trek(7) + 1);
            return veld{baantjes, trek(baantjes - 1) + 1};
        },
        [](const veld& v) {
            // No count of strips is the percentage of the other part, nor are the parts the same.
            const int over = v.baantjes - v.gemaaid;
            return v.gemaaid != over && v.gemaaid != v.procent(over) && over != v.procent(v.gemaaid);
        });
    const int rest = n - m;
    const int procent_gemaaid = m * 100 / n;
    const int procent_rest = 100 - procent_gemaaid;
    const bool gemaaid_gevraagd = variant == 1;

    const int breedte = 5000 / n;
    const int links = (drawing::inner_width - n * breedte) / 2;
    vertel(plaatje, "Een grasveld in ", telwoord(n), " gelijke banen. Lichtgroen: ", telwoord(m), ".");
    for (int i = 0; i < n; ++i) {
        plaatje.filled_box(links + i * breedte, 165, breedte, 1800, i < m ? lichtgroen : groen);
        plaatje.box(links + i * breedte, 165, breedte, 1800, zwart);
    }

    vraag("Een grasveld wordt gemaaid.", "Wat lichtgroen is, is al gedaan", "en wat donkergroen is, moet nog",
          "gemaaid worden.", gemaaid_gevraagd ? "Hoeveel procent is al gemaaid?" : "Hoeveel procent moet nog gemaaid",
          gemaaid_gevraagd ? leeg : "worden?");

    goed(procent(gemaaid_gevraagd ? procent_gemaaid : procent_rest));
    if (gemaaid_gevraagd) {
        fout(procent(rest), "Jouw antwoord gaat over de baantjes die nog", "gemaaid moeten worden...",
             "Je moet een percentage berekenen en niet", "een aantal...");
        fout(procent(procent_rest), "Je hebt het percentage berekend voor", "datgene wat nog gedaan moet worden...",
             "Lees de vraag nog eens goed.");
        fout(procent(m), "Je hebt het aantal gemaaide baantjes geteld.", "Je moet een percentage berekenen en niet",
             "een aantal...");
    } else {
        fout(procent(rest), "Je hebt de baantjes geteld die nog gemaaid", "moeten worden.",
             "Je moet een percentage berekenen en niet", "een aantal...");
        fout(procent(procent_gemaaid), "Je hebt het percentage berekend voor", "datgene wat al gedaan is...",
             "Lees de vraag nog eens goed.");
        fout(procent(m), "Je hebt het aantal gemaaide baantjes geteld.", "Lees de vraag nog eens goed.");
    }

    uitleg(regel("Er zijn", n, " baantjes die uiteindelijk gemaaid moeten worden."),
           regel(m == 1 ? "Hiervan is er al" : "Hiervan zijn er al", m, " gedaan,"),
           regel("dat is dus", m, "/", kaal(n), " van het hele grasveld."),
           regel("Je kunt ook zeggen: ", procent_gemaaid, " / 100 van het gras is"),
           regel("gemaaid = ", procent_gemaaid, " %."),
           gemaaid_gevraagd
               ? leeg
               : regel("Er moet dus nog 100 % -", procent_gemaaid, " % =", procent_rest, " % gemaaid worden."));
}

} // namespace cijferwerf
