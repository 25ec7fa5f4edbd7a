// Every form in which a number enters a text, and the lenient reader that turns text back into a number.
// It does not choose between the forms: the exercise or the screen that shows the number does.
#pragma once

#include <array>
#include <concepts>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace cijferwerf {

// The text of one number, at most 31 characters, without a heap allocation.
class number_text {
public:
    constexpr number_text() = default;
    // What a function writes from a place on, whose end it returns; behind that there is room for some more.
    template<std::invocable<char*> Write>
    explicit number_text(Write write) {
        length_ = static_cast<std::uint8_t>(write(characters_.data()) - characters_.data());
    }
    constexpr operator std::string_view() const { return {characters_.data(), length_}; }

private:
    std::array<char, 39> characters_{};
    std::uint8_t length_ = 0;
};

// Whole numbers, but not bool and not characters.
template<class T>
concept whole_number =
    std::integral<T> && !std::same_as<T, bool> && !std::same_as<T, char> && !std::same_as<T, wchar_t> &&
    !std::same_as<T, char8_t> && !std::same_as<T, char16_t> && !std::same_as<T, char32_t>;

// " 5" and "-5": a number that is not negative has a blank in front.
number_text tekst(long long number);

// " 999", " 1.000", " 315.810": "." before the last three digits from 1000 on, one separator only.
number_text duizend(long long number);

// A number with exactly so many decimals (0 to 9), given as that many tenths, hundredths, ...:
// komma(1250, 2) is " 12,50", komma(-5, 1) is "-0,5", komma(123450, 2) is " 1.234,50".
number_text komma(long long scaled, int decimals);

// The same in its shortest form: komma_kort(1250, 2) is " 12,5", komma_kort(1200, 2) is " 12".
number_text komma_kort(long long scaled, int decimals);

// " 999", " 1.000", " 12.345.678": "." before every three digits.
number_text groepen(long long number);

// Euros from whole cents: " € 12,50", " € 1.234.567,05", whole euros " € 5,-", below zero " € -0,50".
number_text euro(long long cents);

// A number for a drawing command: in its shortest form with "." as decimal point and no other.
number_text punt(long long scaled, int decimals);

// The value as so many tenths, hundredths, ... (halves away from zero), ready for komma and its kin.
// Values that do not fit, and not-a-number, become 0.
long long afgerond(double value, int decimals = 0);

// The same text without blanks at its ends. The view form lives as long as the text that it is given.
number_text kaal(long long number);
number_text kaal(const number_text& number);
constexpr std::string_view kaal(std::string_view text) {
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    return text;
}

// Reads leading digits with an optional sign and an optional decimal point (blanks in front are skipped);
// whatever follows is ignored, and text without a number is 0. Never an error, never a locale.
double lees_getal(std::string_view text);

// What regel() takes: texts, whole numbers and the number forms above. bool, char and floating point are refused.
template<class T>
concept line_part = std::convertible_to<const T&, std::string_view> || whole_number<T>;

// One of them: a text is only looked at, and must outlive this.
class regeldeel {
public:
    template<line_part Part>
    constexpr regeldeel(const Part& part) {
        if constexpr (whole_number<Part>) {
            geheel_ = static_cast<long long>(part);
            maat_ = geheel;
        } else {
            const std::string_view text = part;
            tekst_ = text.data();
            maat_ = std::same_as<Part, number_text> ? text.size() | getal : text.size();
        }
    }

    // Writes itself behind the line that stands from `begin` to `end`, and returns the new end; `kaal` without blanks
    // around it. Where it is written there must be so much room.
    char* schrijf(const char* begin, char* end) const;
    char* schrijf_kaal(char* end) const;
    std::size_t ruimte() const { return (maat_ & ~(getal | geheel)) + 40; }

private:
    // Beside the length of a text stands what it is: as small as can be, because the exercises are full of them.
    static constexpr std::size_t getal = 1U << 30;
    static constexpr std::size_t geheel = 1U << 29;

    std::string_view tekst() const { return {tekst_, maat_ & ~getal}; }

    union {
        const char* tekst_;
        long long geheel_;
    };
    std::size_t maat_;
};

// A line of the exercise under way: one that stands in the program as it is, or one that is glued for this exercise. It
// is only looked at, costs nothing to hand on, and is gone when the next exercise is begun: what lives longer keeps a
// std::string, into which it turns by itself.
class plakregel {
public:
    constexpr plakregel() = default;
    constexpr plakregel(const char* literal) : text_(literal) {}
    // Of every other text a copy is glued, as no one knows how long it lives.
    template<std::convertible_to<std::string_view> Text>
    plakregel(const Text& text);
    constexpr operator std::string_view() const { return text_; }
    operator std::string() const { return std::string(text_); }
    constexpr bool empty() const { return text_.empty(); }

    friend constexpr bool operator==(const plakregel& one, const plakregel& other) { return one.text_ == other.text_; }
    template<std::convertible_to<std::string_view> Text>
    friend constexpr bool operator==(const plakregel& one, const Text& other) {
        return one.text_ == std::string_view(other);
    }

private:
    friend class kladblok;
    constexpr plakregel(const char* begin, const char* end) : text_(begin, end) {}

    std::string_view text_;
};

// The memory in which the lines of one exercise are glued: the next exercise is written over it.
class kladblok {
public:
    kladblok() = default;
    ~kladblok();
    kladblok(const kladblok&) = delete;
    kladblok& operator=(const kladblok&) = delete;

    // Forgets all that is in it.
    void vergeet();
    // The same, and from now on lines are glued here.
    void begin();

    plakregel plak(std::initializer_list<regeldeel> delen);
    plakregel plak_velden(std::initializer_list<regeldeel> delen);
    // A copy of what is no text.
    template<class Item>
    std::span<const Item> bewaar(std::span<const Item> items) {
        next_ = met_ruimte(next_, items.size_bytes() + alignof(Item));
        next_ += -reinterpret_cast<std::uintptr_t>(next_) % alignof(Item);
        auto* const to = reinterpret_cast<Item*>(next_);
        next_ = reinterpret_cast<char*>(std::uninitialized_copy(items.begin(), items.end(), to));
        return {to, items.size()};
    }

private:
    // Goes on elsewhere with the line that stands from next_ to `end`, where there is so much room behind it.
    char* verhuis(char* end, std::size_t room);
    char* met_ruimte(char* end, std::size_t room) {
        return static_cast<std::size_t>(limit_ - end) < room ? verhuis(end, room) : end;
    }
    plakregel tot(char* end) { return {std::exchange(next_, end), end}; }

    std::array<char, 16'384> first_;
    std::vector<std::unique_ptr<char[]>> more_; // once that is full
    char* next_ = first_.data();                // where the next line begins
    char* limit_ = first_.data() + first_.size();
};

// What regel() does: for good, or for the exercise under way only, which costs less.
std::string plak(std::initializer_list<regeldeel> delen);
plakregel plak_even(std::initializer_list<regeldeel> delen);
plakregel plak_velden(std::initializer_list<regeldeel> delen);

template<std::convertible_to<std::string_view> Text>
plakregel::plakregel(const Text& text) : plakregel(plak_even({text})) {}

// Glues a line from its parts in the order in which they are read. A number, whole or in one of the forms above, has
// its blank in front unless the line so far ends in one; texts go in as they stand.
template<line_part... Parts>
std::string regel(const Parts&... parts) {
    return plak({regeldeel(parts)...});
}

// The fields of a drawing command joined by "_", numbers without a blank: velden(1, 2, 3) is "1_2_3".
template<line_part... Parts>
plakregel velden(const Parts&... parts) {
    return plak_velden({regeldeel(parts)...});
}

} // namespace cijferwerf
