#include "contract/Document.hpp"
#include "estado/EstadoParaWidgets.hpp"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using nlohmann::ordered_json;

/// The keys of a record, and whether a file must have each.
struct Fields {
    std::vector<std::string> names;
    std::vector<std::string> required;
    friend bool operator==(const Fields&, const Fields&) = default;
};

template <class Value>
constexpr bool isOptional = false;
template <class Value>
constexpr bool isOptional<std::optional<Value>> = true;

template <class Record>
Fields fieldsOf() {
    Fields fields;
    const auto add = [&]<class Value>(const foundation::CodingKey<Record, Value>& key) {
        fields.names.emplace_back(key.name);
        if (!isOptional<Value>)
            fields.required.emplace_back(key.name);
    };
    std::apply([&](const auto&... key) { (add(key), ...); }, Record::CodingKeys);
    return fields;
}

const std::vector<Fields> ofTheCode{fieldsOf<nurva::EstadoParaWidgets>(),
                                    fieldsOf<nurva::PerfilCorto>(), fieldsOf<nurva::AppCorta>()};

Fields ofSchema(const ordered_json& schema) {
    Fields fields{.names = {}, .required = schema["required"]};
    for (const auto& [name, ignored] : schema["properties"].items())
        fields.names.push_back(name);
    return fields;
}

TEST(Fields, OfTheSchemaAreThoseOfTheCode) {
    const auto schema =
        ordered_json::parse(support::contentsOf(NURVA_DOCS_FOLDER "/schema/estado.schema.json"));
    EXPECT_EQ((std::vector{ofSchema(schema), ofSchema(schema["$defs"]["perfil"]),
                           ofSchema(schema["$defs"]["app"])}),
              ofTheCode);
}

TEST(Fields, OfTheDocumentAreThoseOfTheCode) {
    std::vector<Fields> tables;
    for (const std::string& line : document::lines()) {
        const auto row = document::row(line);
        if (row && row->front() == "member") {
            tables.emplace_back();
        } else if (row && row->size() == 5) {
            tables.back().names.push_back(row->front());
            if (row->at(2) == "yes")
                tables.back().required.push_back(row->front());
        }
    }
    EXPECT_EQ(tables, ofTheCode);
}

}  // namespace
