// Reads the options of a command line one by one: what each is, and its value.
// Which options there are, and what they mean, is each tool's own.
#pragma once

#include "generators/oefeningen.h"

#include <charconv>

namespace cijferwerf {

// What is wrong with a command line.
struct bad_usage {
    std::string message;
};

class arguments {
public:
    arguments(int count, char** words) : words_(words + 1, words + count) {}

    // Goes on to the next option; false after the last.
    bool next() {
        if (at_ == words_.size()) return false;
        option_ = words_[at_++];
        return true;
    }
    bool is(std::string_view option) const { return option_ == option; }
    [[noreturn]] void unknown() const { throw bad_usage{regel("unknown option \"", option_, "\"")}; }

    // The value of this option.
    std::string_view text() {
        if (at_ == words_.size()) throw bad_usage{regel(option_, " needs a value")};
        return words_[at_++];
    }
    // A folder is named by one character at least.
    std::string_view folder() {
        const std::string_view given = text();
        if (given.empty()) throw bad_usage{regel(option_, " needs a folder")};
        return given;
    }
    template<class Number>
    Number number(Number least, Number most) {
        const std::string_view given = text();
        Number value{};
        const auto [end, error] = std::from_chars(given.data(), given.data() + given.size(), value);
        if (error != std::errc{} || end != given.data() + given.size() || !(value >= least && value <= most))
            throw bad_usage{std::string(option_) + " takes a number from " + std::to_string(least) + " to " +
                            std::to_string(most) + ", not \"" + std::string(given) + "\""};
        return value;
    }
    oefening_id generator() {
        const std::string_view name = text();
        const auto found = zoek_oefening(name);
        if (!found) throw bad_usage{regel("no generator is named \"", name, "\"")};
        return *found;
    }

private:
    std::vector<std::string_view> words_;
    std::size_t at_ = 0;
    std::string_view option_;
};

} // namespace cijferwerf
