#pragma once

#include "platform/foundation/Environment.hpp"
#include "platform/widgets/StaticConfiguration.hpp"

#include <memory>
#include <optional>
#include <string>

namespace CLI {
class App;
}

namespace cli {

/// What the commands about one widget have in common: which one, and in which world.
struct WidgetOptions {
    std::string kind;
    std::optional<std::string> state;  // file of the snapshot, "-" for standard input
    std::optional<double> now;         // seconds since 2001-01-01 00:00:00 UTC

    void addKind(CLI::App& command);
    void addState(CLI::App& command);
    void addNow(CLI::App& command);

    /// Throws Failure when there is no widget of this kind.
    widgets::StaticConfiguration widget() const;
};

/// The world that the options describe: the process's own, but for what they name.
class OptionsEnvironment {
  public:
    /// Throws Failure for a time that is no number.
    explicit OptionsEnvironment(const WidgetOptions& options);

    operator const foundation::Environment&() const { return environment_; }

  private:
    std::unique_ptr<const foundation::FileManager> files_;
    std::unique_ptr<const foundation::Clock> clock_;
    foundation::Environment environment_;
};

}  // namespace cli
