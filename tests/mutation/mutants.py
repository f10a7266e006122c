"""The mutants of a C++ source: small changes of its text, each of which some test should notice.

clang-format decides what is what: a binary operator has space on both sides, an angle bracket of a template has not.
"""

import re
from dataclasses import dataclass

TOKEN = re.compile(
    r"""(?P<skipped>//[^\n]*|/\*.*?\*/|^[ \t]*\#(?:[^\n\\]|\\.|\\\n)*)
      | (?P<text>"(?:[^"\\\n]|\\.)*"|'(?:[^'\\\n]|\\.)*')
      | (?P<number>\.?\d(?:[eEpP][+-]|[\w.'])*)
      | (?P<name>[A-Za-z_]\w*)
      | (?P<sign><<=|>>=|->|::|\+\+|--|&&|\|\||[-+*/%&|^=!<>]=|<<|>>|[^\s\w])""",
    re.VERBOSE | re.DOTALL | re.MULTILINE,
)

SWAPPED = {
    "<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==",
    "&&": "||", "||": "&&", "+": "-", "-": "+", "+=": "-=", "-=": "+=",
}  # fmt: skip
LOGICAL = {"<", "<=", ">", ">=", "==", "!=", "&&", "||"}
ASSIGNING = {"=", "+=", "-=", "*=", "/=", "%=", "&=", "|=", "^=", "<<=", ">>="}
OPENING = {"(": ")", "[": "]", "{": "}"}
# What begins a statement that is neither a call nor an assignment, or joins names into a declaration.
KEYWORDS = set(
    "alignas auto break case class const constexpr continue default delete do else enum explicit extern for friend goto"
    " if inline namespace new operator private protected public return static static_assert struct switch template"
    " throw try typedef typename union using virtual void volatile while".split()
)
# Neither what the compiler is told to check nor room taken beforehand changes an answer.
LEFT_ALONE = {"static_assert", "reserve"}


@dataclass(frozen=True)
class Token:
    kind: str
    text: str
    begin: int
    end: int


@dataclass(frozen=True)
class Mutant:
    path: str
    line: int
    column: int
    source: str  # the line as it stands
    change: str
    begin: int
    end: int
    replacement: str

    def __str__(self):
        return f"{self.path}:{self.line}:{self.column}: {self.change}: {self.source}"

    def apply(self, code):
        return code[: self.begin] + self.replacement + code[self.end :]


def tokens_of(code):
    return [
        Token(m.lastgroup, m.group(), m.start(), m.end()) for m in TOKEN.finditer(code) if m.lastgroup != "skipped"
    ]


def partners_of(tokens):
    """For each bracket the index of its partner."""
    partners, opened = {}, []
    for i, token in enumerate(tokens):
        if token.text in OPENING:
            opened.append(i)
        elif opened and token.text == OPENING[tokens[opened[-1]].text]:
            partners[i] = opened.pop()
            partners[partners[i]] = i
    return partners


class Source:
    def __init__(self, path, code):
        self.path = path
        self.code = code
        self.tokens = tokens_of(code)
        self.partners = partners_of(self.tokens)
        self.lines = code.split("\n")
        self.left_alone = set()
        for i, token in enumerate(self.tokens):
            if token.text in LEFT_ALONE:
                self.left_alone.update(range(i, self.partners.get(i + 1, i) + 1))

    def mutants(self):
        found = []
        for i, token in enumerate(self.tokens):
            if i in self.left_alone:
                continue
            found += self.operators(token)
            found += self.constants(i)
            found += self.jumps(i)
            if self.begins_statement(i):
                found += self.removals(i)
        return self.numbered(found)

    def mutant(self, first, last, change, replacement):
        line = self.code.count("\n", 0, first.begin)
        column = first.begin - self.code.rfind("\n", 0, first.begin)
        source = self.lines[line].strip()
        return Mutant(self.path, line + 1, column, source, change, first.begin, last.end, replacement)

    @staticmethod
    def numbered(mutants):
        """A second change of the same kind in a line is told from the first by a number."""
        told, count = [], {}
        for m in mutants:
            key = (m.line, m.change)
            count[key] = count.get(key, 0) + 1
            if count[key] > 1:
                m = Mutant(**{**m.__dict__, "change": f"{m.change} #{count[key]}"})
            told.append(m)
        return told

    def is_binary(self, token):
        return self.code[token.begin - 1].isspace() and self.code[token.end].isspace()

    def operators(self, token):
        other = SWAPPED.get(token.text)
        if token.kind != "sign" or other is None or not self.is_binary(token):
            return []
        return [self.mutant(token, token, f"`{token.text}` to `{other}`", other)]

    def constants(self, i):
        token = self.tokens[i]
        if token.kind != "number" or i == 0 or i + 1 == len(self.tokens):
            return []
        before, after = self.tokens[i - 1], self.tokens[i + 1]
        if (before.text == "<" and not self.is_binary(before)) or (after.text == ">" and not self.is_binary(after)):
            return []  # the argument of a template
        if before.text == "[" and after.text == "]" and token.text in "01":
            others = ["1" if token.text == "0" else "0"]
        else:
            others = self.other_constants(token.text)
        return [self.mutant(token, token, f"`{token.text}` to `{other}`", other) for other in others]

    @staticmethod
    def other_constants(text):
        plain = text.replace("'", "")
        if re.fullmatch(r"\d+[uUlL]*", plain):
            value = int(plain.rstrip("uUlL"))
            suffix = plain[len(plain.rstrip("uUlL")) :]
            return [f"{other}{suffix}" for other in sorted({value + 1, 2 * value} - {value})]
        if re.fullmatch(r"0[xX][\da-fA-F]+[uUlL]*", plain):
            return [f"({text} + 1)", f"({text} * 2)"]
        value = float.fromhex(plain) if plain[:2] in ("0x", "0X") else float(plain)
        if value == 0.0:
            return ["1.0"]
        return ["2.0"] if value == 1.0 else [f"({text} + 1)", f"({text} * 2)"]

    def jumps(self, i):
        token = self.tokens[i]
        if token.text in ("break", "continue"):
            return [self.mutant(token, token, f"`{token.text}` removed", "")]
        if token.text == "return":
            end = self.end_of_statement(i)
            if end is not None and self.is_condition(i + 1, end):
                last = self.tokens[end - 1]
                value = self.code[self.tokens[i + 1].begin : last.end]
                return [self.mutant(token, last, "`return` negated", f"return !({value})")]
        return []

    def end_of_statement(self, i):
        """The index of its semicolon."""
        while i < len(self.tokens):
            text = self.tokens[i].text
            if text == ";":
                return i
            if text in OPENING:
                if i not in self.partners:
                    return None
                i = self.partners[i]
            elif text in OPENING.values():
                return None
            i += 1
        return None

    def outside_brackets(self, begin, end):
        i = begin
        while i < end:
            yield self.tokens[i]
            i = self.partners.get(i, i) + 1

    def is_condition(self, begin, end):
        outer = list(self.outside_brackets(begin, end))
        if not outer or any(t.text == "?" for t in outer):
            return False
        if outer[0].text == "!" or (len(outer) == 1 and outer[0].text in ("true", "false")):
            return True
        return any(t.text in LOGICAL and self.is_binary(t) for t in outer)

    def begins_statement(self, i):
        before = self.tokens[i - 1].text if i else ";"
        if before in (";", "{", "}", "else", "do"):
            return True
        opener = self.partners.get(i - 1)
        if before != ")" or opener is None or opener == 0:
            return False
        word = self.tokens[opener - 1].text
        return word in ("if", "for", "while") or (word == "constexpr" and self.tokens[opener - 2].text == "if")

    def removals(self, i):
        first = self.tokens[i]
        if (first.kind != "name" and first.text != "*") or first.text in KEYWORDS:
            return []
        end = self.end_of_statement(i)
        if end is None:
            return []
        outer = list(self.outside_brackets(i, end))
        assigned = next((k for k, t in enumerate(outer) if t.text in ASSIGNING), None)
        target = outer if assigned is None else outer[:assigned]
        if not self.is_place(target) or outer[-1].text in ("default", "delete"):
            return []
        last = self.tokens[end - 1]
        if assigned is not None:
            return [self.mutant(first, last, "assignment removed", "")]
        if last.text != ")" or LEFT_ALONE & {t.text for t in outer}:
            return []
        return [self.mutant(first, last, "call removed", "")]

    @staticmethod
    def is_place(tokens):
        """Names joined by dots, arrows, colons and brackets: no declaration, whose names follow each other."""
        kinds = [t.kind if t.text not in OPENING else "bracket" for t in tokens]
        if any(a == b == "name" for a, b in zip(kinds, kinds[1:])):
            return False
        return all(
            kind in ("name", "bracket") or t.text in (".", "->", "::") or (k == 0 and t.text == "*")
            for k, (kind, t) in enumerate(zip(kinds, tokens))
        )
