// The look of real screens: whatever colour, state or subject, a text can be read on what lies under it, the edge of a
// control can be seen, and texts stay within their controls.
#include "forms/introduction/infoscherm.h"
#include "forms/practice/mama.h"
#include "forms/practice/scoreblad.h"
#include "forms/shell/berichtvenster.h"
#include "forms/shell/codering.h"
#include "forms/shell/colofon.h"
#include "forms/shell/menu.h"
#include "runtime/drawn.h"
#include "runtime/look.h"
#include "tests/support/fake_outside.h"

#include <gtest/gtest.h>

namespace cijferwerf {
namespace {

int width_of(const scene_text& text) {
    const int letters = static_cast<int>(text.text.size());
    return (text.bold ? bold_text_width(text.text, text.points) : text_width(text.text, text.points, 1.0)) +
           text.spacing * letters;
}

rgb24 colour_at(const scene& painted, point at) {
    rgb24 seen = look::paper;
    for (const scene_op& op : painted)
        if (const auto* box = std::get_if<scene_box>(&op); box != nullptr && box->fill)
            if (box->at.contains({at.x, at.y, 0, 0})) seen = *box->fill;
    return seen;
}

struct screens : testing::Test {
    fake_outside outside;
    formulieren forms{outside};
    berichtvenster message{outside, {}};
    std::vector<form*> all;
    int texts = 0, edges = 0;

    screens() {
        auto& practice = forms.get<mama>();
        practice.zet_opschrift("BOEKJE 10 - MENGELING ALLERLEI", std::string(booklet_set), true);
        forms.globalen.gekozen_onderdeel = "boekje03";
        practice.open();
        practice.presentatielijst.selected = 4;
        practice.presentatielijst_click();
        message.leg_voor({"Wil je echt stoppen?", "Cijferwerf", box_buttons::yes_no});
        all = {&practice,
               &message,
               &forms.get<codering>(),
               &forms.get<menucl>(),
               &forms.get<menusw>(),
               &forms.get<colofoncl>(),
               &forms.get<scoreblad>(),
               &forms.get<infoscherm>(3, 2)};
    }

    void look_at(const form& shown, control_state now, look_settings with) {
        scene painted;
        const backdrop behind = backdrop_of(shown, with);
        painted.emplace_back(scene_box{{0, 0, shown.width, shown.height}, 0, behind.ground});
        for (const control* each : shown.controls()) {
            if (!each->visible || each->kind == control_kind::timer) continue;
            const place at{each->left, each->top, each->width, each->height};
            const rgb24 around = colour_at(painted, {at.left - 15, at.top + at.height / 2});
            scene face = face_of(shown, *each, each->takes_clicks() ? now : control_state{}, with);
            if (each->kind == control_kind::list_box) face = full_face_of(shown, *each, with);
            move(face, each->left, each->top);
            double seen = 0;
            for (const scene_op& op : face) {
                if (const auto* box = std::get_if<scene_box>(&op); box != nullptr && box->at == at)
                    seen = std::max(seen, contrast(box->edge ? *box->edge : *box->fill, around));
                if (const auto* text = std::get_if<scene_text>(&op))
                    look_at(*text, *each, colour_at(painted, middle(*text)));
                painted.push_back(op);
            }
            const bool quiet = each->kind == control_kind::button && static_cast<const button*>(each)->quiet;
            const bool edged = each->is_button() && each->usable() && !quiet;
            if (edged || each->kind == control_kind::list_box) {
                ++edges;
                EXPECT_GE(seen, 3) << shown.name() << ' ' << each->name;
            }
        }
    }
    static point middle(const scene_text& text) {
        return {text.x + width_of(text) / 2, text.baseline - static_cast<int>(text.points * 7)};
    }
    void look_at(const scene_text& text, const control& of, rgb24 under) {
        ++texts;
        EXPECT_GE(contrast(text.colour, under), 4.5) << of.name << ": " << text.text;
        EXPECT_GE(text.x, of.left) << of.name << ": " << text.text;
        EXPECT_LE(text.x + width_of(text), of.left + of.width) << of.name << ": " << text.text;
    }
};

TEST_F(screens, can_be_read_in_every_state_and_colour) {
    auto& practice = forms.get<mama>();
    const answer_result results[]{answer_result::tried, answer_result::right, answer_result::unused,
                                  answer_result::open};
    const control_state states[]{{}, {.hovered = true}, {.hovered = true, .pressed = true}, {.focused = true}};
    for (int round = 0; round < 3; ++round) {
        for (int i = 1; i <= 4; ++i) practice.knop[i].result = results[(i + round) % 4];
        for (int i = 1; i <= 4; ++i) practice.knop[i].enabled = practice.knop[i].result == answer_result::open;
        practice.berichtvlak.tone = practice.uitleg_bericht.tone = practice.bericht[0].tone = static_cast<tone>(round);
        practice.berichtvlak.header_height = 465;
        practice.berichtvlak.quiet = round == 0;
        for (int i = 0; i <= 6; ++i) {
            practice.bericht[i].caption = "Reken het nog eens na.";
            practice.bericht[i].colour =
                std::array{zwart, donkerblauw, groen, rood, grijs, paars, olijf}.at(static_cast<std::size_t>(i));
            practice.bericht[i].subdued = round == 2;
        }
        practice.presentatielijst.enabled = round == 0;
        practice.presentatielijst.selected = 4 * round;
        practice.taakkiezen_label.caption = "boekje kiezen";
        for (control* each : practice.controls()) each->visible = each->visible || round == 1; // the calculator too
        for (std::size_t about = 0; about < alle_onderwerpkleuren.size(); ++about)
            for (form* each : all) {
                each->about = static_cast<subject>(about);
                for (const bool strong : {false, true})
                    for (const control_state now : states) look_at(*each, now, {strong, strong});
            }
    }
    EXPECT_GT(texts, 10'000);
    EXPECT_GT(edges, 10'000);
}

} // namespace
} // namespace cijferwerf
