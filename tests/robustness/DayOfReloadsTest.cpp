#include "extension/NurvaWidgets.hpp"
#include "linea/Proveedor.hpp"
#include "platform/canvas/PangoTextMeasurer.hpp"
#include "platform/canvas/PixelCanvas.hpp"
#include "platform/widgets/EntryRenderer.hpp"
#include "robustness/Workplace.hpp"

#include <gtest/gtest.h>
#include <malloc.h>

#include <array>
#include <cstddef>
#include <cstdlib>
#include <random>
#include <string>

namespace {

using foundation::Date;

struct SimulatedClock : foundation::Clock {
    Date now() const override { return instant; }
    Date instant = support::noon;
};

/// What is allocated at this moment, in bytes.
std::size_t allocated() {
    const struct mallinfo2 now = ::mallinfo2();
    return now.uordblks + now.hblkhd;
}

/// An audio application that is used all day: names, levels and what is on keep changing.
class Listening {
  public:
    nurva::EstadoParaWidgets next(Date now) {
        auto estado = Workplace::snapshot();
        estado.perfil = text();
        estado.razon = text();
        estado.salida = text();
        estado.dejaCambiar = below(2) == 0;
        estado.cuartoAhora = static_cast<double>(below(100)) / 10;
        estado.idioma = std::array{"es", "en", "de"}[below(3)];
        for (double& gain : estado.curva)
            gain = static_cast<double>(below(240)) / 10 - 12;
        for (auto& app : estado.apps) {
            app.nombre = text();
            app.nivel = static_cast<double>(below(101)) / 100;
            app.silenciada = below(4) == 0;
        }
        estado.cuando = now;
        return estado;
    }

  private:
    std::size_t below(std::size_t limit) {
        return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_);
    }
    std::string text() {
        static constexpr std::array words{"Música", "reunión", "jazz",  "Zürich", "العربية",
                                          "🎧",      "名前",    "de la", "noche"};
        std::string text;
        for (std::size_t count = 1 + below(4); count > 0; --count)
            text += std::string(words[below(words.size())]) + std::to_string(below(1000)) + " ";
        return text;
    }

    std::mt19937 random_{24};
};

/// The extension without its process: reloads all widgets when their timelines want it, and when
/// the host application has published something.
class Day {
  public:
    int reloads() const { return reloads_; }

    /// A day with a new snapshot after so many seconds each time.
    void pass(double untilNextSnapshot) {
        const Date end = clock_.instant.addingTimeInterval(86'400);
        for (Date published = clock_.instant; clock_.instant < end;) {
            if (!(clock_.instant < published)) {
                workplace_.publish(listening_.next(clock_.instant));
                published = clock_.instant.addingTimeInterval(untilNextSnapshot);
            }
            const Date wanted = reload();
            ASSERT_EQ(wanted, clock_.instant.addingTimeInterval(nurva::segundosHastaRecargar));
            clock_.instant = published < wanted ? published : wanted;
        }
    }

  private:
    /// When the first of the timelines wants to be asked again.
    Date reload() {
        Date wanted = clock_.instant.addingTimeInterval(1e9);
        for (const auto& widget : nurva::NurvaWidgets()) {
            const auto family = widget.families().front();
            const auto timeline = widget.timeline({.environment = environment_, .family = family});
            const auto scene = renderer_.render(
                timeline.entries.front(),
                {.size = widgets::cardSize(family), .margin = widgets::contentMargin, .scale = 2});
            EXPECT_FALSE(canvas_.draw(scene, 2).argb.empty());
            if (timeline.policy.earliest < wanted)
                wanted = timeline.policy.earliest;
            ++reloads_;
        }
        return wanted;
    }

    Workplace workplace_;
    SimulatedClock clock_;
    foundation::Environment environment_{
        clock_, workplace_.environment().fileManager, workplace_.environment().notifications,
        support::World::spanishBundle(), foundation::Locale{"es_ES"}};
    canvas::FontLibrary fonts_;
    canvas::PangoTextMeasurer measurer_{fonts_};
    canvas::PixelCanvas canvas_{fonts_};
    widgets::EntryRenderer renderer_{environment_, measurer_};
    Listening listening_;
    int reloads_ = 0;
};

TEST(DayOfReloads, TakesNoMoreMemoryThanTheDayBefore) {
    if (NURVA_SANITIZED)
        GTEST_SKIP() << "a sanitizer allocates otherwise";
    const double untilNextSnapshot = std::getenv("NURVA_LONG") ? 10 : 900;
    Day day;
    day.pass(untilNextSnapshot);
    const int reloadsBefore = day.reloads();
    const std::size_t before = allocated();
    day.pass(untilNextSnapshot);
    const auto growth = static_cast<std::ptrdiff_t>(allocated() - before);

    EXPECT_GT(before, 0u);
    EXPECT_GE(day.reloads() - reloadsBefore, 4 * 96);
    EXPECT_LT(growth, 1 << 20) << "bytes";
    RecordProperty("reloads", day.reloads() - reloadsBefore);
    RecordProperty("growth", static_cast<int>(growth));
}

}  // namespace
