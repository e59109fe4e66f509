// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>
#include <thread>
#include <vector>

// quorvin-first-picture ROUNDS PROGRAM…: starts the programs by turns on an X server that shows nothing else,
// and prints what each takes from its start until something stands in the middle of its window: the median,
// the best and the worst, in milliseconds. The first round warms up.

namespace {

using Clock = std::chrono::steady_clock;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr std::chrono::seconds kPatience(20);
constexpr std::chrono::milliseconds kPause(250); ///< for the server and the bus to forget the program
constexpr std::chrono::microseconds kStep(200);
constexpr int kSmallestWindow = 100;

struct Free {
    void operator()(void *answer) const { std::free(answer); }
};
template <typename Answer>
using AnswerPtr = std::unique_ptr<Answer, Free>;

struct Point {
    std::int16_t x = 0;
    std::int16_t y = 0;
};

/// The screen, and what appears on it.
class Screen {
public:
    Screen() : _connection(xcb_connect(nullptr, nullptr))
    {
        if (xcb_connection_has_error(_connection) != 0) {
            std::fputs("quorvin-first-picture: no X server\n", stderr);
            std::exit(2);
        }
        _root = xcb_setup_roots_iterator(xcb_get_setup(_connection)).data->root;
        const std::uint32_t wanted = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(_connection, _root, XCB_CW_EVENT_MASK, &wanted);
        xcb_flush(_connection);
    }
    Screen(const Screen &) = delete;
    Screen &operator=(const Screen &) = delete;
    ~Screen() { xcb_disconnect(_connection); }

    /// The middle of a window that has come since the last call; none of a menu or a helper.
    std::optional<Point> newWindow()
    {
        std::optional<Point> middle;
        while (const AnswerPtr<xcb_generic_event_t> event{xcb_poll_for_event(_connection)}) {
            if ((event->response_type & 0x7f) != XCB_MAP_NOTIFY)
                continue;
            const auto &shown = reinterpret_cast<const xcb_map_notify_event_t &>(*event);
            const AnswerPtr<xcb_get_geometry_reply_t> place{
                xcb_get_geometry_reply(_connection, xcb_get_geometry(_connection, shown.window), nullptr)};
            if (place && place->width >= kSmallestWindow && shown.override_redirect == 0)
                middle = Point{static_cast<std::int16_t>(place->x + place->width / 2),
                               static_cast<std::int16_t>(place->y + place->height / 2)};
        }
        return middle;
    }

    /// An empty screen is black.
    bool isPainted(Point where)
    {
        const auto request
            = xcb_get_image(_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, _root, where.x, where.y, 1, 1, ~0U);
        const AnswerPtr<xcb_get_image_reply_t> image{xcb_get_image_reply(_connection, request, nullptr)};
        std::uint32_t pixel = 0;
        if (image && xcb_get_image_data_length(image.get()) == sizeof pixel)
            std::memcpy(&pixel, xcb_get_image_data(image.get()), sizeof pixel);
        return (pixel & 0xffffff) != 0;
    }

private:
    xcb_connection_t *_connection;
    xcb_window_t _root = 0;
};

/// How long the program takes to its first picture; `kPatience` where none comes.
double timeOf(char *program, Screen &screen)
{
    screen.newWindow();
    const auto start = Clock::now();
    const pid_t process = ::vfork();
    if (process == 0) {
        ::execl(program, program, nullptr);
        ::_exit(127);
    }
    std::optional<Point> middle;
    while (Clock::now() - start < kPatience) {
        if (const auto come = screen.newWindow())
            middle = come;
        if (middle && screen.isPainted(*middle))
            break;
        std::this_thread::sleep_for(kStep);
    }
    const Milliseconds took = Clock::now() - start;
    ::kill(process, SIGTERM);
    ::waitpid(process, nullptr, 0);
    std::this_thread::sleep_for(kPause);
    return took.count();
}

} // namespace

int main(int argc, char **argv)
{
    const int rounds = argc > 2 ? std::atoi(argv[1]) : 0;
    if (rounds < 1) {
        std::fputs("usage: quorvin-first-picture ROUNDS PROGRAM...\n", stderr);
        return 2;
    }
    Screen screen;
    const std::vector<char *> programs(argv + 2, argv + argc);
    std::vector<std::vector<double>> times(programs.size());
    for (int round = 0; round <= rounds; ++round) {
        for (std::size_t i = 0; i < programs.size(); ++i) {
            const double took = timeOf(programs[i], screen);
            if (round > 0)
                times[i].push_back(took);
        }
    }
    for (std::size_t i = 0; i < programs.size(); ++i) {
        std::ranges::sort(times[i]);
        std::printf("%7.1f %7.1f %7.1f  %s\n", times[i][times[i].size() / 2], times[i].front(),
                    times[i].back(), programs[i]);
    }
    return 0;
}
