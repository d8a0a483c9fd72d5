#pragma once

#include <glib.h>

#include <functional>
#include <utility>
#include <vector>

namespace desktop {

/// Runs functions once the main loop goes on, for what must not happen in the middle of a signal.
/// What is left is dropped with its owner.
class Later {
  public:
    Later() = default;
    Later(const Later&) = delete;
    Later& operator=(const Later&) = delete;
    ~Later() {
        if (source_ != 0)
            g_source_remove(source_);
    }

    void run(std::function<void()> function) {
        functions_.push_back(std::move(function));
        if (source_ == 0)
            source_ = g_idle_add_full(G_PRIORITY_DEFAULT, &Later::runAll, this, nullptr);
    }

  private:
    static gboolean runAll(gpointer self) {
        auto* later = static_cast<Later*>(self);
        later->source_ = 0;
        for (const auto& function : std::exchange(later->functions_, {}))
            function();
        return G_SOURCE_REMOVE;
    }

    unsigned source_ = 0;
    std::vector<std::function<void()>> functions_;
};

}  // namespace desktop
