#pragma once

#include "support/TemporaryFolder.hpp"
#include "widgethost/PlacementFile.hpp"

#include <filesystem>
#include <optional>
#include <string>

/// The placement of widgets in a folder of its own on the disk.
struct KeptPlacement {
    support::TemporaryFolder above;
    std::filesystem::path folder = above.path() / "settings";
    std::filesystem::path path = folder / "placement.json";
    int reports = 0;
    widgethost::PlacementFile file{path, [this](const std::string&) { ++reports; }};

    widgethost::Placement before = of("a widget whose kind has a long name");
    widgethost::Placement after = of("another one whose kind is not short");

  private:
    static widgethost::Placement of(const std::string& kind) {
        return {.widgets = {{.kind = kind,
                             .span = 2,
                             .monitor = {"a connector with a long name", 0, 0, 1920, 1080},
                             .column = 3,
                             .row = 1}}};
    }
};
