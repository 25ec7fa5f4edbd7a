// Graphs: one table in three shapes, reading a value off the axes, and a whole in sectors.
#include "forms/introduction/les.h"
#include "forms/introduction/schrijf.h"
#include "generators/gedeeld/tekening_grafiek.h"
#include "generators/gedeeld/tekening_tabel.h"

namespace cijferwerf {

namespace {

// Text on a fill of an example.
constexpr kleur leesbaar_op(kleur vulling) { return vulling == donker ? wit : inkt; }

// A circle in sectors, each with its text.
void teken_cirkel(drawing& on, point midden, int straal, const std::vector<taartdeel>& delen) {
    constexpr double vanaf = 45;
    std::vector<taartdeel> zonder = delen;
    int geheel = 0;
    for (taartdeel& each : zonder) {
        each.tekst = {};
        geheel += each.deel;
    }
    teken_taart(on, midden, straal, zonder, vanaf);
    for (double hoek = vanaf; const taartdeel& each : delen) {
        const double sweep = 360.0 * each.deel / geheel;
        schrijf_midden(on, {14, leesbaar_op(each.vulling)}, op_cirkel(midden, straal * 0.72, hoek + sweep / 2),
                       each.tekst);
        hoek += sweep;
    }
}

// Ice creams sold on four days; half of them on Wednesday, a quarter on Tuesday.
struct dagverkoop {
    std::string_view dag, kort;
    int ijsjes;
    kleur vulling;
};
constexpr dagverkoop verkoop[]{
    {"maandag", "ma", 10, geel},
    {"dinsdag", "di", 20, half},
    {"woensdag", "wo", 40, donker},
    {"donderdag", "do", 10, lichtgrijs},
};

class tabel_in_beeld : public voorbeeld {
public:
    tabel_in_beeld() {
        const std::pair<const char*, soort> soorten[]{
            {"staafgrafiek", staaf}, {"lijngrafiek", lijn}, {"cirkelgrafiek", cirkel}};
        for (int i = 0; const auto& [naam, gekozen] : soorten)
            keuze("grafiek", bovenaan(i++), naam, [this, kies = gekozen] { soort_ = kies; });
    }

protected:
    std::string toon() override {
        teken_tabel();
        if (soort_ == cirkel) {
            std::vector<taartdeel> delen;
            for (const dagverkoop& each : verkoop)
                delen.push_back({each.ijsjes, each.vulling, regel(each.kort, each.ijsjes)});
            teken_cirkel(blad, {3770, 2330}, 1450, delen);
            return "Cirkelgrafiek: woensdag is de helft van de cirkel, dinsdag een kwart.";
        }
        blad.text_size = 13;
        assen as(blad, {2560, 1250, 2740, 2500}, {0, 40, per_dag}, {0, 50, 10});
        as.lijnen_op();
        as.getallen_links();
        as.naam_boven("ijsjes");
        std::vector<plakregel> namen;
        std::vector<point> waarden;
        for (int x = 0; const dagverkoop& each : verkoop) {
            namen.emplace_back(each.kort);
            waarden.push_back({x + per_dag / 2, each.ijsjes});
            if (soort_ == staaf) as.kolom(x + 2, x + per_dag - 2, each.ijsjes, half);
            x += per_dag;
        }
        as.namen_onder(namen);
        if (soort_ == lijn) as.lijn(waarden, donker);
        return soort_ == staaf ? "Staafgrafiek: de hoogste staaf is woensdag, met 40 ijsjes."
                               : "Lijngrafiek: de lijn stijgt tot woensdag, 40 ijsjes, en daalt daarna tot 10.";
    }

private:
    enum soort : std::uint8_t { staaf, lijn, cirkel };
    static constexpr int per_dag = 10; // along the axis

    void teken_tabel() {
        blad.text_size = 13;
        blad.fore_colour = donker;
        tabel rijen(blad, 40, 1230, 1850, 400, {{"dag", 110}, {"ijsjes", 1810, true}});
        blad.fore_colour = inkt;
        for (const dagverkoop& each : verkoop) rijen.rij(each.dag, each.ijsjes);
    }

    soort soort_ = staaf;
};

// Rain in six months; a month is picked and its value read off the axis.
class regen_aflezen : public voorbeeld {
public:
    regen_aflezen() {
        stappen(midden_onder, "maand", maand_, 1, 6, 1, [](int nummer) { return std::string(kort[nummer - 1]); });
        for (int i = 1; i <= 6; ++i)
            cel("kolom", i, {plot.links + (i - 1) * plot.breedte / 6, plot.boven, plot.breedte / 6, plot.hoogte},
                std::string(maanden[i - 1]), [this, i] { maand_ = i; });
    }

protected:
    std::string toon() override {
        blad.text_size = 13;
        blad.fore_colour = inkt;
        assen as(blad, plot, {0, 60, 10}, {0, 70, 10});
        as.lijnen_op();
        as.getallen_links();
        as.naam_boven("mm regen");
        std::vector<plakregel> namen;
        for (int i = 1; i <= 6; ++i) {
            namen.emplace_back(kort[i - 1]);
            as.kolom(i * 10 - 8, i * 10 - 2, regen[i - 1], i == maand_ ? donker : half);
        }
        as.namen_onder(namen);
        const int mm = regen[maand_ - 1];
        blad.line_width = 3;
        blad.line(plot.links, as.y(mm), as.x(maand_ * 10 - 8), as.y(mm), rood);
        blad.line_width = 1;
        std::string zin = regel("In ", maanden[maand_ - 1], " viel er ", kaal(mm), " mm regen.");
        schrijf_midden(blad, {16, donker}, {plot.midden().x, 300}, zin);
        return zin;
    }

private:
    static constexpr vlak plot{640, 1120, 4560, 2800};
    static constexpr std::string_view maanden[]{"januari", "februari", "maart", "april", "mei", "juni"};
    static constexpr std::string_view kort[]{"jan", "feb", "mrt", "apr", "mei", "jun"};
    static constexpr int regen[]{45, 60, 35, 50, 15, 30};

    int maand_ = 2;
};

// How so many pupils come to school: each part of the circle as a part of that number.
class cirkel_verdelen : public voorbeeld {
public:
    cirkel_verdelen() { stappen({1440, 4740, 3300, 570}, "leerlingen", leerlingen_, 8, 80, 8); }

protected:
    std::string toon() override {
        std::vector<taartdeel> delen;
        std::string zin;
        for (int y = 850; const auto& [naam, noemer, vulling] : vervoer) {
            const int aantal = leerlingen_ / noemer;
            delen.push_back({aantal, vulling, regel(kaal(aantal))});
            teken_vak(blad, {2940, y - 130, 260, 260}, vulling, donker);
            schrijf_naast(blad, {15, inkt}, {3290, y}, naam);
            const std::string som = regel("1/", kaal(noemer), " van ", kaal(leerlingen_), " = ", kaal(aantal));
            schrijf_naast(blad, {15, donker}, {3290, y + 330}, som);
            zin += regel(zin.empty() ? "" : ", ", naam, " ", som);
            y += 820;
        }
        teken_cirkel(blad, {1440, 2330}, 1340, delen);
        return zin + ".";
    }

private:
    struct deel {
        std::string_view naam;
        int noemer;
        kleur vulling;
    };
    static constexpr deel vervoer[]{
        {"bus", 8, geel}, {"lopen", 4, half}, {"fiets", 2, donker}, {"auto", 8, lichtgrijs}};

    int leerlingen_ = 40;
};

} // namespace

const lesreeks les_grafieken{{
    {"Getallen in beeld",
     {"In een grafiek zie je in één oogopslag wat er in een tabel staat.",
      "Staven vergelijk je op hoogte. Een lijn laat zien hoe iets verandert. Een cirkel laat zien hoe een geheel "
      "verdeeld is."},
     {probeer, "Kies een grafiek. De tabel blijft dezelfde."},
     nieuw<tabel_in_beeld>},
    {"Lees eerst de assen",
     {"Kijk eerst wat er bij de assen staat. Hier: maanden en mm regen.",
      "Kijk dan hoeveel elk lijntje meer is. Hier is dat 10 mm.", "Ga van de kolom recht naar de as."},
     {probeer, "Kies een maand, of klik op een kolom."},
     nieuw<regen_aflezen>},
    {"De hele cirkel",
     {"Een cirkelgrafiek heet ook sectordiagram. De hele cirkel is iedereen samen.",
      "Een halve cirkel is de helft van alle leerlingen. Een kwart cirkel is een kwart. Zo reken je elk deel uit."},
     {probeer, "Verander het aantal leerlingen. Wat blijft gelijk?"},
     nieuw<cirkel_verdelen>},
}};

} // namespace cijferwerf
