#pragma once

#include "platform/views/Probe.hpp"
#include "platform/views/view/View.hpp"

#include <string>
#include <vector>

namespace views {

// Rows and columns like those of real faces, with what they are made of traced: `drawn` notes the
// frame of the whole, then those of its children in order.

inline constexpr double volumeRowGap = 7;

/// Name, minus, bar of ten segments, plus, level, mute.
View volumeRow(const std::string& name, Frames& drawn);

/// Header, `rows` volume rows, footer; only the rows are traced.
View volumeFace(int rows, Frames& drawn);

/// Header, curve, name, reason, output.
View currentProfileFace(const std::string& reason, Frames& drawn);

inline constexpr double tileGap = 8;

/// Equally wide tiles, each a curve above a name.
View tileRow(const std::vector<std::string>& names, Frames& drawn);

inline constexpr double switchRowGap = 10;

/// A pill with a dot and a text, and a note at the other end.
View switchRow(const std::string& note, Frames& drawn);

inline constexpr double valueRowGap = 5;

/// A large number and its unit on one baseline.
View valueRow(const std::string& value, Frames& drawn);

/// Header, output, value row, a line below it and a count.
View roomFace(const std::string& output, Frames& drawn);

}  // namespace views
