#pragma once

#include "desktop/card/Card.hpp"
#include "desktop/mount/Mount.hpp"

#include <functional>

namespace desktop {

/// Lets the pointer carry a card's window: by the card's background, or with the Alt key by any
/// part of it. The window follows the pointer where the windowing system tells where that is;
/// elsewhere it stays until it is dropped.
class CardDrag {
  public:
    struct Actions {
        std::function<views::Point()> place;      // of the window
        std::function<void(views::Point)> carry;  // it on the way
        std::function<void(views::Point)> drop;
    };

    /// Requires that card and mount outlive it, and that it lives as long as the card's widget.
    CardDrag(Card& card, const Mount& mount, Actions actions);
    CardDrag(const CardDrag&) = delete;
    CardDrag& operator=(const CardDrag&) = delete;

  private:
    void begin(GtkGesture* gesture, double x, double y);
    void update(double dx, double dy);
    void end(double dx, double dy);
    views::Point destination(double dx, double dy) const;

    Card& card_;
    const Mount& mount_;
    Actions actions_;
    views::Point start_;  // of the window
    views::Point grip_;   // of the pointer on the window
    bool isCarrying_ = false;
};

}  // namespace desktop
