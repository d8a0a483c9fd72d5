#include "platform/canvas/ClusterAdvances.hpp"

#include <pango/pango.h>

#include <algorithm>

namespace canvas {

namespace {

/// The bytes at which a cursor can stand, the end of the text not among them.
std::vector<std::size_t> cursorPositions(const std::string& utf8) {
    const int bytes = static_cast<int>(utf8.size());
    const auto characters = static_cast<std::size_t>(g_utf8_strlen(utf8.data(), bytes));
    std::vector<PangoLogAttr> attributes(characters + 1);
    pango_get_log_attrs(utf8.data(), bytes, -1, pango_language_get_default(), attributes.data(),
                        static_cast<int>(attributes.size()));
    std::vector<std::size_t> positions;
    const char* at = utf8.data();
    for (std::size_t i = 0; i < characters; ++i) {
        if (i == 0 || attributes[i].is_cursor_position)
            positions.push_back(static_cast<std::size_t>(at - utf8.data()));
        at = g_utf8_next_char(at);
    }
    return positions;
}

}  // namespace

void ClusterAdvances::add(std::size_t at, double advance) {
    advances_[at] += advance;
    begins_.push_back(at);
}

std::vector<views::TextCluster> ClusterAdvances::clusters() const {
    const std::vector<std::size_t> positions = cursorPositions(text_.utf8);
    if (positions.empty())
        return text_.origins.back() == 0
                   ? std::vector<views::TextCluster>{}
                   : std::vector<views::TextCluster>{{text_.origins.back(), 0}};

    std::vector<std::size_t> begins = begins_;
    std::sort(begins.begin(), begins.end());
    begins.erase(std::unique(begins.begin(), begins.end()), begins.end());

    std::vector<views::TextCluster> result;
    for (std::size_t i = 0; i < positions.size(); ++i) {
        const bool last = i + 1 == positions.size();
        result.push_back({text_.origins[last ? text_.utf8.size() : positions[i + 1]], 0});
    }
    const auto clusterAt = [&positions](std::size_t byte) {
        return std::upper_bound(positions.begin(), positions.end(), byte) - positions.begin() - 1;
    };
    for (std::size_t i = 0; i < begins.size(); ++i) {
        const std::size_t end = i + 1 < begins.size() ? begins[i + 1] : text_.utf8.size();
        const auto first = clusterAt(begins[i]);
        const auto behind = std::max(clusterAt(end - 1), first) + 1;
        for (auto cluster = first; cluster < behind; ++cluster)
            result[static_cast<std::size_t>(cluster)].advance +=
                advances_[begins[i]] / static_cast<double>(behind - first);
    }
    return result;
}

}  // namespace canvas
