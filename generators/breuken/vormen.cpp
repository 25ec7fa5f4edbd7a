// The same number in another form: a percentage, a decimal, simplified, with a whole taken out.
#include "generators/breuken/breuken.h"
#include "generators/gedeeld/opdracht.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

void oefeningen::L_procenten_03_14_click() {
    kies_variant(2);
    // Fives, or the even numbers between the tens: all can be simplified.
    const int tiental = variant == 1 ? 0 : trek(10) * 10;
    const int procent = variant == 1 ? trek_van(5, 95, 5) : tiental + trek_van(2, 8, 2);
    const breuk honderdsten{procent, 100};
    const int deler = honderdsten.deler();

    bord(donkerblauw, wit, 16);
    druk(350, 880, procent, " % =  .. deel");
    constexpr int links = 3450, boven = 290, vakje = 155;
    plaatje.filled_box(links, boven, 10 * vakje, 10 * vakje, wit);
    plaatje.filled_box(links, boven, procent / 10 * vakje, 10 * vakje, geel);
    plaatje.filled_box(links + procent / 10 * vakje, boven, vakje, procent % 10 * vakje, geel);
    for (int i = 0; i <= 10; ++i) {
        plaatje.line(links, boven + i * vakje, links + 10 * vakje, boven + i * vakje, grijs);
        plaatje.line(links + i * vakje, boven, links + i * vakje, boven + 10 * vakje, grijs);
    }

    vraag("Kijk hiernaast...", leeg, "Welke breuk moet er", "op de stippen staan?");

    const int teller = procent / deler, noemer = 100 / deler;
    std::vector<keuze<breuk>> vergissingen{{{1, procent}},         // the percentage below the bar
                                           {{100 - procent, 100}}, // what is not meant
                                           {{procent, 100 - procent}},
                                           {{teller, 100}}, // only one of both divided
                                           {{procent, noemer}},
                                           {{procent, 1000}}, // thousandths, a half of it
                                           {{procent, 200}},
                                           {{teller - 1, noemer}}, // divided wrongly
                                           {{teller + 1, noemer}},
                                           {{teller, noemer - 1}}};
    std::erase_if(vergissingen, [](const keuze<breuk>& k) { return k.waarde >= breuk{1, 1}; });
    drie_andere(honderdsten, kortste, vergissingen);
    if (variant == 1) {
        tip_1("Eerst: bedenk wat 1 % is.");
        tip_2("Dan: schrijf het percentage als een breuk met noemer 100...");
    } else {
        tip_1("Bedenk eerst welk deel 1 % is.");
        tip_2("Maak van het percentage een breuk met noemer 100", "en vereenvoudig die breuk dan zo ver mogelijk.");
    }

    uitleg(regel(kaal(procent), " % kun je schrijven als", procent, "/100, want 1 % is 1/100."),
           regel("De breuk", procent, " /100 kun je vereenvoudigen tot ", kortste(honderdsten)),
           regel("door de teller en de noemer door", deler, " te delen."),
           regel("Goede antwoord: ", kortste(honderdsten), "."));
    opdrachten(vak_opdracht(300, 880, 3000, 400, donkerblauw),
               druk_opdracht(350, 880, wit, 16, procent, " % =  ", kortste(honderdsten), " deel"));
}

void oefeningen::M_olievat_03_06_click() {
    struct vorm {
        int in_vat, eruit; // the quarters beyond the whole litres
        std::string_view tip;
    };
    static constexpr std::array<vorm, 5> vormen{{{3, 1, "Maak van de streepbreuk een kommagetal."},
                                                 {2, 1, "Schrijf de streepbreuk eerst als een kommagetal."},
                                                 {3, 2, "Verander de streepbreuk in een kommagetal."},
                                                 {1, 2, "Je moet van de streepbreuk een kommagetal maken."},
                                                 {2, 3, "Zet de streepbreuk eerst om in een kommagetal."}}};
    kies_variant(5);
    const vorm& kwarten = rij(vormen, variant);
    const int liters_eruit = trek(18) + 2;
    const int liters = liters_eruit + trek(60) + 10;
    const int in_vat = liters * 100 + kwarten.in_vat * 25; // hundredths of a litre, like all that follow
    const int eruit = liters_eruit * 100 + kwarten.eruit * 25;
    const breuk deel = breuk{kwarten.eruit, 4}.vereenvoudigd();
    const int geplakt = deel.teller * 10 + deel.noemer; // the 14 of 1/4
    const std::string liter_breuk = gemengd(gemengd_getal(liters_eruit, deel.teller, deel.noemer));
    const auto getal = [](int honderdsten) { return komma_kort(honderdsten, 2); };

    bord(wit, wit, 18);
    plaatje.filled_box(0, 1900, drawing::inner_width, 230, grijs);
    plaatje.ellipse(1450, 1830, 850, 150, donkerblauw, true);
    plaatje.filled_box(600, 350, 1700, 1480, donkerblauw);
    plaatje.ellipse(1450, 350, 850, 150, blauw, true);
    plaatje.ellipse(1450, 350, 850, 150, wit, false);
    plaatje.filled_box(600, 1080, 1700, 40, blauw);
    plaatje.filled_box(600, 1640, 1700, 40, blauw);
    druk_midden(1450, 600, "OLIE");
    plaatje.text_size = 14;
    druk_midden(1450, 1220, kaal(getal(in_vat)), " liter");
    plaatje.filled_box(2300, 1490, 330, 90, grijs);
    plaatje.filled_box(2540, 1490, 90, 170, grijs);
    plaatje.filled_box(2565, 1660, 40, 260, zwart);
    plaatje.ellipse(2640, 1950, 330, 70, zwart, true);
    plaatje.fore_colour = zwart;
    druk(3000, 390, "Er loopt uit:");
    plaatje.text_size = 18;
    const int rechts = teken_breuk(plaatje, 3050, 1150, liters_eruit, deel.teller, deel.noemer);
    druk(rechts + 150, 943, "liter");

    vraag(regel("Een olievat bevatte eerst", getal(in_vat), " liter olie."),
          regel("Een automonteur liet daar ", liter_breuk, " liter"), "uit lopen.", leeg,
          "Hoeveel liter olie zit er nog", "in het olievat?");

    const int over = in_vat - eruit;
    const int helen_eruit = liters_eruit * 100;
    drie_andere(over, getal,
                {{in_vat - helen_eruit},                // the wholes only
                 {in_vat - helen_eruit - geplakt},      // 1/4 read as 0,14
                 {in_vat - helen_eruit - 10 * geplakt}, // 1/4 read as 1,4
                 {in_vat - helen_eruit - 100},          // 1/4 rounded to a whole
                 {in_vat - helen_eruit + eruit % 100},  // the quarters put back
                 {in_vat + eruit},
                 {over + 100}, // borrowed wrongly
                 {over - 100}});
    tip_1(kwarten.tip);
    tip_2(regel("Bedenk dat ", streepbreuk(deel), " liter hetzelfde is als ", getal(kwarten.eruit * 25), " liter."),
          "Doe daarna een aftrekking.");

    uitleg(
        "Om deze som te maken moet je gelijksoortige breuken",
        regel("maken. Maak dus van ", liter_breuk, " een breuk met een komma."),
        regel("Dat wordt dus", getal(eruit), " liter."), regel("Dit moet je aftrekken van", getal(in_vat), " liter."),
        regel("Dan krijg je", getal(in_vat), " -", getal(eruit), " liter, wat gelijk is aan ", getal(over), " liter."));
}

void oefeningen::M_snel_03_03_click() {
    // What both parts can be divided by, each in two steps.
    static constexpr std::array<int, 4> makkelijke_delers{4, 6, 8, 10};
    static constexpr std::array<int, 5> moeilijke_delers{9, 12, 15, 16, 18};
    // As it is written: 2/4 is another answer than 1/2, and comes after it.
    struct geschreven {
        int teller = 0, noemer = 1;
        auto operator<=>(const geschreven& ander) const {
            const auto waarde = breuk{teller, noemer} <=> breuk{ander.teller, ander.noemer};
            return waarde != 0 ? waarde : noemer <=> ander.noemer;
        }
        bool operator==(const geschreven&) const = default;
    };
    kies_variant(2);
    struct opgave {
        breuk kort;
        int deler;
        breuk lang() const { return kort.maal(deler); }
    };
    // No number above 99, and none above 49 from the table of 7 unless the divisor is easy.
    const auto [kort, deler] = trek_tot(
        [this] {
            const breuk drawn = trek_breuk(toeval, 3, variant == 1 ? 7 : 11);
            return opgave{drawn, variant == 1 ? kies(makkelijke_delers) : kies(moeilijke_delers)};
        },
        [this](const opgave& drawn) {
            const auto [teller, noemer] = drawn.lang();
            return variant == 1 || (noemer < 100 && noemer % 7 != 0 && (teller <= 49 || teller % 7 != 0));
        });
    const int te_klein = deler % 2 == 0 ? 2 : 3;
    const int over = deler / te_klein;
    const breuk lang = kort.maal(deler);

    snel_som(variant == 1 ? 8 : 15, "Vereenvoudig: ", streepbreuk(lang));

    vraag("Geef snel antwoord.", leeg, "Je hebt niet veel tijd!");

    const auto [teller, noemer] = kort;
    const std::string_view niet_door_hetzelfde = "Je hebt de teller en de noemer niet door";
    std::vector<keuze<geschreven>> vergissingen{{{teller * over, noemer * over},
                                                 "Je bent nog niet klaar: je kunt de teller en",
                                                 regel("de noemer allebei nog delen door", over, ".")}};
    const auto verdeeld = [&](breuk b, std::string_view regel_1, std::string_view regel_2) {
        const breuk k = b.vereenvoudigd();
        if (k < breuk{1, 1}) vergissingen.push_back({{k.teller, k.noemer}, regel_1, regel_2});
    };
    for (const int een : {-1, 1}) {
        verdeeld({teller + een, noemer}, "Je hebt je vergist bij het delen van de teller.", "");
        verdeeld({teller, noemer + een}, "Je hebt je vergist bij het delen van de noemer.", "");
    }
    verdeeld({teller, noemer * te_klein}, niet_door_hetzelfde, "hetzelfde getal gedeeld.");
    verdeeld({teller * te_klein, noemer}, niet_door_hetzelfde, "hetzelfde getal gedeeld.");
    drie_andere(
        geschreven{teller, noemer},
        [](const geschreven& g) {
            return streepbreuk({g.teller, g.noemer});
        },
        vergissingen);

    uitleg(regel("De teller kun je delen door", deler, " en de"),
           regel("noemer ook. Dat getal", deler, " is het grootste getal"),
           "waar je de teller en de noemer door kunt delen.",
           regel("De teller wordt dus", lang.teller, " :", deler, " =", kort.teller, " en de"),
           regel("noemer wordt", lang.noemer, " :", deler, " =", kort.noemer, ". De breuk wordt dus ",
                 juiste_antwoord(), "."));
}

void oefeningen::M_vereenvoudigen_03_14_click() {
    kies_variant(2);
    // The last fraction in its simplest form, made larger and with one of its wholes put into the numerator. The two
    // numbers on the dots differ, whichever mistake is made.
    struct keten {
        breuk laatste;
        int deler;
        breuk midden() const { return laatste.maal(deler); }
        breuk eerste() const { return midden() + breuk{1, 1}; }
    };
    static const std::vector<breuk> breuken = breuken_onder_1(12);
    const keten k = trek_tot(
        [this] {
            const breuk& laatste = kies(breuken);
            return keten{laatste, trek(5) + 2};
        },
        [](const keten& drawn) {
            return drawn.midden().noemer <= 40 && drawn.midden().teller != drawn.laatste.noemer;
        });
    const int helen = variant == 1 ? 0 : trek(4) + 1; // of the first fraction
    const int teller = k.midden().teller;
    const int noemer = k.laatste.noemer;
    const std::string stippels = "....";
    const auto en = [](int first, int second) { return regel(kaal(first), " en", second); };

    bord(cyaan, wit, 18);
    constexpr int y = 950;
    const int top = y - text_height(18) / 2;
    const auto is = [&](int x) {
        druk(x + 130, top, "=");
        return plaatje.x() + 130;
    };
    int x = is(teken_breuk(plaatje, variant == 1 ? 1200 : 1050, y, helen, k.eerste().teller, k.eerste().noemer));
    const int einde_midden =
        teken_breuk(plaatje, x, y, regel(kaal(helen + 1)), stippels, regel(kaal(k.midden().noemer)));
    const int einde_laatste =
        teken_breuk(plaatje, is(einde_midden), y, regel(kaal(helen + 1)), regel(kaal(k.laatste.teller)), stippels);

    vraag("Kijk hiernaast...", "Op de stippeltjes moeten twee", "getallen staan.", "Welke getallen zijn dat?",
          "Let op de volgorde!");

    goed(en(teller, noemer));
    fout(en(noemer, teller), "De getallen zijn goed, maar de volgorde niet.",
         "Het getal in de middelste breuk moet eerst.");
    fout(en(k.eerste().teller, noemer),
         "Je hebt geen hele uit de eerste breuk gehaald:", "bij de middelste breuk staat al een hele meer.");
    fout(en(teller, k.midden().noemer), "De laatste breuk is vereenvoudigd: de teller is al gedeeld.",
         "Je moet de noemer door hetzelfde getal delen.");
    if (variant == 2) {
        tip_1("Eerste stap: je moet een hele uit de eerste breuk",
              "halen. Dan zie je welk getal op de stippels moet staan.");
        tip_2("Tweede stap: kijk door welk getal de teller van de middelste",
              "breuk gedeeld is. Deel de noemer ook door dat getal.");
    }

    uitleg("Bij de middelste breuk houd je voor de teller",
           regel("nog", k.eerste().teller, " -", k.eerste().noemer, " =", teller,
                 " over (het aantal helen is eentje groter"),
           "groter geworden). Vervolgens kun je de teller",
           regel("en de noemer van de middelste breuk nog door", k.deler, " delen."),
           regel("De noemer wordt dan", k.midden().noemer, " :", k.deler, " =", noemer, "."),
           regel("Op de stippeltjes staan dus ", juiste_antwoord(), "."));
    // The dots give way to the numbers; they are as wide as the bar but for 60 units.
    const auto streep = text_width(stippels, 18) + 60;
    const auto wis = [streep](int einde, int boven) { return vak_opdracht(einde - streep, boven, streep, 330, cyaan); };
    const auto vul_in = [streep](int einde, int boven, int getal) {
        return druk_midden_opdracht(einde - streep / 2, boven, geel, 18, getal);
    };
    opdrachten(wis(einde_midden, y - 365), vul_in(einde_midden, y - 409, teller), wis(einde_laatste, y + 40),
               vul_in(einde_laatste, y + 20, noemer));
}

} // namespace cijferwerf
