// The catalogue: which titles each booklet and task offers, in which order, and which generator each title runs.
// It does not show the list; the practice screen does.
#pragma once

#include "generators/oefeningen.h"
#include "globals/globalen.h"

#include <array>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace cijferwerf {

struct catalogue_entry {
    std::string_view title;
    oefening_id generator;
};

// A few titles, in the order in which they are shown.
class titles {
public:
    template<class... Title>
    constexpr titles(Title... title) : titles_{title...},
                                       count_(sizeof...(title)) {}

    auto begin() const { return titles_.begin(); }
    auto end() const { return titles_.begin() + count_; }

private:
    std::array<std::string_view, 7> titles_;
    std::ptrdiff_t count_;
};

// One of the three choices of a group is drawn each time the list is built.
struct review_group {
    titles a, b, c;
};

struct catalogue_list {
    std::string_view set;     // title of the course set
    std::string_view key;     // "boekje01" to "boekje12", "taak01" to "taak20"
    std::string_view heading; // shown above it
    std::span<const catalogue_entry> entries;
    // A review task has no entries of its own, but these groups, and the lists of the tasks that it reviews.
    std::span<const review_group> groups = {};
    std::span<const std::span<const catalogue_entry>> reviewed = {};

    bool drawn() const { return !groups.empty(); }
};

// All 32 lists, booklets first.
std::span<const catalogue_list> catalogue();

// The list of this key, or none when the set is no course set or holds no such key.
const catalogue_list* zoek_lijst(std::string_view set, std::string_view key);

// The choice of a group that a fraction in [0, 1) stands for.
titles geloot(const review_group& group, float fraction);

// The titles to show: all of them in order, or for a review task one choice drawn from each group.
std::vector<std::string_view> titels(const catalogue_list& list, random_draws& toeval);

// The generator that an entry of a shown list runs: by its position, or in a review task by its title, of which the
// first in the reviewed tasks wins. None where there is no such position or title.
std::optional<oefening_id> zoek_generator(const catalogue_list& list, int position, std::string_view title);

} // namespace cijferwerf
