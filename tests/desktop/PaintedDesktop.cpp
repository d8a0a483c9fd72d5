#include "desktop/PaintedWidgets.hpp"
#include "desktop/Run.hpp"

#include <memory>

/// The widget host with painted faces, for tests of the program.
int main(int argumentCount, char** arguments) {
    return desktop::run(argumentCount, arguments, [](const std::filesystem::path&) {
        auto widgets = std::make_unique<desktop::PaintedWidgets>();
        for (const auto& widget : widgets->shelf)
            widgets->faces[widget.kind].elements = {
                desktop::button("Press", {20, 100, 60, 30}),
            };
        return widgets;
    });
}
