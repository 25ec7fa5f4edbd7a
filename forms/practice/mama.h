// The practice screen: lists the titles of a booklet or task, presents the exercise that is picked, checks the answers,
// runs the clock of quick exercises, draws the explanation and scores it.
// What an exercise asks is left to its generator, what it looks like on a screen to the front end.
#pragma once

#include "calculator/calculator.h"
#include "forms/formulieren.h"
#include "forms/practice/catalogue.h"
#include "runtime/form.h"

namespace cijferwerf {

class mama : public form, public oefeningen {
public:
    mama(outside& with, formulieren& forms);

    // What the menu that opens the screen puts on it: heading, title bar, and whether `info` may ever be enabled.
    void zet_opschrift(std::string heading, std::string title, bool info_allowed);

    void close_requested() override { stopteken_click(); }

    void presentatielijst_click();
    void presentatielijst_keypress(int key);
    void knop_click(int i);
    void alternatief_click(int i);
    void k_click(int key);
    void uitleggeven_click();
    void info_click();
    void score_click();
    void stopteken_click();
    void terug_click();
    void terug_hover();
    void Timer1_tick();
    void Timer2_tick();
    void toon_aantalvragengedaan(); // a diagnostic that no control calls

    // The exercise that is open: the right button's letter, the answers given, and the ticks gone by.
    std::string juiste_letter = "A";
    int pogingen = 0;
    int tijdteller = 0;
    std::string score_bekeken = "nee";

    frame kopbalk, vraagvlak, berichtvlak, rekenmachine;
    button terug, info, score, stopteken, uitleggeven;
    label merk, opschriftbalk, kies_opgave, taakkiezen_label, uitleg_bericht, display;
    list_box presentatielijst;
    control_array<label, 1, 7> vraag;
    control_array<button, 1, 4> knop;
    control_array<label, 1, 4> alternatief;
    control_array<button, 0, 20> k;
    control_array<label, 0, 6> bericht;
    timer Timer1, Timer2;

protected:
    void load() override;
    void activate() override;

private:
    // Places and sizes; in mama_layout.cpp.
    void leg_controls_neer();
    void leg_toetsen_neer();
    void leg_antwoorden_neer(const std::array<std::string, 4>& antwoorden, bool naast_rekenmachine);
    // An exercise, or else the sentence that asks to choose one.
    void toon_opgave(bool shown);

    void vul_lijst();
    void merk_titels();
    void zet_toon(tone of_answer);
    void wis_berichten(int first, std::string_view with);
    void schrijf_berichten(const tekstregels& lines, kleur colour);
    // What is shown from this element of bericht on, as a screen reader says it.
    std::string gesproken_berichten(int first);
    void plaats_antwoorden();
    void ga_terug();
    void toon_rekenmachine(bool shown);
    void ververs_display();
    void sluit_opgave();
    void sluit_keuze(int i, answer_result as);

    formulieren& forms_;
    GLOBALEN& globalen_;
    const catalogue_list* lijst_ = nullptr;
    bool info_allowed_ = true;
    calculator rekenmachine_;
};

} // namespace cijferwerf
