// Fractions, the first half: sharing, parts of a whole, wholes written as a fraction, comparing, simplifying.
// The wrong answers are the mistakes of a child that swaps numerator and denominator, looks at the other part, forgets
// a step, or adds up denominators.
#include "generators/gedeeld/breuk.h"
#include "generators/oefeningen.h"

#include <algorithm>
#include <cmath>

namespace cijferwerf {

namespace {

// A fraction below 1 in its simplest form, its denominator from least (at least 2) to most.
breuk trek_breuk(random_draws& toeval, int least, int most) {
    const int noemer = least + toeval.below(most - least + 1);
    int teller = 1 + toeval.below(noemer - 1);
    while (std::gcd(teller, noemer) > 1) --teller; // 1 always fits
    return {teller, noemer};
}

// "3/4" for 9/12.
std::string kortste(breuk b) { return streepbreuk(b.vereenvoudigd()); }

} // namespace

void oefeningen::B_chocolade_03_03_click() {
    struct telwoord {
        int getal;
        std::string_view met_hoofdletter, klein;
    };
    static constexpr std::array<telwoord, 7> telwoorden{{{4, "Vier", "vier"},
                                                         {2, "Twee", "twee"},
                                                         {11, "Elf", "elf"},
                                                         {9, "Negen", "negen"},
                                                         {7, "Zeven", "zeven"},
                                                         {5, "Vijf", "vijf"},
                                                         {3, "Drie", "drie"}}};
    static constexpr std::array<kleur, 4> truien{blauw, rood, groen, paars};
    kies_variant(14);
    zaai();
    const telwoord& woord = rij(telwoorden, (variant + 1) / 2);
    const int kinderen = woord.getal;
    const int repen =
        trek_tot([this] { return trek(11) + 2; }, [&](int drawn) { return std::gcd(drawn, kinderen) == 1; });

    bord(wit, zwart, 12);
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
        vraag(regel("Er moeten", repen, " repen over ", woord.klein), "kinderen verdeeld worden, zodat ieder kind",
              "een even groot stuk krijgt.", leeg, slot);
    else
        vraag(regel(woord.met_hoofdletter, " kinderen verdelen", repen, " repen,"), "zodat ieder kind een even",
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
           regel("zoveel krijgt. Dus", repen, " keer 1/", kaal(kinderen), " is ", antwoord_1, " deel."));
}

void oefeningen::B_helen_03_03_click() {
    kies_variant(2);
    zaai();
    const bool optellen = variant == 1;
    const int helen = trek(8) + 2;
    const breuk deel = trek_breuk(toeval, 3, 12);
    const int stukken = helen * deel.noemer;
    const int samen = optellen ? stukken + deel.teller : stukken - deel.teller;
    const int verkeerd_om = optellen ? stukken - deel.teller : stukken + deel.teller;
    const int met_een_hele = optellen ? deel.noemer + deel.teller : deel.noemer - deel.teller;
    const std::string stuk = regel("1/", kaal(deel.noemer));

    bord(groen, wit, 20);
    constexpr int midden = 1030;
    constexpr int boven = midden - 230;
    druk(1150, boven, kaal(helen));
    druk(1600, boven, optellen ? "+" : "-");
    teken_breuk(plaatje, 2100, midden, 0, deel.teller, deel.noemer);
    druk(2850, boven, "=");
    plaatje.fore_colour = geel;
    const int rechts = teken_breuk(plaatje, 3400, midden, "", ".", kaal(deel.noemer));
    plaatje.filled_circle((3400 + rechts) / 2, midden - 110, 50, geel); // a point that nobody overlooks

    vraag("Welk getal moet op de", "plaats van de punt", "ingevuld worden?");

    goed(tekst(samen));
    fout(tekst(stukken), "De helen heb je wel ingewisseld voor een breuk,",
         "maar je hebt nog wat vergeten, namelijk een ", optellen ? "optelling te doen." : "aftrekking te doen.");
    fout(tekst(verkeerd_om), optellen ? "Je hebt afgetrokken, maar het is een optelling."
                                      : "Je hebt opgeteld, maar het is een aftrekking.");
    fout(tekst(met_een_hele), "Je hebt maar één hele ingewisseld voor een breuk,",
         regel("maar er staan", helen, " helen."));
    if (munt()) {
        tip_1("Bedenk hoeveel de helen waard zijn, geschreven", "als een breuk.");
        tip_2("Bedenk hoeveel de helen waard zijn, geschreven", "als een breuk.",
              optellen ? "Doe daarna een optelling." : "Doe daarna een aftrekking.");
    }

    uitleg(regel("Elke hele kun je schrijven als", deel.noemer, "/", kaal(deel.noemer), " dus"),
           regel("het getal", helen, " is", helen, " x", deel.noemer, " =", stukken, " stukken van ", stuk, "."),
           optellen ? regel("Daar komt nog ", streepbreuk(deel), " bij.")
                    : regel("Daar gaat nog ", streepbreuk(deel), " af."),
           regel("Dan heb je in totaal", stukken, optellen ? " +" : " -", deel.teller, " =", samen, " stukken van ",
                 stuk, "."),
           regel("Op de punt moet dus een ", kaal(samen), " staan."));
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
    zaai();
    const int rood_aantal = variant % 2 == 1 ? kies(te_vereenvoudigen) : kies(niet_te_vereenvoudigen);
    const breuk deel{rood_aantal, totaal};
    const int verteld = rood_aantal + (munt() ? 1 : -1);
    const int vergist = rood_aantal + (munt() ? 3 : -3);
    const rechthoek vorm = kies(rechthoeken);
    const int rijen = totaal / vorm.kolommen;
    // Filled column by column, or in places all over.
    std::array<int, totaal> plaatsen{};
    std::iota(plaatsen.begin(), plaatsen.end(), 0);
    if (variant > 2) plaatsen = geschud(plaatsen);

    bord(wit, zwart, 12);
    const int boven = (drawing::inner_height - rijen * vorm.vlakje) / 2;
    for (int i = 0; i < totaal; ++i) {
        const int plaats = plaatsen[static_cast<std::size_t>(i)];
        const int x = 250 + plaats / rijen * vorm.vlakje;
        const int y = boven + plaats % rijen * vorm.vlakje;
        plaatje.filled_box(x, y, vorm.vlakje, vorm.vlakje, i < rood_aantal ? rood : geel);
        plaatje.box(x, y, vorm.vlakje, vorm.vlakje, zwart);
    }
    for (const bool is_rood : {true, false}) {
        const int y = is_rood ? 750 : 1150;
        plaatje.filled_box(4250, y, 230, 230, is_rood ? rood : geel);
        plaatje.box(4250, y, 230, 230, zwart);
        druk(4580, y - 25, is_rood ? "rood" : "geel");
    }

    vraag("Geef in een breuk aan welk", "deel van de rechthoek", "rood is gekleurd.");

    goed(kortste(deel));
    fout(kortste({totaal - rood_aantal, totaal}), "Heb je soms naar de gele vlakjes gekeken in",
         "plaats van naar de rode?");
    fout(kortste({verteld, totaal}), "Je hebt je een vlakje verteld...");
    fout(kortste({vergist, totaal}), "Je hebt je een paar rode vlakjes vergist.", "Tel ze nog eens na!");

    const std::string er_zijn = regel("Er zijn", rood_aantal, " van de 36 vlakjes rood gekleurd");
    const std::string dat_is = regel("Dat is", rood_aantal, "/36 deel van alle vlakjes.");
    const std::string slot = regel("Het juiste antwoord is dus ", antwoord_1, ".");
    if (deel.vereenvoudigbaar())
        uitleg("Er zijn in totaal 36 vlakjes.", er_zijn, dat_is, "Deze breuk is nog te vereenvoudigen, want de teller",
               regel("en de noemer zijn nog te delen door", deel.deler(), "."), slot);
    else
        uitleg("Er zijn in totaal 36 vlakjes.", er_zijn, dat_is, "Deze breuk is verder niet te vereenvoudigen.", slot);
}

void oefeningen::L_helen_maken_03_03_click() {
    kies_variant(2);
    zaai();
    const int helen = trek(9) + 1;
    const breuk deel = variant == 1 ? trek_breuk(toeval, 4, 10) : trek_breuk(toeval, 11, 20);
    const int nodig = deel.noemer - deel.teller;
    const breuk aanvulling{nodig, deel.noemer};
    const breuk ernaast{nodig + 1 == deel.teller || nodig + 1 == deel.noemer ? nodig - 1 : nodig + 1, deel.noemer};

    bord(groen, geel, 16);
    constexpr int midden = 901;
    constexpr int boven = midden - 185;
    plaatje.filled_box(0, 1780, drawing::inner_width, 90, olijf);
    plaatje.filled_box(3900, 1730, 400, 50, wit); // chalk
    plaatje.filled_box(4450, 1730, 250, 50, geel);
    teken_breuk(plaatje, 900, midden, helen, deel.teller, deel.noemer);
    druk(1900, boven, "+");
    druk(3050, boven, "=");
    druk(3500, boven, kaal(helen + 1));
    plaatje.text_size = 20;
    druk(2420, 470, "..");

    vraag("Hiernaast zie je hoe een", "breuk aangevuld wordt tot", "een heel getal.", leeg,
          "Welk getal moet er op de stip staan?");

    goed(streepbreuk(aanvulling));
    fout(streepbreuk(deel), regel("Je hebt ", streepbreuk(deel), " zelf gekozen. Hoeveel moet er nog bij"),
         "om een hele te krijgen?");
    fout(gemengd(breuk{1, 1} + aanvulling), "Dan maak je een hele te veel.",
         "Alleen het breukgedeelte moet aangevuld worden.");
    fout(streepbreuk(ernaast), regel("Tel eens na: ", streepbreuk(deel), " en ", streepbreuk(ernaast)),
         "zijn samen niet precies een hele.");
    leg_vast(trek(4) + 1);

    uitleg("Met het breukgedeelte van het eerste getal moet", "precies één hele erbij gemaakt worden.",
           regel("Je moet dus", deel.teller, "/", kaal(deel.noemer), " aanvullen tot 1."),
           regel("Dan heb je dus nog ", streepbreuk(aanvulling), " nodig."));
    // The dots make room for the answer, upright around the middle of the sum.
    constexpr int stip = 2520;
    const auto links = [](int getal) { return kaal(stip - text_width(kaal(getal), 12) / 2); };
    opdrachten("PRINT_2420_470_2_20_..", "LINE_2400_540_240_330_2_BF_0",
               regel("PRINT_", links(nodig), "_630_15_12_", kaal(nodig)), "LINE_2370_901_300_0_15_B_0",
               regel("PRINT_", links(deel.noemer), "_921_15_12_", kaal(deel.noemer)));
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
    zaai();
    const std::string_view stad = kies(steden);
    const breuk deel = kies(rij(vormen, variant));
    const int een_deel = deel.noemer * 10 * (trek(30) + 5); // what one part of so many parts is
    const int gefinisht = een_deel * deel.teller;
    const int gestart = een_deel * deel.noemer;
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
    const auto twee_cijfers = [](int getal) { return regel(getal < 10 ? "0" : "", kaal(getal)); };
    druk_midden(2690, 790, "2:", twee_cijfers(trek(50) + 10), ":", twee_cijfers(trek(60)));
    plaatje.filled_box(1000, 1370, 3380, 50, rood);

    vraag(regel("Bij de marathon van ", stad, " zijn"),
          regel("op een zeker moment ", kaal(duizend(gefinisht)), " deelnemers"),
          regel("door de finish. Dat is", deel.teller, "/", kaal(deel.noemer), " van"), "alle gestarte deelnemers.",
          leeg, "Hoeveel zijn er van start gegaan?");

    goed(duizend(gestart));
    fout(duizend(gefinisht / deel.noemer * deel.teller), "Kan dat? Kunnen er meer mensen over de finish",
         "dan er gestart zijn...!");
    fout(duizend(een_deel * (deel.noemer + 1)), "Heb je een foutje gemaakt bij het vermenigvuldigen?");
    fout(duizend(een_deel), "Je moet nog een vermenigvuldiging doen.");

    uitleg(regel("Er zijn", duizend(gefinisht), " deelnemers door de finish. Dat was ", streepbreuk(deel), " deel"),
           regel("van alle deelnemers. Je moet dus ", alles, " deel weten."),
           regel("Je rekent het 1/", kaal(deel.noemer), " deel uit door ", kaal(duizend(gefinisht)), " te delen door",
                 deel.teller, "."),
           regel("Dat zijn", duizend(een_deel), " deelnemers. Tot slot reken je het"),
           regel(alles, " deel uit door", deel.noemer, " x", duizend(een_deel), " = ", kaal(duizend(gestart)),
                 " te doen."));
}

void oefeningen::L_prijzen_03_03_click() {
    static constexpr std::array<std::string_view, 8> steden{"Rotterdam", "Utrecht",   "Amsterdam",  "Groningen",
                                                            "Den Haag",  "Eindhoven", "Maastricht", "Arnhem"};
    struct verdeling {
        breuk eerste, tweede;
        breuk samen() const { return eerste + tweede; }
        breuk over() const { return breuk{1, 1} - samen(); }
        breuk zonder_tweede() const { return breuk{1, 1} - eerste; }
        // What is over when the denominators are added up as well.
        breuk met_noemers() const {
            const int noemer = eerste.noemer + tweede.noemer;
            return {noemer - eerste.teller - tweede.teller, noemer};
        }
        bool geschikt() const {
            return eerste > tweede && over().teller > 0 && samen().noemer <= 40 && over() != samen() &&
                   zonder_tweede() != samen() && met_noemers() != samen();
        }
    };
    kies_variant(2);
    zaai();
    const bool gelijknamig = variant == 1;
    const std::string_view stad = kies(steden);
    const verdeling prijzen = trek_tot(
        [&] {
            const breuk eerste = trek_breuk(toeval, 3, 12);
            return verdeling{eerste, gelijknamig ? trek_breuk(toeval, eerste.noemer, eerste.noemer)
                                                 : trek_breuk(toeval, 3, 12)};
        },
        [&](const verdeling& v) { return v.geschikt() && (v.eerste.noemer == v.tweede.noemer) == gelijknamig; });
    const auto& [eerste, tweede] = prijzen;
    const breuk samen = prijzen.samen();
    // So that either prize is a whole number of thousands.
    const int duizenden = eerste.teller * (samen.noemer / eerste.noemer) * (trek(8) + 2);

    bord(groen, zwart, 10.5);
    plaatje.filled_box(180, 120, 5020, 1890, wit);
    plaatje.box(240, 180, 4900, 1770, groen);
    druk(420, 680, "Hierbij ontvangt U een bedrag van:");
    druk(420, 1350, "als winnaar van het jaarlijkse tennistoernooi van");
    druk(420, 1600, "de stad ", stad, ".");
    plaatje.fore_colour = donkerblauw;
    plaatje.text_size = 18;
    druk(420, 230, "CHEQUE");
    plaatje.text_size = 14;
    druk(420, 960, kaal(duizenden), ".000 euro");

    vraag(regel("In ", stad, " wordt het jaarlijkse tennis-"), "toernooi gehouden. De eerste prijs is dit",
          regel("jaar ", streepbreuk(eerste), " deel van het totale prijzengeld,"),
          regel("en de tweede prijs het ", streepbreuk(tweede), " deel."), "Welk deel van het prijzengeld is nu",
          "nog over voor de andere prijzen?");

    goed(kortste(prijzen.over()));
    fout(kortste(samen), "Dat is het deel voor de eerste en de tweede prijs", "samen. Hoeveel blijft er dan over?");
    fout(kortste(prijzen.zonder_tweede()), "Je hebt alleen de eerste prijs ervan afgetrokken.",
         "De tweede prijs moet er ook nog af.");
    fout(kortste(prijzen.met_noemers()), "Je hebt ook de noemers bij elkaar opgeteld.",
         "Als de noemers gelijk zijn, tel je alleen de tellers op.");
    leg_vast(trek(4) + 1);

    const std::string slot = regel("Over is dus 1 - ", kortste(samen), " = ", kortste(prijzen.over()), " deel.");
    uitleg(regel("In de som staan twee breuken, namelijk ", streepbreuk(eerste), " en ", streepbreuk(tweede), "."),
           gelijknamig ? "Deze hoeven niet gelijknamig gemaakt te worden."
                       : "Deze moeten eerst gelijknamig gemaakt worden.",
           regel("Opgeteld: ", streepbreuk(eerste.maal(samen.noemer / eerste.noemer)), "  + ",
                 streepbreuk(tweede.maal(samen.noemer / tweede.noemer)), "  = ", streepbreuk(samen), "."),
           samen.vereenvoudigbaar() ? regel("Vereenvoudigd is dat ", kortste(samen), ".") : slot,
           samen.vereenvoudigbaar() ? slot : std::string(leeg));
}

void oefeningen::M_getallenlijn_03_03_click() {
    struct pijl {
        std::string_view woord;
        kleur tint;
    };
    static constexpr std::array<pijl, 4> pijlen{{{"geel", geel}, {"rood", rood}, {"wit", wit}, {"zwart", zwart}}};
    static constexpr int begin = 290, tiende = 480; // where 0 stands, and from tenth to tenth
    static constexpr int lijn = 1230;
    static constexpr int tussenruimte = 430; // of arrows, for the words under them
    static constexpr std::array<int, 5> noemers[]{{3, 4, 6, 8, 20}, {7, 9, 12, 14, 15}};
    kies_variant(2);
    zaai();
    // Above 1/10; in their simplest form none of these is a tenth itself.
    const breuk gegeven = trek_tot(
        [this] {
            const int noemer = kies(noemers[variant - 1]);
            return trek_breuk(toeval, noemer, noemer);
        },
        [](breuk drawn) {
            return drawn > breuk{1, 10};
        });
    const int nieuwe_noemer = std::lcm(gegeven.noemer, 10);
    const int onder = gegeven.teller * 10 / gegeven.noemer; // in tenths
    const int juist = trek(4);

    // Every arrow in a stretch of its own between two tenths, the right one on the spot.
    const int plek = begin + 10 * tiende * gegeven.teller / gegeven.noemer;
    std::vector<int> vrij;
    for (int i = 0; i < 10; ++i)
        if (const int halverwege = begin + i * tiende + tiende / 2; std::abs(halverwege - plek) >= tussenruimte)
            vrij.push_back(halverwege);
    vrij = geschud(vrij);

    bord(lichtgrijs, zwart, 14);
    druk(1200, 170, "Gegeven breuk:");
    teken_breuk(plaatje, 3400, 331, 0, gegeven.teller, gegeven.noemer);
    plaatje.line_width = 2;
    plaatje.line(begin, lijn, begin + 10 * tiende, lijn, zwart);
    plaatje.text_size = 9;
    for (int i = 0; i <= 10; ++i) {
        const int x = begin + i * tiende;
        plaatje.line(x, lijn - 70, x, lijn + 70, zwart);
        if (i % 10 != 0) teken_breuk(plaatje, x - 120, 902, 0, i, 10);
    }
    plaatje.line_width = 1;
    plaatje.text_size = 12;
    druk_midden(begin, 770, "0");
    druk_midden(begin + 10 * tiende, 770, "1");
    plaatje.text_size = 10;
    juist_op(juist + 1);
    for (int i = 0, volgende = 0; i < 4; ++i) {
        const auto& [woord, tint] = pijlen[static_cast<std::size_t>(i)];
        const int x = i == juist ? plek : vrij[static_cast<std::size_t>(volgende++)];
        const std::vector<point> omtrek{{x, lijn + 20}, {x + 100, lijn + 190}, {x + 40, lijn + 190}, {x + 40, 1720},
                                        {x - 40, 1720}, {x - 40, lijn + 190},  {x - 100, lijn + 190}};
        plaatje.polygon(omtrek, tint, true);
        plaatje.polygon(omtrek, zwart, false);
        druk_midden(x, 1750, woord);
        op_plaats(i + 1, woord);
    }

    vraag("Je ziet een getallenlijn van 0 tot 1.", "Langs deze getallenlijn zijn tienden",
          "gezet. Ook zie je een breuk gegeven.", "Welke van de vier pijlen wijst op", "de getallenlijn die breuk aan?",
          "Kies de kleur van de juiste pijl.");

    if (variant == 1) {
        tip_1("Ga eerst gelijknamig maken...");
        tip_2(regel("Ga eerst gelijknamig maken: neem als noemer", nieuwe_noemer, "."),
              "Schrijf ook de tienden met die noemer.");
    } else {
        tip_1("Maak de breuk eerst gelijknamig met de tienden...");
        tip_2(regel("Schrijf de breuk en de tienden met noemer", nieuwe_noemer, "."),
              "Kijk dan tussen welke twee tienden de breuk ligt.");
    }

    const int factor = nieuwe_noemer / 10;
    const auto grens = [&](int tienden) {
        return regel(streepbreuk(breuk{tienden, 10}.maal(factor)), " (", kaal(tienden), "/10)");
    };
    uitleg("Je moet hier die breuk met tienden vergelijken. Dan moet je",
           regel("eerst gelijknamig maken, bijv. je neemt als nieuwe noemer", nieuwe_noemer, "."),
           regel("De breuk is dan te schrijven als ", streepbreuk(gegeven.maal(nieuwe_noemer / gegeven.noemer)), "."),
           regel("Dat is méér dan ", grens(onder), " en minder dan ", grens(onder + 1), "."),
           regel("De juiste kleur is dus ", pijlen[static_cast<std::size_t>(juist)].woord, "."));
}

void oefeningen::M_grootste_kleinste_03_03_click() {
    struct krijtje {
        std::string_view woord, kleurig;
        kleur tint;
    };
    static constexpr std::array<krijtje, 4> krijtjes{
        {{"groen", "groene", lichtgroen}, {"wit", "witte", wit}, {"geel", "gele", geel}, {"rood", "rode", rood}}};
    enum plaats : std::size_t { groene, witte, gele, rode };
    static constexpr std::array<breuk, 4> makkelijke{{{1, 3}, {2, 3}, {1, 4}, {3, 4}}};

    kies_variant(4);
    zaai();
    // The green or the white one lies on one side of a simple fraction that the other of these two equals; the yellow
    // and the red one lie on the far side.
    const bool paar_kleiner = variant % 2 == 1;
    const breuk maat = variant <= 2 ? breuk{1, 2} : kies(makkelijke);
    const bool groene_apart = munt();
    const auto op_kant = [&](bool kleiner, int most) {
        return trek_tot([&] { return trek_breuk(toeval, 3, most); },
                        [&](breuk drawn) { return kleiner ? drawn < maat : drawn > maat; });
    };
    std::array<breuk, 4> breuken{};
    breuken[groene_apart ? groene : witte] = op_kant(!paar_kleiner, 12);
    breuken[groene_apart ? witte : groene] = maat.maal(trek(4) + 2);
    const breuk rood_kort = op_kant(paar_kleiner, 9);
    breuken[rode] = rood_kort.maal(trek(2) + 2);
    breuken[gele] = trek_tot([&] { return op_kant(paar_kleiner, 12); },
                             [&](breuk drawn) { return drawn.noemer != rood_kort.noemer; });
    const bool grootste = munt();
    const bool uit_paar = grootste != paar_kleiner;
    const auto gevraagd = grootste ? std::ranges::max_element(breuken) : std::ranges::min_element(breuken);
    const auto juist = static_cast<std::size_t>(gevraagd - breuken.begin());
    const bool leraar = munt();

    bord(zwart, wit, 12);
    plaatje.line_width = 4;
    plaatje.box(60, 60, drawing::inner_width - 120, drawing::inner_height - 120, olijf);
    plaatje.line_width = 1;
    druk_midden(drawing::inner_width / 2, 150, "Welke breuk is ", grootste ? "GROTER" : "KLEINER", " dan de andere?");
    juist_op(static_cast<int>(juist) + 1);
    for (std::size_t i = 0; i < 4; ++i) {
        const int x = 900 + static_cast<int>(i) * 1190;
        plaatje.fore_colour = krijtjes[i].tint;
        plaatje.text_size = 20;
        const int breedte = text_width(kaal(breuken[i].noemer), 20) + 60;
        teken_breuk(plaatje, x - breedte / 2, 1030, 0, breuken[i].teller, breuken[i].noemer);
        plaatje.text_size = 12;
        druk_midden(x, 1640, krijtjes[i].woord);
        op_plaats(static_cast<int>(i) + 1, krijtjes[i].kleurig);
    }

    vraag("Op het schoolbord heeft een", regel(leraar ? "leraar" : "lerares", " vier breuken geschreven."), leeg,
          regel("Welke is de ", grootste ? "grootste" : "kleinste", "?"), "Kies de juiste kleur.");

    tip_1("Probeer eerst te vereenvoudigen.");
    if (uit_paar)
        tip_2("Probeer eerst te vereenvoudigen en daarna", "de gele en rode breuk gelijknamig te maken.");
    else
        tip_2("Probeer eerst te vereenvoudigen en daarna",
              regel("elke breuk te vergelijken met ", streepbreuk(maat), "."));

    const std::string grens = streepbreuk(maat);
    const std::string apart =
        groene_apart ? regel(paar_kleiner ? "De groene breuk is groter dan " : "De groene breuk is kleiner dan ", grens,
                             ", terwijl de witte gelijk is")
                     : regel(paar_kleiner ? "De witte breuk is groter dan " : "De witte breuk is kleiner dan ", grens,
                             ", terwijl de groene gelijk is");
    const std::string paar =
        regel("aan ", grens,
              paar_kleiner ? ". De gele en rode zijn beide kleiner dan " : ". De gele en rode zijn beide groter dan ",
              grens, ".");
    const std::string slot =
        regel("De ", krijtjes[juist].kleurig, " breuk is dus de ", grootste ? "grootste" : "kleinste", ".");
    if (uit_paar) {
        const int noemer = std::lcm(rood_kort.noemer, breuken[gele].noemer);
        const auto met_noemer = [noemer](breuk b) { return streepbreuk(b.maal(noemer / b.noemer)); };
        uitleg(apart, paar, regel("De rode breuk is te vereenvoudigen tot ", streepbreuk(rood_kort), "."),
               regel("Gelijknamig gemaakt is de gele breuk ", met_noemer(breuken[gele]), " en de rode ",
                     met_noemer(rood_kort), "."),
               slot);
    } else
        uitleg(apart, paar, slot);
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
    zaai();
    const vorm& kwarten = rij(vormen, variant);
    const int liters_eruit = trek(18) + 2;
    const int liters = liters_eruit + trek(60) + 10;
    const int in_vat = liters * 100 + kwarten.in_vat * 25; // hundredths of a litre, like all that follow
    const int eruit = liters_eruit * 100 + kwarten.eruit * 25;
    const breuk deel = breuk{kwarten.eruit, 4}.vereenvoudigd();
    const int geplakt = liters_eruit * 100 + deel.teller * 10 + deel.noemer; // 1/4 read as 0,14
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

    goed(getal(in_vat - eruit));
    fout(getal(in_vat - liters_eruit * 100)); // the wholes only
    fout(getal(in_vat - geplakt));
    fout(getal(in_vat + eruit));
    tip_1(kwarten.tip);
    tip_2(
        regel("Bedenk dat ", streepbreuk(deel), " liter hetzelfde is als ", kaal(getal(kwarten.eruit * 25)), " liter."),
        "Doe daarna een aftrekking.");

    uitleg("Om deze som te maken moet je gelijksoortige breuken",
           regel("maken. Maak dus van ", liter_breuk, " een breuk met een komma."),
           regel("Dat wordt dus", getal(eruit), " liter."),
           regel("Dit moet je aftrekken van", getal(in_vat), " liter."),
           regel("Dan krijg je", getal(in_vat), " -", getal(eruit), " liter, wat gelijk is aan ",
                 kaal(getal(in_vat - eruit)), " liter."));
}

void oefeningen::M_snel_03_03_click() {
    // What both parts can be divided by, each in two steps.
    static constexpr std::array<int, 4> makkelijke_delers{4, 6, 8, 10};
    static constexpr std::array<int, 6> moeilijke_delers{9, 12, 14, 15, 16, 18};
    kies_variant(2);
    zaai();
    const breuk kort = variant == 1 ? trek_breuk(toeval, 3, 7) : trek_breuk(toeval, 3, 11);
    const int deler = variant == 1 ? kies(makkelijke_delers) : kies(moeilijke_delers);
    const int te_klein = deler % 2 == 0 ? 2 : 3;
    const int over = deler / te_klein;
    const breuk lang = kort.maal(deler);

    bord(zwart, geel, 20);
    druk_midden(drawing::inner_width / 2, 450, "Vereenvoudig: ", streepbreuk(lang));

    vraag("Geef snel antwoord.", leeg, "Je hebt niet veel tijd!");

    goed(streepbreuk(kort));
    fout(streepbreuk(kort.maal(over)), "Je bent nog niet klaar: je kunt de teller en",
         regel("de noemer allebei nog delen door", over, "."));
    fout(streepbreuk({kort.teller, kort.noemer * over}), "Je hebt de teller en de noemer niet door",
         "hetzelfde getal gedeeld.");
    fout(streepbreuk({kort.teller, kort.noemer + 1}), "Je hebt je vergist bij het delen van de noemer.");

    uitleg(
        regel("De teller kun je delen door", deler, " en de"),
        regel("noemer ook. Dat getal", deler, " is het grootste getal"),
        "waar je de teller en de noemer door kunt delen.",
        regel("De teller wordt dus", lang.teller, " :", deler, " =", kort.teller, " en de"),
        regel("noemer wordt", lang.noemer, " :", deler, " =", kort.noemer, ". De breuk wordt dus ", antwoord_1, "."));
    snel(variant == 1 ? 8 : 15);
}

} // namespace cijferwerf
