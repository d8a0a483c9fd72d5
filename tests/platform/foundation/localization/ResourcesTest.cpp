#include "platform/foundation/localization/LocalizedString.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace foundation {
namespace {

using namespace std::string_literals;

const std::filesystem::path bundleFolder =
    std::filesystem::path(NURVA_RESOURCES_FOLDER) / "NurvaWidgets.appex";

Bundle english() {
    return Bundle::open(bundleFolder / "en.lproj").value();
}

TEST(Resources, TheBundleNamesItself) {
    const auto bundle = Bundle::open(bundleFolder).value();
    const std::pair<const char*, const char*> entries[] = {
        {"CFBundleIdentifier", "org.nurva.Nurva.NurvaWidgets"},
        {"CFBundleDevelopmentRegion", "es"},
        {"CFBundlePackageType", "XPC!"},
        {"CFBundleShortVersionString", "0.1.0"},
    };
    for (const auto& [key, value] : entries)
        EXPECT_EQ(bundle.objectForInfoDictionaryKey(key), PropertyList{std::string(value)}) << key;
    EXPECT_EQ(bundle.objectForInfoDictionaryKey("GrupoDeApps"), std::nullopt);
}

TEST(Resources, SpanishIsThereAndTranslatesNothing) {
    const Bundle bundle = Bundle::localized(bundleFolder, {"es", "en"});
    EXPECT_EQ(bundle.localizedTable().language(), "es");
    EXPECT_EQ(bundle.localizedTable().size(), 0u);
}

struct Text {
    std::string key;
    std::vector<FormatArgument> arguments;
    std::string english;
};

TEST(Resources, EveryTextOfTheFacesIsInEnglish) {
    const Text texts[] = {
        {"Nurva", {}, "Nurva"},
        {"Abre Nurva una vez y este widget se llena.",
         {},
         "Open Nurva once and this widget fills up."},
        {"Nurva está cerrado. Ábrelo y este widget se pone al día.",
         {},
         "Nurva is closed. Open it and this widget catches up."},
        {"%lld por ciento", {std::int64_t{40}}, "40 percent"},
        {"Subir", {}, "Turn up"},
        {"Bajar", {}, "Turn down"},
        {"Volumen por app", {}, "Volume by app"},
        {"%lld sonando", {std::int64_t{2}}, "2 playing"},
        {"− y + de 10 en 10 · o toca la barra donde lo quieras",
         {},
         "− and + in steps of 10 · or click the bar anywhere"},
        {"Solo mirar · se enciende en Ajustes → Widgets",
         {},
         "View only · turn on in Settings → Widgets"},
        {"mudo", {}, "muted"},
        {"Silenciar %@", {"Safari"s}, "Mute Safari"},
        {"Quitar silencio a %@", {"Safari"s}, "Unmute Safari"},
        {"Poner un perfil", {}, "Set a profile"},
        {"ahora: %@", {"Voz"s}, "now: Voz"},
        {"se aplica sin abrir Nurva", {}, "applies without opening Nurva"},
        {"solo muestra · actívalo en Ajustes", {}, "view only · enable in Settings"},
        {"Ecualizador encendido", {}, "Equalizer on"},
        {"Ecualizador apagado", {}, "Equalizer off"},
        {"Tu cuarto", {}, "Your room"},
        {"%lld salidas sin medir", {std::int64_t{1}}, "1 output not measured"},
        {"%lld salidas sin medir", {std::int64_t{3}}, "3 outputs not measured"},
        {"±%.1f", {6.25}, "±6.2"},
        {"dB", {}, "dB"},
        {"antes ±%@", {"6.3"s}, "before ±6.3"},
        {"Sin medir", {}, "Not measured"},
        {"mídela y sabrás qué corrige", {}, "measure it to see what gets corrected"},
        {"Qué está puesto", {}, "What’s on"},
        {"El perfil, su curva y por qué está puesto.",
         {},
         "The profile, its curve and why it is on."},
        {"Cambia de perfil y enciende o apaga, sin abrir Nurva.",
         {},
         "Switch profiles and turn on or off, without opening Nurva."},
        {"Cuánto se corrigió, y cuántas salidas siguen sin medir.",
         {},
         "How much was corrected, and how many outputs are not measured yet."},
        {"Las que suenan, con su nivel y el silenciador.",
         {},
         "What is playing, with its level and a mute button."},
        {"Poner el volumen de una app", {}, "Set the volume of an app"},
        {"Silenciar una app", {}, "Mute an app"},
        {"Encender o apagar el ecualizador", {}, "Turn the equalizer on or off"},
        {"App", {}, "App"},
        {"Nivel", {}, "Level"},
        {"Silenciar", {}, "Mute"},
        {"Perfil", {}, "Profile"},
    };
    const Bundle bundle = english();
    for (const Text& text : texts) {
        EXPECT_NE(bundle.localizedTable().entry(text.key), nullptr) << text.key;
        EXPECT_EQ(localizedString(text.key, bundle, {"en_US"}, text.arguments), text.english);
    }
}

}  // namespace
}  // namespace foundation
