#pragma once

#include "desktop/WidgetSource.hpp"
#include "platform/canvas/Pixels.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace desktop {

/// A picture in which every pixel tells where it is, with round transparent corners.
struct Painting {
    Painting(views::Size points, double scale, std::uint32_t blue = 0x80)
        : size(canvas::pixelSize(points, scale)), argb(size.count()) {
        const double radius = 27.88 * scale;
        for (int y = 0; y < size.height; ++y)
            for (int x = 0; x < size.width; ++x) {
                const double dx = std::max(radius - std::min(x, size.width - 1 - x) - 0.5, 0.0);
                const double dy = std::max(radius - std::min(y, size.height - 1 - y) - 0.5, 0.0);
                if (dx * dx + dy * dy <= radius * radius)
                    at(x, y) = 0xFF000000 | static_cast<std::uint32_t>(x & 0xFF) << 16 |
                               static_cast<std::uint32_t>(y & 0xFF) << 8 | blue;
            }
    }
    std::uint32_t& at(int x, int y) {
        return argb[static_cast<std::size_t>(y) * static_cast<std::size_t>(size.width) +
                    static_cast<std::size_t>(x)];
    }
    canvas::Pixels pixels() const { return {size, argb}; }

    canvas::PixelSize size;
    std::vector<std::uint32_t> argb;
};

inline remote::Element button(std::string label, views::Rect frame, bool enabled = true) {
    return {.role = views::AccessibilityRole::button,
            .label = label,
            .enabled = enabled,
            .frame = frame,
            .action = intents::ArchivedAction{.identifier = "press " + label}};
}

inline remote::Element text(std::string label, views::Rect frame) {
    return {.role = views::AccessibilityRole::text, .label = std::move(label), .frame = frame};
}

/// Widgets whose faces a test paints.
class PaintedWidgets : public WidgetSource {
  public:
    struct Shelf {
        std::vector<remote::WidgetDescription> gallery{
            {"a", "Alfa", "El primero.", {widgets::WidgetFamily::systemSmall}},
            {"b", "Beta", "El segundo, más ancho.", {widgets::WidgetFamily::systemMedium}},
            {"c", "Gama", "El tercero.", {widgets::WidgetFamily::systemSmall}},
            {"d", "Delta", "El cuarto, ancho también.", {widgets::WidgetFamily::systemMedium}},
        };
    };

    /// One of the cards somebody looks at.
    struct Look : widgethost::Display {
        Look(PaintedWidgets& source, std::string name, double wantedScale, Show wantedShow)
            : owner(source),
              kind(std::move(name)),
              scale(wantedScale),
              show(std::move(wantedShow)) {
            owner.looks.push_back(this);
            paint();
        }
        ~Look() override { std::erase(owner.looks, this); }

        void setScale(double wanted) override {
            scale = wanted;
            paint();
        }
        void press(const intents::ArchivedAction& action) override {
            owner.presses.push_back(action.identifier);
            if (owner.onPress)
                owner.onPress();
        }
        void paint() {
            if (owner.isStopped)
                return show({.face = nullptr, .scale = scale, .pixels = {}});
            const Painting painting(owner.sizeOf(kind), scale);
            show({.face = &owner.faces[kind], .scale = scale, .pixels = painting.pixels()});
        }

        PaintedWidgets& owner;
        std::string kind;
        double scale;
        Show show;
    };

    const std::vector<remote::WidgetDescription>& gallery() const override { return shelf; }
    void onGalleryChanged(std::function<void()> changed) override {
        galleryChanged = std::move(changed);
    }
    std::unique_ptr<widgethost::Display> display(std::string kind,
                                                 double scale,
                                                 Show show) override {
        return std::make_unique<Look>(*this, std::move(kind), scale, std::move(show));
    }
    std::unique_ptr<widgethost::Display> preview(std::string kind,
                                                 double scale,
                                                 Show show) override {
        return std::make_unique<Look>(*this, std::move(kind), scale, std::move(show));
    }

    void repaint() {
        for (Look* look : looks)
            look->paint();
    }
    views::Size sizeOf(const std::string& kind) const {
        return widgets::cardSize(kind == "b" || kind == "d" ? widgets::WidgetFamily::systemMedium
                                                            : widgets::WidgetFamily::systemSmall);
    }

    std::vector<remote::WidgetDescription> shelf = Shelf().gallery;
    std::map<std::string, remote::Face> faces;
    bool isStopped = false;
    std::vector<Look*> looks;
    std::vector<std::string> presses;
    std::function<void()> onPress;
    std::function<void()> galleryChanged;
};

}  // namespace desktop
