#pragma once

#include "desktop/mount/Mount.hpp"

namespace desktop {

/// Windows of X11 that lie under all others, on every desktop and in no list of windows.
class X11Mount : public Mount {
  public:
    explicit X11Mount(GdkDisplay* display) : display_(display) {}

    void prepare(GtkWindow* window) override;
    void move(GtkWindow* window, GdkMonitor* monitor, views::Point point) override;
    void cut(GtkWindow* window, views::Size card, double cornerRadius) override;
    views::Rect area(GdkMonitor* monitor) const override;
    Connected watchAreas(const std::function<void()>& changed) const override;
    GdkMonitor* primaryMonitor() const override;
    std::optional<views::Point> pointer() const override;

  private:
    GdkDisplay* display_;
};

}  // namespace desktop
