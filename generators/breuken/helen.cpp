// Wholes written as a fraction, and what is missing to a whole or to an outcome.
#include "generators/breuken/breuken.h"
#include "generators/gedeeld/opdracht.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

void oefeningen::B_helen_03_03_click() {
    kies_variant(2);
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
    if (kop()) {
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
           regel("Op de punt moet dus een ", samen, " staan."));
}

void oefeningen::L_helen_maken_03_03_click() {
    kies_variant(2);
    const int helen = trek(9) + 1;
    const breuk deel = variant == 1 ? trek_breuk(toeval, 4, 10) : trek_breuk(toeval, 11, 20);
    const int nodig = deel.noemer - deel.teller;
    const breuk aanvulling{nodig, deel.noemer};
    const breuk ernaast{nodig + 1 == deel.teller || nodig + 1 == deel.noemer ? nodig - 1 : nodig + 1, deel.noemer};

    bord(groen, geel, 16);
    constexpr int midden = 727; // of the dots, and so of all
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
    // The dots give way to the answer.
    opdrachten("PRINT_2420_470_2_20_..", vak_opdracht(2400, 540, 240, 330, groen),
               druk_midden_opdracht(2520, 630, wit, 12, juiste_antwoord()));
}

void oefeningen::M_aanvullen_1_03_14_click() {
    kies_variant(9);
    // Of each three: a 1 with a fraction, a larger number, and one that leaves more than 1 over.
    const int grootte = (variant - 1) % 3;
    // The first three have equal denominators; then the right one is a multiple, then the left one.
    const int soort = (variant - 1) / 3;
    const int helen = grootte == 0 ? 1 : trek(3) + 1 + grootte;
    const int noemer = soort == 0 ? trek(7) + 3 : trek(5) + 2;
    const int fijner = noemer * (soort == 0 ? 1 : noemer <= 4 && kop() ? 3 : 2);
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

    // The fraction forgotten; added for subtracted; a whole too many or too few; the smaller fraction taken off the
    // larger one, with the wholes and without.
    const breuk een{1, 1};
    const breuk verschil = rest < links ? links - rest : rest - links;
    drie_andere(af, kortste,
                {{breuk{helen, 1} - over},
                 {getal + over},
                 {af + een},
                 {af - een},
                 {breuk{helen - over.geheel(), 1} + verschil},
                 {verschil}});
    leg_vast(trek(4) + 1);
    tip_1(regel("Eerste stap: maak van die", helen, " een breuk..."), "Tweede stap: tel daar de streepbreuk bij op.");
    tip_2("Derde stap: trek die rechter streepbreuk ervan af...");

    const breuk som = getal.maal(fijner / getal.noemer);
    const auto met_noemer = [&](breuk b) {
        const breuk gelijknamig = b.maal(fijner / b.noemer);
        return b.noemer == fijner ? plakregel(streepbreuk(b))
                                  : regel(streepbreuk(b), " (= ", streepbreuk(gelijknamig), ")");
    };
    uitleg(regel("Schrijf voor het getal", helen, " de breuk ", streepbreuk({helen * fijner, fijner}),
                 ". Tel daar die ", met_noemer(links)),
           regel("bij op. Dan krijg je ", streepbreuk(som), ". Om daar ", met_noemer(over), " van over te houden"),
           regel("moet je er ", streepbreuk(af), " van aftrekken.",
                 streepbreuk(af) == kortste(af) ? "" : regel(" Dat is gelijk aan ", kortste(af), ".")),
           regel("Op de stippeltjes moet dus het getal ", kortste(af), " staan."));
    const std::string met_breuken =
        regel(streepbreuk(som), " - ", streepbreuk(af), " = ", streepbreuk(over.maal(fijner / over.noemer)));
    // The dots go in the colour of the ground, and under a box on which red stands out.
    opdrachten("PRINT_2450_450_1_20_..", vak_opdracht(2180, 520, 740, 310, zwart),
               druk_midden_opdracht(gat, 550, rood, 12, juiste_antwoord()),
               druk_midden_opdracht(gat, 1300, wit, 12, met_breuken));
}

void oefeningen::M_aanvullen_2_03_14_click() { M_aanvullen_1_03_14_click(); }

} // namespace cijferwerf
