#pragma once

#include "widgethost/Session.hpp"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace desktop {

/// Where cards get their faces from: a session, or what stands in for one.
class WidgetSource {
  public:
    using Show = widgethost::Session::Show;

    virtual ~WidgetSource() = default;

    virtual const std::vector<remote::WidgetDescription>& gallery() const = 0;
    virtual void onGalleryChanged(std::function<void()> changed) = 0;
    virtual std::unique_ptr<widgethost::Display> display(std::string kind,
                                                         double scale,
                                                         Show show) = 0;
    virtual std::unique_ptr<widgethost::Display> preview(std::string kind,
                                                         double scale,
                                                         Show show) = 0;
};

}  // namespace desktop
