#include "contract/Mutations.hpp"
#include "contract/SchemaVerdicts.hpp"
#include "estado/CodingCases.hpp"
#include "estado/EstadoParaWidgets.hpp"
#include "estado/Snapshots.hpp"
#include "peticiones/Peticion.hpp"
#include "platform/foundation/json/JSONDecoder.hpp"
#include "support/Hex.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace {

using foundation::JSONValue;
using nurva::EstadoParaWidgets;
using nurva::GrupoDeApps::Peticion;

const std::filesystem::path schemas = NURVA_DOCS_FOLDER "/schema";

template <class Value>
bool isDecoded(const std::string& text) {
    try {
        foundation::JSONDecoder().decode<Value>(text);
        return true;
    } catch (const foundation::DecodingError&) {
        return false;
    }
}

bool isJSON(const std::string& text) {
    foundation::JSONReader reader(foundation::withoutByteOrderMark(text));
    return reader.isAtEnd(reader.skipValue(reader.begin()));
}

bool repeatsAKey(const JSONValue& value) {
    std::vector<JSONValue> inner;
    std::set<std::string> keys;
    if (value.kind == JSONValue::Kind::array)
        foundation::forEachElement(value,
                                   [&](const JSONValue& element) { inner.push_back(element); });
    if (value.kind == JSONValue::Kind::object) {
        for (const auto& member : foundation::members(value)) {
            inner.push_back(member.value);
            if (!keys.insert(member.key).second)
                return true;
        }
    }
    return std::ranges::any_of(inner, repeatsAKey);
}

/// A schema speaks of values. Where a text is none, because it is no JSON, or more than one,
/// because a key stands in it twice, only the decoder has a say.
bool isOneValue(const std::string& text) {
    return isJSON(text) && !repeatsAKey(foundation::JSONDocument(text).root());
}

struct Counts {
    int accepted = 0;
    int refused = 0;
};

/// Compares the verdicts on the texts that are values; the decoder takes no other text that is not
/// even JSON.
template <class Value>
Counts expectAgreement(const std::string& schema, const std::vector<std::string>& texts) {
    Counts counts;
    const std::string verdicts = schemaVerdicts(schemas / schema, texts);
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const bool decoded = isDecoded<Value>(texts[i]);
        if (isOneValue(texts[i])) {
            EXPECT_EQ(verdicts[i], decoded ? 'y' : 'n') << texts[i];
            ++(decoded ? counts.accepted : counts.refused);
        } else {
            EXPECT_FALSE(decoded && !isJSON(texts[i])) << texts[i];
        }
    }
    return counts;
}

std::vector<std::string> keptTexts(const std::string& file, const std::string& type) {
    std::vector<std::string> texts;
    for (const CodingCase& one : codingCases(std::filesystem::path(NURVA_TESTS_FOLDER) / file))
        if (one.type == type)
            texts.push_back(support::bytesFromHex(one.input["hex"].get_ref<const std::string&>()));
    return texts;
}

std::vector<std::string> requestTexts() {
    std::vector<std::string> texts;
    for (const char* one :
         {R"({"ponerPerfil":{"_0":"p"}})", R"({"alternarEncendido":{}})",
          R"({"silenciar":{"app":"a","si":true}})", R"({"volumen":{"app":"a","nivel":0.5}})",
          R"({"volumen":{"app":"a","nivel":1},"silenciar":{"app":"a","si":true}})",
          R"({"other":1,"alternarEncendido":{"other":2}})"})
        std::ranges::copy(mutations(one), std::back_inserter(texts));
    return texts;
}

TEST(Schema, AgreesWithTheDecoderOnKeptSnapshots) {
    const Counts counts = expectAgreement<EstadoParaWidgets>(
        "estado.schema.json", keptTexts("data/estado-cases.jsonl", "estado"));
    EXPECT_GT(counts.accepted, 5);
    EXPECT_GT(counts.refused, 80);
}

TEST(Schema, AgreesWithTheDecoderOnKeptRequests) {
    const Counts counts = expectAgreement<Peticion>(
        "peticion.schema.json", keptTexts("data/peticion-cases.jsonl", "peticion"));
    EXPECT_GT(counts.accepted, 60);
    EXPECT_GT(counts.refused, 60);
}

TEST(Schema, AgreesWithTheDecoderOnMutatedSnapshots) {
    const Counts counts =
        expectAgreement<EstadoParaWidgets>("estado.schema.json", mutations(object(fullSnapshot())));
    EXPECT_GT(counts.accepted, 300);
    EXPECT_GT(counts.refused, 800);
}

TEST(Schema, AgreesWithTheDecoderOnMutatedRequests) {
    const Counts counts = expectAgreement<Peticion>("peticion.schema.json", requestTexts());
    EXPECT_GT(counts.accepted, 300);
    EXPECT_GT(counts.refused, 800);
}

}  // namespace
