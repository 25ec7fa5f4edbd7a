// Someone in a question, with the words that stand for the name: he or she, him or her, his or her.
// The names themselves stand beside the exercise that uses them.
#pragma once

#include <string_view>

namespace cijferwerf {

enum geslacht : unsigned char { man, vrouw };

// A row of a list: {"Marsha", vrouw}; and where the question names nobody: {"Een man", man}.
struct persoon {
    std::string_view naam;
    geslacht is;

    constexpr std::string_view hij() const { return is == man ? "hij" : "zij"; }
    constexpr std::string_view Hij() const { return is == man ? "Hij" : "Zij"; }
    constexpr std::string_view ze() const { return is == man ? "hij" : "ze"; } // where no stress falls
    constexpr std::string_view hem() const { return is == man ? "hem" : "haar"; }
    constexpr std::string_view zijn() const { return is == man ? "zijn" : "haar"; }
};

} // namespace cijferwerf
