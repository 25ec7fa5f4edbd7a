#include "forms/introduction/voorbeeld.h"

#include <algorithm>

namespace cijferwerf {

namespace {

constexpr int stap_zijde = 570; // of the buttons of a stepper

constexpr kleurtabel kleuren_bij(const subject_colours& about) {
    kleurtabel colours = kleur_rgb;
    colours[inkt] = 0x17202E;
    colours[donker] = about.dark;
    colours[half] = about.mid;
    colours[licht] = about.tint;
    colours[blauw] = 0x2F66C9;
    colours[groen] = 0x17703A;
    colours[rood] = 0xA8261F;
    colours[geel] = 0xF3CE5E;
    colours[olijf] = 0x7A5A00;
    colours[lichtgrijs] = 0xC3CCD8;
    colours[grijs] = 0x5C6878;
    return colours;
}

constexpr auto alle_kleuren = [] {
    std::array<kleurtabel, alle_onderwerpkleuren.size()> made{};
    for (std::size_t i = 0; i < made.size(); ++i) made[i] = kleuren_bij(alle_onderwerpkleuren[i]);
    return made;
}();

// Draws operations again, so much higher up: what one strip shows of a drawing.
struct strook {
    drawing& on;
    int up;

    void operator()(const text_op& op) const {
        const int y = op.y - up;
        if (y + text_height(op.size) <= 0 || y >= drawing::inner_height) return; // is read in another strip
        on.fore_colour = op.colour;
        on.text_size = op.size;
        on.print_at(op.x, y, op.text);
    }
    void operator()(const line_op& op) const {
        take_up(op.pen);
        on.line(op.from.x, op.from.y - up, op.to.x, op.to.y - up, op.pen.colour);
    }
    void operator()(const box_op& op) const {
        take_up(op.pen);
        if (op.filled)
            on.filled_box(op.x, op.y - up, op.width, op.height, op.pen.colour);
        else
            on.box(op.x, op.y - up, op.width, op.height, op.pen.colour);
    }
    void operator()(const circle_op& op) const {
        take_up(op.pen);
        if (op.sweep == 360)
            on.ellipse(op.centre.x, op.centre.y - up, op.radius_x, op.radius_y, op.pen.colour, op.filled);
        else
            on.sector(op.centre.x, op.centre.y - up, op.radius_x, op.start, op.sweep, op.pen.colour, op.filled);
    }
    void operator()(const polygon_op& op) const {
        take_up(op.pen);
        auto corners = op.corners;
        for (point& corner : corners) corner.y -= up;
        on.polygon(std::move(corners), op.pen.colour, op.filled);
    }
    void operator()(const picture_op& op) const { on.picture(op.file); }

private:
    void take_up(const pen& with) const {
        on.line_width = with.width;
        on.style = with.style;
    }
};

} // namespace

const kleurtabel& voorbeeldkleuren(subject about) { return alle_kleuren[static_cast<std::size_t>(about)]; }

void voorbeeld::kleur_naar(subject about) {
    blad.colours = &voorbeeldkleuren(about);
    ververs();
}

void voorbeeld::ververs() {
    blad.reset();
    blad.ground = licht;
    blad.fore_colour = inkt;
    zin_ = toon();
    verdeel_over_stroken();
    for (const stapper& each : stappers_) {
        each.getal->caption = each.vorm != nullptr ? each.vorm(*each.waarde) : std::to_string(*each.waarde);
        each.min->enabled = *each.waarde > each.van;
        each.plus->enabled = *each.waarde < each.tot;
        each.min->description = each.plus->description = each.getal->caption;
    }
}

void voorbeeld::maak_blad(int links, int boven, int getoonde_breedte, int stroken) {
    const int hoog = (getoonde_breedte * drawing::inner_height + drawing::inner_width / 2) / drawing::inner_width;
    blad_plaats_ = {links, boven, getoonde_breedte, hoog};
    for (int i = 0; i < stroken; ++i) {
        const place waar{links, boven + i * blad_plaats_.height, getoonde_breedte, blad_plaats_.height};
        neem_op(stroken_, "plaatje", waar, theme_role::illustration, {}).accessible_name = "plaatje bij de uitleg";
    }
}

place voorbeeld::op_blad(const vlak& deel) const {
    const auto across = [this](int x) { return x * blad_plaats_.width / drawing::inner_width; };
    const auto down = [this](int y) { return y * blad_plaats_.height / drawing::inner_height; };
    return {blad_plaats_.left + across(deel.links), blad_plaats_.top + down(deel.boven),
            across(deel.rechts()) - across(deel.links), down(deel.onder()) - down(deel.boven)};
}

void voorbeeld::verdeel_over_stroken() {
    for (int up = 0; picture_box & shown : stroken_) {
        shown.reset();
        shown.ground = blad.ground;
        shown.colours = blad.colours;
        for (const drawing_op& op : blad.operations()) std::visit(strook{shown, up}, op);
        // Read as one picture, by its sentence.
        shown.spoken = {{0, shown.operations().size(), up == 0 ? zin_ : ""}};
        up += drawing::inner_height;
    }
}

// ---- controls ----

template<class Control>
Control& voorbeeld::neem_op(std::deque<Control>& soort, const std::string& naam, place waar, theme_role rol,
                            const std::string& opschrift) {
    Control& made = soort.emplace_back();
    made.name = naam;
    made.left = waar.left;
    made.top = waar.top;
    made.width = waar.width;
    made.height = waar.height;
    made.role = rol;
    made.caption = opschrift;
    controls_.push_back(&made);
    return made;
}

label& voorbeeld::woorden(place waar, double punten, theme_role rol, const std::string& tekst) {
    label& made = neem_op(woorden_, "woorden", waar, rol, tekst);
    made.index = static_cast<int>(woorden_.size());
    made.font_size = punten;
    return made;
}

button& voorbeeld::knop(const std::string& naam, place waar, theme_role rol, const std::string& opschrift,
                        std::function<void()> click) {
    button& made = neem_op(knoppen_, naam, waar, rol, opschrift);
    made.font_size = 12;
    made.click = [this, then = std::move(click)] {
        then();
        ververs();
    };
    return made;
}

button& voorbeeld::cel(const std::string& naam, int nummer, const vlak& deel, std::string gesproken,
                       std::function<void()> click) {
    button& made = knop(naam, op_blad(deel), theme_role::cell, {}, std::move(click));
    made.index = nummer;
    made.accessible_name = std::move(gesproken);
    return made;
}

option_button& voorbeeld::keuze(const std::string& naam, place waar, const std::string& opschrift,
                                std::function<void()> click) {
    option_button& made = neem_op(keuzes_, naam, waar, theme_role::toggle, opschrift);
    made.index = static_cast<int>(keuzes_.size());
    made.selected = keuzes_.size() == 1;
    made.font_size = 12;
    made.click = [this, then = std::move(click)] {
        then();
        ververs();
    };
    return made;
}

// Both buttons have one name, so that at the end of the range the keyboard's focus goes to the other.
voorbeeld::stapper& voorbeeld::stappen(place waar, int naam_breedte, const std::string& naam, int& waarde, int van,
                                       int tot, int stap) {
    stapper& made = stappers_.emplace_back(stapper{&waarde, van, tot, stap, nullptr, nullptr, nullptr});
    const int links = waar.left + naam_breedte;
    const int plus = waar.left + waar.width - stap_zijde;
    if (naam_breedte > 0) woorden({waar.left, waar.top, naam_breedte, stap_zijde}, 12, theme_role::lesson_word, naam);
    const auto maak = [&](int x, button::sign face, const char* richting, int verschil) {
        button* pressed =
            &knop("stap " + naam, {x, waar.top, stap_zijde, stap_zijde}, theme_role::stepper, naam + richting,
                  [&made, verschil] { *made.waarde = std::clamp(*made.waarde + verschil, made.van, made.tot); });
        pressed->face = face;
        return pressed;
    };
    made.min = maak(links, button::sign::minus, " lager", -stap);
    made.getal =
        &woorden({links + stap_zijde, waar.top, plus - links - stap_zijde, stap_zijde}, 18, theme_role::lesson_value);
    made.plus = maak(plus, button::sign::plus, " hoger", stap);
    made.min->index = 1;
    made.plus->index = 2;
    return made;
}

} // namespace cijferwerf
