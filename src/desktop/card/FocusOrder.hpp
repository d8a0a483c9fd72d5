#pragma once

#include "platform/remote/Face.hpp"

#include <cstddef>
#include <optional>
#include <vector>

namespace desktop {

/// Which way a key moves the keyboard's focus.
enum class FocusMove { forward, backward, left, right, up, down };

/// The element that comes next, from one element or from none. The tab key goes through the enabled
/// buttons in their order, the arrows to the nearest one on that side. Nothing at the end.
std::optional<std::size_t> nextFocus(const std::vector<remote::Element>& elements,
                                     std::optional<std::size_t> from,
                                     FocusMove move);

/// Where the focus goes on when other elements take the place of those it is in: the same place as
/// long as the elements are of the same kinds, else the nearest of the same label, else the nearest
/// button. Nothing when there is no button to press.
std::optional<std::size_t> focusAfterChange(const std::vector<remote::Element>& before,
                                            std::size_t focused,
                                            const std::vector<remote::Element>& after);

}  // namespace desktop
