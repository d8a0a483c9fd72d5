#pragma once

#include <map>
#include <string>

namespace foundation {

/// A text as a translator wrote it: a format, and for each variable `%#@name@` in it the wording by
/// plural category ("one", "few", "other").
struct LocalizedFormat {
    using Wordings = std::map<std::string, std::string, std::less<>>;

    std::string text;
    std::map<std::string, Wordings, std::less<>> variables;

    friend bool operator==(const LocalizedFormat&, const LocalizedFormat&) = default;
};

}  // namespace foundation
