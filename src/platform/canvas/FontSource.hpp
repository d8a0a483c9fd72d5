#pragma once

#include "platform/canvas/Handles.hpp"
#include "platform/views/text/Font.hpp"

#include <set>
#include <string>

namespace canvas {

/// Fonts to set texts with: a font configuration and what Pango made of it. Glyphs are neither
/// hinted nor rounded to pixels, so that a text is as wide at every scale.
class FontSource {
  public:
    explicit FontSource(FcConfigHandle configuration);

    /// A configuration of no fonts at all, into which the stand-ins are added one by one. The
    /// system's description files are not read.
    static FontSource standIns();
    /// The system's own configuration, which has a font for whatever can be shown.
    static FontSource system();

    /// Adds a font file; it is read once.
    void add(const std::string& file);

    PangoContext* context() const { return context_.get(); }

  private:
    FcConfigHandle configuration_;
    FontMapHandle map_;
    ContextHandle context_;
    std::set<std::string> files_;
};

}  // namespace canvas
