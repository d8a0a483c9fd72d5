#pragma once

#include "desktop/card/CardRequests.hpp"
#include "desktop/gtk/Reference.hpp"

#include <gtk/gtk.h>

namespace desktop {

/// The context menu of a card.
class CardMenu {
  public:
    /// Requires that it is gone before the card's widget is.
    CardMenu(GtkWidget* card, const CardRequests& requests, bool canMove);
    CardMenu(const CardMenu&) = delete;
    CardMenu& operator=(const CardMenu&) = delete;
    ~CardMenu();

    /// Opens at a point of the card.
    void open(double x, double y);

  private:
    GtkWidget* card_;
    bool canMove_;
    Reference<GSimpleActionGroup> actions_;
    GtkWidget* popover_ = nullptr;
};

}  // namespace desktop
