#pragma once

#include <memory>

struct _XDisplay;

namespace journeys {

/// A panel along the upper edge of the screen, from which windows keep away.
class Panel {
  public:
    explicit Panel(int height);

  private:
    struct Disconnect {
        void operator()(_XDisplay* display) const;
    };

    std::unique_ptr<_XDisplay, Disconnect> display_;
};

}  // namespace journeys
