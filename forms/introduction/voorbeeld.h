// An example on an introduction screen: a drawing with words and numbers, and the controls that change it at once.
// Which lesson it goes with, and where its panel stands, is the screen's.
#pragma once

#include "generators/gedeeld/tekening.h"
#include "runtime/form.h"

#include <deque>

namespace cijferwerf {

// What the palette's indices mean in the drawing of an example: the colours of its subject. Blue, green, red, yellow
// and the greys are toned down to go with them, and black is ink; the others are what they are everywhere.
inline constexpr kleur inkt = zwart, donker = donkerblauw, half = paars, licht = lichtcyaan;
const kleurtabel& voorbeeldkleuren(subject about);

class voorbeeld {
public:
    // Of the panel, in twips. All places here are counted from its top-left corner.
    static constexpr int paneel_breedte = 6180, paneel_hoogte = 5430;

    voorbeeld() = default;
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
    // Two buttons that lower and raise a value, with its name at the left and the value between them.
    struct stapper {
        int* waarde;
        int van, tot, stap;
        button *min, *plus;
        label* getal;
        std::string (*vorm)(int) = nullptr; // how the value is written, where not as a whole number
    };

    // Puts the state into words, labels and the drawing, which is empty; returns the sentence. A stepper's `van` and
    // `tot` may be changed here.
    virtual std::string toon() = 0;

    // Makes the drawing: 5380 wide and 2130 high for each strip, shown at this width with its left end and its top
    // here. Text that crosses the border of two strips may be seen broken: keep it clear of y = 2130.
    void maak_blad(int links, int boven, int getoonde_breedte, int stroken);
    // Where on the panel a part of the drawing is seen.
    place op_blad(const vlak& deel) const;

    // A line of words, or of a number.
    label& woorden(place waar, double punten, theme_role rol = theme_role::body, const std::string& tekst = {});
    // 570 high. The number is in bold, in the middle of what the name leaves free.
    stapper& stappen(place waar, int naam_breedte, const std::string& naam, int& waarde, int van, int tot,
                     int stap = 1);
    // A button; its caption is spoken too unless another text is.
    button& knop(const std::string& naam, place waar, theme_role rol, const std::string& opschrift,
                 std::function<void()> click);
    // A part of the drawing that can be clicked; nothing of it is seen but the pointer's and the keyboard's ring.
    button& cel(const std::string& naam, int nummer, const vlak& deel, std::string gesproken,
                std::function<void()> click);
    // One of a few that exclude one another; the first that is made is chosen at first.
    option_button& keuze(const std::string& naam, place waar, const std::string& opschrift,
                         std::function<void()> click);

    drawing blad;

private:
    template<class Control>
    Control& neem_op(std::deque<Control>& soort, const std::string& naam, place waar, theme_role rol,
                     const std::string& opschrift);
    void verdeel_over_stroken();

    place blad_plaats_{};
    std::deque<picture_box> stroken_;
    std::deque<label> woorden_;
    std::deque<button> knoppen_;
    std::deque<option_button> keuzes_;
    std::deque<stapper> stappers_;
    std::vector<control*> controls_;
    std::string zin_;
};

// An example without controls: a drawing of two strips over the whole panel, and its sentence.
template<std::string (*Teken)(drawing&)>
class prent : public voorbeeld {
public:
    prent() { maak_blad(180, 411, 5820, 2); }

protected:
    std::string toon() override { return Teken(blad); }
};

} // namespace cijferwerf
