#pragma once

#include "platform/foundation/Environment.hpp"

#include <optional>
#include <string>

namespace cli {

/// Why a file is refused: the kind of fault ("unreadable" or that of the decoding error), the
/// coding path where there is one, and the reason for a person to read.
struct Refusal {
    std::string kind;
    std::string path;
    std::string reason;
};

/// What came of decoding a file: the value, or why there is none.
template <class Value>
struct FileReport {
    std::optional<Value> value;
    std::optional<Refusal> refusal;
};

/// Decodes the file at a path as those who read it do: a snapshot, or a request.
template <class Value>
FileReport<Value> reportOn(const foundation::FileManager& files, const std::filesystem::path& path);

/// One line saying why a file was refused.
std::string text(const std::string& file, const Refusal& refusal);

/// Why nobody can say where the container of a group would lie; nothing where it is known.
std::optional<std::string> whyNoPlace(const std::string& group);

/// Why the group has no container in this environment; nothing where it has one.
std::optional<std::string> whyNoContainer(const foundation::Environment& environment);

/// Why the widgets have no snapshot in this environment; nothing where they have one. Names the
/// file as it was given, or where it lies in the container.
std::optional<std::string> whyNoSnapshot(const foundation::Environment& environment,
                                         const std::optional<std::string>& given = {});

}  // namespace cli
