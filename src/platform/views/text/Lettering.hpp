#pragma once

#include "platform/views/geometry/Color.hpp"
#include "platform/views/text/Font.hpp"
#include "platform/views/view/Modifiers.hpp"

#include <utility>

namespace views {

/// What a text and a symbol have in common: both are set in a font and a colour.
template <class Self>
class Lettering : public Modifiers<Self> {
  public:
    Self font(const Font& font) const& { return copy().font(font); }
    Self font(const Font& font) && {
        font_ = font;
        return std::move(self());
    }
    Self foregroundStyle(const Color& color) const& { return copy().foregroundStyle(color); }
    Self foregroundStyle(const Color& color) && {
        color_ = color;
        return std::move(self());
    }

  protected:
    Font font_;
    Color color_;

  private:
    Self& self() { return static_cast<Self&>(*this); }
    Self copy() const { return static_cast<const Self&>(*this); }
};

}  // namespace views
