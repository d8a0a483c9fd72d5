#include "widgethost/MainLoop.hpp"

#include <glib-unix.h>
#include <glib.h>
#include <sys/timerfd.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdint>
#include <system_error>
#include <utility>

namespace widgethost {

namespace {

using Function = std::function<void()>;

/// Seconds from 1970-01-01 to the reference date, 2001-01-01.
constexpr double referenceDate = 978307200;

void deleteFunction(void* function) {
    delete static_cast<Function*>(function);
}

Source attached(GSource* source, GSourceFunc call, Function then) {
    g_source_set_callback(source, call, new Function(std::move(then)), deleteFunction);
    g_source_attach(source, nullptr);
    return Source(source);
}

gboolean callOnDescriptor(int, GIOCondition, void* then) {
    (*static_cast<Function*>(then))();
    return G_SOURCE_CONTINUE;
}

gboolean callOnce(void* then) {
    (*static_cast<Function*>(then))();
    return G_SOURCE_REMOVE;
}

}  // namespace

void SourceDeleter::operator()(GSource* source) const {
    g_source_destroy(source);
    g_source_unref(source);
}

Source whenReadable(int descriptor, Function then) {
    return attached(g_unix_fd_source_new(descriptor, G_IO_IN),
                    reinterpret_cast<GSourceFunc>(reinterpret_cast<void (*)()>(callOnDescriptor)),
                    std::move(then));
}

Source after(std::chrono::milliseconds delay, Function then) {
    const auto wait = std::max(delay, std::chrono::milliseconds::zero()).count();
    return attached(g_timeout_source_new(static_cast<guint>(wait)), callOnce, std::move(then));
}

WallClockTimer::WallClockTimer(Function then)
    : timer_(::timerfd_create(CLOCK_REALTIME, TFD_CLOEXEC | TFD_NONBLOCK)) {
    if (!timer_)
        throw std::system_error(errno, std::generic_category(), "timerfd");
    source_ = whenReadable(timer_.number(), [this, then = std::move(then)] {
        std::uint64_t count = 0;
        // Fails with ECANCELED where the clock was set.
        const bool isEmpty = ::read(timer_.number(), &count, sizeof count) < 0 && errno == EAGAIN;
        if (!isEmpty)
            then();
    });
}

void WallClockTimer::set(std::optional<foundation::Date> instant) {
    itimerspec when{};
    if (instant) {
        // Not a moment too early: rounded up. A timer at zero would be none.
        constexpr double farAway = 1e11;
        const double seconds =
            std::clamp(instant->secondsSinceReferenceDate + referenceDate, 1.0, farAway);
        const double whole = std::floor(seconds);
        when.it_value.tv_sec = static_cast<time_t>(whole);
        when.it_value.tv_nsec =
            std::min(static_cast<long>(std::ceil((seconds - whole) * 1e9)), 999'999'999L);
    }
    ::timerfd_settime(timer_.number(), TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &when, nullptr);
}

}  // namespace widgethost
