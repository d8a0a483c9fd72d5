#pragma once

#include "platform/foundation/localization/LocalizedFormat.hpp"

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace foundation {

/// The texts of one language by key, from the contents of a `.strings` and a `.stringsdict` file.
/// An immutable value; any thread; never fails: what cannot be read is as if it were empty.
class StringsTable {
  public:
    StringsTable() = default;

    /// `language` chooses the plural rules. An entry of the dictionary overrides one of the plain
    /// table.
    StringsTable(std::string language,
                 std::string_view strings,
                 std::string_view stringsDictionary);

    /// The entry of a key, or null.
    const LocalizedFormat* entry(std::string_view key) const;
    const std::string& language() const { return language_; }
    std::size_t size() const { return entries_.size(); }
    /// All keys, sorted.
    std::vector<std::string> keys() const;

  private:
    std::string language_;
    std::map<std::string, LocalizedFormat, std::less<>> entries_;
};

}  // namespace foundation
