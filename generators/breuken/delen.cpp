// Parts of a whole: sharing, colouring, a part of a crowd, pieces of a segment. The wrong answers are the mistakes of a
// child that swaps numerator and denominator, looks at the other part or miscounts.
#include "generators/breuken/breuken.h"
#include "generators/gedeeld/opdracht.h"
#include "generators/gedeeld/tekening.h"
#include "generators/gedeeld/telwoord.h"
#include "generators/oefeningen.h"

#include <algorithm>

namespace cijferwerf {

void oefeningen::B_chocolade_03_03_click() {
    static constexpr std::array groepen_kinderen{4, 2, 11, 9, 7, 5, 3};
    static constexpr std::array<kleur, 4> truien{blauw, rood, groen, paars};
    kies_variant(14);
    const int kinderen = rij(groepen_kinderen, (variant + 1) / 2);
    const int repen =
        trek_tot([this] { return trek(11) + 2; }, [&](int drawn) { return std::gcd(drawn, kinderen) == 1; });

    bord(wit, zwart, 12);
    vertel(plaatje, Telwoord(repen), " repen chocola, en eronder ", telwoord(kinderen), " kinderen.");
    const int stap_reep = std::min(5000 / repen, 600);
    for (int i = 0; i < repen; ++i) {
        const int links = drawing::inner_width / 2 + (2 * i - repen + 1) * stap_reep / 2 - 150;
        plaatje.filled_box(links, 160, 300, 700, donkerrood);
        for (int hokje = 0; hokje < 8; ++hokje)
            plaatje.box(links + hokje % 2 * 150, 160 + hokje / 2 * 175, 150, 175, olijf);
    }
    const int stap_kind = std::min(5000 / kinderen, 700);
    for (int i = 0; i < kinderen; ++i) {
        const int x = drawing::inner_width / 2 + (2 * i - kinderen + 1) * stap_kind / 2;
        plaatje.line_width = 3;
        for (const int kant : {-1, 1}) {
            plaatje.line(x + kant * 50, 1750, x + kant * 70, 2020, zwart);
            plaatje.line(x, 1420, x + kant * 180, 1620, zwart);
        }
        plaatje.line_width = 1;
        plaatje.polygon({{x - 60, 1380}, {x + 60, 1380}, {x + 130, 1780}, {x - 130, 1780}},
                        truien[static_cast<std::size_t>(i) % truien.size()], true);
        plaatje.filled_circle(x, 1250, 140, geel);
        plaatje.circle(x, 1250, 140, zwart);
        for (const int kant : {-1, 1}) {
            plaatje.filled_circle(x + kant * 50, 1220, 15, zwart);
            plaatje.line(x, 1325, x + kant * 60, 1295, zwart);
        }
    }

    const std::string_view slot = "Welk deel van een reep krijgt ieder kind?";
    if (variant % 2 == 1)
        vraag(regel("Er moeten", repen, " repen over ", telwoord(kinderen)),
              "kinderen verdeeld worden, zodat ieder kind", "een even groot stuk krijgt.", leeg, slot);
    else
        vraag(regel(Telwoord(kinderen), " kinderen verdelen", repen, " repen,"), "zodat ieder kind een even",
              "groot deel krijgt.", leeg, slot);

    goed(streepbreuk({repen, kinderen}));
    fout(streepbreuk({1, kinderen}), regel("Dat is het deel dat ieder kind van alle", repen, " repen samen krijgt."),
         "Je moet beginnen met het verdelen van", "slechts één reep.");
    fout(streepbreuk({kinderen, repen}), "Je hebt de repen en de kinderen verwisseld.",
         "Een reep wordt verdeeld over de kinderen.");
    fout(streepbreuk({repen, repen + kinderen}), "Je hebt de repen en de kinderen bij elkaar opgeteld.",
         "In hoeveel stukjes moet je een reep verdelen?");

    uitleg(regel("Je moet", repen, " repen over", kinderen, " kinderen verdelen."),
           regel("Verdeel een reep eerst in", kinderen, " gelijke stukjes."),
           regel("Elk kind krijgt van die reep zo'n stukje, 1/", kaal(kinderen), " deel dus."),
           regel("Maar er zijn", repen, " repen te verdelen, zodat elk kind", repen, " keer"),
           regel("zoveel krijgt. Dus", repen, " keer 1/", kaal(kinderen), " is ", juiste_antwoord(), " deel."));
}

void oefeningen::B_vlakjes_03_03_click() {
    static constexpr int totaal = 36;
    struct rechthoek {
        int kolommen, vlakje; // columns, side of a square
    };
    static constexpr std::array<rechthoek, 2> rechthoeken{{{9, 400}, {12, 310}}};
    // Not half of them: then there would be as many yellow ones.
    static constexpr std::array<int, 14> te_vereenvoudigen{8, 9, 10, 12, 14, 15, 16, 20, 21, 22, 24, 26, 27, 28};
    static constexpr std::array<int, 8> niet_te_vereenvoudigen{7, 11, 13, 17, 19, 23, 25, 29};
    kies_variant(4);
    const int rood_aantal = variant % 2 == 1 ? kies(te_vereenvoudigen) : kies(niet_te_vereenvoudigen);
    const breuk deel{rood_aantal, totaal};
    const int verteld = rood_aantal + (kop() ? 1 : -1);
    const int vergist = rood_aantal + (kop() ? 3 : -3);
    const rechthoek vorm = kies(rechthoeken);
    const int rijen = totaal / vorm.kolommen;
    // Filled column by column, or in places all over.
    std::array<int, totaal> plaatsen{};
    std::iota(plaatsen.begin(), plaatsen.end(), 0);
    if (variant > 2) plaatsen = geschud(plaatsen);

    bord(wit, zwart, 12);
    const int boven = (drawing::inner_height - rijen * vorm.vlakje) / 2;
    vertel(plaatje, "Een rechthoek van ", telwoord(rijen), " rijen met elk ", telwoord(vorm.kolommen),
           " vlakjes. Rood: ", telwoord(rood_aantal), ".");
    for (int i = 0; i < totaal; ++i) {
        const int plaats = plaatsen[static_cast<std::size_t>(i)];
        const int x = 250 + plaats / rijen * vorm.vlakje;
        const int y = boven + plaats % rijen * vorm.vlakje;
        plaatje.filled_box(x, y, vorm.vlakje, vorm.vlakje, i < rood_aantal ? rood : geel);
        plaatje.box(x, y, vorm.vlakje, vorm.vlakje, zwart);
    }
    for (const kleur tint : {rood, geel}) {
        const int y = tint == rood ? 750 : 1150;
        plaatje.filled_box(4250, y, 230, 230, tint);
        plaatje.box(4250, y, 230, 230, zwart);
        druk(4580, y - 25, woord(tint));
    }

    vraag("Geef in een breuk aan welk", "deel van de rechthoek", "rood is gekleurd.");

    goed(kortste(deel));
    fout(kortste({totaal - rood_aantal, totaal}), "Heb je soms naar de gele vlakjes gekeken in",
         "plaats van naar de rode?");
    fout(kortste({verteld, totaal}), "Je hebt je een vlakje verteld...");
    fout(kortste({vergist, totaal}), "Je hebt je een paar rode vlakjes vergist.", "Tel ze nog eens na!");

    const std::string er_zijn = regel("Er zijn", rood_aantal, " van de 36 vlakjes rood gekleurd");
    const std::string dat_is = regel("Dat is", rood_aantal, "/36 deel van alle vlakjes.");
    const std::string slot = regel("Het juiste antwoord is dus ", juiste_antwoord(), ".");
    if (deel.vereenvoudigbaar())
        uitleg("Er zijn in totaal 36 vlakjes.", er_zijn, dat_is, "Deze breuk is nog te vereenvoudigen, want de teller",
               regel("en de noemer zijn nog te delen door", deel.deler(), "."), slot);
    else
        uitleg("Er zijn in totaal 36 vlakjes.", er_zijn, dat_is, "Deze breuk is verder niet te vereenvoudigen.", slot);
}

void oefeningen::L_marathon_03_03_click() {
    static constexpr std::array<std::string_view, 8> steden{"New York",  "Londen",  "Los Angeles", "Rotterdam",
                                                            "Amsterdam", "Berlijn", "Parijs",      "Brussel"};
    // By sub-variant; no numerator of 1, so that there is something to divide by.
    static constexpr std::array<std::array<breuk, 4>, 4> vormen{{{{{2, 3}, {3, 4}, {2, 5}, {3, 5}}},
                                                                 {{{4, 5}, {5, 6}, {3, 8}, {5, 8}}},
                                                                 {{{7, 8}, {3, 10}, {7, 10}, {9, 10}}},
                                                                 {{{2, 7}, {5, 7}, {4, 9}, {5, 9}}}}};
    kies_variant(4);
    const std::string_view stad = kies(steden);
    const breuk deel = kies(rij(vormen, variant));
    const int een_deel = deel.noemer * 10 * (trek(30) + 5); // what one part of so many parts is
    // The first come in after 2:10; the larger the share that has finished, the later it is.
    const int minuten = 10 + 50 * deel.teller / deel.noemer + trek(5);
    const int seconden = trek(60);
    const int gefinisht = een_deel * deel.teller;
    const int gestart = een_deel * deel.noemer;
    // A part too many, or where that still is more than have finished, mostly a part too few.
    const int vermenigvuldigd = deel.noemer - deel.teller > 1 && trek(3) > 0 ? deel.noemer - 1 : deel.noemer + 1;
    const std::string alles = streepbreuk({deel.noemer, deel.noemer});

    bord(wit, wit, 20);
    plaatje.filled_box(0, 1560, drawing::inner_width, 570, grijs);
    for (int x = 150; x < drawing::inner_width; x += 700) plaatje.filled_box(x, 1850, 350, 40, wit);
    for (const int x : {880, 4380}) plaatje.filled_box(x, 120, 120, 1600, donkerblauw);
    plaatje.filled_box(880, 120, 3620, 530, donkerblauw);
    druk_midden(2690, 155, "F I N I S H");
    plaatje.filled_box(1890, 760, 1600, 430, zwart);
    plaatje.fore_colour = geel;
    plaatje.text_size = 16;
    druk_midden(2690, 790, "2:", kaal(minuten), seconden < 10 ? ":0" : ":", kaal(seconden));
    plaatje.filled_box(1000, 1370, 3380, 50, rood);

    vraag(regel("Bij de marathon van ", stad, " zijn"),
          regel("op een zeker moment ", duizend(gefinisht), " deelnemers"),
          regel("door de finish. Dat is", deel.teller, "/", kaal(deel.noemer), " van"), "alle gestarte deelnemers.",
          leeg, "Hoeveel zijn er van start gegaan?");

    goed(duizend(gestart));
    fout(duizend(gefinisht / deel.noemer * deel.teller), "Kan dat? Kunnen er meer mensen over de finish",
         "dan er gestart zijn...!");
    fout(duizend(een_deel * vermenigvuldigd), "Heb je een foutje gemaakt bij het vermenigvuldigen?");
    fout(duizend(een_deel), "Je moet nog een vermenigvuldiging doen.");

    uitleg(regel("Er zijn", duizend(gefinisht), " deelnemers door de finish. Dat was ", streepbreuk(deel), " deel"),
           regel("van alle deelnemers. Je moet dus ", alles, " deel weten."),
           regel("Je rekent het 1/", kaal(deel.noemer), " deel uit door ", duizend(gefinisht), " te delen door",
                 deel.teller, "."),
           regel("Dat zijn", duizend(een_deel), " deelnemers. Tot slot reken je het"),
           regel(alles, " deel uit door", deel.noemer, " x", duizend(een_deel), " = ", duizend(gestart), " te doen."));
}

void oefeningen::L_stukken_03_14_click() {
    static constexpr std::array<int, 7> delingen{4, 5, 6, 7, 8, 9, 10};
    kies_variant(14);
    const bool vraag_AB = variant % 2 == 1;
    const int stukken = rij(delingen, (variant + 1) / 2);
    const int tot_B = trek(stukken - 1) + 1;
    // The length between two marks: a fraction up to 5, or a whole number.
    const breuk stuk = trek_tot(
        [this] {
            const int teller = trek(5) + 1;
            return breuk{teller, trek(6) + 1};
        },
        [](breuk b) {
            return !b.vereenvoudigbaar() && b != breuk{1, 1};
        });
    const auto lengte = [&](int aantal) { return breuk{aantal, 1} * stuk; };
    const breuk AB = lengte(tot_B);
    const breuk AC = lengte(stukken);
    const std::string deel = streepbreuk({tot_B, stukken});

    bord(wit, donkerblauw, 16);
    vertel(plaatje, "Een lijnstuk van A naar C in ", telwoord(stukken), " gelijke stukken. B staat bij het ",
           rangtelwoord(tot_B), " streepje na A. Eronder de lengte van AB en die van AC:");
    constexpr int links = 440, rechts = 4940, lijn = 780;
    const auto streep = [&](int i) { return links + (rechts - links) * i / stukken; };
    plaatje.line_width = 3;
    plaatje.line(links, lijn, rechts, lijn, donkerblauw);
    for (int i = 0; i <= stukken; ++i) plaatje.line(streep(i), lijn - 90, streep(i), lijn + 90, donkerblauw);
    druk_midden(streep(0), 250, "A");
    druk_midden(streep(tot_B), 250, "B");
    druk_midden(streep(stukken), 250, "C");
    // Below the segment: from where to where the two lengths run.
    plaatje.line_width = 1;
    plaatje.text_size = 11;
    const auto maat = [&](int y, int tot, kleur in, std::string_view tekst) {
        plaatje.fore_colour = in;
        plaatje.line(links, y, streep(tot), y, in);
        plaatje.line(links, y - 60, links, y + 60, in);
        plaatje.line(streep(tot), y - 60, streep(tot), y + 60, in);
        druk_midden((links + streep(tot)) / 2, y + 20, tekst);
    };
    constexpr int maat_AB = 1250, maat_AC = 1680;
    maat(maat_AB, tot_B, vraag_AB ? donkerrood : zwart, vraag_AB ? "?" : kortste(AB));
    maat(maat_AC, stukken, vraag_AB ? zwart : donkerrood, vraag_AB ? kortste(AC) : "?");

    vraag("Kijk hiernaast...", vraag_AB ? "Gegeven is dat het stuk AC" : "Gegeven is dat het stuk AB",
          regel("een lengte heeft van ", kortste(vraag_AB ? AC : AB), "."), leeg,
          vraag_AB ? "Hoe lang is het stuk AB?" : "Hoe lang is het stuk AC?");

    // Pieces counted too many or too few, the other part, both together, half a piece; all within the drawing.
    const int aantal = vraag_AB ? tot_B : stukken;
    const breuk half{1, 2};
    std::vector<keuze<breuk>> vergissingen;
    for (const int n : {aantal - 2, aantal - 1, aantal + 1, aantal + 2, stukken - tot_B, stukken + tot_B})
        if (vraag_AB ? n < stukken : n > tot_B) vergissingen.push_back({lengte(n)});
    vergissingen.push_back({lengte(2 * aantal - 1) * half});
    vergissingen.push_back({lengte(2 * aantal + 1) * half});
    drie_andere(lengte(aantal), kortste, vergissingen);
    leg_vast(trek(4) + 1);
    tip_1("Eerste stap: beschouw AB/AC als een breuk...");
    tip_2("Tweede stap: bekijk de waarde van een stuk tussen", "twee strepen...");

    const std::string deel_zin = regel("Het stuk AB is het ", deel, " deel van AC.");
    if (vraag_AB)
        uitleg(deel_zin,
               regel("Het hele stuk AC is ", kortste(AC), ", dus AB is het ", deel, " deel van ", kortste(AC), "."),
               regel("Een stuk tussen twee strepen is ", kortste(AC), " :", stukken, " = ", kortste(stuk), "."),
               regel("AB = ", deel, " x ", kortste(AC), " = ", kortste(AB), "."));
    else
        uitleg(deel_zin,
               tot_B == 1
                   ? regel("Een stuk tussen twee strepen is dus net zo lang als AB: ", kortste(stuk), ".")
                   : regel("Een stuk tussen twee strepen is dus ", kortste(AB), " :", tot_B, " = ", kortste(stuk), "."),
               regel("Het hele stuk AC bestaat uit", stukken, " van die stukken."),
               regel("AC =", stukken, " x ", kortste(stuk), " = ", kortste(AC), "."));
    // In the explanation the length takes the place of its question mark.
    const int y = vraag_AB ? maat_AB : maat_AC;
    const int midden = (links + streep(aantal)) / 2;
    opdrachten(vak_opdracht(midden - 100, y + 40, 200, 220, wit),
               druk_midden_opdracht(midden, y + 20, donkerrood, 11, juiste_antwoord()));
}

} // namespace cijferwerf
