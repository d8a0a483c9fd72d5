#pragma once

#include "desktop/card/CardElement.hpp"
#include "desktop/card/FocusOrder.hpp"
#include "desktop/gtk/Reference.hpp"
#include "platform/remote/Face.hpp"
#include "widgethost/Session.hpp"

#include <gtk/gtk.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace desktop {

/// A card on the screen: the picture of a widget's face, and over it what can be pressed and what a
/// screen reader says. It changes in place, so that the keyboard's focus stays where it is.
class Card {
  public:
    using Press = std::function<void(const intents::ArchivedAction&)>;

    /// A card that somebody uses or, without `press`, a mere picture of it.
    Card(const std::string& name, views::Size size, Press press = {});
    Card(const Card&) = delete;
    Card& operator=(const Card&) = delete;
    ~Card();

    GtkWidget* widget() const { return widget_.get(); }
    views::Size size() const { return size_; }

    void show(const widgethost::Shown& shown);

    /// What a screen reader calls it.
    void setName(const std::string& name);

    /// How many units of its window a point takes.
    void setUnitsPerPoint(double units);

    /// The radius of its corners in points.
    static constexpr double cornerRadius = 27.88;

    /// The button at a point of the widget.
    bool hasControlAt(double x, double y) const;

    // What the widget asks when GTK asks it.
    int length(GtkOrientation orientation) const;
    void allocate(int width, int height);
    void snapshot(GtkSnapshot* snapshot);
    bool moveFocus(FocusMove move);

  private:
    void showElements(const std::vector<remote::Element>& elements);
    void replaceElements(const std::vector<remote::Element>& elements);
    void showStopped(bool isStopped);
    std::optional<std::size_t> focused() const;
    void focus(std::optional<std::size_t> element);
    void press(std::size_t element);
    void snapshotPicture(GtkSnapshot* snapshot) const;
    void snapshotPlainCard(GtkSnapshot* snapshot) const;

    views::Size size_;
    Press press_;
    double unitsPerPoint_ = 1;
    Reference<GtkWidget> widget_;
    Reference<GdkTexture> picture_;
    GtkWidget* stopped_ = nullptr;
    std::vector<remote::Element> elements_;
    std::vector<std::unique_ptr<CardElement>> children_;
};

}  // namespace desktop
