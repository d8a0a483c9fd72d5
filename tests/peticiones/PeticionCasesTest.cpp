#include "estado/CodingCases.hpp"
#include "peticiones/Peticion.hpp"
#include "platform/foundation/json/JSONDecoder.hpp"
#include "platform/foundation/json/JSONEncoder.hpp"
#include "support/Hex.hpp"
#include "support/SharedData.hpp"

#include <gtest/gtest.h>

#include <bit>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace {

using nlohmann::json;
using nurva::GrupoDeApps::Peticion;

std::string textOf(const CodingCase& codingCase, const char* key) {
    return support::bytesFromHex(codingCase.input[key].get_ref<const std::string&>());
}

/// The texts are UTF-16 or UTF-32, which the platform reads and this reader refuses outright.
bool isWide(const CodingCase& codingCase) {
    return textOf(codingCase, "hex").find('\0') != std::string::npos;
}

/// The platform finds another fault before it comes to the comma; here the whole text comes first.
bool hasCommaTooMany(const CodingCase& codingCase) {
    return textOf(codingCase, "hex") == "[1,]";
}

void decodeAndCompare(const CodingCase& codingCase) {
    const json& expected = codingCase.expected;
    try {
        const auto peticion = foundation::JSONDecoder().decode<Peticion>(textOf(codingCase, "hex"));
        ASSERT_TRUE(expected["ok"]) << "decodes";
        // A request's own form holds all its values, numbers to the last bit.
        EXPECT_EQ(foundation::JSONEncoder().encode(peticion), expected["reencoded"]);
    } catch (const foundation::DecodingError& error) {
        ASSERT_FALSE(expected["ok"]) << error.what();
        if (isWide(codingCase) || hasCommaTooMany(codingCase))
            return;
        EXPECT_EQ(name(error.kind), expected["error"]);
        EXPECT_EQ(error.codingPath, expected.value("codingPath", ""));
    }
}

Peticion requestOf(const CodingCase& codingCase) {
    const json& input = codingCase.input;
    const std::string id = input.contains("textoHex") ? textOf(codingCase, "textoHex") : "";
    if (input["caso"] == "ponerPerfil")
        return Peticion::ponerPerfil(id);
    if (input["caso"] == "alternarEncendido")
        return Peticion::alternarEncendido();
    if (input["caso"] == "silenciar")
        return Peticion::silenciar(id, input["si"]);
    if (input["caso"] != "volumen")
        throw std::runtime_error("no case " + input["caso"].dump());
    const std::string bits = input["bits"];
    return Peticion::volumen(id, std::bit_cast<double>(std::stoull(bits, nullptr, 16)));
}

void encodeAndCompare(const CodingCase& codingCase) {
    const json& expected = codingCase.expected;
    try {
        const std::string text = foundation::JSONEncoder().encode(requestOf(codingCase));
        ASSERT_TRUE(expected["ok"]) << "encodes as " << text;
        EXPECT_EQ(text, expected["reencoded"]);
        EXPECT_EQ(foundation::JSONDecoder().decode<Peticion>(text), requestOf(codingCase));
    } catch (const foundation::EncodingError& error) {
        ASSERT_FALSE(expected["ok"]) << error.what();
        // The platform leaves the case's key out of the path.
        EXPECT_EQ(error.codingPath, "volumen." + expected["codingPath"].get<std::string>());
    }
}

void expectAgreement(const std::filesystem::path& file, int expectedDecoded, int expectedEncoded) {
    int decoded = 0;
    int encoded = 0;
    for (const CodingCase& codingCase : codingCases(file)) {
        SCOPED_TRACE(codingCase.id + " " + codingCase.group + ": " + codingCase.note);
        if (codingCase.type == "peticion") {
            ++decoded;
            decodeAndCompare(codingCase);
        } else if (codingCase.type == "codificarPeticion") {
            ++encoded;
            encodeAndCompare(codingCase);
        }
    }
    EXPECT_EQ(decoded, expectedDecoded);
    EXPECT_EQ(encoded, expectedEncoded);
}

TEST(PeticionCases, KeptOnesAreAnsweredLikeThePlatform) {
    expectAgreement(std::filesystem::path(NURVA_TESTS_FOLDER) / "data/peticion-cases.jsonl", 233,
                    28);
}

TEST(PeticionCases, AllAreAnsweredLikeThePlatform) {
    const auto file = support::sharedData("oracle/coding-cases.jsonl.gz");
    if (!file)
        GTEST_SKIP() << "the whole collection is not here";
    expectAgreement(*file, 3863, 806);
}

}  // namespace
