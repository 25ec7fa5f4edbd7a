#include "forms/introduction/infoscherm.h"

#include "forms/marks.h"
#include "forms/practice/catalogue.h"
#include "forms/practice/mama.h"

#include <cctype>

namespace cijferwerf {

namespace {

constexpr place tekstkolom{480, 1080, 4950, 5430};
constexpr place voorbeeldplaats{5850, 1080, voorbeeld::paneel_breedte, voorbeeld::paneel_hoogte};
constexpr double tekst_punten = 13, kader_punten = 11.25;

// In lines of at most this width. A number stays on one line with what it counts, and no short word stands alone at the
// end.
std::vector<std::string> breek_af(std::string_view tekst, double punten, int breedte) {
    std::vector<std::string> regels;
    bool tied = false;
    std::string part;
    while (!tekst.empty()) {
        const std::size_t end = std::min(tekst.find(' '), tekst.size());
        part += (tied ? " " : "") + std::string(tekst.substr(0, end));
        tekst.remove_prefix(std::min(end + 1, tekst.size()));
        const bool number = std::isdigit(static_cast<unsigned char>(part.back())) != 0 || part.ends_with("€");
        tied = !tekst.empty() && (number || (tekst.size() <= 7 && tekst.find(' ') == std::string_view::npos));
        if (tied) continue;
        if (regels.empty() || text_width(regels.back() + ' ' + part, punten, 1.0) > breedte)
            regels.push_back(part);
        else
            regels.back() += ' ' + part;
        part.clear();
    }
    return regels;
}

// Which screen of the set this is: the disc of three that is filled.
drawing drie_stippen(int nummer, subject about) {
    constexpr int straal = 85, tussen = 330;
    drawing dots;
    dots.colours = &voorbeeldkleuren(about);
    for (int i = 1; i <= infoscherm::aantal; ++i) {
        if (i == nummer) dots.filled_circle(i * tussen, 0, straal, donker);
        dots.circle(i * tussen, 0, straal, donker);
    }
    return dots;
}

} // namespace

infoscherm::infoscherm(outside& with, formulieren& forms, int boekje, int nummer)
    : form(with, "info" + std::to_string(nummer) + "_boekje" + std::to_string(zoek_inleiding(boekje)->boekje)),
      forms_(forms),
      inleiding_(*zoek_inleiding(boekje)),
      nummer_(nummer),
      les_((*inleiding_.lessen)[static_cast<std::size_t>(nummer - 1)]),
      voorbeeld_(les_.voorbeeld_ervan()) {
    using enum theme_role;
    caption = booklet_set;
    add(kopbalk, "kopbalk", {0, 0, 12480, 720}, heading_bar);
    add(terug, "terug", {120, 150, 1140, 420}, action, "terug");
    add(merk, "merk", {1440, 120, 480, 480}, heading);
    add(opschriftbalk, "opschriftbalk", {2070, 150, 6300, 420}, heading);
    opschriftbalk.font_size = 15;
    leg_tekst_neer();
    add(voorbeeldvlak, "voorbeeldvlak", voorbeeldplaats, lesson);
    leg_voorbeeld_neer(false);

    add(stippen, "stippen", {120, 7050, 850, 420}, lesson_word);
    add(stand, "stand", {1110, 7050, 2000, 420}, body, std::to_string(nummer) + " van 3");
    stand.font_size = 12;
    add(verder, "verder", {9660, 6960, 2700, 600}, main_action, nummer == aantal ? "sommen maken" : "verder");
    verder.font_size = 14;
    leg_voorbeeld_neer(true);

    terug.keys = "\x1b";
    terug.mnemonic = 't';
    verder.keys = "\r";
    verder.mnemonic = nummer == aantal ? 's' : 'v';
    terug.click = [this] { terug_click(); };
    verder.click = [this] { verder_click(); };
}

// A paragraph is a few lines; half a line is left free between two.
void infoscherm::leg_tekst_neer() {
    using enum theme_role;
    constexpr int regelhoogte = 350;
    add(vlak, "vlak", {120, 840, 12240, 5970}, panel);
    add(titel, "titel", {tekstkolom.left, tekstkolom.top, tekstkolom.width, 560}, lesson_title,
        std::string(les_.titel));
    titel.font_size = 22;
    int used = 0;
    for (int y = 1860; const std::string_view alinea : les_.alineas) {
        for (std::string& regel : breek_af(alinea, tekst_punten, tekstkolom.width)) {
            add(regels[++used], "regels", {tekstkolom.left, y, tekstkolom.width, regelhoogte}, lesson_text,
                std::move(regel));
            regels[used].index = used;
            regels[used].font_size = tekst_punten;
            y += regelhoogte;
        }
        y += regelhoogte / 2;
    }

    add(kader, "kader", {tekstkolom.left, 5130, tekstkolom.width, 1380}, lesson);
    add(kaderkop, "kaderkop", {tekstkolom.left + 240, 5280, tekstkolom.width - 480, 350}, lesson_word,
        std::string(les_.kader.kop));
    kaderkop.font_size = tekst_punten;
    int shown = 0;
    for (std::string& regel : breek_af(les_.kader.tekst, kader_punten, tekstkolom.width - 480)) {
        label& line = kaderregels[++shown];
        add(line, "kaderregels", {tekstkolom.left + 240, 5670 + (shown - 1) * 315, tekstkolom.width - 480, 315},
            lesson_text, std::move(regel));
        line.index = shown;
        line.font_size = kader_punten;
    }
}

// The cells come last: they lie over the drawing, and the keyboard reaches everything else before them.
void infoscherm::leg_voorbeeld_neer(bool cellen) {
    for (control* each : voorbeeld_->controls()) {
        if ((each->role == theme_role::cell) != cellen) continue;
        add(*each, each->name,
            {voorbeeldplaats.left + each->left, voorbeeldplaats.top + each->top, each->width, each->height}, each->role,
            each->caption);
        if (each->click)
            each->click = [this, answer = std::move(each->click)] {
                answer();
                announcement = voorbeeld_->zin();
            };
    }
}

void infoscherm::load() {
    announcement = titel.caption + ".";
    for (const label& line : regels)
        if (!line.caption.empty()) announcement += ' ' + line.caption;
    focus = &verder;
    for (control* each : controls())
        if (each->takes_clicks() && each->usable() && each != &terug) {
            focus = each;
            break;
        }
}

void infoscherm::toon_voor(int boekje) {
    boekje_ = boekje;
    const catalogue_list& list = catalogue()[static_cast<std::size_t>(boekje - 1)];
    opschriftbalk.caption = list.heading;
    merk.mark = merkteken(list.key);
    about = onderwerp(list.key);
    stippen.mark = drie_stippen(nummer_, about);
    voorbeeld_->kleur_naar(about);
    show();
}

void infoscherm::ga_naar(int nummer) {
    if (nummer < 1 || nummer > aantal) {
        auto& oefenscherm = forms_.get<mama>();
        oefenscherm.focus = &oefenscherm.presentatielijst;
        oefenscherm.show();
    } else
        forms_.get<infoscherm>(inleiding_.boekje, nummer).toon_voor(boekje_);
    unload();
}

void toon_inleiding(formulieren& forms, int boekje) {
    if (const inleiding* found = zoek_inleiding(boekje)) forms.get<infoscherm>(found->boekje, 1).toon_voor(boekje);
}

} // namespace cijferwerf
