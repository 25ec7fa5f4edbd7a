// Measuring: the perimeter and the area of a rectangle, the stairs of units, the volume of a box of cubes.
#include "forms/introduction/les.h"
#include "forms/introduction/schrijf.h"
#include "generators/gedeeld/maten.h"

namespace cijferwerf {

namespace {

// A rectangle of squares of one cm²: around it, and in it.
class rechthoek : public voorbeeld {
public:
    rechthoek() {
        stappen(links_onder, "lengte", lengte_, 1, langst);
        stappen(rechts_onder, "breedte", breedte_, 1, breedst);
        for (int i = 0; i < langst * breedst; ++i) {
            const int lang = i % langst + 1, breed = i / langst + 1;
            cel("hokje", i + 1, hokje(i), regel(kaal(lang), " bij", breed), [this, lang, breed] {
                lengte_ = lang;
                breedte_ = breed;
            });
        }
    }

protected:
    std::string toon() override {
        for (int i = 0; i < langst * breedst; ++i) {
            const vlak op = hokje(i);
            const bool erin = i % langst < lengte_ && i / langst < breedte_;
            teken_vak(blad, op, erin ? half : wit, erin ? wit : lichtgrijs, 1);
        }
        const vlak begin = hokje(0), eind = hokje((breedte_ - 1) * langst + lengte_ - 1);
        blad.line_width = 4;
        blad.box(begin.links, begin.boven, eind.rechts() - begin.links, eind.onder() - begin.boven, donker);
        blad.line_width = 1;
        schrijf_midden(blad, {13, inkt}, {(begin.links + eind.rechts()) / 2, 150}, cm(lengte_));
        schrijf_rechts(blad, {13, inkt}, {begin.links - 110, (begin.boven + eind.onder()) / 2 - halve_regel(13)},
                       cm(breedte_));

        const int omtrek = 2 * (lengte_ + breedte_), oppervlakte = lengte_ * breedte_;
        const std::string om = regel(kaal(lengte_), " +", breedte_, " +", lengte_, " +", breedte_);
        const std::string maal = regel(kaal(lengte_), " x", breedte_);
        vak(60, "omtrek", om, cm(omtrek));
        vak(2770, "oppervlakte", maal, cm(oppervlakte) + "²");
        return regel("Een rechthoek van ", cm(lengte_), " bij ", cm(breedte_), ". Omtrek: ", om, " = ", cm(omtrek),
                     ". Oppervlakte: ", maal, " = ", cm(oppervlakte), "².");
    }

private:
    static constexpr int langst = 12, breedst = 7;

    static constexpr vlak hokje(int i) {
        constexpr int zijde = 250;
        return {1200 + i % langst * zijde, 320 + i / langst * zijde, zijde, zijde};
    }
    static std::string cm(int lengte) { return regel(kaal(lengte), " cm"); }
    void vak(int links, std::string_view naam, std::string_view som, std::string_view uitkomst) {
        teken_vak(blad, {links, 2260, 2550, 1900}, wit, donker);
        const int midden = links + 1275;
        schrijf_midden(blad, {15, donker}, {midden, 2530}, naam);
        schrijf_midden(blad, {15, inkt}, {midden, 3040}, som);
        schrijf_midden(blad, {28, donker}, {midden, 3690}, uitkomst);
    }

    int lengte_ = 6, breedte_ = 4;
};

// A measure that goes up and down the stairs of its units.
class matentrap : public voorbeeld {
public:
    matentrap() {
        for (int i = 0; i < 4; ++i)
            keuze("soort", {180 + i * 1380, 4740, i < 3 ? 1320 : 1680, 570}, std::string(soorten[i].naam),
                  [this, i] { soort_ = i; });
        for (int i = 0; i < treden; ++i)
            cel("trede", i + 1, trede(i), regel("trede ", kaal(i + 1), " van boven"), [this, i] { op_ = i; });
    }

protected:
    std::string toon() override {
        const auto& [naam, ladder, getal] = soorten[soort_];
        for (int i = 0; i < treden; ++i) {
            const vlak waar = trede(i);
            teken_vak(blad, waar, i == op_ ? donker : half, donker);
            schrijf_midden(blad, {15, i == op_ ? wit : inkt}, {waar.midden().x, waar.boven + 230},
                           ladder[static_cast<std::size_t>(i)].teken);
        }
        const point voet{trede(op_).midden().x, trede(op_).boven};
        blad.filled_circle(voet.x, voet.y - 150, 140, rood);
        blad.circle(voet.x, voet.y - 150, 140, inkt);

        const eenheid &van = ladder[begin], &naar = ladder[static_cast<std::size_t>(op_)];
        const int macht = macht_tussen(van, naar), per_trede = macht_tussen(ladder[0], ladder[1]);
        const std::string maat = regel(getaltekst(getal), " ", van.teken);
        const std::string nieuw = regel(getaltekst(omgerekend(getal, van, naar)), " ", naar.teken);
        const int stappen = std::abs(op_ - static_cast<int>(begin));
        const std::string weg =
            regel(kaal(stappen), stappen == 1 ? " trede " : " treden ",
                  macht > 0 ? "omlaag, dus x" : "omhoog, dus :", groepen(tien_tot_de(std::abs(macht))));
        schrijf_rechts(blad, {26, donker}, {5320, 460}, nieuw);
        schrijf_rechts(blad, {13, inkt}, {5320, 1440}, regel("elke trede omlaag: x", tien_tot_de(per_trede)));
        if (stappen == 0) return regel(naam, ": ", maat, ".");
        schrijf_rechts(blad, {22, inkt}, {5320, 20}, maat + " =");
        schrijf_rechts(blad, {13, inkt}, {5320, 1070}, weg);
        return regel(naam, ": ", maat, " = ", nieuw, ". ", weg, ".");
    }

private:
    static constexpr int treden = 7;
    static constexpr std::size_t begin = 3; // m, g, liter or m²
    struct soort {
        std::string_view naam;
        const std::array<eenheid, treden>& ladder;
        kommagetal getal;
    };
    static constexpr soort soorten[]{{"lengte", lengtematen, {25, 1}},
                                     {"gewicht", gewichtsmaten, {750, 0}},
                                     {"inhoud", inhoudsmaten, {15, 1}},
                                     {"oppervlakte", oppervlaktematen, {4, 0}}};

    static constexpr vlak trede(int i) {
        constexpr int breed = 750, boven = 940, hoog = 390, onder = 4200;
        return {65 + i * breed, boven + i * hoog, breed, onder - boven - i * hoog};
    }

    int soort_ = 0, op_ = 5;
};

// A box of cubes, seen from its front, top and right.
class blokkendoos : public voorbeeld {
public:
    blokkendoos() {
        stappen({180, 4740, 1860, 570}, "lengte", lengte_, 1, 6);
        stappen({2160, 4740, 1860, 570}, "breedte", breedte_, 1, 4);
        stappen({4140, 4740, 1860, 570}, "hoogte", hoogte_, 1, 5);
    }

protected:
    std::string toon() override {
        constexpr int zijde = 420;
        const point schuin{210, -150}; // one cube further back
        const point voor{(drawing::inner_width - lengte_ * zijde - breedte_ * schuin.x) / 2,
                         (2950 - hoogte_ * zijde - breedte_ * schuin.y) / 2};
        const auto hoek = [&](int rechts, int achter, int omlaag) {
            return point{voor.x + rechts * zijde + achter * schuin.x, voor.y + omlaag * zijde + achter * schuin.y};
        };
        const auto lijn = [&](point van, point naar) { blad.line(van.x, van.y, naar.x, naar.y, donker); };
        const int l = lengte_, b = breedte_, h = hoogte_;
        blad.polygon({hoek(0, 0, 0), hoek(l, 0, 0), hoek(l, 0, h), hoek(0, 0, h)}, half, true);
        blad.polygon({hoek(0, 0, 0), hoek(l, 0, 0), hoek(l, b, 0), hoek(0, b, 0)}, wit, true);
        blad.polygon({hoek(l, 0, 0), hoek(l, b, 0), hoek(l, b, h), hoek(l, 0, h)}, lichtgrijs, true);
        blad.line_width = 2;
        for (int i = 0; i <= l; ++i) lijn(hoek(i, 0, h), hoek(i, 0, 0)), lijn(hoek(i, 0, 0), hoek(i, b, 0));
        for (int i = 0; i <= h; ++i) lijn(hoek(0, 0, i), hoek(l, 0, i)), lijn(hoek(l, 0, i), hoek(l, b, i));
        for (int i = 1; i <= b; ++i) lijn(hoek(0, i, 0), hoek(l, i, 0)), lijn(hoek(l, i, 0), hoek(l, i, h));

        const int inhoud = l * b * h;
        const std::string som = regel(kaal(l), " x", b, " x", h, " =", inhoud, " dm³");
        const std::string liter = regel(kaal(inhoud), " dm³ =", inhoud, " liter");
        schrijf_midden(blad, {24, donker}, {blad_midden, 3230}, som);
        schrijf_midden(blad, {15, inkt}, {blad_midden, 3690}, liter);
        for (int x = 860; const std::string_view naam : {"lengte", "breedte", "hoogte"}) {
            schrijf_midden(blad, {13, donker}, {x, 4080}, naam);
            x += 1830;
        }
        return regel("Een doos van ", kaal(l), " bij", b, " bij", h, " dm. Inhoud: ", som, ". ", liter, ".");
    }

private:
    int lengte_ = 4, breedte_ = 3, hoogte_ = 2;
};

} // namespace

const lesreeks les_meten{{
    {"Omtrek en oppervlakte",
     {"De omtrek is de lengte van de rand. Tel alle zijden bij elkaar op.",
      "De oppervlakte zegt hoeveel hokjes erin passen.", "Bij een rechthoek is dat lengte x breedte.",
      "Een hokje hiernaast is 1 cm²."},
     {probeer, "Klik op een hokje, of druk op - en +. Wat groeit het snelst?"},
     nieuw<rechthoek>},
    {"De trap van de maten",
     {"Elke trede omlaag wordt de maat 10 keer zo klein. Het getal ervoor wordt 10 keer zo groot.",
      "Ga je omhoog? Dan deel je door 10.", "Bij oppervlakte reken je per trede met 100."},
     {probeer, "Klik op een trede. Kies daarna een andere soort maat."},
     nieuw<matentrap>},
    {"Hoeveel past erin?",
     {"De inhoud van een doos is wat erin past.", "Tel één laag blokjes: lengte x breedte. Neem dat keer de hoogte.",
      "Elk blokje is 1 dm³. Daar past precies 1 liter in."},
     {probeer, "Maak de doos groter en kleiner. Tel de blokjes."},
     nieuw<blokkendoos>},
}};

} // namespace cijferwerf
