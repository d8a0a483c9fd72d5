#pragma once

#include "platform/remote/Face.hpp"

#include <gtk/gtk.h>

#include <functional>

namespace desktop {

/// What lies over a card's picture for one of its elements, without drawing anything but the ring
/// of the keyboard's focus: a button that can be pressed, or a text for screen readers, which the
/// pointer does not meet.
class CardElement {
  public:
    /// Becomes a child of the card, after another one or as the first.
    CardElement(views::AccessibilityRole role,
                GtkWidget* card,
                GtkWidget* previous,
                std::function<void()> press);
    CardElement(const CardElement&) = delete;
    CardElement& operator=(const CardElement&) = delete;
    ~CardElement();

    GtkWidget* widget() const { return widget_; }
    views::AccessibilityRole role() const { return role_; }

    /// Says from now on what the element says.
    void update(const remote::Element& element);

    /// Lies over the element's frame, at so many units of the window a point.
    void allocate(const views::Rect& frame, double unitsPerPoint);

  private:
    views::AccessibilityRole role_;
    GtkWidget* widget_;
};

}  // namespace desktop
