// An example on an introduction screen: a drawing with words and numbers, and the controls that change it at once.
// Which lesson it goes with, and where its panel stands, is the screen's.
#pragma once

#include "generators/gedeeld/tekening.h"
#include "runtime/form.h"

#include <deque>
#include <optional>

namespace cijferwerf {

// What the palette's indices mean in the drawing of an example: the colours of its subject. Blue, green, red, yellow
// and the greys are toned down to go with them, and black is ink; the others are what they are everywhere.
inline constexpr kleur inkt = zwart, donker = donkerblauw, half = paars, licht = lichtcyaan;
const kleurtabel& voorbeeldkleuren(subject about);

class voorbeeld {
public:
    // Of the panel, in twips. All places here are counted from its top-left corner.
    static constexpr int paneel_breedte = 6180, paneel_hoogte = 5430;

    voorbeeld(const voorbeeld&) = delete;
    voorbeeld& operator=(const voorbeeld&) = delete;
    virtual ~voorbeeld() = default;

    // In the order in which they are painted and reached; those with the role `cell` last of all.
    const std::vector<control*>& controls() const { return controls_; }
    const drawing& getekend() const { return blad; }
    // Draws and words it all anew. Every control's click ends with this.
    void ververs();
    void kleur_naar(subject about);
    // What it shows now, in a sentence for who cannot see it.
    const std::string& zin() const { return zin_; }

protected:
    // With a drawing twice as high as an exercise's, whose top is here on the panel; or with none.
    explicit voorbeeld(std::optional<int> blad_boven = 90);
    static constexpr int zonder_iets_onder = 411; // the drawing is in the middle of the panel

    // Two buttons that lower and raise a value.
    struct stapper {
        std::string naam;
        int* waarde;
        int van, tot, stap;
        std::string (*vorm)(int) = nullptr; // how the value is written, where not as a whole number
        label* getal = nullptr;             // on which, where it is not drawn
        button *min = nullptr, *plus = nullptr;
    };
    static constexpr int stap_zijde = 570; // of a button

    // Puts the state into words, labels and the drawing, which is empty; returns the sentence. A stepper's `van` and
    // `tot` may be changed here.
    virtual std::string toon() = 0;

    // Where controls stand: in the row below the drawing, and in the row of three above it.
    static constexpr place links_onder{180, 4740, 2790, 570}, rechts_onder{3210, 4740, 2790, 570},
        midden_onder{1590, 4740, 3000, 570};
    static constexpr place bovenaan(int i) { return {180 + 1980 * i, 150, 1860, 480}; }

    // A line of words, or of a number.
    label& woorden(const std::string& naam, place waar, double punten, theme_role rol, const std::string& tekst = {});
    // With its name at the left and the value between the buttons. The name is only spoken where there is no room for
    // it.
    stapper& stappen(place waar, const std::string& naam, int& waarde, int van, int tot, int stap = 1,
                     std::string (*vorm)(int) = nullptr);
    // The buttons alone, where the value is drawn: the one that raises it here and the other there.
    void stappen(point omhoog, point omlaag, const std::string& naam, int& waarde, int van, int tot);
    // A button; its caption is spoken too unless another text is.
    button& knop(const std::string& naam, place waar, theme_role rol, const std::string& opschrift,
                 std::function<void()> click);
    // A part of the drawing that can be clicked; nothing of it is seen but the pointer's and the keyboard's ring.
    button& cel(const std::string& naam, int nummer, const vlak& deel, std::string gesproken,
                std::function<void()> click);
    // One of a few that exclude one another; the first that is made is chosen at first.
    option_button& keuze(const std::string& naam, place waar, const std::string& opschrift,
                         std::function<void()> click);
    // Where on the panel a part of the drawing is seen.
    place op_blad(const vlak& deel) const;

    picture_box blad;

private:
    void stapknop(stapper& van, point linksboven, button::sign teken);
    template<class Control>
    Control& neem_op(std::deque<Control>& soort, const std::string& naam, place waar, theme_role rol,
                     const std::string& opschrift, std::function<void()> click = {});
    void zet_neer(control& made, const std::string& naam, place waar, theme_role rol);

    std::deque<label> woorden_;
    std::deque<button> knoppen_;
    std::deque<option_button> keuzes_;
    std::deque<stapper> stappers_;
    std::vector<control*> controls_;
    std::string zin_;
};

// The last number of a table, for a stepper that goes through it.
template<class Rij, std::size_t Aantal>
constexpr int laatste(const Rij (&)[Aantal]) {
    return static_cast<int>(Aantal) - 1;
}

} // namespace cijferwerf
