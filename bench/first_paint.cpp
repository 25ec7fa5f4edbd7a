// Starts a program and tells how long it took until its window was mapped and until it showed something, and what
// memory it then holds and how large the window is. Waits for events of the X server only, so the program is not slowed
// down by being watched. usage: first_paint PROGRAM [ARGUMENT]...   prints: MAPPED_MS PAINTED_MS RESIDENT_KIB WIDTH
// HEIGHT
#include <xcb/damage.h>
#include <xcb/xcb.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <memory>
#include <poll.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using std::chrono::steady_clock;
using milliseconds = std::chrono::duration<double, std::milli>;

constexpr int patience_ms = 30'000;
constexpr int settle_ms = 1'000; // after the first paint, before the memory is read
constexpr std::uint16_t least_width = 200, least_height = 150;

struct free_it {
    void operator()(void* reply) const { std::free(reply); }
};
template<class Reply>
using reply = std::unique_ptr<Reply, free_it>;

class watched_screen {
public:
    watched_screen() : connection_(xcb_connect(nullptr, nullptr)) {
        if (xcb_connection_has_error(connection_) != 0) {
            std::fputs("first_paint: no X display\n", stderr);
            std::exit(2);
        }
        const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
        const std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(connection_, root, XCB_CW_EVENT_MASK, &events);
        const auto version = xcb_damage_query_version(connection_, 1, 1);
        reply<xcb_damage_query_version_reply_t>(xcb_damage_query_version_reply(connection_, version, nullptr));
        damage_event_ = xcb_get_extension_data(connection_, &xcb_damage_id)->first_event + XCB_DAMAGE_NOTIFY;
        xcb_flush(connection_);
    }
    watched_screen(const watched_screen&) = delete;
    watched_screen& operator=(const watched_screen&) = delete;
    ~watched_screen() { xcb_disconnect(connection_); }

    // Takes up the events that have come, or come within so many milliseconds.
    void look(int wait_ms) {
        pollfd waiting{xcb_get_file_descriptor(connection_), POLLIN, 0};
        xcb_flush(connection_);
        poll(&waiting, 1, wait_ms);
        while (const reply<xcb_generic_event_t> event{xcb_poll_for_event(connection_)}) {
            const int kind = event->response_type & 0x7F;
            if (kind == XCB_MAP_NOTIFY && window_ == XCB_NONE)
                watch(reinterpret_cast<const xcb_map_notify_event_t*>(event.get())->window);
            else if (kind == damage_event_) {
                xcb_damage_subtract(connection_, damage_, XCB_NONE, XCB_NONE);
                look_for_paint();
            }
        }
    }

    bool is_painted() const { return painted != steady_clock::time_point(); }

    steady_clock::time_point mapped, painted; // once they happened
    std::uint16_t width = 0, height = 0;      // in pixels, of the window when it was mapped

private:
    void watch(xcb_window_t window) {
        const reply<xcb_get_geometry_reply_t> geometry{
            xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, window), nullptr)};
        if (!geometry || geometry->width < least_width || geometry->height < least_height) return;
        mapped = steady_clock::now();
        width = geometry->width;
        height = geometry->height;
        window_ = window;
        damage_ = xcb_generate_id(connection_);
        xcb_damage_create(connection_, damage_, window, XCB_DAMAGE_REPORT_LEVEL_NON_EMPTY);
        look_for_paint();
    }

    // Painted is what has more than one colour.
    void look_for_paint() {
        if (is_painted()) return;
        const reply<xcb_get_geometry_reply_t> size{
            xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, window_), nullptr)};
        if (!size) return;
        const auto asked = xcb_get_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, window_, 0, 0, size->width,
                                         size->height, ~std::uint32_t{0});
        const reply<xcb_get_image_reply_t> image{xcb_get_image_reply(connection_, asked, nullptr)};
        if (!image) return;
        const std::uint8_t* const bytes = xcb_get_image_data(image.get());
        const auto length = static_cast<std::size_t>(xcb_get_image_data_length(image.get()));
        constexpr std::size_t pixel = 4;
        if (length > pixel && std::memcmp(bytes, bytes + pixel, length - pixel) != 0) painted = steady_clock::now();
    }

    xcb_connection_t* connection_;
    int damage_event_ = 0;
    xcb_window_t window_ = XCB_NONE;
    xcb_damage_damage_t damage_ = XCB_NONE;
};

pid_t start(char** command) {
    const pid_t child = fork();
    if (child != 0) return child;
    const int nowhere = open("/dev/null", O_RDWR);
    for (const int stream : {0, 1, 2}) dup2(nowhere, stream);
    execvp(command[0], command);
    _exit(127);
}

long resident_kib(pid_t process) {
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmRSS:")) return std::atol(line.c_str() + 6);
    return -1;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fputs("usage: first_paint PROGRAM [ARGUMENT]...\n", stderr);
        return 2;
    }
    watched_screen screen;
    const auto begin = steady_clock::now();
    const auto gone = [&begin] { return milliseconds(steady_clock::now() - begin).count(); };
    const pid_t child = start(argv + 1);
    bool ended = false;
    while (!screen.is_painted() && !ended && gone() < patience_ms) {
        screen.look(20);
        ended = waitpid(child, nullptr, WNOHANG) == child;
    }
    if (!screen.is_painted()) {
        if (!ended) {
            kill(child, SIGTERM);
            waitpid(child, nullptr, 0);
        }
        std::fprintf(stderr, "first_paint: %s showed no window\n", argv[1]);
        return 1;
    }
    const double settled = gone() + settle_ms;
    while (gone() < settled) screen.look(20);
    const long resident = resident_kib(child);
    kill(child, SIGTERM);
    waitpid(child, nullptr, 0);
    std::printf("%.1f %.1f %ld %d %d\n", milliseconds(screen.mapped - begin).count(),
                milliseconds(screen.painted - begin).count(), resident, screen.width, screen.height);
}
