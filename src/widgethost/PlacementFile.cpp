#include "widgethost/PlacementFile.hpp"

#include "platform/foundation/files/FileError.hpp"
#include "platform/foundation/files/ReadFile.hpp"
#include "platform/foundation/files/WriteFile.hpp"
#include "platform/foundation/json/JSONDecoder.hpp"
#include "platform/foundation/json/JSONEncoder.hpp"
#include "platform/foundation/localization/Message.hpp"

#include <cerrno>
#include <system_error>
#include <utility>

namespace widgethost {

namespace {

constexpr std::size_t mostBytes = 1 << 20;
constexpr std::int64_t widestCard = 8;
constexpr std::int64_t farthestCell = 10000;

bool isNear(std::int64_t cell) {
    return cell >= -farthestCell && cell <= farthestCell;
}

bool makesSense(const PlacedWidget& widget) {
    return widget.span >= 1 && widget.span <= widestCard && isNear(widget.column) &&
           isNear(widget.row);
}

Placement decoded(const std::string& text) {
    auto placement = foundation::JSONDecoder().decode<Placement>(text);
    for (const PlacedWidget& widget : placement.widgets)
        if (!makesSense(widget))
            throw foundation::DecodingError(foundation::DecodingError::Kind::dataCorrupted,
                                            "widgets", "");
    return placement;
}

/// `….bad`, or the first of `….bad2`, `….bad3` that is nobody's.
std::filesystem::path freeNameBeside(const std::filesystem::path& path) {
    std::filesystem::path name = path.string() + ".bad";
    std::error_code ignored;
    for (int number = 2; std::filesystem::exists(symlink_status(name, ignored)); ++number)
        name = path.string() + ".bad" + std::to_string(number);
    return name;
}

}  // namespace

PlacementFile::PlacementFile(std::filesystem::path path, Report report)
    : path_(std::move(path)), report_(std::move(report)) {}

std::optional<std::filesystem::path> PlacementFile::path(
    const foundation::EnvironmentVariables& variables) {
    const auto file = std::filesystem::path("nurva-widgets") / "placement.json";
    const auto settings = variables.value("XDG_CONFIG_HOME");
    if (settings && settings->front() == '/')
        return *settings / file;
    if (const auto home = variables.value("HOME"))
        return std::filesystem::path(*home) / ".config" / file;
    return std::nullopt;
}

std::optional<Placement> PlacementFile::load() const {
    try {
        return decoded(foundation::readFile(path_, mostBytes));
    } catch (const foundation::FileError& error) {
        if (error.code() != ENOENT)
            keepAside(error.what());
    } catch (const foundation::DecodingError& error) {
        keepAside(error.place().empty() ? error.debugDescription : error.place());
    }
    return std::nullopt;
}

void PlacementFile::save(const Placement& placement) const {
    try {
        foundation::writeFileDurably(foundation::JSONEncoder().encode(placement), path_);
    } catch (const std::exception& error) {
        report_(foundation::message("no se puede guardar el sitio de los widgets: %@",
                                    {std::string(error.what())}));
    }
}

void PlacementFile::keepAside(const std::string& reason) const {
    const std::filesystem::path aside = freeNameBeside(path_);
    std::error_code error;
    std::filesystem::rename(path_, aside, error);
    if (error)
        report_(foundation::message(
            "no se entiende el sitio de los widgets (%@) ni se puede apartar: %@",
            {reason, error.message()}));
    else
        report_(
            foundation::message("no se entiende el sitio de los widgets (%@); se guarda aparte "
                                "en %@ y se empieza de nuevo",
                                {reason, aside.string()}));
}

}  // namespace widgethost
