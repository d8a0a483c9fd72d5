#pragma once

#include "desktop/WidgetSource.hpp"
#include "desktop/gallery/Offers.hpp"
#include "desktop/gallery/PlacedList.hpp"

#include <gtk/gtk.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace desktop {

/// The window in which a user chooses what stands on the desktop: the widgets there are, each as it
/// looks now, and those that have been put up.
class Gallery {
  public:
    struct Requests {
        std::function<void(const std::string& kind)> add;
        std::function<void(std::size_t index)> remove;
        std::function<void()> placeAnew;
        std::function<void(int)> focusCard;  // the first one, or the last for -1
        std::function<void()> close;
    };

    /// Requires that the source outlives it.
    Gallery(WidgetSource& source, double unitsPerPoint, bool canPlace, Requests requests);
    Gallery(const Gallery&) = delete;
    Gallery& operator=(const Gallery&) = delete;
    ~Gallery();

    void present();

    /// Shows the widgets that the source has now.
    void showWidgets();

    void setUnitsPerPoint(double units);

    /// Shows the names of the widgets on the desktop.
    void showPlaced(const std::vector<std::string>& names);

    /// Says something about the last request, until the placed widgets are others.
    void say(const std::string& notice);

    GtkWindow* window() const { return window_; }

  private:
    void listen();

    Requests requests_;
    GtkWindow* window_;
    Offers offers_;
    GtkWidget* notice_;
    PlacedList placed_;
    std::optional<std::vector<std::string>> names_;  // of the placed widgets, once they are shown
};

}  // namespace desktop
