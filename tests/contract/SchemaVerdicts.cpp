#include "contract/SchemaVerdicts.hpp"

#include "support/Program.hpp"

#include <stdexcept>
#include <string_view>

namespace {

std::string hexOf(std::string_view bytes) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string hex;
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        hex += digits[value / 16];
        hex += digits[value % 16];
    }
    return hex;
}

}  // namespace

std::string schemaVerdicts(const std::filesystem::path& schema,
                           const std::vector<std::string>& texts) {
    const support::TemporaryFolder folder;
    std::string lines;
    for (const std::string& text : texts)
        lines += hexOf(text) + "\n";
    const auto input = folder.write("texts", lines);
    const support::Outcome outcome = support::run(NURVA_TESTS_FOLDER "/contract/verdicts.py '" +
                                                  schema.string() + "' <'" + input.string() + "'");
    std::string verdicts = outcome.output;
    std::erase(verdicts, '\n');
    if (outcome.status != 0 || verdicts.size() != texts.size())
        throw std::runtime_error("no verdicts: " + outcome.errors);
    return verdicts;
}
