#pragma once

#include <memory_resource>

namespace views {

/// The memory of one build, handed out piece after piece and freed as a whole: once the build has
/// ended and every piece has been given back, so that a view that is kept stays valid. Builds nest.
class BuildMemory {
  public:
    /// Where views that are made now on this thread live; on the heap where none is being built.
    static std::pmr::memory_resource* current();

    BuildMemory();
    ~BuildMemory();
    BuildMemory(const BuildMemory&) = delete;
    BuildMemory& operator=(const BuildMemory&) = delete;

  private:
    class Pieces;
    Pieces* pieces_;
    Pieces* outer_;
};

}  // namespace views
