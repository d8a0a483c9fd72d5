#pragma once

#include "platform/foundation/Environment.hpp"
#include "platform/views/view/BuildMemory.hpp"

namespace views {

/// What the views being built see of the outside world. Requires a BuildScope on this thread;
/// without one the process stops.
const foundation::Environment& buildEnvironment();

/// While it lives, views on this thread are built against `environment`, in a memory of their own.
/// Scopes nest.
class BuildScope {
  public:
    explicit BuildScope(const foundation::Environment& environment);
    ~BuildScope();
    BuildScope(const BuildScope&) = delete;
    BuildScope& operator=(const BuildScope&) = delete;

  private:
    const foundation::Environment* outer_;
    BuildMemory memory_;
};

}  // namespace views
