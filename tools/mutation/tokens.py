"""C++ sources as tokens, as far as mutation needs them."""

import re
from dataclasses import dataclass

_TOKEN = re.compile(
    r"""(?P<comment>//[^\n]*|/\*.*?\*/)
    |(?P<directive>^[ \t]*\#(?:\\\n|[^\n])*)
    |(?P<text>(?:u8|[uUL])?(?:R"(?P<end>[^(\s]*)\(.*?\)(?P=end)"|"(?:\\.|[^"\\\n])*")\w*)
    |(?P<character>(?:u8|[uUL])?'(?:\\.|[^'\\\n])+')
    |(?P<number>\d(?:'?[\w.])*)
    |(?P<word>[A-Za-z_]\w*)
    |(?P<operator><=>|<<=|>>=|->\*|\.\.\.|::|->|\+\+|--|&&|\|\||[<>=!+\-*/%&|^]=|<<|>>|\S)""",
    re.DOTALL | re.MULTILINE | re.VERBOSE)

_PAIRS = {"(": ")", "[": "]", "{": "}"}


@dataclass(frozen=True)
class Token:
    kind: str  # text, character, number, word or operator
    text: str
    start: int
    end: int


class Source:
    """The tokens of one file, without comments and directives, and how they nest."""

    def __init__(self, text):
        self.text = text
        self.tokens = [Token(m.lastgroup if m.lastgroup != "end" else "text", m[0], *m.span())
                       for m in _TOKEN.finditer(text) if not (m["comment"] or m["directive"])]
        self.partner = {}    # of an opening bracket: the closing one
        self.enclosing = {}  # of a token: the opening bracket it stands in
        self._match_brackets()
        self.excluded = self._find_excluded()

    def __len__(self):
        return len(self.tokens)

    def at(self, i):
        """The text of a token, or "" outside the file."""
        return self.tokens[i].text if 0 <= i < len(self.tokens) else ""

    def between(self, first, last):
        """The source text from one token to another, both included."""
        return self.text[self.tokens[first].start:self.tokens[last].end]

    def stands_apart(self, i):
        """Whether there is space on both sides: so the formatter sets binary operators only."""
        token = self.tokens[i]
        return self.text[token.start - 1].isspace() and self.text[token.end].isspace()

    def find(self, wanted, first, stop=None):
        """The next of the wanted tokens that is not inside brackets, or None."""
        i = first
        while i < (len(self) if stop is None else stop):
            if self.at(i) in wanted:
                return i
            if self.at(i) in _PAIRS.values():
                return None
            i = self.partner.get(i, i) + 1
        return None

    def end_of_statement(self, i):
        """The last token of the statement that begins at a token, or None."""
        if self.at(i) == "{":
            return self.partner.get(i)
        if self.at(i) in ("if", "for", "while", "switch"):
            keyword = self.at(i)
            opening = i + 2 if self.at(i + 1) == "constexpr" else i + 1
            if self.at(opening) != "(":
                return None
            end = self.end_of_statement(self.partner[opening] + 1)
            if keyword == "if" and end is not None and self.at(end + 1) == "else":
                return self.end_of_statement(end + 2)
            return end
        return self.find((";",), i)

    def _match_brackets(self):
        open_ = []
        for i, token in enumerate(self.tokens):
            if token.kind == "operator" and token.text in _PAIRS.values() and open_:
                self.partner[open_.pop()] = i
            if open_:
                self.enclosing[i] = open_[-1]
            if token.kind == "operator" and token.text in _PAIRS:
                open_.append(i)

    def _find_excluded(self):
        """Tokens that say something to the compiler alone: a change there would not compile."""
        excluded = set()
        for i in range(len(self)):
            word, after = self.at(i), i + 1
            if word in ("static_assert", "noexcept", "alignas") and self.at(after) == "(":
                excluded.update(range(i, self.partner[after] + 1))
            elif word == "template" and self.at(after) == "<":
                excluded.update(range(i, self._end_of_angles(after) + 1))
            elif word == "enum":
                brace = self.find(("{", ";"), i)
                if brace is not None:
                    excluded.update(range(i, self.partner.get(brace, brace) + 1))
            elif word in ("using", "typedef", "namespace"):
                end = self.find((";", "{"), i)
                excluded.update(range(i, len(self) if end is None else end + 1))
            elif word == "operator":
                excluded.update((i, after))
            elif word == "=" and self.at(after) in ("0", "delete", "default") and \
                    self.at(i - 1) in (")", "const", "override", "noexcept"):
                excluded.update((i, after))
        return excluded

    def _end_of_angles(self, i):
        depth = 0
        while i < len(self):
            depth += {"<": 1, ">": -1, ">>": -2}.get(self.at(i), 0)
            if depth <= 0:
                return i
            i = self.partner.get(i, i) + 1
        return i - 1
