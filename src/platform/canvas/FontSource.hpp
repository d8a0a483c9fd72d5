#pragma once

#include "platform/canvas/Handles.hpp"

#include <string>

namespace canvas {

/// Fonts to set texts with: a font configuration and what Pango made of it. Glyphs are neither
/// hinted nor rounded to pixels, so that a text is as wide at every scale.
class FontSource {
  public:
    explicit FontSource(FcConfigHandle configuration);

    /// A configuration of one font file alone. The system's description files are not read.
    static FontSource only(const std::string& file);
    /// The system's own configuration, which has a font for whatever can be shown.
    static FontSource system();

    PangoContext* context() const { return context_.get(); }

  private:
    FcConfigHandle configuration_;
    FontMapHandle map_;
    ContextHandle context_;
};

}  // namespace canvas
