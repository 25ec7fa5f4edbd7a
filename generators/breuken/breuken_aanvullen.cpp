// Fractions as numbers: per cents, pieces of a segment, completing, between which decimals.
#include "generators/gedeeld/breuk.h"
#include "generators/oefeningen.h"

#include <algorithm>
#include <span>
#include <vector>

namespace cijferwerf {

namespace {

// The first three of these mistakes that are above 0 and differ by value from the right answer and from one another.
std::array<breuk, 3> drie_andere(breuk juist, std::span<const breuk> vergissingen) {
    std::array<breuk, 3> gekozen{};
    auto volgende = gekozen.begin();
    for (const breuk b : vergissingen) {
        if (b.teller <= 0 || b == juist || std::find(gekozen.begin(), volgende, b) != volgende) continue;
        *volgende++ = b;
        if (volgende == gekozen.end()) return gekozen;
    }
    throw checked_error("too few different mistakes with a fraction");
}

// "2 1/4", "3/4", "5", simplified.
std::string waarde(breuk b) { return gemengd(b.vereenvoudigd()); }

} // namespace

void oefeningen::L_procenten_03_14_click() {
    kies_variant(2);
    zaai();
    // Fives, or the even numbers between the tens: all can be simplified.
    const int procent = variant == 1 ? trek_van(5, 95, 5) : trek(10) * 10 + trek_van(2, 8, 2);
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

    // The percentage below the bar, what is not meant, only the numerator divided, thousandths, a half of it.
    const std::array<breuk, 5> vergissingen{
        {{1, procent}, {100 - procent, 100}, {procent / deler, 100}, {procent, 1000}, {procent, 200}}};
    goed(waarde(honderdsten));
    for (const breuk b : drie_andere(honderdsten, geschud(vergissingen))) fout(waarde(b));
    if (variant == 1) {
        tip_1("Eerst: bedenk wat 1 % is.");
        tip_2("Dan: schrijf het percentage als een breuk met noemer 100...");
    } else {
        tip_1("Bedenk eerst welk deel 1 % is.");
        tip_2("Maak van het percentage een breuk met noemer 100", "en vereenvoudig die breuk dan zo ver mogelijk.");
    }

    uitleg(regel(kaal(procent), " % kun je schrijven als", procent, "/100, want 1 % is 1/100."),
           regel("De breuk", procent, " /100 kun je vereenvoudigen tot ", waarde(honderdsten)),
           regel("door de teller en de noemer door", deler, " te delen."),
           regel("Goede antwoord: ", waarde(honderdsten), "."));
    opdrachten("LINE_300_880_3000_400_1_BF_0",
               regel("PRINT_350_880_15_16_", procent, " % =  ", waarde(honderdsten), " deel"));
}

void oefeningen::L_stukken_03_14_click() {
    static constexpr std::array<int, 7> delingen{4, 5, 6, 7, 8, 9, 10};
    kies_variant(14);
    zaai();
    const bool vraag_AB = variant % 2 == 1;
    const int stukken = rij(delingen, (variant + 1) / 2);
    const int tot_B = trek(stukken - 1) + 1;
    // The length between two marks: a fraction up to 5, or a whole number.
    const breuk stuk = trek_tot(
        [this] {
            return breuk{trek(5) + 1, trek(6) + 1};
        },
        [](breuk b) {
            return !b.vereenvoudigbaar() && b != breuk{1, 1};
        });
    const auto lengte = [&](int aantal) { return breuk{aantal, 1} * stuk; };
    const breuk AB = lengte(tot_B);
    const breuk AC = lengte(stukken);
    const std::string deel = streepbreuk({tot_B, stukken});

    bord(wit, donkerblauw, 16);
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
    maat(maat_AB, tot_B, vraag_AB ? donkerrood : zwart, vraag_AB ? "?" : waarde(AB));
    maat(maat_AC, stukken, vraag_AB ? zwart : donkerrood, vraag_AB ? waarde(AC) : "?");

    vraag("Kijk hiernaast...", vraag_AB ? "Gegeven is dat het stuk AC" : "Gegeven is dat het stuk AB",
          regel("een lengte heeft van ", waarde(vraag_AB ? AC : AB), "."), leeg,
          vraag_AB ? "Hoe lang is het stuk AB?" : "Hoe lang is het stuk AC?");

    // Pieces counted too many or too few, the other part, both together; and if that is too little, half a piece.
    const int aantal = vraag_AB ? tot_B : stukken;
    std::vector<breuk> vergissingen;
    for (const int n :
         geschud(std::array{aantal - 2, aantal - 1, aantal + 1, aantal + 2, stukken - tot_B, stukken + tot_B}))
        if (vraag_AB ? n < stukken : n > tot_B) vergissingen.push_back(lengte(n));
    vergissingen.push_back(lengte(2 * aantal + 1) * breuk{1, 2});
    goed(waarde(lengte(aantal)));
    for (const breuk b : drie_andere(lengte(aantal), vergissingen)) fout(waarde(b));
    leg_vast(trek(4) + 1);
    tip_1("Eerste stap: beschouw AB/AC als een breuk...");
    tip_2("Tweede stap: bekijk de waarde van een stuk tussen", "twee strepen...");

    const std::string deel_zin = regel("Het stuk AB is het ", deel, " deel van AC.");
    if (vraag_AB)
        uitleg(deel_zin,
               regel("Het hele stuk AC is ", waarde(AC), ", dus AB is het ", deel, " deel van ", waarde(AC), "."),
               regel("Een stuk tussen twee strepen is ", waarde(AC), " :", stukken, " = ", waarde(stuk), "."),
               regel("AB = ", deel, " x ", waarde(AC), " = ", waarde(AB), "."));
    else
        uitleg(deel_zin,
               tot_B == 1
                   ? regel("Een stuk tussen twee strepen is dus net zo lang als AB: ", waarde(stuk), ".")
                   : regel("Een stuk tussen twee strepen is dus ", waarde(AB), " :", tot_B, " = ", waarde(stuk), "."),
               regel("Het hele stuk AC bestaat uit", stukken, " van die stukken."),
               regel("AC =", stukken, " x ", waarde(stuk), " = ", waarde(AC), "."));
    // In the explanation the length takes the place of its question mark.
    const int y = vraag_AB ? maat_AB : maat_AC;
    const int midden = (links + streep(aantal)) / 2;
    const std::string antwoord = waarde(lengte(aantal));
    opdrachten(regel("LINE_", velden(midden - 100, y + 40), "_200_220_15_BF_0"),
               regel("PRINT_", velden(midden - text_width(antwoord, 11) / 2, y + 20), "_4_11_", antwoord));
}

void oefeningen::M_aanvullen_1_03_14_click() {
    kies_variant(9);
    zaai();
    // Of each three: a 1 with a fraction, a larger number, and one that leaves more than 1 over.
    const int grootte = (variant - 1) % 3;
    // The first three have equal denominators; then the right one is a multiple, then the left one.
    const int soort = (variant - 1) / 3;
    const int helen = grootte == 0 ? 1 : trek(3) + 1 + grootte;
    const int noemer = soort == 0 ? trek(7) + 3 : trek(5) + 2;
    const int fijner = noemer * (soort == 0 ? 1 : noemer <= 4 && munt() ? 3 : 2);
    const auto echte_breuk = [this](int n) {
        return trek_tot([&] { return breuk{trek(n - 1) + 1, n}; }, [](breuk b) { return !b.vereenvoudigbaar(); });
    };
    const breuk links = echte_breuk(soort == 2 ? fijner : noemer);
    const breuk rest =
        trek_tot([&] { return echte_breuk(soort == 1 ? fijner : noemer); }, [&](breuk b) { return b != links; });
    const breuk over = rest + breuk{grootte == 2 ? 1 : 0, 1};
    const breuk getal = breuk{helen, 1} + links;
    const breuk af = getal - over;

    bord(donkerblauw, wit, 14);
    plaatje.box(120, 120, drawing::inner_width - 240, drawing::inner_height - 240, lichtgrijs);
    plaatje.filled_box(900, 1900, 3580, 60, olijf);
    plaatje.filled_box(1250, 1840, 420, 60, wit);
    plaatje.filled_box(1950, 1840, 300, 60, geel);
    constexpr int midden = 690, gat = 2550;
    teken_breuk(plaatje, 1250, midden, helen, links.teller, links.noemer);
    druk(1980, midden - 161, "-");
    druk(3000, midden - 161, "=");
    teken_breuk(plaatje, 3280, midden, 0, over.teller, over.noemer);
    plaatje.text_size = 20;
    druk(2450, 450, "..");

    vraag("Kijk hiernaast...", leeg, "Op de stippeltjes moet nog", "een getal staan.", "Welk getal is dat?");

    // The fraction forgotten, added for subtracted, without the wholes, a whole too many or too few.
    const breuk zonder_helen = rest < links ? links - rest : rest - links;
    const std::array<breuk, 5> vergissingen{
        {breuk{helen, 1} - over, getal + over, zonder_helen, af + breuk{1, 1}, af - breuk{1, 1}}};
    goed(waarde(af));
    for (const breuk b : drie_andere(af, geschud(vergissingen))) fout(waarde(b));
    leg_vast(trek(4) + 1);
    tip_1(regel("Eerste stap: maak van die", helen, " een breuk..."), "Tweede stap: tel daar de streepbreuk bij op.");
    tip_2("Derde stap: trek die rechter streepbreuk ervan af...");

    const breuk som = getal.maal(fijner / getal.noemer);
    const auto met_noemer = [&](breuk b) {
        const breuk gelijknamig = b.maal(fijner / b.noemer);
        return b.noemer == fijner ? streepbreuk(b) : regel(streepbreuk(b), " (= ", streepbreuk(gelijknamig), ")");
    };
    uitleg(regel("Schrijf voor het getal", helen, " de breuk ", streepbreuk({helen * fijner, fijner}),
                 ". Tel daar die ", met_noemer(links)),
           regel("bij op. Dan krijg je ", streepbreuk(som), ". Om daar ", met_noemer(over), " van over te houden"),
           regel("moet je er ", streepbreuk(af), " van aftrekken.",
                 streepbreuk(af) == waarde(af) ? "" : regel(" Dat is gelijk aan ", waarde(af), ".")),
           regel("Op de stippeltjes moet dus het getal ", waarde(af), " staan."));
    const std::string met_breuken =
        regel(streepbreuk(som), " - ", streepbreuk(af), " = ", streepbreuk(over.maal(fijner / over.noemer)));
    const auto links_van = [](int om, std::string_view text) { return om - text_width(text, 12) / 2; };
    // The dots go in the colour of the ground, and their soft edges under a box.
    opdrachten("PRINT_2450_450_1_20_..", "LINE_2430_520_240_310_1_BF_0",
               regel("PRINT_", velden(links_van(gat, waarde(af))), "_550_12_12_", waarde(af)),
               regel("PRINT_", velden(links_van(gat, met_breuken)), "_1300_15_12_", met_breuken));
}

void oefeningen::M_aanvullen_2_03_14_click() { M_aanvullen_1_03_14_click(); }

void oefeningen::M_tussen_in_03_14_click() {
    struct bordkleur {
        std::string_view naam;
        kleur vlak, letters;
    };
    static constexpr std::array<bordkleur, 4> kleuren{
        {{"geel", geel, zwart}, {"blauw", blauw, wit}, {"rood", rood, wit}, {"groen", groen, wit}}};
    static constexpr std::array<int, 8> noemers{3, 4, 6, 7, 8, 9, 11, 12};
    kies_variant(2);
    zaai();
    // Between tenths, or between hundredths.
    const int decimalen = variant;
    const int schaal = variant == 1 ? 10 : 100;
    // It lies inside a step, and the step ends before 1.
    const breuk b = trek_tot(
        [&] {
            const int noemer = kies(noemers);
            return breuk{trek(noemer - 1) + 1, noemer};
        },
        [&](breuk drawn) {
            return !drawn.vereenvoudigbaar() && schaal % drawn.noemer != 0 &&
                   drawn * breuk{schaal, 1} < breuk{schaal - 1, 1};
        });
    const int juist = trek(4) + 1;
    // By colour, where the two numbers begin: the right step, and others near it or some tenths away.
    const int stap = b.teller * schaal / b.noemer;
    std::array<int, 4> begin{};
    rij(begin, juist) = stap;
    const auto afstanden = geschud(variant == 1 ? std::array{-3, -2, -1, 1, 2, 3} : std::array{-10, -2, -1, 1, 2, 10});
    auto volgende = afstanden.begin();
    for (int i = 1; i <= 4; ++i) {
        if (i == juist) continue;
        int& hier = rij(begin, i);
        do hier = stap + *volgende++;
        while (hier < 0 || hier > schaal - 2);
    }
    const auto tussen = [&](int i) {
        const int van = rij(begin, i);
        return regel(komma(van, decimalen), " en", komma(van + 1, decimalen));
    };

    bord(lichtgrijs, zwart, 24);
    const int breedte = text_width(kaal(b.noemer), plaatje.text_size) + 60;
    teken_breuk(plaatje, 1050 - breedte / 2, 1065, 0, b.teller, b.noemer);
    plaatje.text_size = 14;
    for (int i = 1; i <= 4; ++i) {
        const auto& [naam, vlak, letters] = rij(kleuren, i);
        const int y = 105 + (i - 1) * 490;
        plaatje.filled_box(2000, y, 3200, 440, vlak);
        plaatje.fore_colour = letters;
        druk(2150, y + 55, naam);
        druk_rechts(5050, y + 55, kaal(tussen(i)));
    }

    vraag("Kijk hiernaast...", leeg, "Tussen welke twee getallen", "ligt de breuk?", leeg, "Kies de juiste kleur.");

    juist_op(juist);
    for (int i = 1; i <= 4; ++i) op_plaats(i, rij(kleuren, i).naam);
    if (variant == 1) {
        tip_1("Eerste stap: zet de gegeven breuk in een kommagetal om.");
        tip_2("Tweede stap: vergelijk dat kommagetal met de gegeven", "getallen...");
    } else {
        tip_1("Maak eerst een kommagetal van de gegeven breuk:", "deel de teller door de noemer.");
        tip_2("Kijk daarna tussen welke twee getallen dat", "kommagetal ligt. Let op de tweede decimaal!");
    }

    const bool deelbaar = 1000 % b.noemer == 0;
    const number_text kommagetal =
        deelbaar ? komma_kort(b.teller * 1000 / b.noemer, 3) : komma(b.teller * 1000 / b.noemer, 3);
    uitleg("Je kunt het beste die breuk in een kommagetal",
           regel("omzetten:", b.teller, " delen door", b.noemer, " geeft", kommagetal, deelbaar ? "." : "..."),
           "Als je alle mogelijkheden bekijkt zie je dat dat getal", regel("alleen tussen", tussen(juist), " ligt."),
           regel("De juiste kleur is dus ", rij(kleuren, juist).naam, "."));
    opdrachten(regel("PRINT_550_1690_0_14_=", kommagetal, deelbaar ? "" : "..."));
}

} // namespace cijferwerf
