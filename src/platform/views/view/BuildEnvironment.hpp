#pragma once

#include "platform/foundation/Environment.hpp"

namespace views {

/// What the views being built see of the outside world. Requires a BuildScope on this thread;
/// without one the process stops.
const foundation::Environment& buildEnvironment();

/// While it lives, views on this thread are built against `environment`. Scopes nest.
class BuildScope {
  public:
    explicit BuildScope(const foundation::Environment& environment);
    ~BuildScope();
    BuildScope(const BuildScope&) = delete;
    BuildScope& operator=(const BuildScope&) = delete;

  private:
    const foundation::Environment* outer_;
};

}  // namespace views
