#pragma once

#include "desktop/WidgetSource.hpp"
#include "desktop/card/Card.hpp"

#include <gtk/gtk.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace desktop {

/// The widgets there are, each as it looks now, with its name, what it is for and a button that
/// adds it.
class Offers {
  public:
    using Add = std::function<void(const std::string& kind)>;

    /// Requires that the source outlives it, and that it outlives its widget.
    Offers(WidgetSource& source, double unitsPerPoint, Add add);

    GtkWidget* widget() const { return box_; }

    /// Shows the widgets that the source has now.
    void show();
    void setUnitsPerPoint(double units);

  private:
    struct Sample {
        std::unique_ptr<Card> card;
        std::unique_ptr<widgethost::Display> display;
    };

    GtkWidget* offer(const remote::WidgetDescription& widget);
    GtkWidget* sample(const remote::WidgetDescription& widget);

    WidgetSource& source_;
    double unitsPerPoint_;
    Add add_;
    GtkWidget* box_;
    std::vector<Sample> samples_;
};

}  // namespace desktop
