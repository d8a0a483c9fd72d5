#include "desktop/PaintedWidgets.hpp"
#include "desktop/Run.hpp"

#include <memory>

/// The widget host with painted faces, for tests of the program. Its extension may be called
/// "stopped".
int main(int argumentCount, char** arguments) {
    return desktop::run(argumentCount, arguments, [](const widgethost::SessionOptions& options) {
        auto widgets = std::make_unique<desktop::PaintedWidgets>();
        widgets->isStopped = options.extension == "stopped";
        for (const auto& widget : widgets->shelf)
            widgets->faces[widget.kind].elements = {
                desktop::button("Press", {20, 100, 60, 30}),
            };
        return widgets;
    });
}
