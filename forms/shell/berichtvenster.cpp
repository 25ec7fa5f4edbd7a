#include "forms/shell/berichtvenster.h"

#include "forms/marks.h"
#include "runtime/look.h"

#include <algorithm>

namespace cijferwerf {

namespace {

constexpr int band = 570, text_left = 300, text_top = 855, button_height = 510;
constexpr double text_points = 15;

} // namespace

berichtvenster::berichtvenster(outside& with, const std::function<void(box_answer)>& answered)
    : form(with, "berichtvenster") {
    using enum theme_role;
    overlay = true;
    width = 5400;
    add(vlak, "vlak", {0, 0, width, 2460}, heading_bar);
    vlak.header_height = band;
    add(opschrift, "opschrift", {180, 105, 5040, 360}, heading);
    opschrift.mark = programmateken();
    opschrift.font_size = 11.25;
    add(tekst, "tekst", {text_left, text_top, width - 2 * text_left, 0}, prompt);
    tekst.font_size = text_points;

    const struct {
        button& made;
        const char* name;
        const char* caption;
        box_answer given;
    } rows[]{{ja, "ja", "Ja", box_answer::yes}, {nee, "nee", "Nee", box_answer::no}, {ok, "ok", "OK", box_answer::ok}};
    for (const auto& row : rows) {
        add(row.made, row.name, {}, action, row.caption);
        row.made.font_size = 11.25;
        row.made.mnemonic = row.caption[0];
        row.made.click = [answered, given = row.given] { answered(given); };
    }
}

void berichtvenster::leg_voor(const message_box& box) {
    caption = opschrift.caption = box.title;
    std::string words = box.text;
    std::ranges::replace(words, '\n', '\r'); // of a message of the system
    const std::vector<std::string> lines = bold_lines(words, text_points, tekst.width);
    tekst.caption = lines[0];
    for (std::size_t i = 1; i < lines.size(); ++i) tekst.caption += '\r' + lines[i];
    tekst.height = static_cast<int>(lines.size()) * text_height(text_points);
    const int buttons_top = tekst.top + std::max(tekst.height, 405) + 405;
    height = vlak.height = buttons_top + button_height + 285;

    const bool asks = box.buttons == box_buttons::yes_no;
    ja.visible = nee.visible = asks;
    ok.visible = !asks;
    put(ja, {2100, buttons_top, 1440, button_height});
    for (button* each : {&nee, &ok}) put(*each, {3660, buttons_top, 1440, button_height});
    for (button* each : {&ja, &nee, &ok}) {
        each->keys = each->mnemonic;
        each->role = theme_role::action;
        each->description = box.text;
    }
    standaard().keys += "\x1b\r";
    standaard().role = theme_role::main_action;
    focus = &standaard();
}

} // namespace cijferwerf
