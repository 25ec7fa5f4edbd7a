// What the place of a digit says: numbers in words and in digits, the worth of one digit, tenths and their parts.
// The wrong answers have the right digits in wrong places.
#include "generators/gedeeld/kommagetal.h"
#include "generators/gedeeld/opdracht.h"
#include "generators/gedeeld/tekening.h"
#include "generators/gedeeld/telwoord.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

namespace {

// The number with the digits at two places, counted from 0 at its right end, swapped.
int verwisseld(int getal, int plaats, int andere) {
    const auto macht = [](int p) { return static_cast<int>(tien_tot_de(p)); };
    const int cijfer = getal / macht(plaats) % 10, ander = getal / macht(andere) % 10;
    return getal + (ander - cijfer) * (macht(plaats) - macht(andere));
}

// A group of three digits or two (all different), with two of them swapped; none then starts with 0.
std::vector<int> verwisselingen(int groep) {
    std::vector<int> alle;
    const int voorste = groep < 100 ? 1 : 2;
    for (int plaats = 1; plaats <= voorste; ++plaats)
        for (int andere = 0; andere < plaats; ++andere)
            if (const int ander = verwisseld(groep, plaats, andere); ander >= tien_tot_de(voorste))
                alle.push_back(ander);
    return alle;
}

} // namespace

void oefeningen::B_letters_11_01_click() {
    static constexpr std::array cijfers{0, 1, 2, 3, 4, 5, 6, 7, 8, 9};
    kies_variant(3);
    // Groups of different digits, so that any two can be swapped, that start with one above 0 and are read as three.
    const auto trek_groep = [this] {
        auto c = geschud(cijfers);
        if (c[0] == 0) std::swap(c[0], c[1]);
        return 100 * c[0] + 10 * c[1] + c[2];
    };
    const auto trek_paar = [this] {
        const int tiental = trek_van(1, 9);
        const int eenheid = trek_van(1, 8);
        return 10 * tiental + (eenheid < tiental ? eenheid : eenheid + 1);
    };
    const int miljoenen = variant == 3 ? trek_van(1, 9) : 0;
    const int duizenden = variant == 1 ? trek_paar() : trek_groep();
    const int rest = trek_groep();
    const auto samen = [miljoenen](int d, int r) { return 1'000'000 * miljoenen + 1'000 * d + r; };
    const int juist = samen(duizenden, rest);
    const auto stukken = telwoord_in_groepen(juist, spelling::schools);

    bord(donkerblauw, geel, 14);
    for (int y = variant == 3 ? 300 : 450; const std::string& stuk : stukken) {
        druk(300, y, stuk);
        y += 420;
    }

    vraag("Hiernaast zie je een getal", "dat helemaal in letters", "is geschreven.", leeg,
          "Hoe schrijf je het in cijfers?");

    const melding eerste_twee{"De eerste twee cijfers zijn niet goed."};
    const melding linker_deel{"De laatste drie cijfers zijn wel goed.",
                              variant == 2 ? "In het linker deel van het getal zijn"
                                           : "In het middelste deel van het getal zijn",
                              "twee cijfers verwisseld..."};
    const melding laatste_deel{"In het laatste deel van het getal zijn nog", "twee cijfers verwisseld."};
    const melding beide_delen{"Vier cijfers staan nog niet op de goede", "plaats, dus...",
                              "lees elk stukje van het getal nog een keer."};
    const auto anders_links = verwisselingen(duizenden), anders_rechts = verwisselingen(rest);
    const int links = kies(anders_links);
    const int rechts = kies(anders_rechts);
    std::vector<keuze<int>> vergissingen{{samen(links, rechts), beide_delen}};
    for (const int ander : anders_links) {
        const bool vooraan = variant == 1 || (variant == 2 && ander % 10 == duizenden % 10);
        vergissingen.push_back({samen(ander, rest), vooraan ? eerste_twee : linker_deel});
    }
    for (const int ander : anders_rechts) vergissingen.push_back({samen(duizenden, ander), laatste_deel});
    drie_andere(juist, groepen, vergissingen);

    const auto wordt = [](std::string_view stuk, int cijfers_van) {
        return regel("Het stukje ", stuk, " wordt", cijfers_van, ".");
    };
    const std::string in_cijfers = regel("In cijfers is het getal dus", groepen(juist), ".");
    if (miljoenen > 0)
        uitleg("Lees het getal per stukje. Als je een spatie", "tegenkomt, zet dan een punt tussen de cijfers.",
               wordt(stukken[0], miljoenen), wordt(stukken[1], duizenden), wordt(stukken[2], rest), in_cijfers);
    else
        uitleg("Lees het getal per stukje. Als je een spatie", "tegenkomt, zet dan een punt tussen de cijfers.",
               wordt(stukken[0], duizenden), wordt(stukken[1], rest), in_cijfers);
    opdracht(druk_opdracht(300, 1640, wit, 14, kaal(groepen(juist))));
}

void oefeningen::B_waarde_11_01_click() {
    static constexpr std::array<std::string_view, 8> namen{
        "eenheden",          "tientallen (T)",         "honderdtallen (H)",
        "duizendtallen (D)", "tienduizendtallen (TD)", "honderdduizendtallen (HD)",
        "miljoentallen (M)", "tienmiljoentallen (TM)"};
    struct getallen {
        int kortste, langste; // digits
        int laagste;          // place of the arrow, from the right end
    };
    static constexpr std::array<getallen, 3> soorten{{{4, 5, 1}, {6, 7, 3}, {8, 8, 6}}};
    static constexpr int boven = 550, pijl_van = 1600, punten = 20;
    kies_variant(3);
    const auto [kortste, langste, laagste] = rij(soorten, variant);
    const int lengte = trek_van(kortste, langste);
    const int plaats = trek_van(laagste, lengte - 1);
    const int cijfer = trek_van(1, 9);
    const auto waarde_op = [](int p) { return static_cast<int>(tien_tot_de(p)); };
    int getal = 0;
    for (int p = lengte - 1; p >= 0; --p)
        getal = 10 * getal + (p == plaats ? cijfer : p == lengte - 1 ? trek(9) + 1 : trek(10));
    const int waarde = waarde_op(plaats);
    const int juist = cijfer * waarde;

    bord(wit, donkerblauw, punten);
    const std::string tekst{kaal(groepen(getal))};
    const int links = (drawing::inner_width - text_width(tekst, punten)) / 2;
    const std::string tot_cijfer = tekst.substr(0, tekst.size() - static_cast<std::size_t>(plaats + plaats / 3) - 1);
    const int x = links + text_width(tot_cijfer, punten) + text_width("0", punten) / 2;
    druk(links, boven, tekst);
    teken_pijl(plaatje, {x, pijl_van}, {x, boven + text_height(punten) + 30}, rood);

    vraag("Hiernaast zie je een", "getal. De pijl wijst naar", "een cijfer in dat getal.", leeg,
          "Hoeveel is dat cijfer", "waard?");

    // The nearest places; where there are none above, three below.
    std::vector<keuze<int>> vergissingen;
    for (int p = std::max(0, std::min(plaats - 2, 4)); p <= std::min(plaats + 2, 7); ++p)
        vergissingen.push_back({cijfer * waarde_op(p),
                                {"Dat is het cijfer alleen waard op de plaats",
                                 regel("van de ", rij(namen, p + 1), ". Tel de plaatsen nog eens.")}});
    drie_andere(juist, groepen, vergissingen);

    const std::string_view naam = rij(namen, plaats + 1);
    uitleg(regel("De pijl wijst naar het cijfer", cijfer, "."), regel("Dit cijfer geeft het aantal ", naam, " aan."),
           "Je moet dit cijfer dus nog vermenigvuldigen",
           regel("met", groepen(waarde), ". Uitkomst:", cijfer, " x", groepen(waarde), " =", groepen(juist), "."));
    opdracht(druk_midden_opdracht(drawing::inner_width / 2, pijl_van + 100, donkerrood, 14, cijfer, " x",
                                  groepen(waarde), " =", groepen(juist)));
}

void oefeningen::L_na_de_komma_11_06_click() {
    // The places behind the comma of the two digits that are not 0.
    static constexpr std::array<std::array<int, 2>, 3> patronen{{{1, 2}, {1, 3}, {2, 3}}};
    static constexpr std::array kleuren{blauw, rood, geel, groen};
    kies_variant(3);
    const auto [plaats, tweede_plaats] = rij(patronen, variant);
    const int cijfer = trek_van(2, 5);
    const int tweede = trek_van(6, 9);
    const int getal = cijfer * static_cast<int>(tien_tot_de(tweede_plaats - plaats)) + tweede;
    const auto som = [&](int p, int q) {
        return regel(kaal(cijfer), "/", kaal(tien_tot_de(p)), " +", tweede, "/", kaal(tien_tot_de(q)));
    };
    const auto trek_andere = [this](int dan, int ook_niet = 0) {
        return trek_tot([this] { return trek_van(1, 3); }, [&](int p) { return p != dan && p != ook_niet; });
    };
    const std::string juist = som(plaats, tweede_plaats);
    // Where both are wrong, the second never takes the place of the first: else the sum would nearly always be larger.
    const int fout_tweede = trek_andere(tweede_plaats);
    const int fout_eerste = trek_andere(plaats);
    const int beide_eerste = trek_andere(plaats);
    const int beide_tweede = trek_andere(tweede_plaats, plaats);

    bord(lichtgrijs, zwart, 14);
    druk(500, 90, komma(getal, tweede_plaats), " = ");
    antwoord_over_stippen(plaatje.x(), 90, donkerblauw, "...", juist);
    kleurkeuze({500, 480}, 400, kleuren,
               {{juist},
                {som(plaats, fout_tweede), "De eerste helft van je antwoord is goed..."},
                {som(fout_eerste, tweede_plaats), "De tweede helft van je antwoord is wel goed..."},
                {som(beide_eerste, beide_tweede), "Beide helften van het antwoord zijn fout."}});

    vraag("Hiernaast zie je een kommagetal.", "Hoe kun je dat ook schrijven?", leeg, "Kies de juiste kleur.");

    uitleg("Het eerste cijfer achter de komma", "geeft de tienden aan, het tweede cijfer de honderdsten",
           "en het derde de duizendsten.", regel("Dus:", komma(getal, tweede_plaats), " = ", juist, "."),
           regel("De juiste kleur is dus ", juiste_antwoord(), "."));
}

void oefeningen::L_samenstellen_11_06_click() {
    struct plaatsnaam {
        std::string_view enkel, meer, kop;
    };
    // From thousandths up.
    static constexpr std::array<plaatsnaam, 7> namen{{{"duizendste", "duizendsten", "d"},
                                                      {"honderdste", "honderdsten", "h"},
                                                      {"tiende", "tienden", "t"},
                                                      {"eenheid", "eenheden", "E"},
                                                      {"tiental", "tientallen", "T"},
                                                      {"honderdtal", "honderdtallen", "H"},
                                                      {"duizendtal", "duizendtallen", "D"}}};
    static constexpr std::array<std::array<int, 2>, 6> plaatsparen{{{5, 4}, {5, 2}, {4, 2}, {4, 1}, {3, 1}, {2, 0}}};
    static constexpr int breed = 600, komma_breed = 200, links = (drawing::inner_width - 7 * breed - komma_breed) / 2;
    kies_variant(6);
    const auto [plaats, tweede_plaats] = rij(plaatsparen, variant);
    const int aantal = trek_van(1, 5);
    const int ander = trek_van(2, aantal == 1 ? 9 : 8);
    const int tweede = aantal > 1 && ander >= aantal ? ander + 1 : ander; // never as many, 2 to 9
    const auto getal = [=](int p, int q) {
        return static_cast<int>(aantal * tien_tot_de(p) + tweede * tien_tot_de(q)); // thousandths
    };
    const auto geschreven = [](long long duizendsten) { return komma_kort(duizendsten, 3); };
    const auto telling = [](int n, int p) {
        return regel(kaal(n), " ", n == 1 ? rij(namen, p + 1).enkel : rij(namen, p + 1).meer);
    };
    const int juist = getal(plaats, tweede_plaats);

    // The places, each over a square that the explanation fills.
    bord(donkerblauw, wit, 16);
    const auto midden = [](int p) { return links + (6 - p) * breed + breed / 2 + (p < 3 ? komma_breed : 0); };
    for (int p = 6; p >= 0; --p) {
        druk_midden(midden(p), 500, rij(namen, p + 1).kop);
        plaatje.box(midden(p) - breed / 2, 900, breed, 600, wit);
    }
    druk_midden(midden(3) + (breed + komma_breed) / 2, 1040, ",");

    vraag("Hoe schrijf je een getal dat", regel("bestaat uit ", telling(aantal, plaats), " en"),
          regel(telling(tweede, tweede_plaats), "?"));

    const std::string_view naam = rij(namen, plaats + 1).meer, tweede_naam = rij(namen, tweede_plaats + 1).meer;
    const melding omgedraaid{regel("Je hebt de ", naam, " en de"), regel(tweede_naam, " met elkaar verwisseld.")};
    const melding eerste_goed{regel("De", aantal, " staat wel goed, maar de", tweede, " staat niet"),
                              regel("op de plaats van de ", tweede_naam, ".")};
    const melding tweede_goed{regel("De", tweede, " staat wel goed, maar de", aantal, " staat niet"),
                              regel("op de plaats van de ", naam, ".")};
    const melding beide_fout{regel("De", aantal, " en de", tweede, " staan allebei niet op de goede plaats.")};
    std::vector<keuze<int>> vergissingen{{getal(tweede_plaats, plaats), omgedraaid}};
    for (const int p : {plaats - 1, plaats, plaats + 1})
        for (const int q : {tweede_plaats - 1, tweede_plaats, tweede_plaats + 1})
            if (p != q && p <= 6 && q >= 0)
                vergissingen.push_back({getal(p, q), p == plaats          ? eerste_goed
                                                     : q == tweede_plaats ? tweede_goed
                                                                          : beide_fout});
    drie_andere(juist, geschreven, vergissingen);

    const int eerste_deel = static_cast<int>(aantal * tien_tot_de(plaats)), tweede_deel = juist - eerste_deel;
    uitleg("Kijk bij elk aantal op welke plaats het hoort:",
           regel("voor de ", naam, " is dat", aantal, " x", geschreven(tien_tot_de(plaats)), " =",
                 geschreven(eerste_deel), ","),
           regel("voor de ", tweede_naam, " is dat", tweede, " x", geschreven(tien_tot_de(tweede_plaats)), " =",
                 geschreven(tweede_deel), "."),
           regel("Samen is dat", geschreven(eerste_deel), " +", geschreven(tweede_deel), " =", geschreven(juist), "."));
    for (int p = std::max(plaats, 3); p >= std::min(tweede_plaats, 3); --p)
        opdracht(druk_midden_opdracht(midden(p), 1020, geel, 16, juist / tien_tot_de(p) % 10));
}

} // namespace cijferwerf
