#pragma once

#include "desktop/WidgetSource.hpp"
#include "desktop/card/Card.hpp"
#include "desktop/card/CardDrag.hpp"
#include "desktop/card/CardMenu.hpp"
#include "desktop/card/CardRequests.hpp"
#include "desktop/gtk/Connect.hpp"
#include "desktop/mount/Mount.hpp"

#include <gtk/gtk.h>

#include <memory>
#include <optional>
#include <string>

namespace desktop {

/// A widget on the desktop: its card in a window of its own, kept up to date as long as it lives.
class CardWindow {
  public:
    struct Widget {
        std::string kind;
        std::string name;
        views::Size size;
    };

    /// Requires that source and mount outlive it.
    CardWindow(const Widget& widget,
               double unitsPerPoint,
               WidgetSource& source,
               Mount& mount,
               CardRequests requests);
    CardWindow(const CardWindow&) = delete;
    CardWindow& operator=(const CardWindow&) = delete;
    ~CardWindow();

    /// Shows the window with its corner at a point of the desktop, in units.
    void stand(GdkMonitor* monitor, views::Point place);
    void hide();

    /// Takes the keyboard's focus.
    void present();

    void setName(const std::string& name);
    void setUnitsPerPoint(double units);

    Card& card() { return card_; }
    GtkWindow* window() const { return window_; }

  private:
    void standFree();
    void listen();
    void showFocus(bool isShown);
    bool press(unsigned key, GdkModifierType modifiers);
    void openMenu(std::optional<views::Point> at);
    void outline();
    void rescale();
    double wantedScale() const;

    WidgetSource& source_;
    Mount& mount_;
    CardRequests requests_;
    GtkWindow* window_;
    double unitsPerPoint_;
    double scale_;
    views::Point place_;
    Reference<GdkMonitor> monitor_;
    std::unique_ptr<widgethost::Display> display_;
    Card card_;
    CardMenu menu_;
    std::optional<CardDrag> drag_;
    std::unique_ptr<Connected> compositor_;
};

}  // namespace desktop
