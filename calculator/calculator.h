// The pocket calculator: 21 keys, a display with a decimal comma, one pending operator, per cent and one memory.
// It shows no message boxes and knows no screen; whoever carries it shows what press() reports.
#pragma once

#include <string>

namespace cijferwerf {

class calculator {
public:
    static constexpr int keys = 21;

    enum class message { none, too_many_digits, division_by_zero };

    // Presses key 0 to 20; any other does nothing.
    message press(int key);
    const std::string& display() const { return display_; }

private:
    std::string display_ = "0,";
};

} // namespace cijferwerf
