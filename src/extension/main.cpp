#include "extension/NurvaWidgets.hpp"
#include "peticiones/Acciones.hpp"
#include "platform/process/WidgetBundleMain.hpp"

int main() {
    process::widgetBundleMain({.widgets = nurva::NurvaWidgets, .actions = nurva::acciones});
    return 0;
}
