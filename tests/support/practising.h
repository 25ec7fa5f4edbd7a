// A pupil at the practice screen, on a front end without a screen: opens it, picks titles by name, answers right or
// wrong, asks for the explanation. It judges nothing.
#pragma once

#include "forms/practice/mama.h"

#include "tests/support/fake_outside.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace cijferwerf {

class practising : public testing::Test {
protected:
    // As the menu of this set does it.
    void open(std::string_view set = booklet_set, std::string_view key = "boekje01") {
        forms.globalen.gekozen_pakket = set;
        forms.globalen.gekozen_onderdeel = key;
        const catalogue_list* list = zoek_lijst(set, key);
        screen.unload();
        screen.zet_opschrift(list == nullptr ? "" : std::string(list->heading), std::string(set), true);
        screen.open();
    }
    int position(std::string_view title) const {
        const auto& titles = screen.presentatielijst.items;
        return static_cast<int>(std::ranges::find(titles, title) - titles.begin());
    }
    bool present(std::string_view title) { return pupil.pick(screen.presentatielijst, position(title)); }
    int right() const { return screen.juiste_letter[0] - 'A' + 1; }
    // The n-th wrong button, from A on.
    int wrong(int n = 1) const { return n < right() ? n : n + 1; }
    bool answer(int i) { return pupil.click(screen.knop[i]); }
    bool answer_right() { return answer(right()); }
    bool explain() { return pupil.click(screen.uitleggeven); }
    void solve(std::string_view title, int wrong_ones) {
        present(title);
        for (int n = 1; n <= wrong_ones; ++n) answer(wrong(n));
        answer_right();
        explain();
    }

    fake_outside pupil;
    formulieren forms{pupil};
    mama& screen = forms.get<mama>();
};

} // namespace cijferwerf
