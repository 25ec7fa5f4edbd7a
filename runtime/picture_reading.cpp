#include "runtime/picture_reading.h"

#include <algorithm>
#include <array>
#include <climits>

namespace cijferwerf {

namespace {

// Something to say, at the place where it stands.
struct words {
    int x, y, height;
    std::string text;
};

struct known_picture {
    std::string_view file, shows;
};
constexpr std::array<known_picture, 18> pictures{{
    {"blikjes.bmp", "Een groot conservenblik, drie kleine blikjes en een kist vol blikjes."},
    {"boodschap.bmp", "Een boodschappentas met prei, brood en melk, en een papier."},
    {"btw.bmp", "Een fiets in een winkel, met een bord ernaast."},
    {"computer.bmp", "Een computer in een winkel, met een bord ernaast."},
    {"elektriciteit_2.bmp", "Een elektriciteitsmeter, een stopcontact met een stekker, en een kaartje."},
    {"fietspad.bmp", "Een landkaart met een fietsroute die over een rivier naar een vlag slingert."},
    {"lenen.bmp", "Een bankbediende achter haar balie, met twee tekstballonnen en stapels munten."},
    {"pizza.bmp", "Een ronde pizza in een open doos."},
    {"schilder.bmp", "Een schilder op een trap verft het plafond; naast hem staat een emmer verf."},
    {"skelterbaan.bmp", "Een skelterbaan van bovenaf: twee rechte stukken, met aan elk eind een halve cirkel."},
    {"terras.bmp", "Een tuin met een rond terras, waarop een tafel, twee stoelen en een parasol staan."},
    {"terugbetalen.bmp", "Een kassa met een geldlade; op de band liggen melk, brood en kaas."},
    {"tuinman.bmp", "Een ansichtkaart: een tuinman met een mand tulpen bij een bollenveld en een molen."},
    {"vijver.bmp", "Een vijver van bovenaf, in de vorm van een halve cirkel met een rand erlangs."},
    {"volumeprocent.bmp", "Een fles met een etiket, een glas bier, een glas wijn en een klein glas."},
    {"wachten.bmp", "Een horloge met cijfers en een bord met vertrektijden op een vliegveld."},
    {"watertank.bmp", "Een watertank in een tuin, met een kraan en een emmer eronder."},
    {"wisselen.bmp", "Een winkelier met bankbiljetten aan de balie van een bank, waarop munten liggen."},
}};

std::string_view shown_by(std::string_view file) {
    const auto* known = std::ranges::find(pictures, file, &known_picture::file);
    return known == pictures.end() ? "" : known->shows;
}

words words_of(const text_op& text) { return {text.x, text.y, text_height(text.size), std::string(text.text)}; }

std::vector<words> words_in(const drawing& shown) {
    std::vector<words> found;
    std::vector<bool> replaced(shown.operations().size());
    for (const spoken_part& part : shown.spoken) {
        words said{INT_MIN, INT_MIN, 0, std::string(part.sentence)};
        for (std::size_t at = part.first; at < std::min(part.end, replaced.size()); ++at) {
            replaced[at] = true;
            const auto* text = std::get_if<text_op>(&shown.operations()[at]);
            if (text == nullptr || (said.height > 0 && text->y >= said.y)) continue;
            said = words_of(*text);
            said.text = part.sentence;
        }
        found.push_back(said);
    }
    for (std::size_t at = 0; at < replaced.size(); ++at) {
        const drawing_op& op = shown.operations()[at];
        if (const auto* text = std::get_if<text_op>(&op); text != nullptr && !replaced[at])
            found.push_back(words_of(*text));
        if (const auto* picture = std::get_if<picture_op>(&op))
            found.push_back({INT_MIN, INT_MIN, 0, std::string(shown_by(picture->file))});
    }
    return found;
}

bool digit(char c) { return c >= '0' && c <= '9'; }

// Adds the words of a text with one blank between them, and keeps two numbers that meet apart.
void add_words(std::string& said, std::string_view text) {
    bool first = true;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find(' '), text.size());
        if (end > 0) {
            if (!said.empty()) said += first && digit(said.back()) && digit(text.front()) ? "; " : " ";
            said += text.substr(0, end);
            first = false;
        }
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

} // namespace

std::string read_picture(const drawing& shown) {
    std::vector<words> found = words_in(shown);
    // Texts within half a line's height of each other stand on one line.
    std::ranges::stable_sort(found, {}, &words::y);
    for (auto row = found.begin(); row != found.end();) {
        const int below = row->y + row->height / 2;
        const auto next = std::find_if(row, found.end(), [&](const words& each) { return each.y > below; });
        std::stable_sort(row, next, [](const words& a, const words& b) { return a.x < b.x; });
        row = next;
    }
    std::string said;
    for (const words& each : found) add_words(said, each.text);
    return said;
}

} // namespace cijferwerf
