#pragma once

#include <gtk/gtk.h>

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace desktop {

/// The names of the widgets on the desktop, each with a button that takes it away.
class PlacedList {
  public:
    struct Requests {
        std::function<void(std::size_t index)> remove;
        std::function<void()> placeAnew;  // none where windows cannot be placed
    };

    /// Requires that it outlives its widget.
    explicit PlacedList(Requests requests);

    GtkWidget* widget() const { return box_; }

    void show(const std::vector<std::string>& names);

  private:
    GtkWidget* row(const std::string& name, std::size_t index);
    std::size_t focusedRow() const;

    Requests requests_;
    GtkWidget* box_;
    std::vector<GtkWidget*> removeButtons_;
};

}  // namespace desktop
