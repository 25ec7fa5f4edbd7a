// Fractions added and taken off. The wrong answers are the mistakes of the last steps - not simplified, no whole taken
// out - and of the first: denominators not made equal.
//
// The explanation of a sum is worked out below it, in y 1050 to 2000, by the drawing commands.
#include "generators/breuken/sommen.h"
#include "generators/gedeeld/opdracht.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

namespace {

// "3 9/6": wholes before a fraction that may be above 1.
plakregel met_helen(int helen, breuk b) {
    return helen == 0 ? streepbreuk(b) : plak_even({kaal(helen), " ", streepbreuk(b)});
}

} // namespace

void oefeningen::L_prijzen_03_03_click() {
    static constexpr std::array<std::string_view, 8> steden{"Rotterdam", "Utrecht",   "Amsterdam",  "Groningen",
                                                            "Den Haag",  "Eindhoven", "Maastricht", "Arnhem"};
    struct verdeling {
        breuk eerste, tweede;
        breuk samen() const { return eerste + tweede; }
        breuk over() const { return breuk{1, 1} - samen(); }
        // What is over when the denominators are added up as well.
        breuk met_noemers() const {
            const int noemer = eerste.noemer + tweede.noemer;
            return {noemer - eerste.teller - tweede.teller, noemer};
        }
        // Much is left, so that mistakes can be less than that.
        bool geschikt() const { return eerste > tweede && over() > breuk{4, 9} && samen().noemer <= 40; }
    };
    // All that fit, by the denominator of the first prize, which is drawn first: else most would be elevenths.
    static const auto alle = [](bool gelijknamig) {
        std::array<std::vector<verdeling>, 13> per_noemer;
        const std::vector<breuk> breuken = breuken_onder_1(12);
        for (const breuk eerste : breuken)
            for (const breuk tweede : breuken)
                if (const verdeling v{eerste, tweede}; (eerste.noemer == tweede.noemer) == gelijknamig && v.geschikt())
                    rij(per_noemer, eerste.noemer).push_back(v);
        std::vector<std::vector<verdeling>> gevuld;
        std::ranges::copy_if(per_noemer, std::back_inserter(gevuld), [](const auto& v) { return !v.empty(); });
        return gevuld;
    };
    static const std::array verdelingen{alle(true), alle(false)};
    kies_variant(2);
    const bool gelijknamig = variant == 1;
    const std::string_view stad = kies(steden);
    const verdeling& prijzen = kies(kies(rij(verdelingen, variant)));
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

    const breuk een{1, 1};
    const breuk een_stukje{1, samen.noemer};
    const std::string verteld = regel("Je hebt je ", streepbreuk(een_stukje), " deel vergist.");
    drie_andere(
        prijzen.over(), kortste,
        {{samen, "Dat is het deel voor de eerste en de tweede prijs", "samen. Hoeveel blijft er dan over?"},
         {een - eerste, "Je hebt alleen de eerste prijs ervan afgetrokken.", "De tweede prijs moet er ook nog af."},
         {een - tweede, "Je hebt alleen de tweede prijs ervan afgetrokken.", "De eerste prijs moet er ook nog af."},
         {eerste - tweede, "Je hebt de prijzen van elkaar afgetrokken.",
          "Tel ze op, en kijk wat er dan van 1 over is."},
         {prijzen.over() - een_stukje, verteld, "Tel de tellers nog eens op."},
         {prijzen.over() + een_stukje, verteld, "Tel de tellers nog eens op."},
         {prijzen.met_noemers(), "Je hebt ook de noemers bij elkaar opgeteld.",
          "Als de noemers gelijk zijn, tel je alleen de tellers op."}});
    leg_vast(trek(4) + 1);

    const plakregel slot = regel("Over is dus 1 - ", kortste(samen), " = ", kortste(prijzen.over()), " deel.");
    uitleg(regel("In de som staan twee breuken, namelijk ", streepbreuk(eerste), " en ", streepbreuk(tweede), "."),
           gelijknamig ? "Deze hoeven niet gelijknamig gemaakt te worden."
                       : "Deze moeten eerst gelijknamig gemaakt worden.",
           regel("Opgeteld: ", streepbreuk(eerste.maal(samen.noemer / eerste.noemer)), "  + ",
                 streepbreuk(tweede.maal(samen.noemer / tweede.noemer)), "  = ", streepbreuk(samen), "."),
           samen.vereenvoudigbaar() ? regel("Vereenvoudigd is dat ", kortste(samen), ".") : slot,
           samen.vereenvoudigbaar() ? slot : leeg);
}

void oefeningen::L_optellen_03_14_click() {
    // The fractions together are more than 1, and what is left above 1 can be simplified.
    static const auto past = [](const breuksom& s) {
        const breuk samen = s.links + s.rechts;
        return s.links.noemer != s.rechts.noemer && samen > breuk{1, 1} && samen.teller <= 99 &&
               samen.rest().vereenvoudigbaar() && samen.rest().teller > 0;
    };
    // The second kind has larger denominators, but none that is hard to count with.
    static constexpr std::array<int, 5> ronde_noemers{12, 18, 20, 24, 30};
    static const std::array sommen{
        alle_sommen(15, [](const breuksom& s) { return past(s) && s.noemers_passen(); }),
        alle_sommen(24,
                    [](const breuksom& s) {
                        return past(s) && std::ranges::find(ronde_noemers, s.gelijke_noemer()) != ronde_noemers.end();
                    }),
        alle_sommen(10, [](const breuksom& s) { return past(s) && s.gelijke_noemer() <= 60; }),
    };
    kies_variant(3);
    breuksom s = kies(rij(sommen, variant));
    if (variant == 3) {
        s.helen_links = trek_van(1, 4);
        s.helen_rechts = trek_van(1, 4);
    }
    const int noemer = s.gelijke_noemer();
    const int helen = s.helen_links + s.helen_rechts;
    const breuk samen = s.links + s.rechts;
    const int deler = samen.deler();

    bord(donkerblauw, geel, 16);
    teken_som(plaatje, 700, 520, s, "+", "......");

    vraag("Kijk hiernaast...", "Twee breuken worden gelijknamig", "gemaakt, opgeteld en zo ver mogelijk",
          "vereenvoudigd.", "Welke streepbreuk moet op de", "stippeltjes staan?");

    goed(met_helen(helen + 1, samen.rest().vereenvoudigd()));
    if (variant == 2)
        fout(met_helen(helen + 1, samen.rest()), "Je hebt niet vereenvoudigd.", "Je moet ook vereenvoudigden.");
    else
        fout(met_helen(helen + 1, samen.rest()), "Je hebt niet vereenvoudigd.");
    fout(met_helen(helen, samen.vereenvoudigd()), "Je hebt er geen hele uitgehaald.");
    fout(met_helen(helen, samen), "Je hebt er geen hele uitgehaald en je", "hebt niet vereenvoudigd...");

    uitleg(regel("Maak van de noemers eerst", noemer, ", zodat je ze"),
           "makkelijk kunt optellen. Haal er vervolgens een hele uit",
           "en vereenvoudig die breuk door de teller en de noemer", regel("door", deler, " te delen."),
           regel("Het goede antwoord is ", juiste_antwoord(), "."));
    opdrachten(
        breuk_opdracht(700, 1400, s.helen_links, s.links.maal(noemer / s.links.noemer)),
        breuk_opdracht(1550, 1400, s.helen_rechts, s.rechts.maal(noemer / s.rechts.noemer)),
        breuk_opdracht(2400, 1400, helen, samen), breuk_opdracht(3250, 1400, helen + 1, samen.rest()),
        breuk_opdracht(4100, 1400, helen + 1, samen.rest().vereenvoudigd()),
        "PRINT_1400_1350_15_12_+           =            =            =",
        // the bars, in one line
        druk_opdracht(1333, wit, 14, {{935, "---"}, {1785, "---"}, {2635, "---"}, {3485, "---"}, {4335, "---"}}));
}

void oefeningen::M_aftrekken_03_14_click() {
    // No whole has to be broken up, what is left can be simplified, and who leaves the numerators as they are is wrong.
    static const auto past = [](const breuksom& s) {
        const breuk over = s.links - s.rechts;
        const int zonder_aanpassen = s.links.teller - s.rechts.teller;
        return s.links.noemer != s.rechts.noemer && s.gelijke_noemer() <= 60 && over.teller > 0 &&
               over.vereenvoudigbaar() && zonder_aanpassen > 0 && zonder_aanpassen != over.teller;
    };
    static const std::array sommen{
        alle_sommen(15, [](const breuksom& s) { return past(s) && s.noemers_passen(); }),
        alle_sommen(15, [](const breuksom& s) { return past(s) && !s.noemers_passen(); }),
    };
    kies_variant(2);
    breuksom s = kies(rij(sommen, variant));
    s.helen_links = trek_van(2, 6);
    s.helen_rechts = trek_van(1, s.helen_links - 1);
    const int noemer = s.gelijke_noemer();
    const int helen = s.helen_links - s.helen_rechts;
    const breuk over = s.links - s.rechts;

    bord(donkerblauw, geel, 16);
    teken_som(plaatje, 200, 520, s, "-", "......");
    // The bars of the explanation: it has no command left that would draw them.
    for (const int x : {200, 1100, 2000, 2900, 3800, 4700}) plaatje.line(x + 235, 1507, x + 495, 1507, grijs);

    vraag("Kijk hiernaast...", "Twee breuken worden gelijknamig", "gemaakt, afgetrokken en vereenvoudigd.",
          "Welke streepbreuk moet op de", "stippeltjes staan?");

    goed(met_helen(helen, over.vereenvoudigd()));
    fout(met_helen(helen, over), "Je hebt niet vereenvoudigd.", "De teller en de noemer kun je nog door",
         regel("hetzelfde getal delen, namelijk door", over.deler(), "."));
    fout(met_helen(helen, {s.links.teller - s.rechts.teller, noemer}), "Je hebt de breuken niet gelijknamig gemaakt:",
         regel("als de noemer", noemer, " wordt, verandert de teller ook."));
    fout(met_helen(s.helen_links, over.vereenvoudigd()), "Je hebt alleen de streepbreuken van elkaar afgetrokken.",
         "De helen moet je ook van elkaar aftrekken.");

    uitleg(regel("Maak van de noemers eerst", noemer, ", zodat je ze"),
           "makkelijk kunt aftrekken. Trek de helen van elkaar af,",
           "daarna de streepbreuken. Vereenvoudig de breuk door",
           regel("de teller en de noemer ", "door", over.deler(), " te delen."),
           regel("Het goede antwoord is ", juiste_antwoord(), "."));
    opdrachten(breuk_opdracht(200, 1400, s.helen_links, s.links), breuk_opdracht(1100, 1400, s.helen_rechts, s.rechts),
               breuk_opdracht(2000, 1400, s.helen_links, s.links.maal(noemer / s.links.noemer)),
               breuk_opdracht(2900, 1400, s.helen_rechts, s.rechts.maal(noemer / s.rechts.noemer)),
               breuk_opdracht(3800, 1400, helen, over), breuk_opdracht(4700, 1400, helen, over.vereenvoudigd()),
               "PRINT_900_1350_15_12_-             =             -             =             =");
}

} // namespace cijferwerf
