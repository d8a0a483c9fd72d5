#pragma once

#include <string>
#include <vector>

/// Texts made from a JSON text by putting one of many values in the place of each value in it, in
/// turn and two at once, by taking each member away, and by adding one. None has a key twice, nor a
/// number that a double does not hold.
std::vector<std::string> mutations(const std::string& text);
