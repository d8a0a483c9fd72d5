#include "platform/views/controls/Image.hpp"

#include "platform/views/scene/Recorder.hpp"
#include "platform/views/symbols/SymbolArtwork.hpp"

#include <utility>

namespace views {

Image::Image(std::string name) : name_(std::move(name)) {}

Image Image::systemName(std::string name) {
    return Image(std::move(name));
}

Size Image::size() const {
    const SymbolArtwork* artwork = symbolArtwork(name_, font_.weight);
    if (!artwork)
        return {};
    return {artwork->bounds.width * font_.size, artwork->bounds.height * font_.size};
}

Size Image::sizeThatFits(const Proposal&, LayoutContext&) const {
    return size();
}

double Image::firstBaseline(const Proposal&, LayoutContext&) const {
    return size().height / 2 + font_.capMiddle();
}

void Image::draw(const Placement& place, LayoutContext&, Recorder& recorder) const {
    if (size() != Size{})
        recorder.draw(DrawSymbol{name_, place.frame, font_, color_});
}

}  // namespace views
