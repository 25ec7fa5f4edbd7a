// A pupil's day must not cost more memory than a pupil's first minutes.
#include "tests/support/practising.h"

#include <fstream>
#include <unistd.h>

namespace cijferwerf {
namespace {

long resident_kib() {
    long total = 0, resident = 0;
    std::ifstream("/proc/self/statm") >> total >> resident;
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

class memory : public practising {};

TEST_F(memory, a_hundred_thousand_exercises_leave_it_where_a_thousand_did) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizer keeps what is freed";
#endif
    if (resident_kib() == 0) GTEST_SKIP() << "this system does not tell";
    open();
    const int titles = static_cast<int>(screen.presentatielijst.items.size());
    long early = 0;
    for (int i = 0; i < 100'000; ++i) {
        if (i == 1000) early = resident_kib();
        ASSERT_TRUE(pupil.pick(screen.presentatielijst, i % titles));
        answer_right();
        explain();
    }
    EXPECT_LE(resident_kib(), early + 512);
}

} // namespace
} // namespace cijferwerf
