#include "platform/foundation/notifications/SessionBus.hpp"
#include "platform/remote/Wire.hpp"

#include <gtest/gtest.h>
#include <sys/socket.h>

#include <cmath>
#include <limits>
#include <system_error>

namespace remote {
namespace {

/// A connection that never gets as far as sending: messages are made and read on it.
foundation::SessionBus connection() {
    int ends[2];
    EXPECT_EQ(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends), 0);
    sd_bus* bus = nullptr;
    check(sd_bus_new(&bus));
    check(sd_bus_set_fd(bus, ends[0], ends[1]));
    check(sd_bus_start(bus));
    return foundation::SessionBus(bus);
}

class Wire : public testing::Test {
  protected:
    template <class Fill>
    foundation::BusMessage message(Fill fill) {
        sd_bus_message* made = nullptr;
        check(sd_bus_message_new_method_call(bus_.get(), &made, nullptr, "/", "a.b", "C"));
        foundation::BusMessage message(made);
        fill(*made);
        check(sd_bus_message_seal(made, 1, 0));
        check(sd_bus_message_rewind(made, true));
        return message;
    }

    template <class Value>
    foundation::BusMessage written(const Value& value) {
        return message([&](sd_bus_message& message) { write(message, value); });
    }

  private:
    foundation::SessionBus bus_ = connection();
};

const intents::ArchivedAction setVolume{
    "PonerVolumen",
    {{"clave", std::string("a\0b/…", 7)}, {"nivel", 0.1}, {"sí", true}}};

const Face face{.date = {812345678.25},
                .reloadAfter = foundation::Date{812346578.5},
                .elements = {{.label = "Música \xFF", .frame = {12, 13.5, 100, 14}},
                             {.role = views::AccessibilityRole::button,
                              .label = "Subir",
                              .enabled = false,
                              .frame = {1, 2, 3, 4},
                              .action = setVolume}}};

TEST_F(Wire, CarriesAnActionWithEveryKindOfValue) {
    EXPECT_EQ(readAction(*written(setVolume)), setVolume);
    EXPECT_EQ(readAction(*written(intents::ArchivedAction{"x"})), intents::ArchivedAction{"x"});
}

TEST_F(Wire, CarriesNumbersThatAreNone) {
    const auto infinity = std::numeric_limits<double>::infinity();
    const intents::ArchivedAction action{"x", {{"a", std::nan("")}, {"b", -infinity}}};
    const auto read = readAction(*written(action));
    EXPECT_TRUE(std::isnan(std::get<double>(read.parameters[0].second)));
    EXPECT_EQ(std::get<double>(read.parameters[1].second), -infinity);
}

TEST_F(Wire, CarriesAFace) {
    EXPECT_EQ(readFace(*written(face)), face);
    Face once = face;
    once.reloadAfter.reset();
    once.elements.clear();
    EXPECT_EQ(readFace(*written(once)), once);
}

TEST_F(Wire, CarriesAGallery) {
    using enum widgets::WidgetFamily;
    const std::vector<WidgetDescription> gallery{
        {"nurva.a", "Qué está puesto", "El perfil, su curva…", {systemSmall}},
        {"nurva.b", "", "", {systemMedium, systemSmall}}};
    EXPECT_EQ(readGallery(*written(gallery)), gallery);
    EXPECT_TRUE(readGallery(*written(std::vector<WidgetDescription>())).empty());
}

TEST_F(Wire, CarriesAMillionLetters) {
    const std::string text(1'000'000, 'x');
    EXPECT_EQ(readText(*written(std::string_view(text))), text);
}

TEST_F(Wire, RefusesAFaceWhoseGeometryIsNoNumber) {
    Face endless = face;
    endless.elements[0].frame.width = std::numeric_limits<double>::infinity();
    EXPECT_THROW(readFace(*written(endless)), std::system_error);
    Face timeless = face;
    timeless.date = {std::nan("")};
    EXPECT_THROW(readFace(*written(timeless)), std::system_error);
}

TEST_F(Wire, RefusesRolesAndFamiliesThatThereAreNot) {
    Face odd = face;
    odd.elements[0].role = static_cast<views::AccessibilityRole>(2);
    EXPECT_THROW(readFace(*written(odd)), std::system_error);
    std::vector<WidgetDescription> gallery{{"a", "", "", {static_cast<widgets::WidgetFamily>(2)}}};
    EXPECT_THROW(readGallery(*written(gallery)), std::system_error);
    gallery[0].families.clear();
    EXPECT_THROW(readGallery(*written(gallery)), std::system_error);
}

TEST_F(Wire, RefusesWhatIsOfAnotherType) {
    const foundation::BusMessage text = written(std::string_view("x"));
    EXPECT_THROW(readNumber(*text), std::system_error);
    EXPECT_THROW(readFace(*text), std::system_error);
    EXPECT_THROW(readGallery(*text), std::system_error);
    const foundation::BusMessage nothing = message([](sd_bus_message&) {});
    EXPECT_THROW(readText(*nothing), std::system_error);
    EXPECT_THROW(readCount(*nothing), std::system_error);
    EXPECT_THROW(readAction(*nothing), std::system_error);
}

TEST_F(Wire, RefusesAnActionWithAValueOfNoParameter) {
    const foundation::BusMessage odd = message([](sd_bus_message& message) {
        write(message, std::string_view("x"));
        check(sd_bus_message_append(&message, "a(ayv)", 1, 1, 'n', "s", "text"));
    });
    EXPECT_THROW(readAction(*odd), std::system_error);
}

}  // namespace
}  // namespace remote
