#include "tests/support/exercise_rows.h"

namespace cijferwerf {

namespace {

constexpr int least = 840, most = 30'000;

// The option is the answer, or what stands behind its word in the picture.
bool fits(const outcome& wanted, const std::string& answer, const std::string& option, const std::string& right) {
    if (const auto* text = std::get_if<std::string>(&wanted)) return answer == *text || option == *text;
    if (const auto* told = std::get_if<told_numbers>(&wanted)) {
        const auto found = find_pattern("^" + option + "^", "^" + told->pattern + "^");
        return found && std::ranges::equal(found->numbers, told->numbers, same);
    }
    const auto number = number_of(option);
    if (const auto* value = std::get_if<double>(&wanted)) return number && same(*number, *value);
    if (const auto* may_be = std::get_if<bool>(&wanted)) return *may_be;
    switch (std::get<lies>(wanted)) {
    case lies::below: return number && number < number_of(right);
    case lies::above: return number && number > number_of(right);
    default: return option != right;
    }
}

bool has(std::string_view text, std::string_view piece) { return find_pattern(text, piece).has_value(); }

// A pattern with the words that were read for $a, $b, ..., and the right answer for $=.
std::string filled(std::string pattern, const reading& now) {
    for (std::size_t at = 0; (at = pattern.find('$', at)) != pattern.npos; ++at) {
        const char which = pattern[at + 1];
        if (which == '=') pattern.replace(at, 2, now.exercise.right);
        if (which >= 'a') pattern.replace(at, 2, now.words.at(static_cast<std::size_t>(which - 'a')));
    }
    return pattern;
}

// One row and what it has met so far.
class row_checker {
public:
    explicit row_checker(const exercise_row& row) : row_(row), met_(row.wrong.size()) {
        if (row_.of.empty())
            for (int i = 1; i <= row_.variants; ++i) row_.of.push_back(i);
    }

    void look(const seen& e) {
        const auto which = std::ranges::find(row_.of, e.made.variant);
        if (which == row_.of.end()) return;
        const auto place = static_cast<std::size_t>(which - row_.of.begin());
        const std::string sheet = e.sheet();
        const auto found = find_pattern(sheet, row_.reads);
        ASSERT_TRUE(found) << "reads: " << sheet;
        reading now{e, found->numbers, found->words};
        for (const formula& count : row_.counts) now.numbers.push_back(count.in(now));
        note(now, place);

        const auto options = e.options();
        const auto right_place = static_cast<std::size_t>(e.right_place() - 1);
        now.option = options[right_place];
        now.place = e.right_place();
        const outcome right = row_.right(now);
        if (!std::holds_alternative<lies>(right)) {
            EXPECT_TRUE(fits(right, e.right, options[right_place], "")) << "right is " << testing::PrintToString(right);
        }
        for (int i = 1; i <= 4; ++i)
            if (i != e.right_place() && !row_.wrong.empty())
                look_at_mistake(now, i, options[static_cast<std::size_t>(i - 1)], options[right_place]);
        look_at_explanation(now);
        look_at_tips(e);
        EXPECT_EQ(e.made.tijdlimiet, row_.ticks.empty() ? 0 : row_.ticks[row_.ticks.size() == 1 ? 0 : place]);
        EXPECT_EQ(e.made.hulpmiddel, row_.calculator ? "REKENMACHINE" : leeg);
        if (row_.check) row_.check(now);
    }

    // What is still to be met, or nothing.
    std::string missing() const {
        std::string all;
        for (std::size_t i = 0; i < met_.size(); ++i)
            if (!met_[i]) all += regel("a mistake never made: ", row_.wrong[i].piece, "\n");
        for (std::size_t place = 0; place < row_.of.size(); ++place)
            for (std::size_t i = 0; i < ranges_of(place).size(); ++i) {
                const span& wanted = ranges_of(place)[i];
                const auto at = seen_.find({row_.ranges.size() == 1 ? 0 : place, i});
                if (at == seen_.end())
                    all += "fewer numbers are read than have a range\n";
                else if (at->second.smallest > wanted.smallest + wanted.near ||
                         at->second.largest < wanted.largest - wanted.near)
                    all += "sub-variant" + testing::PrintToString(row_.of[place]) + ", v[" + std::to_string(i) +
                           "]: drawn from " + testing::PrintToString(at->second.smallest) + " to " +
                           testing::PrintToString(at->second.largest) + "\n";
            }
        for (std::size_t i = 0; i < row_.words.size(); ++i)
            if (const std::size_t different = i < words_.size() ? words_[i].size() : 0; different != row_.words[i])
                all += "different words " + std::to_string(i) + ": " + std::to_string(different) + "\n";
        if (!row_.tips.empty() && !tips_met_) all += "never a tip\n";
        return all;
    }

private:
    const std::vector<span>& ranges_of(std::size_t place) const {
        static const std::vector<span> none;
        if (row_.ranges.empty()) return none;
        return row_.ranges[row_.ranges.size() == 1 ? 0 : place];
    }
    void note(const reading& now, std::size_t place) {
        const std::vector<span>& ranges = ranges_of(place);
        for (std::size_t i = 0; i < now.numbers.size(); ++i) {
            const bool inside = i >= ranges.size() || (now[i] >= ranges[i].smallest && now[i] <= ranges[i].largest);
            EXPECT_TRUE(inside) << "v[" << i << "] is " << now[i];
            const auto [at, first] = seen_.try_emplace({row_.ranges.size() == 1 ? 0 : place, i}, span{now[i], now[i]});
            at->second.smallest = std::min(at->second.smallest, now[i]);
            at->second.largest = std::max(at->second.largest, now[i]);
        }
        words_.resize(std::max(words_.size(), now.words.size()));
        for (std::size_t i = 0; i < now.words.size(); ++i) words_[i].insert(now.words[i]);
    }
    void look_at_mistake(reading now, int place, const std::string& option, const std::string& right) {
        const std::string answer = now.exercise.answer(place), feedback = now.exercise.feedback(place);
        now.option = option;
        now.place = place;
        const auto tells = [&](const std::vector<double>& found, const std::vector<formula>& wanted) {
            return wanted.empty() || std::ranges::equal(found, wanted, [&](double number, const formula& f) {
                       return same(number, f.in(now));
                   });
        };
        std::set<std::string> pieces;
        bool explained = false;
        for (std::size_t i = 0; i < row_.wrong.size(); ++i) {
            const auto& [piece, value, numbers] = row_.wrong[i];
            const auto found = find_pattern(feedback, filled(piece, now));
            if (!feedback.empty() && (piece.empty() || !found)) continue;
            pieces.insert(feedback.empty() ? "" : piece);
            if (!fits(value(now), answer, option, right) || (found && !tells(found->numbers, numbers))) continue;
            explained = met_[i] = true;
        }
        EXPECT_EQ(pieces.size(), 1U) << "rows for \"" << feedback << "\" at " << answer;
        EXPECT_TRUE(explained) << answer << " is not the mistake of \"" << feedback << "\"";
    }
    void look_at_explanation(const reading& now) const {
        if (row_.explains.empty()) return;
        std::string told = now.exercise.explanation;
        for (const std::string& word : now.exercise.when_explained().words) told += "| " + word + " ";
        for (const auto& [pattern, numbers] : row_.explains) {
            const auto found = find_pattern(told, filled(pattern, now));
            ASSERT_TRUE(found) << "explains: " << pattern << " in " << told;
            ASSERT_EQ(found->numbers.size(), numbers.size()) << pattern;
            for (std::size_t i = 0; i < numbers.size(); ++i)
                EXPECT_TRUE(same(found->numbers[i], numbers[i].in(now)))
                    << pattern << ": number " << i << " is " << numbers[i].in(now);
        }
    }
    void look_at_tips(const seen& e) {
        const std::string first = joined(e.made.tipregels_1), second = joined(e.made.tipregels_2);
        if (first.empty()) return;
        tips_met_ = true;
        ASSERT_EQ(row_.tips.size(), 2U) << "a row for the tips";
        if (*row_.tips[0] == 0) {
            EXPECT_TRUE(second.starts_with(first)) << second;
        } else {
            EXPECT_TRUE(has(first, row_.tips[0]) && !has(second, row_.tips[0])) << first;
        }
        EXPECT_TRUE(has(second, row_.tips[1]) && !has(first, row_.tips[1])) << second;
    }

    exercise_row row_;
    std::vector<bool> met_;                                    // of the mistakes
    std::map<std::pair<std::size_t, std::size_t>, span> seen_; // by sub-variant and number
    std::vector<std::set<std::string>> words_;
    bool tips_met_ = false;
};

class row_test : public testing::Test {
public:
    explicit row_test(exercise_row row) : row_(std::move(row)) {}

    void TestBody() override {
        oefeningen maker([] { return 43'200.0F; });
        maker.toeval.restart(1971);
        row_checker checker(row_);
        for (int i = 0; i < most && (i < least || (i % 100 == 0 && !checker.missing().empty()) || i % 100 != 0); ++i) {
            maker.maak(row_.id);
            const seen exercise(maker);
            EXPECT_EQ(maker.variant, i % row_.variants + 1);
            checker.look(exercise);
            if (!HasFailure()) continue;
            ADD_FAILURE() << "exercise " << i + 1 << ", sub-variant " << maker.variant << ": " << exercise.sheet()
                          << "-> " << exercise.right << " of " << testing::PrintToString(exercise.answers()) << " | "
                          << exercise.explanation;
            return;
        }
        EXPECT_EQ(checker.missing(), "");
    }

private:
    exercise_row row_;
};

} // namespace

formula place_of(const formula& value, std::vector<formula> among) {
    return [=](const reading& of) {
        std::vector<double> all;
        for (const formula& each : among) all.push_back(each.in(of));
        const auto found = std::ranges::find(all, value.in(of));
        return std::ranges::count(all, value.in(of)) == 1 ? found - all.begin() + 1 : 0;
    };
}

double rounded(double value, int decimals) {
    const double scale = std::pow(10, decimals);
    return std::floor(value * scale + 0.5 + 1e-9) / scale;
}

void add_test(const exercise_row& row) {
    std::string name(naam(row.id));
    for (const int each : row.of) name += regel("_", kaal(each));
    testing::RegisterTest("exercise", name.c_str(), nullptr, nullptr, __FILE__, __LINE__,
                          [row]() -> testing::Test* { return new row_test(row); });
}

} // namespace cijferwerf
