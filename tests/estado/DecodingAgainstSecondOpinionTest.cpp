#include "estado/EstadoParaWidgets.hpp"
#include "estado/Snapshots.hpp"
#include "platform/foundation/json/JSONDecoder.hpp"
#include "platform/foundation/json/JSONEncoder.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <optional>
#include <random>
#include <string>

namespace {

using nurva::EstadoParaWidgets;

/// The snapshot with a few bytes replaced, removed, added or copied from elsewhere in it.
std::string mutated(std::string text, std::mt19937& random) {
    const auto below = [&](std::size_t limit) {
        return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
    };
    static const std::string telling =
        "{}[]\",:\\0123456789.eE+-truefalsn \n\t/ubx\xC3\xA9\xFF\x01";
    for (std::size_t i = 0, changes = 1 + below(3); i < changes && !text.empty(); ++i) {
        const std::size_t at = below(text.size());
        switch (below(4)) {
            case 0:
                text[at] = telling[below(telling.size())];
                break;
            case 1:
                text.erase(at, 1 + below(4));
                break;
            case 2:
                text.insert(at, 1, telling[below(telling.size())]);
                break;
            default:
                text.insert(at, text.substr(below(text.size()), 1 + below(12)));
        }
    }
    return text;
}

/// Whether the other reader calls the text JSON; it has no opinion where a number is beyond a
/// double.
std::optional<bool> secondOpinion(const std::string& text) {
    try {
        return !nlohmann::json::parse(text).is_discarded();
    } catch (const nlohmann::json::parse_error&) {
        return false;
    } catch (const nlohmann::json::out_of_range&) {
        return std::nullopt;
    }
}

bool isJSON(const std::string& text) {
    foundation::JSONReader reader(text);
    return reader.isAtEnd(reader.skipValue(reader.begin()));
}

TEST(DecodingAgainstSecondOpinion, AgreesOnWhatIsJSON) {
    std::mt19937 random(2001);
    const std::string snapshot = object(fullSnapshot());
    int decoded = 0;
    int malformed = 0;
    for (int i = 0; i < 20'000; ++i) {
        const std::string text = mutated(snapshot, random);
        SCOPED_TRACE(text);
        try {
            const auto estado = foundation::JSONDecoder{}.decode<EstadoParaWidgets>(text);
            ++decoded;
            ASSERT_TRUE(isJSON(text));
            const std::string written = foundation::JSONEncoder{}.encode(estado);
            ASSERT_EQ(foundation::JSONDecoder{}.decode<EstadoParaWidgets>(written), estado);
            ASSERT_EQ(foundation::decodeByParts<EstadoParaWidgets>(text), estado);
        } catch (const foundation::DecodingError&) {
            malformed += !isJSON(text);
            ASSERT_THROW(foundation::decodeByParts<EstadoParaWidgets>(text),
                         foundation::DecodingError);
        }
        ASSERT_EQ(isJSON(text), secondOpinion(text).value_or(isJSON(text)));
    }
    EXPECT_GT(decoded, 500);
    EXPECT_GT(malformed, 5'000);
}

}  // namespace
