#pragma once

#include "desktop/MonitorWatch.hpp"
#include "desktop/Screens.hpp"
#include "desktop/WidgetSource.hpp"
#include "desktop/card/CardWindow.hpp"
#include "desktop/gallery/Gallery.hpp"
#include "desktop/gtk/Connect.hpp"
#include "desktop/gtk/Later.hpp"
#include "desktop/mount/Mount.hpp"
#include "widgethost/Placement.hpp"
#include "widgethost/PlacementFile.hpp"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace desktop {

/// The widgets on the desktop: which there are and where, as the user has it and the file
/// remembers.
class Desk {
  public:
    struct Surroundings {
        GdkDisplay* display;
        std::optional<double> scale;    // pixels per point, where it is not the display's own
        std::function<void()> onEmpty;  // nothing is left to be seen
        /// How long a user who has no widgets yet sees nothing while there is no gallery.
        std::chrono::milliseconds patience = std::chrono::seconds(4);
    };

    /// Requires that source and mount outlive it.
    Desk(Surroundings surroundings,
         WidgetSource& source,
         Mount& mount,
         widgethost::PlacementFile file);
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;
    ~Desk();

    /// Puts the widgets up; for a user without any, the gallery.
    void open();
    void openGallery();

    const widgethost::Placement& placement() const { return placement_; }
    const std::vector<std::unique_ptr<CardWindow>>& cards() const { return cards_; }
    Gallery* gallery() const { return gallery_.get(); }

  private:
    void awaitWidgets();
    void welcome();
    void putUp(const widgethost::PlacedWidget& widget);
    void galleryChanged();
    void add(const std::string& kind);
    void remove(CardWindow* card);
    void placeAnew();
    void move(CardWindow* card, widgethost::Direction direction);
    void drop(CardWindow* card, views::Point corner);
    void focusNeighbour(CardWindow* card, int step);
    void arrange();
    void remember();
    void updateGallery();
    void adapt();
    void explainWindows();

    Screens screens() const;
    CardWindow::Widget described(const widgethost::PlacedWidget& widget) const;
    std::string nameOf(const std::string& kind) const;
    std::size_t indexOf(CardWindow* card) const;

    Surroundings surroundings_;
    WidgetSource& source_;
    Mount& mount_;
    widgethost::PlacementFile file_;
    double unitsPerPoint_;
    bool isNew_ = false;  // nothing was remembered
    widgethost::Placement placement_;
    std::vector<std::unique_ptr<CardWindow>> cards_;  // one for each widget of the placement
    std::unique_ptr<Gallery> gallery_;
    MonitorWatch monitors_;
    Connected resolutionChanges_;
    unsigned patience_ = 0;  // the timer
    Later later_;
};

}  // namespace desktop
