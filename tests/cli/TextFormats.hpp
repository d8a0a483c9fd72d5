#pragma once

#include "platform/foundation/localization/LocalizedFormat.hpp"

#include <map>
#include <regex>
#include <string>
#include <utility>
#include <vector>

namespace texts {

/// The arguments that a format takes, by position from 1: their specifiers without the per-cent
/// sign, such as "@" or "lld"; more than one where it takes the argument more than once.
inline std::map<int, std::vector<std::string>> argumentsOf(const std::string& format) {
    static const std::regex specifier(
        "%(?:%|(?:([1-9])\\$)?(@|(?:ll|l|q)?[di]|(?:\\.[0-9])?f|[^]?))");
    std::map<int, std::vector<std::string>> arguments;
    int next = 1;
    for (std::sregex_iterator found(format.begin(), format.end(), specifier), end; found != end;
         ++found) {
        const std::smatch& match = *found;
        if (match[2].matched)
            arguments[match[1].matched ? std::stoi(match[1]) : next++].push_back(match[2]);
    }
    return arguments;
}

/// Every text that a translation makes: its format with each wording of its variables put in.
inline std::vector<std::string> wordings(const foundation::LocalizedFormat& translation) {
    std::vector<std::string> texts{translation.text};
    for (const auto& [name, wordings] : translation.variables) {
        const std::regex variable("%([1-9]\\$)?#@" + name + "@");
        std::vector<std::string> worded;
        for (const std::string& text : texts)
            for (const auto& [category, wording] : wordings) {
                std::smatch place;
                std::regex_search(text, place, variable);
                const auto placed =
                    std::regex_replace(wording, std::regex("%(?!%|[1-9])"), "%" + place.str(1));
                worded.push_back(std::regex_replace(text, variable, placed));
            }
        texts = std::move(worded);
    }
    return texts;
}

}  // namespace texts
