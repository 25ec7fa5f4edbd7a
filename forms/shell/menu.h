// The two menus, of booklets and of tasks: picking an entry opens the practice screen on it.
// The headings are the catalogue's, what an entry offers is the practice screen's.
#pragma once

#include "forms/formulieren.h"
#include "forms/practice/catalogue.h"

namespace cijferwerf {

// What both menus have: the bar across the top and the steps from an entry to the practice screen.
class menu : public form {
public:
    void close_requested() override { forms_.vraag_of_stoppen(*this); }

    void terug_click();
    void stoppen_click() { forms_.vraag_of_stoppen(*this); }

    frame kopbalk;
    label opschriftbalk;
    button terug, stoppen;

protected:
    menu(outside& with, formulieren& forms, std::string form_name, std::string_view set, std::string opschrift);

    // Makes a button the entry of a list: its heading and its mark.
    void leg_keuze_neer(button& entry, const std::string& array, int i, place at, double font_size);
    // The list of entry i, or none when there is no such entry.
    const catalogue_list* lijst(int i) const;
    // Opens the practice screen on entry i; an index outside sets nothing and opens nothing.
    void kies(int i);

    formulieren& forms_;

private:
    std::string_view set_;
};

class menucl : public menu {
public:
    menucl(outside& with, formulieren& forms);

    void boekje_click(int i) { kies(i); }
    // Asks the question and leaves it at that; nothing calls it.
    void bevestig_stoppen();

    control_array<button, 1, 12> boekje;

protected:
    void load() override { focus = &boekje[1]; }
};

class menusw : public menu {
public:
    menusw(outside& with, formulieren& forms);

    void plaatje_click(int i) { kies(i); }

    frame Frame1, Frame2;
    control_array<button, 1, 20> plaatje;

protected:
    void load() override;
};

// Shows the menu of the course set that is chosen.
void toon_menu(formulieren& forms);

} // namespace cijferwerf
