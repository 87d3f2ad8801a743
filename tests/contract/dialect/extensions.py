#!/usr/bin/env python3
"""Fails when C++ sources use extensions of GNU compilers: extensions.py FILE_OR_FOLDER...

The dialect test refuses some of them as well; clang accepts the others, whatever its options.
"""

import pathlib
import re
import sys

RULES = {
    "attribute": r"\b__attribute(__)?\b",
    "gnu-attribute": r"\bgnu\s*::",
    "builtin": r"\b__builtin_",
    "typeof": r"\b(__)?typeof(__)?\b",
    "statement-expression": r"\(\s*\{(?:[^{}]*;|\s*(?:do|for|if|switch|while)\b)",
    "case-range": r"\bcase\b[^:;]*\.\.\.",
    "omitted-operand": r"\?\s*:(?!:)",
    "wide-integer": r"\b__u?int128",
    "assembler": r"\b(asm|__asm|__asm__)\b",
    "keyword": r"\b(__extension__|__restrict__|__inline__|__alignof__|__thread|__label__)\b",
    "function-name": r"\b__(PRETTY_FUNCTION|FUNCTION)__\b",
    "directive": r"(?m)^[ \t]*#[ \t]*(include_next|warning|ident|pragma[ \t]+GCC)\b",
}

# Texts and comments are not code. A text is replaced by one with the same lines and quotes. Numbers
# come first, because single quotes may separate their digits; so do raw strings, which end with a
# word of their own.
LITERAL_OR_COMMENT = re.compile(
    r"""(?P<number>\b\d(?:'?[\w.])*)|(?P<text>R"(?P<end>[^(\s]*)\(.*?\)(?P=end)"|"(?:\\.|[^"\\\n])*"
    |'(?:\\.|[^'\\\n])*')|//[^\n]*|/\*.*?\*/""", re.DOTALL | re.VERBOSE)


def code_of(path):
    def blank(match):
        if match["number"]:
            return match[0]
        return ('""' if match["text"] else "") + "\n" * match[0].count("\n")
    return LITERAL_OR_COMMENT.sub(blank, path.read_text(encoding="utf-8"))


def sources(names):
    for name in names:
        path = pathlib.Path(name)
        if path.is_dir():
            yield from sorted(file for file in path.rglob("*") if file.suffix in (".h", ".cpp"))
        else:
            yield path


def main():
    files = list(sources(sys.argv[1:]))
    if not files:
        sys.exit("no sources were given")
    broken = set()
    for file in files:
        code = code_of(file)
        for rule, pattern in RULES.items():
            for match in re.finditer(pattern, code):
                line = code.count("\n", 0, match.start()) + 1
                print(f"{file}:{line}: broken rule: {rule}")
                broken.add(rule)
    sys.exit(1 if broken else 0)


main()
