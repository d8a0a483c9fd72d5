#pragma once

#include "platform/views/scene/Scene.hpp"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace views {

/// Takes down what the views of a card draw, in drawing order, and leaves out what lies wholly
/// outside the card.
class Recorder {
  public:
    explicit Recorder(Size card);

    void fill(FillShape command);
    void stroke(StrokeShape command);
    void fill(FillPath command);
    void stroke(StrokePath command);
    void draw(DrawSymbol command);
    /// A text is drawn, and spoken: by itself, or as part of the button it stands in.
    void draw(DrawText command);
    void background(const Color& color);

    /// What `drawing` records becomes one group.
    template <class Drawing>
    void group(double opacity, const Drawing& drawing) {
        constexpr std::size_t usualLength = 4;  // of a control that is dimmed
        std::vector<Command> outer = std::exchange(commands(), {});
        commands().reserve(usualLength);
        drawing();
        close(opacity, std::move(outer));
    }

    /// What `drawing` records is the label of a control; where `control.label` is empty, its texts
    /// are.
    template <class Drawing>
    void control(Control&& control, const Drawing& drawing) {
        std::vector<std::string>* outer = std::exchange(buttonTexts_, nullptr);
        std::vector<std::string> texts;
        buttonTexts_ = &texts;
        drawing();
        buttonTexts_ = outer;
        close(std::move(control), texts);
    }

    /// Whether a view in this frame is more than a card away from the card, and need not be drawn:
    /// none reaches as far beyond its frame.
    bool isOutOfReach(const Rect& frame) const;

    Scene finish() &&;

  private:
    std::vector<Command>& commands() { return scene_.drawing; }
    void record(Command command, const Rect& bounds);
    void close(double opacity, std::vector<Command> outer);
    void close(Control&& control, const std::vector<std::string>& texts);
    bool isOutside(const Rect& bounds) const;

    Scene scene_;
    std::vector<std::string>* buttonTexts_ = nullptr;
};

}  // namespace views
