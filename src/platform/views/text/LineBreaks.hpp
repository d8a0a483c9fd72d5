#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace views {

/// The byte offsets at which a line of the text may end and the next begin, ascending, the text's
/// own end included, by the Unicode line-breaking rules. The text is UTF-8 without hard breaks.
std::vector<std::size_t> lineBreakOpportunities(std::string_view text);

/// The paragraphs of a text: its pieces between hard line breaks, at least one.
std::vector<std::string_view> paragraphs(std::string_view text);

/// The text without the white space at its end.
std::string_view withoutTrailingSpace(std::string_view text);

}  // namespace views
