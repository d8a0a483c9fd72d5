#include "desktop/Run.hpp"
#include "desktop/SessionSource.hpp"

#include <memory>

int main(int argumentCount, char** arguments) {
    return desktop::run(argumentCount, arguments, [](const widgethost::SessionOptions& options) {
        return std::make_unique<desktop::SessionSource>(options);
    });
}
