// Writes JSON: values, lists and objects, gathered and put on standard output in large pieces, UTF-8.
// What is written is up to the caller, who also ends the lines.
#pragma once

#include <charconv>
#include <concepts>
#include <ranges>
#include <string>
#include <string_view>
#include <utility>

namespace cijferwerf::json {

struct write_failed {};

// Gathers text and writes it in large pieces. finish() writes the rest; without it the rest is lost.
class output {
public:
    output() { pending_.reserve(full + full / 2); }

    output& operator<<(std::string_view text) {
        pending_ += text;
        return *this;
    }
    output& operator<<(char character) {
        pending_ += character;
        return *this;
    }
    void end_line() {
        pending_ += '\n';
        if (pending_.size() >= full) flush();
    }
    void finish();

private:
    static constexpr std::size_t full = 1 << 16;

    void flush();

    std::string pending_;
};

void put(output& out, std::string_view text);
inline void put(output& out, bool value) { out << (value ? "true" : "false"); }

template<class Number>
void put_number(output& out, Number value) {
    char digits[32];
    const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    out << std::string_view(digits, static_cast<std::size_t>(end - digits));
}
inline void put(output& out, int value) { put_number(out, value); }
inline void put(output& out, double value) { put_number(out, value); }

template<class List, class PutOne>
void put_list(output& out, const List& list, PutOne put_one) {
    out << '[';
    bool first = true;
    for (const auto& element : list) {
        if (!std::exchange(first, false)) out << ',';
        put_one(element);
    }
    out << ']';
}
// What the elements are must have a put() of its own, here or beside its type.
template<std::ranges::range List>
requires(!std::convertible_to<List, std::string_view>) void put(output& out, const List& list) {
    put_list(out, list, [&](const auto& element) { put(out, element); });
}

// Opens with "{"key":value" and goes on with ","key":value".
class object {
public:
    explicit object(output& out) : out_(out) {}

    template<class Value>
    object& with(std::string_view key, const Value& value) {
        name(key);
        put(out_, value);
        return *this;
    }
    object& name(std::string_view key) {
        out_ << (std::exchange(first_, false) ? '{' : ',');
        put(out_, key);
        out_ << ':';
        return *this;
    }
    void end() { out_ << '}'; }

private:
    output& out_;
    bool first_ = true;
};

} // namespace cijferwerf::json
