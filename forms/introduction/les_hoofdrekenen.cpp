// Mental arithmetic: splitting at a handy number, jumping by way of a round number, the comma that moves.
#include "forms/introduction/les.h"
#include "forms/introduction/schrijf.h"
#include "generators/gedeeld/kommagetal.h"

namespace cijferwerf {

namespace {

// A product as a rectangle that is cut at a whole ten: below the number, or just above it.
class splitsen : public voorbeeld {
public:
    splitsen() {
        stappen({180, 4740, 1560, 570}, "keer", keer_, 2, 9);
        stappen({1830, 4740, 1740, 570}, "getal", getal_, 11, 99);
        verder_ = &knop("stap", {3690, 4740, 2310, 570}, theme_role::action, "", [this] { stap_ = (stap_ + 1) % 5; });
    }

protected:
    std::string toon() override {
        // There is nothing to split in a round number: the stepper goes on past it.
        if (getal_ % 10 == 0) getal_ += getal_ > vorig_ ? 1 : -1;
        vorig_ = getal_;
        const int rond = tiental(getal_), rest = std::abs(getal_ - rond);
        const bool eraf = rond > getal_;
        const std::string_view teken = eraf ? " -" : " +";
        verder_->caption = stap_ < 4 ? "volgende stap" : "opnieuw";

        const int breed = 4500 * getal_ / std::max(getal_, rond), deel = 4500 * rond / std::max(getal_, rond);
        constexpr int links = 640, boven = 940;
        const int hoog = 70 * keer_ + 260;
        schrijf(blad, {24, donker}, {60, 20}, regel(kaal(keer_), " x", getal_, " ="));
        schrijf_midden(blad, {16, inkt}, {340, boven + hoog / 2}, kaal(keer_));
        teken_vak(blad, {links, boven, breed, hoog}, half, donker, 4);
        if (stap_ == 0)
            schrijf_midden(blad, {16, inkt}, {links + breed / 2, boven - 210}, kaal(getal_));
        else {
            // What is cut off is white, or beyond the rectangle's end.
            const vlak stukje{links + std::min(breed, deel), boven, std::abs(deel - breed), hoog};
            teken_vak(blad, stukje, eraf ? wit : geel, donker);
            schrijf_midden(blad, {16, inkt}, {links + deel / 2, boven - 210}, kaal(rond));
            const int midden = std::max(stukje.midden().x, links + deel / 2 + 420);
            schrijf_midden(blad, {16, inkt},
                           {eraf ? stukje.midden().x : midden, eraf ? boven + hoog + 210 : boven - 210},
                           regel(teken, rest));
        }
        const std::string stappen[]{regel(kaal(getal_), " =", rond, teken, rest),
                                    regel(kaal(keer_), " x", rond, " =", keer_ * rond),
                                    regel(kaal(keer_), " x", rest, " =", keer_ * rest),
                                    regel(kaal(keer_ * rond), teken, keer_ * rest, " =", keer_ * getal_)};
        std::string zin = regel(kaal(keer_), " x", getal_, ".");
        for (int i = 0; i < 4; ++i)
            schrijf_midden(blad, {15, grijs}, {340, 2270 + i * 480 + halve_regel(19)}, regel(kaal(i + 1)));
        for (int i = 0; i < stap_; ++i) {
            schrijf(blad, {19, i == 3 ? donker : inkt}, {links, 2270 + i * 480}, stappen[i]);
            zin += regel(" Stap", i + 1, ": ", stappen[i], ".");
        }
        return zin;
    }

private:
    // A whole ten below, or the one above where that is nearer than 3.
    static constexpr int tiental(int getal) { return (getal % 10 >= 8 ? getal + 10 : getal) / 10 * 10; }

    int keer_ = 7, getal_ = 24, vorig_ = getal_, stap_ = 0;
    button* verder_;
};

// Adding in two jumps, the first of which ends on a round number: what is added takes it further than that.
class sprongen : public voorbeeld {
public:
    sprongen() {
        stappen(links_onder, "begin", begin_, 21, 89);
        stappen(rechts_onder, "erbij", erbij_, 11, 49);
    }

protected:
    std::string toon() override {
        const int rond = begin_ / 10 * 10 + 10, einde = begin_ + erbij_;
        constexpr int y = 1250, links = 400, rechts = 4980;
        const auto x = [&](int getal) { return links + (rechts - links) * (getal - begin_ + 3) / (erbij_ + 6); };
        const zelfde_stand bewaard(blad, 3);
        blad.line(150, y, 5230, y, inkt);
        teken_sprong(blad, x(begin_), x(rond), y, 500, {15, donker}, regel("+ ", kaal(rond - begin_)));
        teken_sprong(blad, x(rond), x(einde), y, 500, {15, rood}, regel("+ ", kaal(einde - rond)));
        for (const int getal : {begin_, einde}) {
            blad.line(x(getal), y - 80, x(getal), y + 80, inkt);
            const int naast = x(rond) - text_width(kaal(getal), 15) / 2 - 40; // of what hangs down from the whole ten
            schrijf_midden(blad, {15, inkt}, {getal == begin_ ? std::min(x(getal), naast) : x(getal), y + 260},
                           kaal(getal));
        }
        // Lower, as it may lie close to either.
        blad.line(x(rond), y - 80, x(rond), y + 420, donker);
        schrijf_midden(blad, {15, donker}, {x(rond), y + 600}, kaal(rond));
        const std::string sommen[]{regel(kaal(begin_), " +", rond - begin_, " =", rond),
                                   regel(kaal(rond), " +", einde - rond, " =", einde),
                                   regel("dus", begin_, " +", erbij_, " =", einde)};
        for (int i = 0; i < 3; ++i) schrijf(blad, {22, i == 2 ? donker : inkt}, {640, 2300 + i * 620}, sommen[i]);
        return sommen[0] + ", " + sommen[1] + ", " + sommen[2] + ".";
    }

private:
    int begin_ = 58, erbij_ = 27;
};

// A number whose comma moves when it is multiplied or divided by ten.
class komma_schuift : public voorbeeld {
public:
    komma_schuift() {
        delen_ = &knop("komma", links_onder, theme_role::action, ": 10", [this] { --stappen_; });
        keer_ = &knop("komma", rechts_onder, theme_role::action, "x 10", [this] { ++stappen_; });
        delen_->index = 1;
        keer_->index = 2;
        delen_->accessible_name = "delen door 10";
        keer_->accessible_name = "keer 10";
    }

protected:
    std::string toon() override {
        delen_->enabled = stappen_ > -3;
        keer_->enabled = stappen_ < 3;
        // The digits stay where they are, zeros around them.
        constexpr std::string_view cijfers = "0033200";
        constexpr int links = 170, breed = 720, boven = 850, hoog = 1000, eerste = 2, na_laatste = 5, begin_komma = 4;
        const int komma = begin_komma + stappen_;
        const auto x = [](int plaats) { return links + plaats * breed; };
        const auto cijfervak = [&](int i, kleur vulling, kleur rand) {
            teken_vak(blad, {x(i), boven, breed, hoog}, vulling, rand);
        };
        for (int i = 0; i < static_cast<int>(cijfers.size()); ++i) cijfervak(i, licht, lichtgrijs);
        for (int i = std::min(eerste, komma - 1); i < std::max(na_laatste, komma); ++i) {
            cijfervak(i, wit, donker);
            schrijf_midden(blad, {32, i >= eerste && i < na_laatste ? donker : grijs},
                           {x(i) + breed / 2, boven + hoog / 2}, cijfers.substr(static_cast<std::size_t>(i), 1));
        }
        for (int i = begin_komma; i != komma; i += stappen_ > 0 ? 1 : -1)
            teken_sprong(blad, x(i), x(i + (stappen_ > 0 ? 1 : -1)), boven - 40, 300, {12, donker},
                         stappen_ > 0 ? "x 10" : ": 10");
        blad.filled_circle(x(komma), boven + hoog - 130, 75, rood);
        blad.polygon({{x(komma) + 75, boven + hoog - 130},
                      {x(komma) - 60, boven + hoog + 130},
                      {x(komma) - 20, boven + hoog - 130}},
                     rood, true);

        const kommagetal nu = getal.verschoven(stappen_);
        const int plaatsen = std::abs(stappen_);
        const std::string begin = getaltekst(getal), uitkomst = getaltekst(nu);
        const std::string som =
            plaatsen == 0 ? begin
                          : regel(begin, stappen_ > 0 ? " x" : " :", groepen(tien_tot_de(plaatsen)), " = ", uitkomst);
        const std::string weg = plaatsen == 0
                                    ? "Druk op : 10 of op x 10."
                                    : regel("De komma schuift", plaatsen, plaatsen == 1 ? " plaats" : " plaatsen",
                                            " naar ", stappen_ > 0 ? "rechts." : "links.");
        schrijf_midden(blad, {28, donker}, {blad_midden, 2700}, som);
        schrijf_midden(blad, {15, inkt}, {blad_midden, 3500}, weg);
        return som + ". " + weg;
    }

private:
    static constexpr kommagetal getal{332, 1};

    int stappen_ = 0;
    button *delen_, *keer_;
};

} // namespace

const lesreeks les_hoofdrekenen{{
    {"Handig splitsen",
     {"Is een som te moeilijk? Splits dan één getal.", "24 is 20 + 4. En 7 x 20 is makkelijk.",
      "Ligt een rond getal vlakbij? Gebruik dat dan. 79 is 80 - 1. Haal er daarna af wat te veel is."},
     {probeer, "Druk op 'volgende stap'. Probeer ook 7 x 29."},
     nieuw<splitsen>},
    {"In twee sprongen",
     {"Met ronde getallen reken je makkelijk.", "Spring daarom eerst naar het volgende tiental.",
      "Doe daarna de rest erbij. Twee kleine sprongen zijn samen de hele sprong."},
     {probeer, "Kies een ander begin en zeg eerst zelf de twee sprongen."},
     nieuw<sprongen>},
    {"De komma schuift",
     {"Vermenigvuldig je met 10? Dan schuift de komma 1 plaats naar rechts.",
      "Deel je door 10? Dan schuift de komma 1 plaats naar links.",
      "Bij 100 zijn het 2 plaatsen. Lege plaatsen vul je met een 0."},
     {probeer, "Druk een paar keer op x 10 en op : 10."},
     nieuw<komma_schuift>},
}};

} // namespace cijferwerf
