#pragma once

#include "platform/views/text/Lettering.hpp"
#include "platform/views/view/View.hpp"

#include <string>

namespace views {

/// A symbol in the size and weight of a font. Its size is that of the artwork; an unknown name is 0
/// × 0 and draws nothing.
class Image : public Lettering<Image> {
  public:
    static Image systemName(std::string name);

    Size sizeThatFits(const Proposal& proposal, LayoutContext& context) const;
    double firstBaseline(const Proposal& proposal, LayoutContext& context) const;
    void draw(const Placement& place, LayoutContext& context, Recorder& recorder) const;

  private:
    explicit Image(std::string name);
    Size size() const;

    std::string name_;
};

}  // namespace views
