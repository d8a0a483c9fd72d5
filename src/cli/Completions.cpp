#include "cli/Completions.hpp"

#include <algorithm>
#include <string_view>

namespace cli {

namespace {

std::string joined(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words)
        text += (text.empty() ? "" : " ") + word;
    return text;
}

/// The text without what `marks` would mean to the shell: each is written behind `escape`.
std::string escaped(std::string_view text, std::string_view marks, std::string_view escape) {
    std::string result;
    for (const char letter : text) {
        if (marks.find(letter) != std::string_view::npos)
            result += escape;
        result += letter;
    }
    return result;
}

/// A text between single quotes, as POSIX shells and fish read it.
std::string quoted(std::string_view text, std::string_view quoteInside) {
    std::string result = "'";
    for (const char letter : text)
        letter == '\'' ? result += quoteInside : result += letter;
    return result + "'";
}

constexpr std::string_view posixQuote = "'\\''";
constexpr std::string_view fishQuote = "\\'";

bool takesFiles(const CommandRow& command) {
    return std::ranges::any_of(command.arguments, &ArgumentRow::isFile);
}

std::string bashValues(const CommandRow& command, const ArgumentRow& option) {
    const std::string begin = "        '" + command.name + " ";
    const std::string action = option.isFile ? "-f" : "-W '" + joined(option.choices) + "'";
    const std::string end = "') _nurva_offer " + action + "; return ;;\n";
    std::string lines;
    for (const std::string& name : option.names)
        lines.append(begin).append(name).append(end);
    return lines;
}

/// How zsh is told of an option or argument's value.
std::string zshValue(const ArgumentRow& row) {
    if (row.value.empty())
        return {};
    if (row.isFile)
        return ":" + row.value + ":_files";
    return ":" + row.value + ":(" + joined(row.choices) + ")";
}

std::string zshText(std::string_view text) {
    return escaped(text, "[]:\\", "\\");
}

}  // namespace

std::string bashCompletions(const std::vector<CommandRow>& table) {
    std::string names;
    std::string values;
    std::string words;
    for (const CommandRow& command : table) {
        names += (names.empty() ? "" : " ") + command.name;
        std::string all;
        for (const ArgumentRow& option : command.options) {
            all += joined(option.names) + " ";
            if (!option.value.empty())
                values += bashValues(command, option);
        }
        for (const ArgumentRow& argument : command.arguments)
            all += joined(argument.choices) + " ";
        words += "        " + command.name + ") words='" + all + "'" +
                 (takesFiles(command) ? " files=-f" : "") + " ;;\n";
    }
    // A line an offer, since the names of files may hold spaces.
    return "_nurva_offer() {\n"
           "    mapfile -t COMPREPLY < <(compgen \"$@\" -- \"${COMP_WORDS[COMP_CWORD]}\")\n"
           "}\n"
           "_nurva() {\n"
           "    local command=${COMP_WORDS[1]} before=${COMP_WORDS[COMP_CWORD-1]} words= files=\n"
           "    if [ \"$COMP_CWORD\" -eq 1 ]; then\n"
           "        _nurva_offer -W '" +
           names +
           "'\n"
           "        return\n"
           "    fi\n"
           "    case \"$command $before\" in\n" +
           values +
           "    esac\n"
           "    case \"$command\" in\n" +
           words +
           "    esac\n"
           "    _nurva_offer $files -W \"$words\"\n"
           "}\n"
           "complete -o filenames -F _nurva nurva\n";
}

std::string zshCompletions(const std::vector<CommandRow>& table) {
    std::string names;
    std::string cases;
    for (const CommandRow& command : table) {
        names += "        " +
                 quoted(command.name + ":" + zshText(command.description), posixQuote) + "\n";
        std::string arguments;
        for (const ArgumentRow& option : command.options)
            for (const std::string& name : option.names)
                arguments +=
                    " " + quoted(name + "[" + zshText(option.description) + "]" + zshValue(option),
                                 posixQuote);
        for (const ArgumentRow& argument : command.arguments)
            arguments +=
                " " + quoted((argument.isRepeated ? "*" : "") + zshValue(argument), posixQuote);
        cases += "        " + command.name + ") _arguments" + arguments + " ;;\n";
    }
    return "#compdef nurva\n"
           "_nurva() {\n"
           "    local -a commands=(\n" +
           names +
           "    )\n"
           "    if (( CURRENT == 2 )); then\n"
           "        _describe nurva commands\n"
           "        return\n"
           "    fi\n"
           "    shift words\n"
           "    (( CURRENT-- ))\n"
           "    case $words[1] in\n" +
           cases +
           "    esac\n"
           "}\n"
           "_nurva \"$@\"\n";
}

std::string fishCompletions(const std::vector<CommandRow>& table) {
    std::string lines = "complete -c nurva -f\n";
    for (const CommandRow& command : table) {
        lines += "complete -c nurva -n __fish_use_subcommand -a " + command.name + " -d " +
                 quoted(command.description, fishQuote) + "\n";
        const std::string here =
            "complete -c nurva -n '__fish_seen_subcommand_from " + command.name + "'";
        for (const ArgumentRow& option : command.options) {
            lines += here;
            for (const std::string& name : option.names)
                lines += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
            if (option.isFile)
                lines += " -r -F";
            else if (!option.value.empty())
                lines += " -x" + (option.choices.empty()
                                      ? ""
                                      : " -a " + quoted(joined(option.choices), fishQuote));
            lines += " -d " + quoted(option.description, fishQuote) + "\n";
        }
        for (const ArgumentRow& argument : command.arguments)
            if (argument.isFile)
                lines += here + " -F\n";
            else if (!argument.choices.empty())
                lines += here + " -a " + quoted(joined(argument.choices), fishQuote) + "\n";
    }
    return lines;
}

}  // namespace cli
