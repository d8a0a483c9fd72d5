#pragma once

#include "desktop/WidgetSource.hpp"

#include <utility>

namespace desktop {

/// The faces of a running extension.
class SessionSource : public WidgetSource {
  public:
    explicit SessionSource(const widgethost::SessionOptions& options) : session_(options) {}

    const std::vector<remote::WidgetDescription>& gallery() const override {
        return session_.gallery();
    }
    void onGalleryChanged(std::function<void()> changed) override {
        session_.onGalleryChanged(std::move(changed));
    }
    std::unique_ptr<widgethost::Display> display(std::string kind,
                                                 double scale,
                                                 Show show) override {
        return session_.display(std::move(kind), scale, std::move(show));
    }
    std::unique_ptr<widgethost::Display> preview(std::string kind,
                                                 double scale,
                                                 Show show) override {
        return session_.preview(std::move(kind), scale, std::move(show));
    }

  private:
    widgethost::Session session_;
};

}  // namespace desktop
