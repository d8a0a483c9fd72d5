#include "contract/SchemaVerdicts.hpp"
#include "estado/EstadoParaWidgets.hpp"
#include "estado/Snapshots.hpp"
#include "platform/foundation/json/JSONDecoder.hpp"

#include <gtest/gtest.h>

namespace {

/// A snapshot of which a schema cannot say what the decoder says, or says nothing. Validators
/// differ here among themselves; the verdict is that of ours.
struct Limit {
    const char* what;
    std::string text;
    bool isDecoded;
    char verdict;
};

std::string with(const std::string& key, const std::string& value) {
    return object(replacing(fullSnapshot(), key, value));
}

std::string beginning(const std::string& member) {
    return "{" + member + "," + object(fullSnapshot()).substr(1);
}

std::string ending(const std::string& member) {
    std::string text = object(fullSnapshot());
    return text.replace(text.size() - 1, 1, "," + member + "}");
}

/// As an unknown member, which nobody reads.
std::string nested(std::size_t levels) {
    return ending("\"other\":" + std::string(levels, '[') + std::string(levels, ']'));
}

/// The largest double and a bit, with all its digits.
std::string beyondLargestDouble() {
    std::string digits = std::to_string(1.7976931348623157e308);
    digits.erase(digits.find('.'));
    return ++digits.back(), digits;
}

std::vector<Limit> limits() {
    return {
        // Of members with the same key the decoder takes the first; a validator sees the last.
        {"a good value first, a bad one later", ending(R"("razon":null)"), true, 'n'},
        {"a bad value first, a good one later", beginning(R"("razon":null)"), false, 'y'},
        // How deep a text may go is no property of its value.
        {"512 levels", nested(511), true, 'y'},
        {"513 levels", nested(512), false, 'y'},
        // What stands in a string that is no text, some readers let through.
        {"half a character, escaped", with("razon", R"("\ud800")"), false, 'y'},
        {"a byte that is not UTF-8", with("razon", "\"\xE9\""), false, 'x'},
        {"one byte-order mark", "\xEF\xBB\xBF" + object(fullSnapshot()), true, 'y'},
        {"two byte-order marks", "\xEF\xBB\xBF\xEF\xBB\xBF" + object(fullSnapshot()), false, 'x'},
        {"a word that is no number of JSON", with("cuando", "NaN"), false, 'x'},
        // Whole numbers are exact here; a validator that reads doubles rounds them first.
        {"the largest count, with a point", with("salidasSinMedir", "9223372036854775807.0"), true,
         'n'},
        {"nearly one", with("salidasSinMedir", "0.99999999999999999999"), false, 'y'},
        {"nearly nothing", with("acento", "1e-400"), false, 'y'},
        // And where a double is wanted it is the other way round.
        {"what rounds to the largest double", with("cuando", beyondLargestDouble()), true, 'n'},
    };
}

TEST(SchemaLimits, AreTheseAndNoOthers) {
    std::vector<std::string> texts;
    for (const Limit& limit : limits())
        texts.push_back(limit.text);
    const std::string verdicts =
        schemaVerdicts(NURVA_DOCS_FOLDER "/schema/estado.schema.json", texts);
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const Limit limit = limits()[i];
        SCOPED_TRACE(limit.what);
        EXPECT_EQ(verdicts[i], limit.verdict);
        if (limit.isDecoded)
            EXPECT_NO_THROW(foundation::JSONDecoder().decode<nurva::EstadoParaWidgets>(limit.text));
        else
            EXPECT_THROW(foundation::JSONDecoder().decode<nurva::EstadoParaWidgets>(limit.text),
                         foundation::DecodingError);
    }
}

}  // namespace
