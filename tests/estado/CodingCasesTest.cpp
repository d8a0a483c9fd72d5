#include "estado/CodingCases.hpp"
#include "support/Hex.hpp"
#include "support/SharedData.hpp"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

/// The texts are UTF-16 or UTF-32, which the platform reads and this reader refuses outright.
bool isWide(const CodingCase& codingCase) {
    return codingCase.group.starts_with("codificacion") &&
           support::bytesFromHex(codingCase.input.value("hex", "")).find('\0') != std::string::npos;
}

void expectAgreement(const std::vector<CodingCase>& cases, std::size_t expectedCount) {
    std::size_t count = 0;
    for (const CodingCase& codingCase : cases) {
        if (codingCase.type != "estado" && codingCase.type != "codificarEstado") {
            continue;
        }
        ++count;
        SCOPED_TRACE(codingCase.id + " " + codingCase.group + ": " + codingCase.note);
        const Disagreement found = disagreement(codingCase);
        EXPECT_EQ(found.verdict, "");
        if (!isWide(codingCase)) {
            EXPECT_EQ(found.error, "");
        }
    }
    EXPECT_EQ(count, expectedCount);
}

TEST(CodingCases, KeptOnesAreAnsweredLikeThePlatform) {
    expectAgreement(
        codingCases(std::filesystem::path(NURVA_TESTS_FOLDER) / "data/estado-cases.jsonl"), 270);
}

TEST(CodingCases, AllAreAnsweredLikeThePlatform) {
    const auto file = support::sharedData("oracle/coding-cases.jsonl.gz");
    if (!file) {
        GTEST_SKIP() << "the whole collection is not here";
    }
    expectAgreement(codingCases(*file), 7425);
}

}  // namespace
