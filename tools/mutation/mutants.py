"""The ways in which a line of C++ may be wrong, one at a time.

Works on tokens. Which `<`, `&`, `*` and `-` are operators of two operands tells clang-format's spacing.
"""

import re
from dataclasses import dataclass

TOKEN = re.compile(
    r"""
    (?P<comment>//[^\n]*|/\*.*?\*/)
  | (?P<directive>^[ \t]*\#(?:[^\n]*\\\n)*[^\n]*)
  | (?P<string>(?:u8|[uUL])?(?:R"\((?:.|\n)*?\)"|"(?:\\.|[^"\\\n])*"))
  | (?P<char>(?:u8|[uUL])?'(?:\\.|[^'\\\n])+')
  | (?P<number>(?:0[xX][0-9a-fA-F']+|\d[\d']*(?:\.\d*)?(?:[eE][+-]?\d+)?)[uUlLfF]*)
  | (?P<name>[A-Za-z_]\w*)
  | (?P<operator><=>|<<=|>>=|->|::|\+\+|--|<<|>>|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|.)
    """,
    re.VERBOSE | re.MULTILINE | re.DOTALL,
)

OTHERS = {
    "<": ["<=", ">="],
    "<=": ["<", ">"],
    ">": [">=", "<="],
    ">=": [">", "<"],
    "==": ["!="],
    "!=": ["=="],
    "&&": ["||"],
    "||": ["&&"],
    "+": ["-"],
    "-": ["+"],
    "*": ["/"],
    "/": ["*"],
    "%": ["*"],
    "<<": [">>"],
    ">>": ["<<"],
    "&": ["|"],
    "|": ["&"],
    "^": ["&"],
    "+=": ["-="],
    "-=": ["+="],
    "*=": ["/="],
    "/=": ["*="],
    "|=": ["&="],
    "&=": ["|="],
}
SWAPPED = {"++": "--", "--": "++", "true": "false", "false": "true"}
SWAPPED_FUNCTIONS = {
    "min": "max",
    "max": "min",
    "floor": "ceil",
    "ceil": "floor",
    "round": "floor",
    "front": "back",
    "back": "front",
}
BRACKETS = {"(": ")", "[": "]", "{": "}"}
NO_STATEMENT = set(
    """return const auto if for while do switch case default using static constexpr struct class enum
    template typename friend inline explicit virtual namespace public private protected else goto try
    catch operator bool int double char unsigned void union noexcept static_assert""".split()
)
ASSIGNMENTS = {"=", "+=", "-=", "*=", "/=", "|=", "&=", "^=", "<<=", ">>="}
# To return the default instead of these is no change, or one that is made already.
DEFAULTS = {"{}", "0", "nullptr", "std::nullopt", "false", "true", ""}


@dataclass(frozen=True)
class Mutant:
    file: str
    offset: int
    before: str
    after: str
    line: int
    text: str  # the line it stands in
    again: int  # how many lines before it are the same
    column: int

    def name(self):
        """The same as long as its line stays the same."""
        before = " ".join(self.before.split())
        again = f" (again {self.again})" if self.again else ""
        return f"{self.file} | {self.text}{again} | {self.column}: {before} → {self.after or 'nothing'}"


@dataclass(frozen=True)
class Token:
    kind: str
    text: str
    begin: int
    end: int


def tokens_of(source):
    tokens = []
    for match in TOKEN.finditer(source):
        if match.lastgroup not in ("comment", "directive") and not match.group().isspace():
            tokens.append(Token(match.lastgroup, match.group(), *match.span()))
    return tokens


class Source:
    def __init__(self, file, text):
        self.file = file
        self.text = text
        self.tokens = tokens_of(text)
        self.partner = self._partners()
        self.skipped = self._skipped()

    def _partners(self):
        partner, stack = {}, []
        for i, token in enumerate(self.tokens):
            if token.text in BRACKETS:
                stack.append(i)
            elif token.text in BRACKETS.values() and stack:
                opening = stack.pop()
                partner[opening], partner[i] = i, opening
        return partner

    def _skipped(self):
        """Tokens of what is only said to the compiler: names of enumerators, static assertions."""
        skipped = set()
        for i, token in enumerate(self.tokens):
            if token.text == "static_assert":
                skipped.update(range(i, self.partner[i + 1] + 1))
            elif token.text == "enum":
                opening = next(k for k in range(i, len(self.tokens)) if self.tokens[k].text in "{;")
                skipped.update(range(i, self.partner.get(opening, opening) + 1))
        return skipped

    def mutants(self):
        found = {}
        for i, token in enumerate(self.tokens):
            if i not in self.skipped:
                for begin, end, after in self._changes(i, token):
                    mutant = self._mutant(begin, end, after)
                    found[(begin, end, after)] = mutant
        return sorted(found.values(), key=lambda mutant: (mutant.offset, mutant.after))

    def _mutant(self, begin, end, after):
        start = self.text.rfind("\n", 0, begin) + 1
        stop = self.text.find("\n", begin)
        line = self.text[start:stop]
        indent = len(line) - len(line.lstrip())
        return Mutant(
            file=self.file,
            offset=begin,
            before=self.text[begin:end],
            after=after,
            line=self.text.count("\n", 0, begin) + 1,
            text=line.strip(),
            again=[other.strip() for other in self.text[:start].splitlines()].count(line.strip()),
            column=begin - start - indent + 1,
        )

    def _changes(self, i, token):
        yield from self._operator(i, token)
        yield from self._constant(i, token)
        yield from self._condition(i, token)
        yield from self._statement(i, token)
        yield from self._returned(i, token)

    def _before(self, i):
        return self.tokens[i - 1].text if i > 0 else ""

    def _spaced(self, token):
        return self.text[token.begin - 1].isspace() and self.text[token.end].isspace()

    def _operator(self, i, token):
        before = self._before(i)
        if token.text in OTHERS and self._spaced(token) and before not in ("operator", "template"):
            for other in OTHERS[token.text]:
                yield token.begin, token.end, other
        elif token.text == "-" and (before in ("(", ",", "?", ":", "=", "return", "{") or before in OTHERS):
            yield token.begin, token.end, ""
        elif token.text == "!":
            yield token.begin, token.end, ""
        elif token.text in SWAPPED:
            yield token.begin, token.end, SWAPPED[token.text]
        elif token.text in SWAPPED_FUNCTIONS and before in ("::", ".", "->"):
            yield token.begin, token.end, SWAPPED_FUNCTIONS[token.text]

    def _constant(self, i, token):
        if token.kind == "number":
            yield token.begin, token.end, f"({token.text} + 1)"
            if token.text != "0":
                yield token.begin, token.end, f"({token.text} - 1)"
        elif token.kind == "char":
            yield token.begin, token.end, f"({token.text} + 1)"

    def _condition(self, i, token):
        if token.text in ("if", "while") and self.tokens[i + 1].text == "(":
            first, last = i + 2, self.partner[i + 1] - 1
            for k in range(first, last):
                if self.tokens[k].text == ";":
                    first = k + 1
            yield from self._negated(first, last)
        elif token.text == "?":
            yield from self._negated(self._start_of_condition(i), i - 1)

    def _start_of_condition(self, i):
        k = i - 1
        while k >= 0:
            text = self.tokens[k].text
            if text in BRACKETS.values():
                k = self.partner[k]
            elif text in BRACKETS or text in ASSIGNMENTS or text in (",", "?", ":", ";", "return"):
                break
            k -= 1
        return k + 1

    def _negated(self, first, last):
        inside = [token.text for token in self.tokens[first : last + 1]]
        joined = any(text in ("&&", "||") for text in inside)
        compared = any(
            token.text in ("<", "<=", ">", ">=", "==", "!=") and self._spaced(token)
            for token in self.tokens[first : last + 1]
        )
        # Otherwise the operator's own change says the same.
        if joined or (not compared and inside[0] != "!"):
            begin, end = self.tokens[first].begin, self.tokens[last].end
            yield begin, end, f"!({self.text[begin:end]})"

    def _end_of_statement(self, i):
        while i < len(self.tokens):
            text = self.tokens[i].text
            if text in BRACKETS:
                i = self.partner[i]
            elif text == ";":
                return i
            elif text in BRACKETS.values():
                return None
            i += 1
        return None

    def _statement(self, i, token):
        if token.text in ("break", "continue", "throw"):
            last = self._end_of_statement(i)
            yield token.begin, self.tokens[last].begin, ""
            return
        if not self._begins_statement(i, token):
            return
        last = self._end_of_statement(i)
        if last is not None and self._does_something(i, last):
            yield token.begin, self.tokens[last].begin, ""

    def _begins_statement(self, i, token):
        if token.kind != "name" and token.text not in ("++", "--", "*"):
            return False
        line = self.text.rfind("\n", 0, token.begin) + 1
        starts_line = not self.text[line : token.begin].strip()
        return (
            starts_line
            and token.text not in NO_STATEMENT
            and self._before(i) in (";", "{", "}", ")", "else", ":")
        )

    def _does_something(self, i, last):
        """Whether it is a call or an assignment, and not a declaration."""
        if self.tokens[i].text in ("++", "--", "*"):
            return True
        k = i + 1
        while k < last:
            text = self.tokens[k].text
            if text in ("::", ".", "->"):
                k += 2
            elif text in ("(", "["):
                k = self.partner[k] + 1
                if text == "(" and (k == last or self.tokens[k].text in (".", "->")):
                    return True
            else:
                return text in ASSIGNMENTS or text in ("++", "--")
        return False

    def _returned(self, i, token):
        if token.text != "return":
            return
        last = self._end_of_statement(i)
        begin, end = self.tokens[i + 1].begin, self.tokens[last].begin
        if self.text[begin:end] not in DEFAULTS:
            yield begin, end, "{}"
