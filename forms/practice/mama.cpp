#include "forms/practice/mama.h"

#include "forms/introduction/infoscherm.h"
#include "forms/practice/explanation.h"
#include "forms/practice/scoreblad.h"
#include "forms/shell/menu.h"

namespace cijferwerf {

namespace {

// The verdicts, by clicked button and by the letter of the right one: a variety that is meant.
constexpr std::string_view oordelen[4][4]{
    {"Dat is juist!", "Dat is niet goed...!", "Dat is niet het juiste antwoord...",
     "Dat antwoord is helaas niet goed..."},
    {"Helaas fout!", "Goed!", "Helaas is dat niet het juiste antwoord...", "Jammer, het is helaas fout..."},
    {"Je antwoord is helaas niet goed.", "Je koos het verkeerde antwoord.", "Dat is het goede antwoord!",
     "Je koos niet het goede antwoord..."},
    {"Fout...!", "Fout, helaas...!", "Je keuze is helaas niet goed.", "Dat is het juiste antwoord...!"},
};

// After the third wrong choice, by clicked button.
constexpr std::string_view nog_een_over[4]{
    "Nu blijft er nog maar één antwoord over.",
    "Nu is er nog maar één mogelijkheid.",
    "Nu vind je het juiste antwoord wel!",
    "Laatste kans...",
};

constexpr kleur kleur_goed = groen;
constexpr kleur kleur_fout = rood;
constexpr kleur kleur_uitleg = donkerblauw;

std::string letter(int place) { return std::string(1, static_cast<char>('A' + place - 1)); }

// The keys of the calculator by index: face, keys of the keyboard, and what a screen reader says.
struct toets {
    std::string_view face, keys, spoken;
};
constexpr toets toetsen[calculator::keys]{
    {"0", "0", ""},
    {"1", "1", ""},
    {"2", "2", ""},
    {"3", "3", ""},
    {"4", "4", ""},
    {"5", "5", ""},
    {"6", "6", ""},
    {"7", "7", ""},
    {"8", "8", ""},
    {"9", "9", ""},
    {",", ",.", "komma"},
    {"C", "\x1b", "wis invoer"},
    {"AC", "\x7f", "wis alles"},
    {"+", "+", "plus"},
    {"-", "-", "min"},
    {"x", "*X", "keer"},
    {"/", "/:", "gedeeld door"},
    {"M+", "M", "in geheugen optellen"},
    {"MR", "R", "geheugen"},
    {"%", "%", "procent"},
    {"=", "=\r", "is"},
};
constexpr int toetsenbord[3][7]{
    {7, 8, 9, 16, 19, 17, 18},
    {4, 5, 6, 15, 14, 11, 12},
    {1, 2, 3, 0, 10, 13, 20},
};

// The time bar, in units of the picture box.
constexpr int balk_midden = 2700;
constexpr int balk_boven = 1100;
constexpr int balk_per_tik = 200;

int balk_links(int limiet) { return balk_midden - limiet * balk_per_tik / 2; }

} // namespace

mama::mama(outside& with, formulieren& forms)
    : form(with, "mama"),
      oefeningen([&with] { return with.seconds_since_midnight(); }),
      forms_(forms),
      globalen_(forms.globalen) {
    leg_controls_neer();
}

// Places in twips; the order is the tab order.
void mama::leg_controls_neer() {
    using enum theme_role;
    add(kopbalk, "kopbalk", {0, 0, 12480, 720}, heading_bar);
    add(terug, "terug", {150, 150, 1260, 420}, action, "terug");
    add(opschriftbalk, "opschriftbalk", {1650, 150, 6300, 420}, heading);
    opschriftbalk.font_size = 15;
    add(info, "info", {8340, 150, 1260, 420}, action, "info");
    add(score, "score", {9690, 150, 1260, 420}, action, "score");
    add(stopteken, "stopteken", {11070, 150, 1260, 420}, action, "stoppen");

    add(taakkiezen_label, "taakkiezen_label", {240, 765, 2100, 255}, hint);
    add(presentatielijst, "presentatielijst", {150, 1050, 2070, 6630}, list);
    presentatielijst.accessible_name = "opgaven";

    add(vraagvlak, "vraagvlak", {2340, 840, 9990, 4500}, panel);
    for (int i = 1; i <= 7; ++i) add(vraag[i], "vraag", {2580, 960 + (i - 1) * 300, 4140, 300}, question);
    add(plaatje, "plaatje", {6780, 1005, drawing::inner_width, drawing::inner_height}, picture);
    plaatje.accessible_name = "plaatje bij de opgave";
    for (int i = 1; i <= 4; ++i) {
        const int top = 3300 + (i - 1) * 495;
        add(knop[i], "knop", {2580, top, 510, 450}, answer_button, letter(i));
        knop[i].font_size = 13;
        add(alternatief[i], "alternatief", {3180, top, 3540, 450}, answer);
        knop[i].click = [this, i] { knop_click(i); };
        alternatief[i].click = [this, i] { alternatief_click(i); };
    }

    add(rekenmachine, "rekenmachine", {6780, 3255, 5380, 1980}, panel);
    add(display, "display", {6900, 3345, 5140, 390}, readout);
    display.font_size = 14;
    display.right_aligned = true;
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 7; ++column) {
            const int i = toetsenbord[row][column];
            add(k[i], "k", {6900 + column * 740, 3795 + row * 465, 700, 420}, i <= 10 ? key : operator_key,
                std::string(toetsen[i].face));
            k[i].keys = toetsen[i].keys;
            k[i].accessible_name = toetsen[i].spoken;
            k[i].click = [this, i] { k_click(i); };
        }

    add(berichtvlak, "berichtvlak", {2340, 5445, 9990, 2235}, panel);
    add(uitleg_bericht, "uitleg_bericht", {2580, 5475, 4000, 315}, message_heading);
    uitleg_bericht.font_size = 11.25;
    add(uitleggeven, "uitleggeven", {10380, 5535, 1800, 420}, main_action, "uitleg");
    for (int i = 0; i <= 6; ++i)
        add(bericht[i], "bericht", {2580, 5805 + i * 264, i < 1 ? 7800 : 9660, 264}, i == 0 ? verdict : message);
    bericht[0].font_size = 10.5;

    add(Timer1, "Timer1", 1000);
    add(Timer2, "Timer2", 2000);

    const auto number = [](auto& array) {
        for (int i = array.first; i <= array.last; ++i) array[i].index = i;
    };
    number(k);
    number(vraag);
    number(knop);
    number(alternatief);
    number(bericht);

    terug.mnemonic = 't';
    info.mnemonic = 'i';
    score.mnemonic = 's';
    stopteken.mnemonic = 'p';
    uitleggeven.mnemonic = 'u';

    terug.click = [this] { terug_click(); };
    terug.hover = [this] { terug_hover(); };
    info.click = [this] { info_click(); };
    score.click = [this] { score_click(); };
    stopteken.click = [this] { stopteken_click(); };
    uitleggeven.click = [this] { uitleggeven_click(); };
    presentatielijst.click = [this] { presentatielijst_click(); };
    presentatielijst.keypress = [this](int key) { presentatielijst_keypress(key); };
    Timer1.tick = [this] { Timer1_tick(); };
    Timer2.tick = [this] { Timer2_tick(); };
}

void mama::kies(std::string heading, std::string title, bool info_allowed) {
    opschriftbalk.caption = std::move(heading);
    caption = std::move(title);
    info_allowed_ = info_allowed;
    info.enabled = info_allowed;
}

// ---- loading and activation ----

void mama::load() {
    plaatje.reset();
    wis_berichten(0);
    info.visible = globalen_.booklets();
    info.enabled = info_allowed_;
    score.enabled = true;
    taakkiezen_label.visible = false;
    uitleggeven.visible = false;
    uitleg_bericht.caption = leeg;
    Timer1.stop();
    Timer2.stop();
    toon_rekenmachine(false);
    for (label& line : vraag) line.caption = leeg;
    for (int i = 1; i <= 4; ++i) {
        knop[i].enabled = alternatief[i].enabled = false;
        knop[i].accessible_name.clear();
        alternatief[i].caption.clear();
    }

    presentatielijst.items.clear();
    presentatielijst.selected = -1;
    presentatielijst.enabled = true;
    lijst_ = zoek_lijst(globalen_.gekozen_pakket, globalen_.gekozen_onderdeel);
    if (lijst_ != nullptr)
        for (const catalogue_entry& entry : toon_lijst(*lijst_, toeval))
            presentatielijst.items.emplace_back(entry.title);
    focus = &presentatielijst;
}

void mama::activate() {
    globalen_.wis_score();
    plaatje.clear();
    wis_berichten(1);
    score_bekeken = "nee";
}

// ---- presenting an exercise ----

void mama::presentatielijst_keypress(int key) {
    if (key == list_box::enter_key) presentatielijst_click();
}

void mama::presentatielijst_click() {
    const auto selected = static_cast<std::size_t>(presentatielijst.selected);
    if (selected >= presentatielijst.items.size()) return;

    uitleg_bericht.colour = donkerblauw;
    uitleg_bericht.caption = "UITLEG/BERICHT";
    uitleggeven.visible = false;
    wis_berichten(0);

    globalen_.gekozen_oefening = presentatielijst.items[selected];
    maak(lijst_ == nullptr ? std::nullopt
                           : zoek_generator(*lijst_, presentatielijst.selected, globalen_.gekozen_oefening));

    for (int i = 1; i <= 7; ++i) vraag[i].caption = vraagregels[static_cast<std::size_t>(i - 1)];
    plaats_antwoorden();

    pogingen = 0;
    score.enabled = presentatielijst.enabled = info.enabled = false;
    toon_rekenmachine(hulpmiddel == "REKENMACHINE");

    if (tijdlimiet != 0) {
        plaatje.filled_box(balk_links(tijdlimiet), balk_boven, balk_per_tik * (tijdlimiet - 1), 300, geel);
        tijdteller = 0;
        Timer1.start();
    } else
        Timer1.stop();
    focus = &knop[1];
}

void mama::plaats_antwoorden() {
    int right = juiste_positie;
    if (right == 0) {
        zaai();
        right = trek(4) + 1;
    }
    juiste_letter = letter(right);
    for (int i = 1; i <= 4; ++i) {
        alternatief[i].caption = antwoord(juiste_positie == 0 ? getoond_antwoord(i, right) : i);
        alternatief[i].visible = true;
        knop[i].enabled = alternatief[i].enabled = true;
        knop[i].accessible_name = letter(i) + ":" + alternatief[i].caption;
    }
}

void mama::toon_rekenmachine(bool shown) {
    rekenmachine.visible = display.visible = shown;
    for (button& key : k) key.visible = shown;
    display.caption = rekenmachine_.display();
    // The digits of the keyboard belong to the calculator while it is shown; A to D go on answering.
    for (int i = 1; i <= 4; ++i) knop[i].keys = letter(i) + (shown ? "" : std::to_string(i));
}

// ---- answers ----

void mama::alternatief_click(int i) {
    if (knop[i].enabled) knop_click(i);
}

void mama::knop_click(int i) {
    ++pogingen;
    const bool tips = tipregels_1[0] != leeg;
    const int right = juiste_letter[0] - 'A' + 1;
    bericht[0].caption = oordelen[i - 1][right - 1];

    if (i == right) {
        rond_af();
        return;
    }
    uitleg_bericht.caption = "BERICHT";
    uitleg_bericht.colour = bericht[0].colour = kleur_fout;
    if (!tips)
        toon_berichten(foutregels(getoond_antwoord(i, right)), kleur_fout);
    else if (pogingen == 1)
        toon_berichten(tipregels_1, kleur_fout);
    else if (pogingen == 2)
        toon_berichten(tipregels_2, kleur_fout);
    else if (pogingen == 3) {
        wis_berichten(1);
        bericht[1].colour = kleur_fout;
        bericht[1].caption = nog_een_over[i - 1];
    }
    keuze_uit(i);
}

// The exercise has ended, by the right answer or by the clock: what is left is its explanation, or the next title.
void mama::rond_af() {
    uitleg_bericht.caption = "UITLEG";
    uitleg_bericht.colour = bericht[0].colour = kleur_goed;
    for (int i = 1; i <= 4; ++i) keuze_uit(i);
    presentatielijst.enabled = true;
    if (!uitleggeven.visible) focus = &uitleggeven; // the clock leaves a pupil be who answered and went on
    uitleggeven.visible = true;
}

void mama::keuze_uit(int i) { knop[i].enabled = alternatief[i].enabled = false; }

void mama::wis_berichten(int first) {
    for (int i = first; i <= 6; ++i) bericht[i].caption = leeg;
}

// The first six lines; the seventh of an array is never shown.
void mama::toon_berichten(const tekstregels& lines, kleur colour) {
    for (int i = 1; i <= 6; ++i) {
        bericht[i].colour = colour;
        bericht[i].caption = lines[static_cast<std::size_t>(i - 1)];
    }
}

// ---- explanation and score ----

void mama::uitleggeven_click() {
    Timer1.stop();
    teken_opdrachten(plaatje, uitlegopdrachten);
    toon_berichten(uitlegregels, kleur_uitleg);

    globalen_.tel_uitslag(pogingen);
    presentatielijst.enabled = true;
    score.enabled = true;
    info.enabled = info_allowed_;
    focus = &presentatielijst;
}

// ---- the clock of quick exercises ----

void mama::Timer1_tick() {
    ++tijdteller;
    if (tijdteller < tijdlimiet) {
        plaatje.style = line_style::inside_solid;
        plaatje.filled_box(balk_links(tijdlimiet), balk_boven, tijdteller * balk_per_tik, 350, zwart);
        return;
    }
    plaatje.text_size = 20;
    plaatje.fore_colour = geel;
    plaatje.print_at(1800, 1500, "Jammer....!");
    Timer1.stop();
    pogingen = 4;
    ++globalen_.goed_poging_4;
    bericht[0].caption.clear();
    rond_af();
}

// ---- leaving ----

void mama::stopteken_click() { forms_.vraag_of_stoppen(); }

void mama::terug_hover() {
    taakkiezen_label.caption = globalen_.booklets() ? "boekje kiezen" : "taak kiezen";
    taakkiezen_label.visible = true;
    Timer2.start();
}

void mama::Timer2_tick() {
    taakkiezen_label.visible = false;
    Timer2.stop();
}

void mama::terug_click() {
    const int te_bekijken = 0; // nothing counts it up, so going back never asks
    if (te_bekijken != 0 && score_bekeken != "ja" &&
        buiten.ask("Resultaten bekijken...?", globalen_.gekozen_pakket, box_buttons::yes_no) == box_answer::yes) {
        score_click();
        return;
    }
    if (globalen_.booklets())
        forms_.get<menucl>().show();
    else
        forms_.get<menusw>().show();
    forms_.get<scoreblad>().unload(); // its numbers are those of the practice that ends here
    unload();
}

// A sheet that is open already is loaded again, so that it shows the counts of this moment.
void mama::score_click() {
    score_bekeken = "ja";
    auto& sheet = forms_.get<scoreblad>();
    sheet.unload();
    sheet.show();
}

void mama::info_click() {
    constexpr std::size_t before_number = 7; // "BOEKJE "
    const std::string& heading = opschriftbalk.caption;
    if (heading.size() <= before_number) return;
    const auto boekje = static_cast<int>(lees_getal(std::string_view(heading).substr(before_number)));
    auto& scherm = forms_.get<infoscherm>();
    if (scherm.kies(boekje)) scherm.show();
}

void mama::k_click(int key) {
    const calculator::message message = rekenmachine_.press(key);
    display.caption = rekenmachine_.display();
    if (message == calculator::message::too_many_digits)
        buiten.ask("te veel cijfers", globalen_.gekozen_pakket, box_buttons::ok);
    else if (message == calculator::message::division_by_zero)
        buiten.ask("delen door nul kan niet!", globalen_.gekozen_pakket, box_buttons::ok);
}

void mama::toon_aantalvragengedaan() {
    buiten.ask(regel("aantalvragengedaan =", globalen_.aantalvragengedaan), program_name, box_buttons::ok);
}

} // namespace cijferwerf
