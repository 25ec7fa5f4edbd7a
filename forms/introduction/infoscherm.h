// An introduction screen of a booklet, one of three: a short lesson with an example that answers at once.
// Its words and its example are its lesson's. Nothing that is done here changes the practice screen.
#pragma once

#include "forms/formulieren.h"
#include "forms/introduction/les.h"

namespace cijferwerf {

class infoscherm : public form {
public:
    static constexpr int aantal = 3, regels_hoogstens = 10;

    // Number 1 to 3 of the set of a booklet that has one.
    infoscherm(outside& with, formulieren& forms, int boekje, int nummer);

    // Shows it under the heading of one of the booklets that share it.
    void toon_voor(int boekje);

    void close_requested() override { forms_.vraag_of_stoppen(*this); }

    void verder_click() { ga_naar(nummer_ + 1); }
    void terug_click() { ga_naar(nummer_ - 1); }

    voorbeeld& bij() { return *voorbeeld_; }
    const les& lesje() const { return les_; }

    frame kopbalk, vlak, kader, voorbeeldvlak;
    label merk, opschriftbalk, titel, kaderkop, stippen, stand;
    control_array<label, 1, regels_hoogstens> regels;
    control_array<label, 1, 2> kaderregels;
    button terug, verder;

protected:
    void load() override;

private:
    void leg_tekst_neer();
    void leg_voorbeeld_neer(bool cellen);
    // Another screen of the set, or before the first and after the last the practice screen.
    void ga_naar(int nummer);

    formulieren& forms_;
    const inleiding& inleiding_;
    const int nummer_;
    const les& les_;
    const std::unique_ptr<voorbeeld> voorbeeld_;
    int boekje_ = 0; // that it was opened for
};

// Shows the first introduction screen of booklet 1 to 12; for any other nothing happens.
void toon_inleiding(formulieren& forms, int boekje);

} // namespace cijferwerf
