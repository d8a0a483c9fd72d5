#pragma once

#include "platform/views/scene/Scene.hpp"
#include "platform/views/symbols/SymbolArtwork.hpp"

#include <cmath>
#include <string>
#include <utility>

/// Scenes that resemble the widgets' without asking for their layout.
namespace scenes {

using namespace views;

inline constexpr Color background{0.086, 0.098, 0.106};
inline constexpr Color primary{0.91, 0.922, 0.925};
inline constexpr Color secondary{0.596, 0.627, 0.643};
inline constexpr Color tertiary{0.4, 0.431, 0.447};
inline constexpr Color amber{0.949, 0.702, 0.298};
inline constexpr Color control{0.122, 0.137, 0.149};
inline constexpr Color border{0.165, 0.184, 0.2};
inline constexpr Color accent{92 / 255.0, 228 / 255.0, 154 / 255.0};

inline Command text(double x,
                    double y,
                    std::string line,
                    Font font,
                    Color color,
                    double tracking = 0) {
    return DrawText{{x, y, 100, font.lineHeight()}, line, {line}, font, tracking, color};
}

inline Command symbol(const std::string& name, double x, double y, Font font, Color color) {
    const Size em = symbolArtwork(name, font.weight)->bounds;
    const double width = em.width * font.size;
    const double height = em.height * font.size;
    return DrawSymbol{name, {x - width / 2, y - height / 2, width, height}, font, color};
}

inline void appendButton(std::vector<Command>& drawing,
                         const Rect& frame,
                         const Command& label,
                         Color fill,
                         Color line) {
    drawing.push_back(FillShape{RoundedRectangle{.cornerRadius = 7}, frame, fill});
    drawing.push_back(label);
    drawing.push_back(
        StrokeShape{RoundedRectangle{.cornerRadius = 6.5}, frame.inset(0.5), 1, line});
}

inline Group stepButton(double x, double y, const std::string& name, bool active) {
    Group button{active ? 1.0 : 0.45, {}};
    appendButton(button.drawing, {x, y, 22, 22},
                 symbol(name, x + 11, y + 11, {9, FontWeight::bold}, active ? secondary : tertiary),
                 control, border);
    return button;
}

inline void appendRow(std::vector<Command>& drawing,
                      double y,
                      const std::string& name,
                      double level,
                      bool muted) {
    drawing.push_back(
        text(12, y + 3.5, name, {12, FontWeight::semibold}, muted ? secondary : primary));
    for (const auto& [x, sign] : {std::pair{89.0, "minus"}, std::pair{261.0, "plus"}}) {
        Group button = stepButton(x, y, sign, !muted);
        if (muted)
            drawing.push_back(std::move(button));
        else
            drawing.insert(drawing.end(), button.drawing.begin(), button.drawing.end());
    }
    const double width = 136;
    const double filled = muted ? 0 : width * level;
    drawing.push_back(FillShape{Capsule{}, {118, y + 8.5, width, 5}, control});
    drawing.push_back(FillShape{Capsule{}, {118, y + 8.5, filled, 5}, accent});
    drawing.push_back(FillShape{RoundedRectangle{.cornerRadius = 3},
                                {118 + std::max(filled - 3.5, 0.0), y + 3, 7, 16},
                                {0.847, 0.867, 0.875}});
    const std::string percent = muted ? "mudo" : std::to_string(std::lround(level * 100)) + "%";
    drawing.push_back(text(302, y + 4, percent, {11, FontWeight::regular, FontDesign::monospaced},
                           muted ? amber : secondary));
    appendButton(drawing, {326, y, 26, 22},
                 symbol(muted ? "speaker.slash.fill" : "speaker.wave.2.fill", 339, y + 11, {10},
                        muted ? amber : secondary),
                 muted ? amber.opacity(0.14) : control, muted ? amber.opacity(0.35) : border);
}

/// Three rows of applications, the last one muted if asked for, under a header and over a footer.
inline Scene volume(double level = 0.45, bool lastMuted = true) {
    Scene scene{.size = {364, 170}, .background = background};
    scene.drawing.push_back(
        text(12, 22, "VOLUMEN POR APP", {9, FontWeight::semibold}, tertiary, 0.9));
    scene.drawing.push_back(text(297, 21, "2 sonando", {10.5}, tertiary));
    appendRow(scene.drawing, 43, "Música", level, false);
    appendRow(scene.drawing, 74, "Navegador", 0.8, false);
    appendRow(scene.drawing, 105, "Videollamada", 0.3, lastMuted);
    scene.drawing.push_back(
        text(12, 136, "− y + de 10 en 10 · o toca la barra donde lo quieras", {10.5}, tertiary));
    return scene;
}

/// The curve of an equalizer over the name and the reason of a profile.
inline Scene whatIsOn() {
    Scene scene{.size = {170, 170}, .background = background};
    scene.drawing.push_back(text(12, 15, "NURVA", {9, FontWeight::semibold}, tertiary, 0.9));
    scene.drawing.push_back(FillShape{Circle{}, {152, 17.5, 6, 6}, accent});
    std::vector<Point> points;
    for (int i = 0; i < 10; ++i)
        points.push_back({12 + 146 * i / 9.0, 58 + 18 * std::sin(i * 0.9)});
    std::vector<Point> area{{12, 80}};
    area.insert(area.end(), points.begin(), points.end());
    area.push_back({158, 80});
    scene.drawing.push_back(FillPath{area, accent.opacity(0.1)});
    scene.drawing.push_back(StrokePath{points, {2.2, LineCap::round, LineJoin::round, 10}, accent});
    scene.drawing.push_back(text(12, 86, "Auriculares", {19, FontWeight::semibold}, primary));
    scene.drawing.push_back(DrawText{{12, 109, 140, 28},
                                     "Se conectaron los auriculares del estudio",
                                     {"Se conectaron los", "auriculares del estudio"},
                                     {11},
                                     0,
                                     secondary});
    scene.drawing.push_back(text(12, 141, "Salida de auriculares", {10.5}, tertiary));
    return scene;
}

}  // namespace scenes
