// Percentages: a hundred-square to fill, one per cent first, and the percentages worth knowing by heart.
#include "forms/introduction/les.h"
#include "forms/introduction/schrijf.h"

namespace cijferwerf {

namespace {

// A hundred squares of which some are filled, read in three ways.
class honderdveld : public voorbeeld {
public:
    honderdveld() {
        stappen(links_onder, "hokjes", aantal_, 0, 100);
        stappen(rechts_onder, "per tien", aantal_, 0, 100, 10);
        for (int n = 1; n <= 100; ++n)
            cel("hokje", n, hokje(n), regel(kaal(n), " procent"), [this, n] { aantal_ = aantal_ == n ? n - 1 : n; });
    }

protected:
    std::string toon() override {
        for (int n = 1; n <= 100; ++n) teken_vak(blad, hokje(n), n <= aantal_ ? half : wit, donker, 1);
        const breuk deel{aantal_, 100};
        const std::string procent = regel(kaal(aantal_), " %");
        const std::string komma = regel(kaal(komma_kort(aantal_, 2)));
        constexpr int x = 3720;
        schrijf(blad, {28, donker}, {x, 150}, procent);
        schrijf(blad, {13, inkt}, {x, 790}, "dat is");
        const int end = schrijf_breuk(blad, {20, donker}, {x, 1590}, deel);
        if (deel.vereenvoudigbaar()) {
            schrijf_naast(blad, {18, inkt}, {end + 120, 1590}, "=");
            schrijf_breuk(blad, {18, inkt}, {end + 390, 1590}, deel.vereenvoudigd());
        }
        schrijf(blad, {13, inkt}, {x, 2290}, "en dat is");
        schrijf(blad, {28, donker}, {x, 2620}, komma);
        return regel(kaal(aantal_), " van de 100 hokjes: ", procent, ", de breuk ", gemengd(deel.vereenvoudigd()),
                     ", het kommagetal ", komma, ".");
    }

private:
    static vlak hokje(int n) {
        constexpr int zijde = 350;
        return {60 + (n - 1) % 10 * zijde, 280 + (n - 1) / 10 * zijde, zijde, zijde};
    }

    int aantal_ = 25;
};

// One per cent of an amount, and so many times that.
class een_procent_eerst : public voorbeeld {
public:
    een_procent_eerst() {
        stappen(links_onder, "bedrag", euros_, 100, 900, 100);
        stappen(rechts_onder, "procent", procent_, 1, 100);
    }

protected:
    std::string toon() override {
        const int een = euros_ / 100;
        const std::string geheel = bedrag(euros_ * 100), stukje = bedrag(een * 100);
        const std::string deel = bedrag(een * 100 * procent_);
        // The amount as a bar of a hundred parts.
        constexpr int links = 190, breed = 5000, boven = 760, hoog = 620;
        schrijf(blad, {13, inkt}, {links, boven - 400}, "100 % is " + geheel);
        blad.filled_box(links, boven, breed, hoog, wit);
        blad.filled_box(links, boven, breed * procent_ / 100, hoog, half);
        for (int i = 1; i < 100; ++i)
            blad.line(links + i * breed / 100, i % 10 == 0 ? boven : boven + hoog * 3 / 4, links + i * breed / 100,
                      boven + hoog, donker);
        blad.line_width = 3;
        blad.box(links, boven, breed, hoog, donker);
        blad.line_width = 1;
        const std::string naam = regel(kaal(procent_), " %");
        const int midden = links + breed * procent_ / 200;
        schrijf(blad, {13, donker}, {std::max(links, midden - text_width(naam, 13) / 2), boven + hoog + 60}, naam);

        const std::string rekenen[2][2]{{"1 %", regel(geheel, " : 100 = ", stukje)},
                                        {naam, regel(kaal(procent_), " x ", stukje, " = ", deel)}};
        for (int i = 0; i < 2; ++i) {
            const int y = 2330 + i * 900;
            schrijf(blad, {21, donker}, {links, y}, rekenen[i][0]);
            schrijf(blad, {21, inkt}, {links + 1400, y}, rekenen[i][1]);
        }
        return regel("1 % van ", geheel, " is ", stukje, ". ", naam, " is ", deel, ".");
    }

private:
    int euros_ = 300, procent_ = 7;
};

// Bars under one another: half, a quarter, a fifth, a tenth.
class handige_procenten : public voorbeeld {
public:
    handige_procenten() : voorbeeld(zonder_iets_onder) {}

protected:
    std::string toon() override {
        std::string zin;
        for (int y = 170; const int n : {2, 4, 5, 10}) {
            constexpr int hoog = 720;
            const int midden = y + hoog / 2;
            const std::string procent = regel(kaal(100 / n), " %");
            teken_strook(blad, {130, y, 3100, hoog}, {1, n});
            schrijf_naast(blad, {24, donker}, {3370, midden}, procent);
            schrijf_naast(blad, {18, inkt}, {4480, midden}, "=");
            schrijf_breuk(blad, {20, inkt}, {4830, midden}, {1, n});
            zin += regel(zin.empty() ? "" : " ", procent, " is 1/", kaal(n), ".");
            y += 1070;
        }
        return zin;
    }
};

} // namespace

const lesreeks les_procenten{{
    {"Wat is een procent?",
     {"Procent betekent: van de honderd.", "Dit veld heeft 100 hokjes. Eén hokje is 1 procent. Je schrijft: 1 %.",
      "Zo is 25 % hetzelfde als 25 van de 100. Dat is een kwart."},
     {probeer, "Klik op een hokje, of druk op - en +. Wat staat er rechts?"},
     nieuw<honderdveld>},
    {"Neem eerst 1 %",
     {"Hoeveel is 7 % van € 300,-?", "Neem eerst 1 %. Deel daarvoor door 100.",
      "Vermenigvuldig daarna met het aantal procenten."},
     {probeer, "Verander het bedrag en het aantal procenten. Wat blijft hetzelfde in de som?"},
     nieuw<een_procent_eerst>},
    {"Handige procenten",
     {"Sommige procenten ken je al als breuk.",
      "50 % is de helft, 25 % is een kwart, 20 % een vijfde en 10 % een tiende.",
      "Dan hoef je niet eerst 1 % te nemen."},
     {onthoud, "10 % nemen is delen door 10. 1 % nemen is delen door 100."},
     nieuw<handige_procenten>},
}};

} // namespace cijferwerf
