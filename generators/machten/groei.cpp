// Growth by the same factor again and again: bacteria that double, money that earns interest on its interest.
// The wrong answers count a period too few or too many, or let the same amount come every time.
#include "generators/gedeeld/kommagetal.h"
#include "generators/gedeeld/tekening.h"
#include "generators/machten/macht.h"
#include "generators/oefeningen.h"

namespace cijferwerf {

namespace {

void teken_bacterie(drawing& on, point midden) {
    on.ellipse(midden.x, midden.y, 330, 190, lichtgroen, true);
    on.ellipse(midden.x, midden.y, 330, 190, groen, false);
    on.filled_circle(midden.x + 90, midden.y - 30, 60, groen);
}

// In billionths of a euro on the way, so that the whole euros come out right after nine years too.
int na_jaren(int bedrag, int p, int jaren) {
    constexpr long long miljardste = 1'000'000'000;
    long long saldo = bedrag * miljardste;
    for (int i = 0; i < jaren; ++i) saldo = deel_afgerond(saldo * (100 + p), 100);
    return static_cast<int>(deel_afgerond(saldo, miljardste));
}

// Whether of each two amounts the larger is more than a hundredth above the other.
bool ver_uiteen(std::array<int, 4> bedragen) {
    std::ranges::sort(bedragen);
    for (std::size_t i = 1; i < bedragen.size(); ++i)
        if (100 * bedragen[i] <= 101 * bedragen[i - 1]) return false;
    return true;
}

} // namespace

void oefeningen::M_bacterie_00_11_click() {
    // Some are themselves reached by doubling: more than those takes one period more.
    static constexpr std::array drempels{16, 20, 30, 32, 50, 64, 100, 128, 200, 250, 256, 300, 500, 512, 1000, 1024};
    kies_variant(2);
    const std::string_view eenheid = variant == 1 ? "minuten" : "uren";
    const int periode = variant == 1 ? trek_van(10, 50, 5) : trek_van(3, 9);
    const int n = kies(drempels);
    int k = 0;
    while (macht{2, k}.waarde() <= n) ++k;
    const auto duur = [this](int tijd) { return regel(tijd, variant == 1 ? " minuten" : " uur"); };
    const auto bacterien = [](int keer) { return duizend(macht{2, keer}.waarde()); };

    bord(wit, donkerblauw, 12);
    teken_bacterie(plaatje, {700, 950});
    druk_midden(700, 1600, "1 bacterie");
    druk_midden(1700, 620, kaal(duur(periode)));
    teken_pijl(plaatje, {1200, 950}, {2200, 950}, geel);
    teken_bacterie(plaatje, {2700, 650});
    teken_bacterie(plaatje, {2700, 1250});
    druk_midden(2700, 1600, "2 bacteriën");
    druk_midden(3700, 620, kaal(duur(periode)));
    teken_pijl(plaatje, {3200, 950}, {4200, 950}, geel);
    druk_midden(4700, 790, "...");

    vraag("Een bepaald soort bacterie plant zich", regel("voort door zich elke", periode, " ", eenheid), "te delen. ",
          "Stel, er is eerst één bacterie.", regel("Na hoeveel ", eenheid, " zijn er dan"),
          regel("meer dan", duizend(n), " bacteriën ontstaan?"));

    bijna(k * periode, periode, duur);
    static constexpr std::string_view bedenk = "Bedenk dat steeds na een bepaalde periode";
    static constexpr std::string_view verdubbelt = "het aantal verdubbelt.";
    tip_1(bedenk, verdubbelt);
    tip_2(bedenk, verdubbelt, "dus 2, 4, 8, 16, enzovoorts.");

    std::string rij_getallen = "1";
    for (int keer = 1; keer <= k; ++keer) rij_getallen += regel(",", bacterien(keer));
    uitleg(regel("Elke", duur(periode), " verdubbelt het aantal bacteriën:"), rij_getallen + ".",
           regel("Na", k - 1, " keer delen zijn het er", bacterien(k - 1), ", nog niet meer dan", duizend(n), "."),
           regel("Na", k, " keer delen zijn het er", bacterien(k), ", en dat is meer dan", duizend(n), "."),
           regel("Dat is na", k, " x", periode, " =", duur(k * periode), "."));
}

void oefeningen::Z_spaargeld_00_11_click() {
    kies_variant(4);
    const bool duizenden = variant % 2 == 0, jaar_te_veel = variant <= 2;
    struct rekening {
        int bedrag, p, t, fout_verschil;
        int juist() const { return na_jaren(bedrag, p, t); }
        int gelijke_rente() const { return bedrag * (100 + p * t) / 100; }
        int rekenfout() const { return juist() + bedrag * fout_verschil / 100; }
    };
    const int jaren_ernaast = jaar_te_veel ? 1 : -1;
    const auto ander_jaar = [jaren_ernaast](const rekening& r) { return na_jaren(r.bedrag, r.p, r.t + jaren_ernaast); };
    const rekening r = trek_tot(
        [&] {
            const int bedrag = duizenden ? trek(7) * 1000 + 1000 : trek(7) * 100 + 100;
            const int p = trek(7) + 3;
            const int t = trek(5) + 4;
            const bool erboven = kop();
            return rekening{bedrag, p, t, erboven ? 12 : -12};
        },
        [&](const rekening& drawn) {
            return ver_uiteen({drawn.juist(), drawn.gelijke_rente(), ander_jaar(drawn), drawn.rekenfout()});
        });
    const auto in_euros = [](int bedrag) { return kaal(euro(100LL * bedrag)); };
    const number_text bedrag = in_euros(r.bedrag), juist = in_euros(r.juist());
    const std::string factor = regel("1,0", kaal(r.p));

    bord(donkerblauw, wit, 16);
    plaatje.fore_colour = geel;
    druk(500, 350, "Tip: ");
    plaatje.fore_colour = wit;
    druk(500, 800, "na één jaar is het bedrag");
    druk(500, 1200, "geworden: ", factor, " x ", bedrag);

    vraag(regel("Op een dag zet je ", bedrag, " op de bank."), regel("De rente is", r.p, "% per jaar. "),
          "Hoe groot is dit bedrag (ongeveer)", regel("geworden na", r.t, " jaar?"), leeg,
          "Kijk hiernaast voor de tip...");
    met_rekenmachine();

    goed(juist);
    fout(in_euros(r.gelijke_rente()), "Ben je er soms van uit gegaan dat er", "elk jaar even veel euro's bijkomen?");
    fout(in_euros(ander_jaar(r)), "Heb je soms een jaartje te",
         jaar_te_veel ? "veel rente gerekend?" : "weinig rente gerekend?");
    fout(in_euros(r.rekenfout()), "Heb je soms een rekenfoutje gemaakt?");

    std::string jaar_na_jaar(kaal(duizend(na_jaren(r.bedrag, r.p, 1))));
    for (int jaar = 2; jaar <= r.t; ++jaar) jaar_na_jaar += regel(",", duizend(na_jaren(r.bedrag, r.p, jaar)));
    uitleg(regel("Elk jaar wordt het bedrag ", factor, " keer zo groot."),
           regel("Het spaarbedrag wordt dus uiteindelijk ", factor, " tot de"), regel("macht", r.t, " keer zo groot."),
           "Na elk jaar staat er, afgerond op hele euro's:", jaar_na_jaar + ".",
           regel("Het bedrag is dus ongeveer ", juist, " geworden."));
}

} // namespace cijferwerf
