#include "forms/practice/mama.h"

#include "forms/introduction/infoscherm.h"
#include "forms/marks.h"
#include "forms/practice/explanation.h"
#include "forms/practice/layout.h"
#include "forms/practice/scoreblad.h"
#include "forms/shell/menu.h"
#include "runtime/picture_reading.h"

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

// The time bar, in units of the picture box.
constexpr int balk_midden = 2700;
constexpr int balk_boven = 1100;
constexpr int balk_per_tik = 200;

int balk_links(int limiet) { return balk_midden - limiet * balk_per_tik / 2; }

// What these lines say, as one text.
template<class Lines>
std::string in_een_zin(const Lines& lines) {
    std::string said;
    for (const std::string_view line : lines)
        if (const std::string_view words = kaal(line); !words.empty())
            said.append(said.empty() ? "" : " ").append(words);
    return said;
}

} // namespace

mama::mama(outside& with, formulieren& forms)
    : form(with, "mama"),
      oefeningen([&with] { return with.seconds_since_midnight(); }),
      forms_(forms),
      globalen_(forms.globalen) {
    leg_controls_neer();
}

void mama::zet_opschrift(std::string heading, std::string title, bool info_allowed) {
    opschriftbalk.caption = std::move(heading);
    caption = std::move(title);
    info_allowed_ = info_allowed;
    info.enabled = info_allowed;
}

// ---- loading and activation ----

void mama::load() {
    about = onderwerp(globalen_.gekozen_onderdeel);
    merk.mark = kies_opgave.mark = merkteken(globalen_.gekozen_onderdeel);
    toon_opgave(false);
    zet_toon(tone::neutral);
    plaatje.reset();
    wis_berichten(0, leeg);
    info.visible = globalen_.booklets();
    info.enabled = info_allowed_;
    score.enabled = true;
    taakkiezen_label.visible = false;
    uitleggeven.visible = false;
    uitleg_bericht.caption.clear();
    Timer1.stop();
    Timer2.stop();
    toon_rekenmachine(false);
    for (label& line : vraag) line.caption.clear();
    for (int i = 1; i <= 4; ++i) {
        sluit_keuze(i, answer_result::open);
        knop[i].accessible_name.clear();
        alternatief[i].caption.clear();
    }
    vul_lijst();
    focus = &presentatielijst;
}

// With the titles of the list that is chosen; none is selected.
void mama::vul_lijst() {
    presentatielijst.items.clear();
    presentatielijst.selected = -1;
    presentatielijst.enabled = true;
    presentatielijst.description = kies_opgave.caption;
    lijst_ = zoek_lijst(globalen_.gekozen_pakket, globalen_.gekozen_onderdeel);
    if (lijst_ != nullptr)
        for (const std::string_view title : titels(*lijst_, toeval)) presentatielijst.items.emplace_back(title);
    presentatielijst.row_height = rij_hoogte(presentatielijst.items.size());
    merk_titels();
}

// Marks what became of each title so far.
void mama::merk_titels() {
    using enum list_box::item_mark;
    presentatielijst.marks.clear();
    for (const std::string& title : presentatielijst.items) {
        const int best = globalen_.beste_poging(title);
        presentatielijst.marks.push_back(best == 0 ? none : best == 1 ? first : later);
    }
}

void mama::activate() {
    globalen_.wis_score();
    merk_titels();
    plaatje.clear();
    wis_berichten(1, leeg);
    score_bekeken = "nee";
}

// ---- presenting an exercise ----

void mama::presentatielijst_keypress(int key) {
    if (key == list_box::enter_key) presentatielijst_click();
}

void mama::presentatielijst_click() {
    const auto selected = static_cast<std::size_t>(presentatielijst.selected);
    if (selected >= presentatielijst.items.size()) return;

    forms_.get<scoreblad>().unload(); // it would lie over the new picture
    toon_opgave(true);
    uitleg_bericht.colour = donkerblauw;
    uitleg_bericht.caption = "UITLEG/BERICHT";
    uitleggeven.visible = false;
    zet_toon(tone::neutral);
    wis_berichten(0, "");

    presentatielijst.description.clear();
    globalen_.gekozen_oefening = presentatielijst.items[selected];
    maak(lijst_ == nullptr ? std::nullopt
                           : zoek_generator(*lijst_, presentatielijst.selected, globalen_.gekozen_oefening));

    const double points = vraag_punten(vraagregels);
    for (int i = 1; i <= 7; ++i) {
        vraag[i].caption = vraagregels[static_cast<std::size_t>(i - 1)];
        vraag[i].font_size = points;
    }
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
    juiste_letter = antwoordletter(right);
    for (int i = 1; i <= 4; ++i) {
        alternatief[i].caption = antwoord(juiste_positie == 0 ? getoond_antwoord(i, right) : i);
        alternatief[i].visible = true;
        knop[i].enabled = alternatief[i].enabled = true;
        knop[i].result = answer_result::open;
        knop[i].accessible_name = antwoordletter(i) + ":" + alternatief[i].caption;
    }
    const std::string gevraagd = in_een_zin(std::array{in_een_zin(vraagregels), read_picture(plaatje)});
    for (button& each : knop) each.description = gevraagd;
    leg_antwoorden_neer({antwoord_1, antwoord_2, antwoord_3, antwoord_4}, hulpmiddel == "REKENMACHINE");
}

void mama::toon_rekenmachine(bool shown) {
    rekenmachine.visible = display.visible = shown;
    for (button& key : k) key.visible = shown;
    ververs_display();
    // The keyboard belongs to the calculator while it is shown; with Alt, A to D go on answering.
    for (int i = 1; i <= 4; ++i) {
        const std::string letter = antwoordletter(i);
        knop[i].keys = shown ? "" : letter + std::to_string(i);
        knop[i].mnemonic = shown ? letter[0] : '\0';
    }
}

void mama::ververs_display() {
    const displaytekst shown = leg_display(rekenmachine_.display(), display_breedte);
    display.caption = shown.tekst;
    display.font_size = shown.punten;
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
        sluit_opgave();
        announcement = bericht[0].caption;
        focus = &uitleggeven;
        return;
    }
    uitleg_bericht.caption = "BERICHT";
    uitleg_bericht.colour = bericht[0].colour = kleur_fout;
    zet_toon(tone::wrong);
    if (!tips)
        schrijf_berichten(foutregels(getoond_antwoord(i, right)), kleur_fout);
    else if (pogingen == 1)
        schrijf_berichten(tipregels_1, kleur_fout);
    else if (pogingen == 2)
        schrijf_berichten(tipregels_2, kleur_fout);
    else if (pogingen == 3) {
        wis_berichten(1, leeg);
        bericht[1].colour = kleur_fout;
        bericht[1].caption = nog_een_over[i - 1];
    }
    sluit_keuze(i, answer_result::tried);
    announcement = gesproken_berichten(0);
}

// The exercise has ended, by the right answer or by the clock: what is left is its explanation, or the next title.
void mama::sluit_opgave() {
    uitleg_bericht.caption = "UITLEG";
    uitleg_bericht.colour = bericht[0].colour = kleur_goed;
    zet_toon(tone::right);
    for (int i = 1; i <= 4; ++i)
        if (knop[i].result == answer_result::open)
            sluit_keuze(i, antwoordletter(i) == juiste_letter ? answer_result::right : answer_result::unused);
    for (int i = 1; i <= 6; ++i) bericht[i].subdued = true;
    presentatielijst.enabled = uitleggeven.visible = true;
}

void mama::sluit_keuze(int i, answer_result as) {
    knop[i].enabled = alternatief[i].enabled = false;
    knop[i].result = as;
    knop[i].accessible_name += as == answer_result::tried ? ", fout" : as == answer_result::right ? ", goed" : "";
}

void mama::zet_toon(tone of_answer) {
    berichtvlak.tone = uitleg_bericht.tone = bericht[0].tone = of_answer;
    berichtvlak.quiet = of_answer == tone::neutral;
}

void mama::wis_berichten(int first, std::string_view with) {
    for (int i = first; i <= 6; ++i) bericht[i].caption = with;
}

// The first six lines; the seventh of an array is never shown.
void mama::schrijf_berichten(const tekstregels& lines, kleur colour) {
    for (int i = 1; i <= 6; ++i) {
        bericht[i].colour = colour;
        bericht[i].subdued = false;
        bericht[i].caption = lines[static_cast<std::size_t>(i - 1)];
    }
}

std::string mama::gesproken_berichten(int first) {
    std::vector<std::string> lines;
    for (int i = first; i <= 6; ++i) lines.push_back(bericht[i].caption);
    return in_een_zin(lines);
}

// ---- explanation and score ----

void mama::uitleggeven_click() {
    Timer1.stop();
    teken_opdrachten(plaatje, uitlegopdrachten);
    schrijf_berichten(uitlegregels, kleur_uitleg);
    announcement = gesproken_berichten(1);

    globalen_.tel_uitslag(pogingen);
    merk_titels();
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
        const int left = tijdlimiet - tijdteller;
        if (!uitleggeven.visible && (left == 3 || (left > 3 && left == tijdlimiet / 2)))
            announcement = regel("Nog", left, " tellen.");
        return;
    }
    plaatje.text_size = 20;
    plaatje.fore_colour = geel;
    plaatje.print_at(1800, 1500, "Jammer....!");
    Timer1.stop();
    pogingen = 4;
    ++globalen_.goed_poging_4;
    bericht[0].caption.clear();
    // Where a key that is just being pressed does nothing; Tab leads on to the explanation. A pupil who has answered
    // and gone on is left be.
    if (!uitleggeven.visible) focus = &uitleg_bericht;
    sluit_opgave();
    announcement = regel("De tijd is om. Het goede antwoord was ", juiste_letter, ".");
}

// ---- leaving ----

void mama::stopteken_click() { forms_.vraag_of_stoppen(*this); }

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
    if (te_bekijken != 0 && score_bekeken != "ja")
        ask({"Resultaten bekijken...?", globalen_.gekozen_pakket, box_buttons::yes_no},
            [this](box_answer look) { look == box_answer::yes ? score_click() : ga_terug(); });
    else
        ga_terug();
}

void mama::ga_terug() {
    toon_menu(forms_);
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
    toon_inleiding(forms_, boekje);
}

void mama::k_click(int key) {
    const calculator::message message = rekenmachine_.press(key);
    ververs_display();
    if (message == calculator::message::too_many_digits)
        ask({"te veel cijfers", globalen_.gekozen_pakket});
    else if (message == calculator::message::division_by_zero)
        ask({"delen door nul kan niet!", globalen_.gekozen_pakket});
}

void mama::toon_aantalvragengedaan() { ask({regel("aantalvragengedaan =", globalen_.aantalvragengedaan)}); }

} // namespace cijferwerf
