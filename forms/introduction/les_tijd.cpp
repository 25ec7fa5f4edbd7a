// Time: a clock to set and how it is said, how long something lasts, and the units of time.
#include "forms/introduction/les.h"
#include "forms/introduction/schrijf.h"
#include "generators/gedeeld/klokzin.h"
#include "generators/gedeeld/tekening_meter.h"

namespace cijferwerf {

namespace {

// A dial, the same time in digits, and how it is said.
class klok : public voorbeeld {
public:
    klok() {
        stappen(links_onder, "uur", uur_, -1, 24);
        stappen(rechts_onder, "minuut", minuut_, -5, 60, 5);
        for (int n = 1; n <= 12; ++n) {
            constexpr int zijde = 340;
            const point op = op_cirkel(midden, straal * 0.72, 90 - 30 * n);
            cel("wijzer", n, {op.x - zijde / 2, op.y - zijde / 2, zijde, zijde}, regel("grote wijzer op ", kaal(n)),
                [this, n] { minuut_ = n % 12 * 5; });
        }
    }

protected:
    std::string toon() override {
        // Past its end the one goes on with the next hour, the other with the next day.
        const kloktijd tijd = om(uur_, minuut_);
        uur_ = tijd.uur();
        minuut_ = tijd.minuut();
        const std::string zin = klokzin(tijd), cijfers = tijd.cijfers();
        teken_klok(blad, midden, straal, tijd.op_wijzerplaat().minuten);
        teken_vak(blad, {3620, 560, 1620, 800}, inkt, donker, 3);
        schrijf_midden(blad, {30, wit}, {4430, 960}, cijfers);
        schrijf_midden(blad, {16, inkt}, {4430, 1700}, tijd.dagdeel());
        schrijf_midden(blad, {26, donker}, {blad_midden, 3830}, zin);
        return regel("De klok staat op ", zin, ", ", tijd.dagdeel(), ". Digitaal is dat ", cijfers, ".");
    }

private:
    static constexpr point midden{1800, 1880};
    static constexpr int straal = 1320;

    int uur_ = 15, minuut_ = 25;
};

std::string duur(int minuten) {
    const int uren = minuten / 60, rest = minuten % 60;
    if (uren == 0) return regel(kaal(rest), " min");
    return rest == 0 ? regel(kaal(uren), " uur") : regel(kaal(uren), " uur en ", rest, " min");
}

// From one time to another by way of the whole hours between them.
class tijdbalk : public voorbeeld {
public:
    tijdbalk() {
        const auto cijfers = [](int minuten) -> std::string { return kloktijd{minuten}.cijfers(); };
        begin_stap_ = &stappen(links_onder, "begin", begin_, vroegst.minuten, 0, 5, cijfers);
        eind_stap_ = &stappen(rechts_onder, "einde", eind_, 0, laatst.minuten, 5, cijfers);
    }

protected:
    std::string toon() override {
        begin_stap_->tot = eind_ - 5;
        eind_stap_->van = begin_ + 5;
        const kloktijd begin{begin_}, eind{eind_};
        const kloktijd eerste_uur = om((begin_ + 59) / 60), laatste_uur = om(eind_ / 60);
        // Within one hour there is no whole hour to stop at.
        std::vector<kloktijd> punten{begin};
        for (const kloktijd uur : {eerste_uur, laatste_uur})
            if (uur > punten.back() && uur < eind) punten.push_back(uur);
        punten.push_back(eind);

        constexpr int boven = 500, hoog = 700;
        for (int uur = vroegst.uur(); uur <= laatst.uur(); ++uur) {
            blad.line(x(om(uur)), boven - 120, x(om(uur)), boven + hoog + 120, inkt);
            schrijf_midden(blad, {12, inkt}, {x(om(uur)), boven + hoog + 290}, om(uur).cijfers());
        }
        teken_vak(blad, {x(vroegst), boven, x(laatst) - x(vroegst), hoog}, wit, inkt);
        std::string zin = regel("Van ", begin.tekst(), " tot ", eind.tekst(), ":");
        for (std::size_t i = 1; i < punten.size(); ++i) {
            const kloktijd van = punten[i - 1], naar = punten[i];
            const bool hele_uren = van.minuut() == 0 && naar.minuut() == 0;
            teken_vak(blad, {x(van), boven, x(naar) - x(van), hoog}, hele_uren ? half : geel, donker);
            const int y = 1640 + static_cast<int>(i) * 480;
            schrijf(blad, {17, inkt}, {60, y}, regel(van.cijfers(), " - ", naar.cijfers()));
            schrijf_rechts(blad, {17, inkt}, {5320, y}, duur(naar - van));
            zin += regel(" ", van.cijfers(), " tot ", naar.cijfers(), " is ", duur(naar - van), ",");
        }
        const int streep = 1660 + static_cast<int>(punten.size()) * 480;
        blad.line_width = 2;
        blad.line(60, streep - 40, 5320, streep - 40, donker);
        schrijf(blad, {20, donker}, {60, streep + 20}, "samen");
        schrijf_rechts(blad, {20, donker}, {5320, streep + 20}, duur(eind - begin));
        return zin + regel(" samen ", duur(eind - begin), ".");
    }

private:
    static constexpr kloktijd vroegst = om(7), laatst = om(12);
    static int x(kloktijd tijd) { return 300 + (tijd - vroegst) * 4'800 / (laatst - vroegst); }

    int begin_ = om(7, 25).minuten, eind_ = om(10, 20).minuten;
    stapper *begin_stap_, *eind_stap_;
};

// A number of units of time, each divided into smaller ones.
class tijdmaten : public voorbeeld {
public:
    tijdmaten() {
        stappen(links_onder, "aantal", aantal_, 1, 5);
        stappen(rechts_onder, "maat", maat_, 0, laatste(maten), 1,
                [](int maat) { return std::string(maten[maat].een); });
    }

protected:
    std::string toon() override {
        const tijdmaat& maat = maten[maat_];
        for (int i = 0; i < aantal_; ++i) {
            constexpr int links = 60, breed = 5250, hoog = 400;
            const int y = 120 + i * 550;
            teken_vak(blad, {links, y, breed, hoog}, i % 2 == 0 ? half : wit, donker);
            for (int k = 1; k < maat.factor; ++k)
                blad.line(links + k * breed / maat.factor, y, links + k * breed / maat.factor, y + hoog, donker);
        }
        const std::string een = regel("Eén ", maat.een, " heeft ", maat.factor, " ", maat.klein, ".");
        const std::string meer = regel(kaal(aantal_), " ", aantal_ == 1 ? maat.een : maat.meer, ": ", aantal_, " x ",
                                       maat.factor, " = ", aantal_ * maat.factor, " ", maat.klein);
        schrijf(blad, {17, inkt}, {60, 3000}, een);
        schrijf(blad, {17, donker}, {60, 3560}, meer);
        return een + " " + meer + ".";
    }

private:
    struct tijdmaat {
        std::string_view een, meer, klein;
        int factor;
    };
    static constexpr tijdmaat maten[]{{"jaar", "jaar", "maanden", 12},
                                      {"week", "weken", "dagen", 7},
                                      {"dag", "dagen", "uur", 24},
                                      {"uur", "uur", "minuten", 60},
                                      {"minuut", "minuten", "seconden", 60}};

    int aantal_ = 3, maat_ = 1;
};

} // namespace

const lesreeks les_tijd{{
    {"Hoe laat is het?",
     {"De kleine wijzer wijst het uur aan, de grote de minuten.",
      "Rond het halve uur tel je vanaf half. Half vier is een half uur vóór vier uur.",
      "Een digitale klok telt na 12 door: 13 uur, 14 uur."},
     {probeer, "Verander het uur en de minuten, of klik op de klok."},
     nieuw<klok>},
    {"Hoelang duurt het?",
     {"Een uur heeft 60 minuten, niet 100.",
      "Maak eerst het uur vol. Tel dan de hele uren. Tel daarna de minuten die over zijn.",
      "Heb je samen 60 minuten of meer? Dan komt er een uur bij."},
     {probeer, "Kies een ander begin en een ander einde."},
     nieuw<tijdbalk>},
    {"Van groot naar klein",
     {"Een jaar heeft 12 maanden. Een week heeft 7 dagen.",
      "Een dag heeft 24 uur, een uur heeft 60 minuten en een minuut heeft 60 seconden.",
      "Naar een kleinere maat? Dan vermenigvuldig je."},
     {probeer, "Kies een maat en een aantal."},
     nieuw<tijdmaten>},
}};

} // namespace cijferwerf
