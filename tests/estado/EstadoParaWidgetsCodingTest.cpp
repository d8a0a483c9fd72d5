#include "estado/EstadoParaWidgets.hpp"
#include "estado/Snapshots.hpp"
#include "platform/foundation/json/JSONDecoder.hpp"
#include "platform/foundation/json/JSONEncoder.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <set>

namespace {

using foundation::DecodingError;
using nurva::EstadoParaWidgets;
using Kind = DecodingError::Kind;

EstadoParaWidgets decode(const std::string& text) {
    return foundation::JSONDecoder{}.decode<EstadoParaWidgets>(text);
}

EstadoParaWidgets decode(const std::vector<SnapshotMember>& members) {
    return decode(object(members));
}

std::string encode(const EstadoParaWidgets& estado) {
    return foundation::JSONEncoder{}.encode(estado);
}

/// Kind and place of the error, as "typeMismatch apps.0.nivel".
std::string refusal(const std::vector<SnapshotMember>& members) {
    try {
        decode(members);
        return "none";
    } catch (const DecodingError& error) {
        return std::string(name(error.kind)) + " " + error.place();
    }
}

const std::set<std::string> optionalKeys{"cuartoAhora", "cuartoAntes", "idioma"};

TEST(EstadoParaWidgetsCoding, TakesEveryField) {
    const EstadoParaWidgets estado = decode(fullSnapshot());
    EXPECT_EQ(estado.perfil, "Música");
    EXPECT_EQ(estado.razon, "suena jazz");
    EXPECT_EQ(estado.curva, (std::vector<double>{0, 1.5, -2.25}));
    EXPECT_TRUE(estado.prendido);
    EXPECT_FALSE(estado.automatico);
    EXPECT_EQ(estado.salida, "Audífonos");
    EXPECT_TRUE(estado.salidaMedida);
    EXPECT_EQ(estado.cuartoAhora, 2.4);
    EXPECT_EQ(estado.cuartoAntes, 6.3);
    EXPECT_EQ(estado.medidoHace, "hace 3 días");
    EXPECT_EQ(estado.salidasSinMedir, 2);
    EXPECT_EQ(estado.perfiles, (std::vector<nurva::PerfilCorto>{{"p1", "Voz", {-3, 0.5}, true}}));
    EXPECT_EQ(estado.apps,
              (std::vector<nurva::AppCorta>{{"com.ejemplo.musica", "Música", 0.45, false, true}}));
    EXPECT_TRUE(estado.dejaCambiar);
    EXPECT_EQ(estado.acento, 6087834u);
    EXPECT_EQ(estado.idioma, "es");
    EXPECT_EQ(estado.cuando.secondsSinceReferenceDate, 785000000.125);
}

TEST(EstadoParaWidgetsCoding, OnlyTheOptionalKeysMayBeMissing) {
    for (const SnapshotMember& member : fullSnapshot()) {
        const bool isOptional = optionalKeys.contains(member.key);
        EXPECT_EQ(refusal(without(fullSnapshot(), member.key)),
                  isOptional ? "none" : "keyNotFound " + member.key);
    }
}

TEST(EstadoParaWidgetsCoding, MissingAndNullOptionalsAreAbsent) {
    auto missing = fullSnapshot();
    auto null = fullSnapshot();
    for (const std::string& key : optionalKeys) {
        missing = without(missing, key);
        null = replacing(null, key, "null");
    }
    const EstadoParaWidgets estado = decode(missing);
    EXPECT_EQ(estado.cuartoAhora, std::nullopt);
    EXPECT_EQ(estado.cuartoAntes, std::nullopt);
    EXPECT_EQ(estado.idioma, std::nullopt);
    EXPECT_EQ(decode(null), estado);
}

TEST(EstadoParaWidgetsCoding, ProfilesAndApplicationsNeedAllTheirKeys) {
    for (const SnapshotMember& member : fullProfile()) {
        const std::string list =
            "[" + object(fullProfile()) + "," + object(without(fullProfile(), member.key)) + "]";
        EXPECT_EQ(refusal(replacing(fullSnapshot(), "perfiles", list)),
                  "keyNotFound perfiles.1." + member.key);
    }
    for (const SnapshotMember& member : fullApplication()) {
        const std::string list = "[" + object(without(fullApplication(), member.key)) + "]";
        EXPECT_EQ(refusal(replacing(fullSnapshot(), "apps", list)),
                  "keyNotFound apps.0." + member.key);
    }
}

/// The JSON type that a value's first character announces.
char typeOf(const std::string& value) {
    const char first = value[0];
    return first == 'f' ? 't' : first == '-' || ('0' <= first && first <= '9') ? '0' : first;
}

TEST(EstadoParaWidgetsCoding, RefusesEveryOtherJSONType) {
    const std::vector<std::string> values{"\"1\"", "1", "true", "[]", "{}"};
    const auto check = [&](const std::vector<SnapshotMember>& members, const std::string& prefix,
                           const auto& snapshotWith) {
        for (const SnapshotMember& member : members) {
            for (const std::string& value : values) {
                const bool fits = typeOf(value) == typeOf(member.value);
                EXPECT_EQ(refusal(snapshotWith(replacing(members, member.key, value))),
                          fits ? "none" : "typeMismatch " + prefix + member.key)
                    << value;
            }
            const bool isBool = typeOf(member.value) == 't';
            EXPECT_EQ(refusal(snapshotWith(replacing(members, member.key, "null"))),
                      optionalKeys.contains(member.key) ? "none"
                      : isBool                          ? "typeMismatch " + prefix + member.key
                                                        : "valueNotFound " + prefix + member.key);
        }
    };
    check(fullSnapshot(), "", [](const auto& members) { return members; });
    check(fullProfile(), "perfiles.0.", [](const auto& members) {
        return replacing(fullSnapshot(), "perfiles", "[" + object(members) + "]");
    });
    check(fullApplication(), "apps.0.", [](const auto& members) {
        return replacing(fullSnapshot(), "apps", "[" + object(members) + "]");
    });
}

TEST(EstadoParaWidgetsCoding, AccentIsAWholeNumberOf32Bits) {
    const auto accent = [](const std::string& value) {
        return replacing(fullSnapshot(), "acento", value);
    };
    EXPECT_EQ(decode(accent("0")).acento, 0u);
    EXPECT_EQ(decode(accent("4294967295")).acento, 4294967295u);
    EXPECT_EQ(decode(accent("34.0")).acento, 34u);
    EXPECT_EQ(decode(accent("1e3")).acento, 1000u);
    for (const std::string value : {"4294967296", "-1", "1.5", "1e-1", "1e10"}) {
        EXPECT_EQ(refusal(accent(value)), "dataCorrupted ") << value;
    }
}

TEST(EstadoParaWidgetsCoding, UnmeasuredOutputsAreAWholeNumberOf64Bits) {
    const auto count = [](const std::string& value) {
        return replacing(fullSnapshot(), "salidasSinMedir", value);
    };
    EXPECT_EQ(decode(count("9223372036854775807")).salidasSinMedir,
              std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(decode(count("-9223372036854775808")).salidasSinMedir,
              std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(decode(count("-0")).salidasSinMedir, 0);
    for (const std::string value : {"9223372036854775808", "-9223372036854775809", "0.5"}) {
        EXPECT_EQ(refusal(count(value)), "dataCorrupted ") << value;
    }
}

TEST(EstadoParaWidgetsCoding, WrittenMomentIsSecondsSince2001) {
    const auto moment = [](const std::string& value) {
        return replacing(fullSnapshot(), "cuando", value);
    };
    EXPECT_EQ(decode(moment("0")).cuando, foundation::Date{0});
    EXPECT_EQ(decode(moment("-0.5")).cuando, foundation::Date{-0.5});
    EXPECT_EQ(refusal(moment("\"2026-01-02T00:00:00Z\"")), "typeMismatch cuando");
}

TEST(EstadoParaWidgetsCoding, TakesEmptyLists) {
    auto members = replacing(fullSnapshot(), "apps", "[]");
    members = replacing(replacing(members, "perfiles", "[ ]"), "curva", "[]");
    const EstadoParaWidgets estado = decode(members);
    EXPECT_TRUE(estado.apps.empty());
    EXPECT_TRUE(estado.perfiles.empty());
    EXPECT_TRUE(estado.curva.empty());
}

TEST(EstadoParaWidgetsCoding, IgnoresUnknownKeysAnywhere) {
    auto application = fullApplication();
    application.insert(application.begin(), {"clave", R"([{"a":[]},null])"});
    auto profile = fullProfile();
    profile.push_back({"Id", "1"});
    auto members = replacing(fullSnapshot(), "apps", "[" + object(application) + "]");
    members = replacing(members, "perfiles", "[" + object(profile) + "]");
    members.insert(members.begin() + 3, {"", "{}"});
    members.push_back({"Perfil", "false"});
    EXPECT_EQ(decode(members), decode(fullSnapshot()));
}

TEST(EstadoParaWidgetsCoding, TakesTheKeysInAnyOrder) {
    std::mt19937 random(7);
    for (int i = 0; i < 50; ++i) {
        auto members = fullSnapshot();
        std::ranges::shuffle(members, random);
        EXPECT_EQ(decode(members), decode(fullSnapshot()));
    }
}

TEST(EstadoParaWidgetsCoding, ReportsTheFirstFaultInTheOrderOfTheFields) {
    auto members = replacing(fullSnapshot(), "cuando", "true");
    EXPECT_EQ(refusal(members), "typeMismatch cuando");
    members = without(members, "acento");
    EXPECT_EQ(refusal(members), "keyNotFound acento");
    members = replacing(members, "apps", "[{}]");
    EXPECT_EQ(refusal(members), "keyNotFound apps.0.id");
    members = replacing(members, "curva", "[1,null,false]");
    EXPECT_EQ(refusal(members), "valueNotFound curva.1");
    std::ranges::reverse(members);
    EXPECT_EQ(refusal(members), "valueNotFound curva.1");
    members.push_back({"x", "}"});
    EXPECT_EQ(refusal(members), "dataCorrupted ");
}

TEST(EstadoParaWidgetsCoding, WritesTheFieldsInOrderAndLeavesAbsentOnesOut) {
    EXPECT_EQ(encode(decode(fullSnapshot())), object(fullSnapshot()));
    auto members = fullSnapshot();
    for (const std::string& key : optionalKeys) {
        members = without(members, key);
    }
    EXPECT_EQ(encode(decode(members)), object(members));
    EXPECT_EQ(decode(encode(decode(members))), decode(members));
}

TEST(EstadoParaWidgetsCoding, CannotWriteNumbersThatAreNotFinite) {
    EstadoParaWidgets estado = decode(fullSnapshot());
    estado.perfiles[0].curva[1] = std::numeric_limits<double>::infinity();
    try {
        encode(estado);
        FAIL() << "infinity was written";
    } catch (const foundation::EncodingError& error) {
        EXPECT_EQ(error.kind, foundation::EncodingError::Kind::invalidValue);
        EXPECT_EQ(error.codingPath, "perfiles.0.curva.1");
    }
}

}  // namespace
