// The look of real screens: no buttons overlap, and whatever colour, state or subject, a text can be read on what lies
// under it, the edge of a control can be seen, and texts stay within their controls.
#include "forms/introduction/infoscherm.h"
#include "forms/practice/scoreblad.h"
#include "forms/shell/berichtvenster.h"
#include "forms/shell/codering.h"
#include "forms/shell/colofon.h"
#include "forms/shell/menu.h"
#include "runtime/drawn.h"
#include "runtime/look.h"
#include "tests/support/practising.h"

namespace cijferwerf {
namespace {

int width_of(const scene_text& text) {
    const int gaps = static_cast<int>(text.text.size()) - 1;
    return (text.bold ? bold_text_width(text.text, text.points) : text_width(text.text, text.points, 1.0)) +
           text.spacing * gaps;
}

rgb24 colour_at(const scene& painted, point at) {
    rgb24 seen = look::paper;
    for (const scene_op& op : painted)
        if (const auto* box = std::get_if<scene_box>(&op); box != nullptr && box->fill)
            if (box->at.contains({at.x, at.y, 0, 0})) seen = *box->fill;
    return seen;
}

place place_of(const control& c) { return {c.left, c.top, c.width, c.height}; }

struct screens : practising {
    berichtvenster message{pupil, {}};
    std::vector<form*> all{&screen,
                           &message,
                           &forms.get<codering>(),
                           &forms.get<menucl>(),
                           &forms.get<menusw>(),
                           &forms.get<colofoncl>(),
                           &forms.get<scoreblad>(),
                           &forms.get<infoscherm>(3, 2)};
    int texts = 0;

    screens() {
        open(booklet_set, "boekje03");
        present("helen maken");
        screen.opschriftbalk.caption = "BOEKJE 10 - MENGELING ALLERLEI";
        message.leg_voor({"Wil je echt stoppen?", "Cijferwerf", box_buttons::yes_no});
    }

    void look_at(const form& shown, control_state now, look_settings with) {
        scene painted{scene_box{{0, 0, shown.width, shown.height}, 0, backdrop_of(shown, with).ground}};
        for (const control* each : shown.controls()) {
            if (!each->visible || each->kind == control_kind::timer) continue;
            const place at = place_of(*each);
            const rgb24 around = colour_at(painted, {at.left - 15, at.top + at.height / 2});
            const bool list = each->kind == control_kind::list_box;
            scene face = list ? full_face_of(shown, *each, with)
                              : face_of(shown, *each, each->takes_clicks() ? now : control_state{}, with);
            move(face, each->left, each->top);
            double seen = 0;
            bool ringed = !now.focused || !each->is_button() || !each->usable();
            for (const scene_op& op : face) {
                if (const auto* box = std::get_if<scene_box>(&op)) ringed |= box->edge == look::dark && box->thick > 40;
                if (const auto* box = std::get_if<scene_box>(&op); box != nullptr && box->at == at)
                    seen = std::max(seen, contrast(box->edge ? *box->edge : *box->fill, around));
                if (const auto* text = std::get_if<scene_text>(&op)) look_at(*text, *each, painted);
                painted.push_back(op);
            }
            const bool quiet = each->kind == control_kind::button && static_cast<const button*>(each)->quiet;
            EXPECT_TRUE(ringed && (seen >= 3 || !(list || (each->is_button() && each->usable() && !quiet))))
                << shown.name() << ' ' << each->name;
        }
    }
    void look_at(const scene_text& text, const control& of, const scene& painted) {
        ++texts;
        const int end = text.x + width_of(text);
        const point middle{(text.x + end) / 2, text.baseline - static_cast<int>(text.points * 7)};
        EXPECT_GE(contrast(text.colour, colour_at(painted, middle)), 4.5) << of.name << ": " << text.text;
        EXPECT_TRUE(text.x >= of.left && end <= of.left + of.width) << of.name << ": " << text.text;
    }
};

TEST_F(screens, have_no_buttons_that_overlap_or_stick_out) {
    const auto apart = [](const place& a, const place& b) {
        return a.left + a.width <= b.left || a.top + a.height <= b.top;
    };
    for (const form* shown : all) {
        std::vector<place> others;
        for (const control* each : shown->controls()) {
            if (!each->is_button() || !each->visible) continue;
            const place at = place_of(*each);
            EXPECT_TRUE((place{0, 0, shown->width, shown->height}).contains(at)) << each->caption;
            for (const place& other : others) EXPECT_TRUE(apart(at, other) || apart(other, at)) << each->caption;
            others.push_back(at);
        }
    }
}

TEST_F(screens, can_be_read_in_every_state_and_colour) {
    using enum answer_result;
    constexpr std::array results{tried, right, unused, answer_result::open, tried, right};
    const control_state states[]{{}, {.hovered = true}, {.hovered = true, .pressed = true}, {.focused = true}};
    constexpr std::array colours{zwart, donkerblauw, groen, rood, grijs, paars, olijf};
    for (std::size_t round = 0; round < 3; ++round) {
        for (int i = 1; i <= 4; ++i) {
            screen.knop[i].result = results.at(round + static_cast<std::size_t>(i - 1));
            screen.knop[i].enabled = screen.knop[i].result == answer_result::open;
        }
        screen.berichtvlak.tone = screen.uitleg_bericht.tone = screen.bericht[0].tone = static_cast<tone>(round);
        screen.berichtvlak.quiet = round == 0;
        for (std::size_t i = 0; label & line : screen.bericht) {
            line.caption = "Reken het nog eens na.";
            line.colour = colours.at(i++);
            line.subdued = round == 2;
        }
        screen.presentatielijst.enabled = round == 0;
        screen.presentatielijst.selected = 4 * static_cast<int>(round);
        screen.taakkiezen_label.caption = "boekje kiezen";
        for (control* each : screen.controls()) each->visible = each->visible || round == 1; // the calculator too
        for (std::size_t about = 0; about < alle_onderwerpkleuren.size(); ++about)
            for (form* each : all) {
                each->about = static_cast<subject>(about);
                for (const bool strong : {false, true})
                    for (const control_state now : states) look_at(*each, now, {strong, strong});
            }
    }
    EXPECT_GT(texts, 10'000);
}

} // namespace
} // namespace cijferwerf
