// Numbers: the place of a digit, places behind the comma, and what a mark on the number line is worth.
#include "forms/introduction/les.h"
#include "forms/introduction/schrijf.h"
#include "generators/gedeeld/kommagetal.h"
#include "generators/gedeeld/tekening_lijn.h"
#include "generators/gedeeld/telwoord.h"

namespace cijferwerf {

namespace {

// Digits in columns, each with a button that raises it and one that lowers it.
class cijfers_op_hun_plaats : public voorbeeld {
protected:
    struct plaats {
        std::string letter, naam;
    };

    // From left to right; the digits, of which there are as many, are those to begin with.
    // Behind the first there is room for a comma, where one is meant.
    cijfers_op_hun_plaats(const std::vector<plaats>& plaatsen, std::vector<int> begin, bool komma)
        : voorbeeld(zonder_iets_onder),
          plaatsen_(plaatsen),
          cijfers_(std::move(begin)),
          komma_(komma) {
        for (std::size_t i = 0; i < plaatsen_.size(); ++i) {
            const auto boven_of_onder = [&](int y) {
                const place at = op_blad({kolom(i).midden().x, y, 0, 0});
                return point{at.left - stap_zijde / 2, at.top};
            };
            stappen(boven_of_onder(40), boven_of_onder(1610), plaatsen_[i].naam, cijfers_[i], 0, 9);
        }
    }

    // All digits as one number.
    int samen() const {
        int number = 0;
        for (const int digit : cijfers_) number = number * 10 + digit;
        return number;
    }

    void teken_kolommen() {
        for (std::size_t i = 0; i < plaatsen_.size(); ++i) {
            const vlak at = kolom(i);
            teken_vak(blad, at, wit, donker);
            blad.filled_box(at.links, at.boven, at.breedte, 300, half);
            blad.box(at.links, at.boven, at.breedte, 300, donker);
            schrijf_midden(blad, {14, inkt}, {at.midden().x, at.boven + 150}, plaatsen_[i].letter);
            schrijf_midden(blad, {30, donker}, {at.midden().x, at.boven + 600}, kaal(cijfers_[i]));
        }
    }
    vlak kolom(std::size_t i) const {
        constexpr int breed = 900, gat = 300;
        const int aantal = static_cast<int>(plaatsen_.size()), nummer = static_cast<int>(i);
        const int links = (drawing::inner_width - breed * aantal - (komma_ ? gat : 0)) / 2;
        return {links + breed * nummer + (komma_ && nummer > 0 ? gat : 0), 640, breed, 900};
    }
    // An arrow at a number between two others, with what is written at both ends.
    void teken_plek(int waarde, int tot, std::string_view eind) {
        constexpr int links = 420, rechts = 4960, y = 3860;
        blad.fore_colour = inkt;
        blad.text_size = 12;
        getallenlijn lijn(blad, links, rechts, y, 10);
        lijn.getal(0, "0");
        lijn.getal(10, eind);
        const int x = links + static_cast<int>((rechts - links) * static_cast<long long>(waarde) / tot);
        teken_pijl(blad, {x, y - 380}, {x, y - 40}, half);
    }

private:
    const std::vector<plaats> plaatsen_;
    std::vector<int> cijfers_;
    const bool komma_;
};

// A whole number: in digits, in words, and between 0 and 100.000.
class geheel_getal : public cijfers_op_hun_plaats {
public:
    geheel_getal()
        : cijfers_op_hun_plaats({{"TD", "tienduizendtallen"},
                                 {"D", "duizendtallen"},
                                 {"H", "honderdtallen"},
                                 {"T", "tientallen"},
                                 {"E", "eenheden"}},
                                {6, 3, 2, 6, 1}, false) {}

protected:
    std::string toon() override {
        teken_kolommen();
        const int getal = samen();
        schrijf_midden(blad, {26, donker}, {blad_midden, 2500}, kaal(duizend(getal)));
        for (int y = 2940; const std::string& groep : telwoord_in_groepen(getal)) {
            schrijf_midden(blad, {13, inkt}, {blad_midden, y}, groep);
            y += 290;
        }
        teken_plek(getal, 100'000, "100.000");
        return regel(kaal(duizend(getal)), ": ", telwoord(getal), ".");
    }
};

// A number with three digits behind the comma, and what each is worth.
class kommagetal_op_zijn_plaats : public cijfers_op_hun_plaats {
public:
    kommagetal_op_zijn_plaats()
        : cijfers_op_hun_plaats({{"E", "eenheden"}, {"t", "tienden"}, {"h", "honderdsten"}, {"d", "duizendsten"}},
                                {4, 3, 7, 5}, true) {}

protected:
    std::string toon() override {
        teken_kolommen();
        const vlak een = kolom(0);
        schrijf_midden(blad, {40, donker}, {een.rechts() + 150, een.boven + 600}, ",");
        const int getal = samen();
        const std::string kort(kaal(komma_kort(getal, 3)));
        schrijf_midden(blad, {26, donker}, {blad_midden, 2500}, kort);
        std::string som;
        for (int per = 1'000; per > 0; per /= 10)
            if (const int waard = getal / per % 10 * per; waard > 0)
                som += regel(som.empty() ? "" : " + ", kaal(komma_kort(waard, 3)));
        if (som != kort && !som.empty()) som = kort + " = " + som;
        schrijf_midden(blad, {15, inkt}, {blad_midden, 3050}, som);
        teken_plek(getal, 10'000, "10");
        return som.empty() ? "Het getal is 0." : regel("Het getal is ", som, ".");
    }
};

// Two numbers on a line, the parts between them, and an arrow.
class stukjes_tellen : public voorbeeld {
public:
    stukjes_tellen() {
        for (int i = 0; const stuk& each : stukken)
            keuze("lijn", bovenaan(i++), regel(getal(each.van), " tot ", getal(each.tot)),
                  [this, &each] { stuk_ = &each; });
        pijl_stappen_ = &stappen(midden_onder, "pijl", pijl_, 0, stuk_->delen);
    }

protected:
    std::string toon() override {
        const auto& [van, tot, delen] = *stuk_;
        pijl_stappen_->tot = delen;
        pijl_ = std::min(pijl_, delen);
        const int stukje = (tot - van) / delen;
        const std::string waarde = getal(van + pijl_ * stukje);

        blad.fore_colour = inkt;
        blad.text_size = 14;
        getallenlijn lijn(blad, 400, 4980, 1640, delen);
        lijn.getal(0, getal(van));
        lijn.getal(delen, getal(tot));
        blad.fore_colour = donker;
        blad.text_size = 18;
        lijn.pijl(pijl_, half, waarde);

        const std::string rijen[][2]{
            {"verschil", regel(getal(tot), " - ", getal(van), " = ", getal(tot - van))},
            {"één stukje", regel(getal(tot - van), " : ", kaal(delen), " = ", getal(stukje))},
            {"de pijl", regel(getal(van), " + ", kaal(pijl_), " x ", getal(stukje), " = ", waarde)},
        };
        for (int y = 2480; const auto& [naam, som] : rijen) {
            schrijf(blad, {15, donker}, {300, y}, naam);
            schrijf(blad, {18, inkt}, {1900, y - 30}, som);
            y += 560;
        }
        return regel("Eén stukje is ", getal(stukje), ". De pijl wijst naar ", waarde, ".");
    }

private:
    // In tenths, so that the arrow may point at 8,3.
    struct stuk {
        int van, tot, delen;
    };
    static constexpr stuk stukken[]{{7'300, 7'400, 5}, {0, 1'000, 4}, {80, 90, 10}};
    static std::string getal(int tienden) { return regel(kaal(komma_kort(tienden, 1))); }

    const stuk* stuk_ = &stukken[0];
    int pijl_ = 3;
    stapper* pijl_stappen_;
};

} // namespace

const lesreeks les_getallen{{
    {"De plaats telt mee",
     {"Elk cijfer heeft zijn eigen plaats. Die plaats zegt hoeveel het cijfer waard is.",
      "In 63.261 staan twee zessen. De eerste is 60.000 waard, de tweede 60."},
     {probeer, "Maak een cijfer hoger of lager. Hoe lees je het getal? Waar ligt het op de getallenlijn?"},
     nieuw<geheel_getal>},
    {"Achter de komma",
     {"Achter de komma komen eerst de tienden (t), dan de honderdsten (h) en dan de duizendsten (d).",
      "Elke plaats naar rechts is tien keer zo klein. Daarom is 0,5 meer dan 0,35."},
     {probeer, "Verander een cijfer en kijk hoe ver de pijl springt."},
     nieuw<kommagetal_op_zijn_plaats>},
    {"Naar welk getal?",
     {"Twee getallen op de lijn zijn genoeg om de rest te vinden.",
      "Bereken het verschil. Deel dat door het aantal stukjes. Dan weet je wat één stukje waard is.",
      "Tel de stukjes tot de pijl."},
     {probeer, "Kies een lijn en verschuif de pijl."},
     nieuw<stukjes_tellen>},
}};

} // namespace cijferwerf
