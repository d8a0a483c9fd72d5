#include "journeys/Widgets.hpp"

#include "journeys/Waiting.hpp"
#include "support/Program.hpp"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <ostream>

namespace journeys {

const std::array<Widget, 4> widgets{{
    {"nurva.queEstaPuesto",
     "Qué está puesto",
     "El perfil, su curva y por qué está puesto.",
     {170, 170}},
    {"nurva.ponerUnPerfil",
     "Poner un perfil",
     "Cambia de perfil y enciende o apaga, sin abrir Nurva.",
     {364, 170}},
    {"nurva.tuCuarto",
     "Tu cuarto",
     "Cuánto se corrigió, y cuántas salidas siguen sin medir.",
     {170, 170}},
    {"nurva.volumenPorApp",
     "Volumen por app",
     "Las que suenan, con su nivel y el silenciador.",
     {364, 170}},
}};

namespace {

bool isSeenAt(const Picture& card, const Picture& screen, int left, int top) {
    for (int y = 0; y < card.size.height; ++y)
        for (int x = 0; x < card.size.width; ++x)
            if (card.at(x, y) >> 24 == 0xFF && card.at(x, y) != screen.at(left + x, top + y))
                return false;
    return !card.argb.empty();
}

}  // namespace

std::ostream& operator<<(std::ostream& out, const Spoken& spoken) {
    return out << spoken.role << " " << spoken.name << (spoken.isEnabled ? "" : " (disabled)");
}

std::vector<Spoken> spoken(const std::vector<Heard>& window) {
    std::vector<Spoken> all;
    for (std::size_t i = 2; i < window.size(); ++i) {
        const bool isText = window[i].role == "label";
        all.push_back(
            {isText ? "text" : window[i].role, window[i].name, isText || window[i].isEnabled});
    }
    return all;
}

std::vector<Spoken> spokenByCommandLine(const Widget& widget) {
    const auto outcome = support::run(NURVA_PROGRAM " render " + widget.kind + " --format json");
    const auto face = nlohmann::json::parse(outcome.output);
    std::vector<Spoken> all;
    for (const auto& element : face.at("accessibility"))
        all.push_back({element.at("role"), element.at("label"), element.value("enabled", true)});
    return all;
}

Picture drawnByCommandLine(const Widget& widget, double scale) {
    const support::TemporaryFolder folder;
    const auto file = folder.path() / "card.png";
    support::run(NURVA_PROGRAM " render " + widget.kind + " --scale " + std::to_string(scale) +
                 " --output '" + file.string() + "'");
    return Picture::read(file);
}

bool isSeenAsDrawn(const Widget& widget, const Screen& screen, double scale) {
    const Picture card = drawnByCommandLine(widget, scale);
    return soon([&] { return isSeen(card, screen.pictureOf(widget.name)); });
}

bool isSeen(const Picture& card, const Picture& screen) {
    return card.size == screen.size && isSeenAt(card, screen, 0, 0);
}

bool isSeenIn(const Picture& card, const Picture& screen, const Area& part) {
    const int right = std::min(part.x + part.width, screen.size.width) - card.size.width;
    const int bottom = std::min(part.y + part.height, screen.size.height) - card.size.height;
    for (int y = std::max(part.y, 0); y <= bottom; ++y)
        for (int x = std::max(part.x, 0); x <= right; ++x)
            if (isSeenAt(card, screen, x, y))
                return true;
    return false;
}

}  // namespace journeys
