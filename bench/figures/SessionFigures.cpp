// What a user waits for, and what a day costs, measured on the widget host's session with the real
// extension, the session bus of the environment, and whatever host application publishes there:
//
//   session_figures press N     milliseconds from a press to changed pixels: median, 99 %, longest
//   session_figures cold N      milliseconds from the start of the extension to its first picture
//   session_figures growth N    kilobytes by which the extension and this process grow in N
//   pictures

#include "widgethost/MainLoop.hpp"
#include "widgethost/Session.hpp"

#include <glib.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using widgethost::Session;
using widgethost::Shown;

constexpr const char* volume = "nurva.volumenPorApp";

double millisecondsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// A card that is looked at.
struct Card {
    Card(Session& session, const char* kind) {
        display = session.display(kind, 2, [this](const Shown& now) { take(now); });
    }

    void take(const Shown& now) {
        ++shown;
        face = now.face ? std::optional(*now.face) : std::nullopt;
        if (!std::ranges::equal(now.pixels.argb, pixels)) {
            ++changed;
            pixels.assign(now.pixels.argb.begin(), now.pixels.argb.end());
        }
    }

    template <class Condition>
    void await(Condition condition) {
        while (!condition())
            g_main_context_iteration(nullptr, TRUE);
    }

    /// The k-th control that can be pressed and is called so.
    const intents::ArchivedAction& control(const char* label) const {
        for (const remote::Element& element : face.value().elements)
            if (element.action && element.enabled && element.label == label)
                return *element.action;
        throw std::runtime_error(std::string("nothing is called ") + label);
    }

    int shown = 0;
    int changed = 0;
    std::optional<remote::Face> face;
    std::vector<std::uint32_t> pixels;
    std::unique_ptr<widgethost::Display> display;
};

void print(std::vector<double> times) {
    std::ranges::sort(times);
    const auto at = [&](double share) {
        const auto last = static_cast<double>(times.size() - 1);
        return times[static_cast<std::size_t>(share * last)];
    };
    std::cout << at(0.5) << ' ' << at(0.99) << ' ' << times.back() << '\n';
}

void press(int count, const widgethost::SessionOptions& options) {
    Session session(options);
    Card card(session, volume);
    card.await([&] { return card.face.has_value(); });
    std::vector<double> times;
    for (int turn = 0; turn < count; ++turn) {
        const int before = card.changed;
        const auto start = Clock::now();
        card.display->press(card.control(turn % 2 == 0 ? "Bajar" : "Subir"));
        card.await([&] { return card.changed > before; });
        times.push_back(millisecondsSince(start));
        // A person does not press faster; what is left of this press is over by then.
        bool isOver = false;
        const widgethost::Source pause =
            widgethost::after(std::chrono::milliseconds(120), [&] { isOver = true; });
        card.await([&] { return isOver; });
    }
    print(times);
}

void cold(int count, const widgethost::SessionOptions& options) {
    std::vector<double> times;
    for (int turn = 0; turn < count; ++turn) {
        const auto start = Clock::now();
        Session session(options);
        Card card(session, volume);
        card.await([&] { return card.shown > 0; });
        times.push_back(millisecondsSince(start));
    }
    print(times);
}

/// Kilobytes that a process keeps in memory for itself alone.
long memory(const std::string& process) {
    std::ifstream lines("/proc/" + process + "/smaps_rollup");
    long sum = 0;
    for (std::string line; std::getline(lines, line);)
        if (line.starts_with("Private_"))
            sum += std::strtol(line.c_str() + line.find(':') + 1, nullptr, 10);
    return sum;
}

std::string child() {
    std::ifstream children("/proc/thread-self/children");
    std::string process;
    children >> process;
    return process;
}

void growth(int count, const widgethost::SessionOptions& options) {
    Session session(options);
    Card card(session, volume);
    const auto draw = [&](int pictures) {
        for (int turn = 0; turn < pictures; ++turn) {
            const int before = card.shown;
            card.display->setScale(turn % 2 == 0 ? 1 : 2);
            card.await([&] { return card.shown > before; });
        }
    };
    draw(1000);
    const long ours = memory("self");
    const long theirs = memory(child());
    draw(count);
    std::cout << memory(child()) - theirs << ' ' << memory("self") - ours << '\n';
}

}  // namespace

int main(int argumentCount, char** arguments) {
    if (argumentCount != 3) {
        std::cerr << "session_figures press|cold|growth N\n";
        return 2;
    }
    const int count = std::atoi(arguments[2]);
    const widgethost::SessionOptions options{.extension = NURVA_EXTENSION};
    const std::string what = arguments[1];
    if (what == "press")
        press(count, options);
    else if (what == "cold")
        cold(count, options);
    else
        growth(count, options);
}
