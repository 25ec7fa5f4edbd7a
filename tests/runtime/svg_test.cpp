#include "runtime/drawn.h"
#include "runtime/svg.h"
#include "tests/support/fake_outside.h"

#include <gtest/gtest.h>

namespace cijferwerf {
namespace {

TEST(drawn_bounds, hold_what_is_drawn_and_no_more) {
    drawing shown;
    EXPECT_EQ(drawn_bounds(shown).width, 0);
    shown.line_width = 2;
    shown.sector(1000, 1000, 300, 45, 90, rood, true); // over the top, not to the sides
    EXPECT_EQ(drawn_bounds(shown), (place{788, 700, 424, 300}));
    shown.line(500, 1000, 600, 1000, rood);
    EXPECT_EQ(drawn_bounds(shown), (place{485, 700, 727, 315}));
    shown.print_at(900, 1200, "0,75");
    EXPECT_EQ(drawn_bounds(shown), (place{485, 700, 727, 684}));
}

TEST(drawn_colours, of_boards_are_dark_enough_to_read_and_what_is_wiped_out_is_gone) {
    drawing shown;
    for (const kleur ground : {zwart, donkerblauw, groen, cyaan}) {
        shown.ground = ground;
        for (const kleur text : {geel, wit})
            EXPECT_GE(contrast(colour_on(shown, ground), text_colour_on(shown, text)), 5.9);
        const kleur warning = ground <= donkerblauw ? rood : geel;
        EXPECT_GE(contrast(colour_on(shown, ground), text_colour_on(shown, warning)), 5.5);
        EXPECT_EQ(text_colour_on(shown, ground), colour_on(shown, ground));
    }
    EXPECT_EQ(colour_on(shown, groen), 0x008000U) << "a shape keeps its colour";
}

TEST(svg, of_a_drawing_has_every_operation_in_its_colour_and_place) {
    drawing shown;
    shown.ground = groen;
    shown.picture("tuin & pad.bmp");
    shown.line_width = 2;
    shown.line(10, 20, 30, 40, rood);
    shown.filled_box(100, 200, -50, 60, geel);
    shown.circle(300, 400, 50, wit);
    shown.sector(1000, 1000, 300, 0, 90, blauw, true);
    shown.polygon({{1, 2}, {3, 4}, {5, 6}}, zwart, false);
    shown.line_width = 1;
    shown.style = line_style::dot;
    shown.line(0, 0, 0, 90, wit);
    shown.text_size = 10;
    shown.print_at(500, 600, "5 < 6");
    const std::string svg = svg_of(shown);
    for (const char* part :
         {R"(width="358" height="142" viewBox="0 0 5380 2130")", R"(fill="#006C00")", R"(href="tuin &amp; pad.bmp")",
          R"(x1="10" y1="20" x2="30" y2="40" fill="none" stroke="#FF0000" stroke-width="30"/>)",
          R"(x="50" y="200" width="50" height="60" fill="#FFFF00"/>)",
          R"(cx="300" cy="400" rx="50" ry="50" fill="none")",
          R"(<path d="M1000 1000L1300 1000A300 300 0 0 0 1000 700Z" fill="#0000FF"/>)",
          R"(points="1,2 3,4 5,6" fill="none")", R"(stroke-width="15" stroke-dasharray="15 30")",
          R"x(translate(500 781) scale(0.9 1)" font-size="200" fill="#000000">5 &lt; 6</text>)x"})
        EXPECT_NE(svg.find(part), std::string::npos) << part << " in\n" << svg;
}

struct one_panel : form {
    explicit one_panel(outside& with) : form(with, "one_panel") {
        width = 3000;
        height = 1500;
        add(vlak, "vlak", {300, 300, 2400, 900}, theme_role::panel);
        add(tekst, "tekst", {450, 450, 1200, 300}, theme_role::body, "hallo");
        add(weg, "weg", {450, 800, 1200, 300}, theme_role::body, "onzichtbaar");
        weg.visible = false;
    }
    frame vlak;
    label tekst, weg;
};

TEST(svg, of_a_form_has_the_faces_of_what_is_visible_where_it_stands) {
    fake_outside outside;
    const std::string svg = svg_of(one_panel(outside));
    for (const char* part :
         {R"(viewBox="0 0 3000 1500")", R"(<path d="M307.5 420A112.5 112.5 0 0 1 420 307.5L)",
          R"(fill="#FFFFFF" stroke="#71829A" stroke-width="15")", R"(<text x="450" y=")", ">hallo</text>"})
        EXPECT_NE(svg.find(part), std::string::npos) << part << " in\n" << svg;
    EXPECT_EQ(svg.find("onzichtbaar"), std::string::npos);
}

} // namespace
} // namespace cijferwerf
