#include "estado/RandomSnapshots.hpp"

#include <algorithm>
#include <iterator>

std::size_t RandomSnapshots::below(std::size_t limit) {
    return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random_);
}

bool RandomSnapshots::happens(double probability) {
    return std::bernoulli_distribution(probability)(random_);
}

template <std::size_t Count>
std::string RandomSnapshots::oneOf(const char* const (&texts)[Count]) {
    return texts[below(Count)];
}

std::string RandomSnapshots::text() {
    static constexpr const char* pieces[] = {
        "a",       "Música",  " ",       "com.ejemplo", "−",
        "🎧",       "e\u0301", "العربية", "\\n",         "\\\"",
        "\\\\",    "\\/",     "\\t",     "\\u00e9",     "\\ud83c\\udfa7",
        "\\u0000", "\x7f",    "%@",      "\u2028",      "\u200f",
        "Zürich",  "名前",    "'",       "{",           "]"};
    std::string text = "\"";
    for (std::size_t count = below(happens(0.02) ? 300 : 6); count > 0; --count)
        text += oneOf(pieces);
    return text + '"';
}

std::string RandomSnapshots::number() {
    static constexpr const char* telling[] = {"0",
                                              "-0",
                                              "-0.0",
                                              "1",
                                              "0.1",
                                              "1e3",
                                              "1E+2",
                                              "5e-324",
                                              "1e-400",
                                              "-1e308",
                                              "2.5e-1",
                                              "123456789012345678901234567890",
                                              "0.30000000000000004",
                                              "1.7976931348623157e308",
                                              "9007199254740993"};
    switch (below(4)) {
        case 0:
            return oneOf(telling);
        case 1:
            return std::to_string(static_cast<int>(below(41)) - 20);
        case 2:
            return std::to_string(static_cast<int>(below(241)) - 120) + "." +
                   std::to_string(below(1000));
        default: {
            std::string digits = happens(0.5) ? "-0." : std::to_string(1 + below(9)) + ".";
            for (std::size_t count = 1 + below(20); count > 0; --count)
                digits += static_cast<char>('0' + below(10));
            return digits +
                   (happens(0.3) ? "e" + std::to_string(static_cast<int>(below(80)) - 40) : "");
        }
    }
}

std::string RandomSnapshots::wholeNumber(std::size_t most) {
    static constexpr const char* forms[] = {"", "", "", ".0", ".000", "e0", "E+0", "0e-1", ".0e0"};
    return std::to_string(1 + below(happens(0.5) ? 100 : most)) + oneOf(forms);
}

std::string RandomSnapshots::truth() {
    return happens(0.5) ? "true" : "false";
}

std::string RandomSnapshots::curve() {
    std::string gains;
    for (std::size_t count = happens(0.8) ? 13 : below(30); count > 0; --count)
        gains += (gains.empty() ? "" : ",") + number();
    return "[" + gains + "]";
}

/// At the limits of what a whole number may be, on either side.
std::string RandomSnapshots::limit() {
    static constexpr const char* limits[] = {"-1",
                                             "0",
                                             "4294967295",
                                             "4294967296",
                                             "9223372036854775807",
                                             "9223372036854775808",
                                             "-9223372036854775808",
                                             "-9223372036854775809",
                                             "18446744073709551615",
                                             "18446744073709551616",
                                             "1e18",
                                             "1e19",
                                             "1.00000000000000000000000000001",
                                             "1e-1",
                                             "10e-1"};
    return oneOf(limits);
}

std::string RandomSnapshots::anyValue(int depth) {
    static constexpr const char* telling[] = {"null", "true", "0.5", "\"\"", "[]", "{}", "[null]"};
    switch (below(depth < 4 ? 8 : 5)) {
        case 0:
            return text();
        case 1:
            return number();
        case 2:
            return limit();
        case 3:
        case 4:
            return oneOf(telling);
        case 5:
            return "[" + anyValue(depth + 1) + "," + anyValue(depth + 1) + "]";
        case 6: {
            const std::size_t nesting = 509 + below(5);
            return depth == 0 && happens(0.5)
                       ? std::string(nesting, '[') + std::string(nesting, ']')
                       : "[" + anyValue(depth + 1) + "]";
        }
        default:
            return "{" + text() + ":" + anyValue(depth + 1) + "}";
    }
}

RandomSnapshots::Members RandomSnapshots::profile() {
    return {{"id", text()}, {"nombre", text()}, {"curva", curve()}, {"puesto", truth()}};
}

RandomSnapshots::Members RandomSnapshots::application() {
    return {{"id", text()},
            {"nombre", text()},
            {"nivel", number()},
            {"silenciada", truth()},
            {"suena", truth()}};
}

RandomSnapshots::Members RandomSnapshots::snapshot() {
    static constexpr const char* farthest[] = {"-9223372036854775808", "9223372036854775807"};
    Members members = {{"perfil", text()},
                       {"razon", text()},
                       {"curva", curve()},
                       {"prendido", truth()},
                       {"automatico", truth()},
                       {"salida", text()},
                       {"salidaMedida", truth()},
                       {"cuartoAhora", happens(0.2) ? "null" : number()},
                       {"cuartoAntes", happens(0.2) ? "null" : number()},
                       {"medidoHace", text()},
                       {"salidasSinMedir", happens(0.1) ? oneOf(farthest)
                                                        : (happens(0.3) ? "-" : "") +
                                                              wholeNumber(std::size_t{1} << 59)},
                       {"perfiles", list([this] { return profile(); })},
                       {"apps", list([this] { return application(); })},
                       {"dejaCambiar", truth()},
                       {"acento", happens(0.1) ? "4294967295" : wholeNumber(std::size_t{1} << 28)},
                       {"idioma", happens(0.2) ? "null" : text()},
                       {"cuando", number()}};
    for (const char* optional : {"cuartoAhora", "cuartoAntes", "idioma"})
        if (happens(0.2))
            members = without(std::move(members), optional);
    return members;
}

template <class Make>
std::string RandomSnapshots::list(Make make) {
    std::string elements;
    for (std::size_t count = below(5); count > 0; --count) {
        Members members = make();
        if (faults_ > 0 && happens(0.2))
            spoil(members);
        elements += (elements.empty() ? "" : ",") + written(std::move(members));
    }
    return "[" + elements + "]";
}

void RandomSnapshots::spoil(Members& members) {
    --faults_;
    const auto one = members.begin() + static_cast<std::ptrdiff_t>(below(members.size()));
    switch (below(5)) {
        case 0:
            members.erase(one);
            return;
        case 1:
            one->key[below(one->key.size())] = static_cast<char>('a' + below(26));
            return;
        case 2:
            members.insert(members.begin() + static_cast<std::ptrdiff_t>(below(members.size())),
                           {one->key, anyValue()});
            return;
        case 3:
            members.push_back({one->key, anyValue()});
            return;
        default:
            one->value =
                one->key == "salidasSinMedir" || one->key == "acento" ? limit() : anyValue();
    }
}

std::string RandomSnapshots::written(Members members) {
    static constexpr const char* blanks[] = {" ", "\n", "\t", "\r\n  "};
    if (happens(0.2))
        members.push_back({"desconocido", anyValue(2)});
    if (happens(0.3))
        std::ranges::shuffle(members, random_);
    if (happens(0.2))
        for (SnapshotMember& member : members)
            member.value = oneOf(blanks) + member.value + oneOf(blanks);
    return object(members);
}

std::string RandomSnapshots::intact() {
    return (happens(0.02) ? "\uFEFF" : "") + written(snapshot()) + (happens(0.1) ? "\n" : "");
}

std::string RandomSnapshots::spoiled() {
    faults_ = 1 + static_cast<int>(below(2));
    Members members = snapshot();
    while (faults_ > 0)
        spoil(members);
    return written(std::move(members));
}

std::string RandomSnapshots::damaged() {
    static constexpr std::string_view telling =
        "{}[]\",:\\0123456789.eE+-truefalsn \n\t/ubx\xC3\xA9\xED\xA0\xFF\x01";
    std::string text = intact();
    for (std::size_t changes = 1 + below(3); changes > 0 && !text.empty(); --changes) {
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
