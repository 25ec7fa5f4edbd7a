// A form that has a control of every kind, and writes down what happens to it.
// What should happen is for the tests to say.
#pragma once

#include "runtime/form.h"

namespace cijferwerf {

class try_out : public form {
public:
    explicit try_out(outside& with, std::string form_name = "try_out") : form(with, std::move(form_name)) {
        using enum theme_role;
        add(grond, "grond", {100, 100, 9000, 7000}, panel);
        add(tekst, "tekst", {200, 200, 3000, 400}, body, "  één\rtwee & drie");
        add(klik, "klik", {200, 700, 3000, 400}, choice, "klik hier");
        add(knop, "knop", {200, 1200, 3000, 400}, action, "R & B");
        add(lijst, "lijst", {200, 2000, 3000, 3000}, list);
        add(links, "links", {4000, 200, 2000, 1000}, choice, "links");
        add(rechts, "rechts", {4000, 1400, 2000, 1000}, choice, "rechts");
        add(uitgang, "uitgang", {6500, 200, 2000, 1000}, action, "uitgang");
        add(plaatje, "plaatje", {4000, 3000, drawing::inner_width, drawing::inner_height}, picture);
        add(klok, "klok", 20);
        lijst.items = {"eerste", "tweede", "derde"};
        knop.mnemonic = 'b';
        knop.keys = "K\r";
        klik.hover = [this] { ++hovers; };
        for (control* each : std::initializer_list<control*>{&klik, &uitgang, &links, &rechts})
            each->click = [this, each] { log += each->name + ' '; };
        knop.click = [this] {
            log += "knop ";
            if (on_knop) on_knop();
        };
        lijst.click = [this] { log += "lijst" + std::to_string(lijst.selected) + " "; };
        lijst.keypress = [this](int key) { log += "toets" + std::to_string(key) + " "; };
        klok.tick = [this] {
            log += "tik ";
            if (--ticks_left == 0) klok.stop();
        };
    }
    void load() override { log += "laden "; }
    void activate() override { log += "openen "; }
    void close_requested() override { log += "sluiten "; }
    std::string happened() { return std::exchange(log, ""); }
    void ask_it(message_box box, std::function<void(box_answer)> then) { ask(std::move(box), std::move(then)); }

    frame grond;
    label tekst, klik;
    button knop, uitgang;
    list_box lijst;
    option_button links, rechts;
    picture_box plaatje;
    timer klok;

    std::function<void()> on_knop;
    std::string log;
    int hovers = 0, ticks_left = 0;
};

} // namespace cijferwerf
