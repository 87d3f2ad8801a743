"""The small faults that are planted: what each operator makes of a source."""

import re
from dataclasses import dataclass

from tokens import Source

_BINARY = {
    "<": ("<=", ">="), "<=": ("<", ">"), ">": (">=", "<="), ">=": (">", "<"),
    "==": ("!=",), "!=": ("==",), "&&": ("||",), "||": ("&&",),
    "+": ("-",), "-": ("+",), "*": ("/",), "/": ("*",), "%": ("*",),
    "&": ("|",), "|": ("&",), "^": ("&",), "<<": (">>",), ">>": ("<<",),
    "+=": ("-=",), "-=": ("+=",), "*=": ("/=",), "/=": ("*=",), "%=": ("*=",),
    "&=": ("|=",), "|=": ("&=",), "^=": ("&=",), "<<=": (">>=",), ">>=": ("<<=",),
}
_STEPS = {"++": "--", "--": "++"}
_ASSIGNMENTS = ("=", "++", "--", *(op for op in _BINARY if op.endswith("=") and op[:-1] in _BINARY
                                   and op not in ("<=", ">=")))
_INTEGER = re.compile(r"(0[xX][0-9a-fA-F']+|[0-9][0-9']*)([uUlLzZ]*)$")
_LETTER_OR_DIGIT = re.compile(r"(.*')([A-Za-z0-8])'$")
_CONSTANTS = ("{}", "true", "false", "0", "nullptr", "std::nullopt")  # no other result is nothing
_NO_STATEMENT = {
    "return", "if", "for", "while", "switch", "using", "namespace", "class", "struct", "enum",
    "template", "static", "constexpr", "const", "auto", "public", "private", "protected", "case",
    "default", "goto", "throw", "try", "do", "typedef", "friend", "virtual", "explicit", "inline",
    "else", "extern", "static_assert",
}


@dataclass(frozen=True, order=True)
class Mutant:
    file: str   # relative to the checkout
    start: int  # the characters of the file that are replaced
    end: int
    before: str
    after: str

    def applied_to(self, text):
        return text[:self.start] + self.after + text[self.end:]


def mutants_of(file, text):
    """All mutants of a source, in order, each once."""
    source = Source(text)
    found = set()
    for i in range(len(source)):
        if i in source.excluded:
            continue
        for make in _OPERATORS:
            for first, last, after in make(source, i):
                before = source.between(first, last)
                if after != before:
                    found.add(Mutant(file, source.tokens[first].start, source.tokens[last].end,
                                     before, after))
    return sorted(found)


def _binary(source, i):
    """Relational, logical, arithmetic and bitwise operators, and steps of one."""
    text = source.at(i)
    if text in _STEPS:
        yield i, i, _STEPS[text]
    elif text in _BINARY and source.tokens[i].kind == "operator" and source.stands_apart(i):
        for after in _BINARY[text]:
            yield i, i, after


def _constant(source, i):
    """Numbers, letters and truth values."""
    token = source.tokens[i]
    if token.text in ("true", "false"):
        yield i, i, "false" if token.text == "true" else "true"
    elif token.kind == "number" and (match := _INTEGER.match(token.text)):
        digits = match[1].replace("'", "")
        if digits[:2].lower() == "0x":
            base, shown = 16, hex
        elif digits[0] == "0":
            base, shown = 8, "0{:o}".format
        else:
            base, shown = 10, str
        value = int(digits, base)
        yield i, i, (shown(value + 1) if value else "1") + match[2]
        if value != 0:
            yield i, i, "0" + match[2]
    elif token.kind == "character" and (match := _LETTER_OR_DIGIT.match(token.text)):
        yield i, i, f"{match[1]}{chr(ord(match[2]) + 1)}'"


def _size(source, i):
    """The end of a range, one too early."""
    if source.at(i) == "size" and source.at(i - 1) in (".", "->") and source.at(i + 1) == "(" and \
            source.at(i + 2) == ")":
        yield i, i + 2, "size() - 1"


def _negated(source, first, last):
    """An expression the other way round, unless another operator has it so."""
    if source.at(first) == "!" or source.find(("==", "!=", "<", ">", "<=", ">="), first, last) and \
            not source.find(("&&", "||"), first, last):
        return
    yield first, last, f"!({source.between(first, last)})"


def _condition(source, i):
    """The condition of a branch or a loop, the other way round."""
    if source.at(i) not in ("if", "while") or source.at(i + 1) != "(":
        return
    last = source.partner[i + 1] - 1
    semicolon = source.find((";",), i + 2, last)
    first = i + 2 if semicolon is None else semicolon + 1
    equals = source.find(("=",), first, last)
    if equals is None:
        yield from _negated(source, first, last)
    elif semicolon is None and source.at(i) == "if":
        yield first, last, f"{source.between(first, last)}; !{source.at(equals - 1)}"


def _choice(source, i):
    """The condition of "? :", the other way round."""
    if source.at(i) != "?":
        return
    closings = {end: begin for begin, end in source.partner.items()}
    first = i
    while source.at(first - 1) not in ("return", "=", "(", "{", "[", ",", ";", "?", ":", "}", ""):
        first = closings.get(first - 1, first - 1)
    if first < i:
        yield from _negated(source, first, i - 1)


def _negation(source, i):
    """A negation that is not there."""
    if source.at(i) == "!":
        yield i, i, ""


def _header_of(source, i):
    """The texts of the tokens that introduce the function around a token."""
    depth = 0
    while i > 0:
        i -= 1
        if source.at(i) == "}":
            depth += 1
        elif source.at(i) == "{":
            if depth > 0:
                depth -= 1
                continue
            begin = i
            while begin > 0 and source.at(begin - 1) not in (";", "{", "}"):
                begin -= 1
            header = [source.at(j) for j in range(begin, i)]
            if "if" in header or "for" in header or "while" in header or "else" in header or \
                    "switch" in header or not header:
                continue
            return header
    return []


def _result(source, i):
    """What a function returns: nothing, or the opposite where that is a truth value."""
    if source.at(i) != "return":
        return
    end = source.find((";",), i + 1)
    if end is None or end == i + 1 or source.between(i + 1, end - 1) in _CONSTANTS:
        return
    header = _header_of(source, i)
    declarator = header[:header.index("(")] if "(" in header else header
    if "bool" in declarator:
        yield from _negated(source, i + 1, end - 1)
    else:
        yield i + 1, end - 1, "{}"


def _statement(source, i):
    """A statement that is left out."""
    before = source.at(i - 1)
    if before not in (";", "{", "}", ")", "else", ":") or source.at(i) in _NO_STATEMENT or \
            source.at(source.enclosing.get(i, -1)) != "{":
        return
    if before == ")" and not _follows_header(source, i):
        return
    if source.at(i) in ("break", "continue"):
        yield i, i + 1, ";"
        return
    end = source.find((";",), i)
    if end is not None and source.tokens[i].kind == "word" or source.at(i) in ("++", "--", "*"):
        if end is not None and _is_expression(source, i, end):
            yield i, end, ";"


def _follows_header(source, i):
    opening = next((begin for begin, end in source.partner.items() if end == i - 1), 0)
    return source.at(opening - 1) in ("if", "for", "while", "constexpr")


def _is_expression(source, first, end):
    """Whether a statement is a call or an assignment, and declares nothing."""
    does_something = False
    i = first
    while i < end:
        token, after = source.tokens[i], source.tokens[i + 1]
        if token.text in _ASSIGNMENTS:
            return True
        if after.kind == "word" and (token.kind == "word" or token.text in ("&", "*", ">", "&&")) \
                and not (i == first and token.text == "*"):
            return False
        if token.text in ("delete", "default", "{"):
            return False
        does_something = does_something or token.text == "("
        i = source.partner.get(i, i) + 1
    return does_something


def _else(source, i):
    """A branch that is left out."""
    if source.at(i) == "else":
        end = source.end_of_statement(i + 1)
        if end is not None:
            yield i, end, ""


_OPERATORS = (_binary, _constant, _size, _condition, _choice, _negation, _result, _statement, _else)
