"""The mutants of a source file: each differs from it in one token, and each should be noticed by a
test.

What is changed are comparisons, boolean connectives and values, whole numbers and result codes,
outside of comments, texts, directives and static assertions. The format of the sources tells
operators from brackets of templates and from references: the operators have a blank on both
sides."""

import re
from collections import Counter
from dataclasses import dataclass

# What is not code: found first, so that nothing in it is taken for a token.
BLANKED = re.compile(
    r"""//[^\n]*|/\*.*?\*/                      # comments
      | ^[ \t]*\#(?:[^\n\\]|\\.|\\\n)*          # directives
      | \bstatic_assert\b[^;]*;
      | R"(?P<mark>[^(]*)\(.*?\)(?P=mark)"      # texts and characters
      | "(?:[^"\\\n]|\\.)*"
      | (?<![0-9A-Fa-f])'(?:[^'\\\n]|\\.)+'""", re.DOTALL | re.MULTILINE | re.VERBOSE)

TOKEN = re.compile(
    r"""(?<=[ ])(?P<operator><=|>=|==|!=|<|>|&&|\|\|)(?=\s)
      | (?P<negation>!)(?=[\w(*])
      | \b(?P<truth>true|false)\b
      | \b(?P<code>ZelData_\w+)\b
      | (?<![\w.'])(?P<number>0[xX][0-9A-Fa-f]+|[0-9]+)(?P<suffix>[uUlL]*)(?![\w.'])""",
    re.VERBOSE)

OPERATORS = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==",
             "&&": "||", "||": "&&"}
TRUTHS = {"true": "false", "false": "true"}


@dataclass(frozen=True)
class Mutant:
    """One change: @p new in place of @p old, which stands in the line for the @p nth time. The line
    is the number @p twin of those that look alike in the file."""
    file: str
    number: int
    line: str
    old: str
    new: str
    nth: int
    twin: int
    begin: int

    @property
    def change(self):
        """The change in words that stay the same as long as the line does."""
        again = f" ({self.nth})" if self.nth > 1 else ""
        return f"{self.old} -> {self.new or 'nothing'}{again}"

    @property
    def key(self):
        """File, line and change; a number tells lines apart that look alike."""
        again = f" [{self.twin}]" if self.twin > 1 else ""
        return self.file, self.line, self.change + again

    def apply(self, text):
        """@p text, the file's, with the change."""
        return text[:self.begin] + self.new + text[self.begin + len(self.old):]


def code_of(text):
    """The text with blanks in place of what is no code; places and lines stay."""
    return BLANKED.sub(lambda found: re.sub(r"[^\n]", " ", found.group()), text)


def replacement(token):
    """What takes the place of a token."""
    kind = token.lastgroup if token.lastgroup != "suffix" else "number"
    old = token.group(kind)
    if kind == "operator":
        return old, OPERATORS[old]
    if kind == "negation":
        return old, ""
    if kind == "truth":
        return old, TRUTHS[old]
    if kind == "code":
        usual = "ZelData_InternalError"
        return old, "ZelData_InvalidArgument" if old == usual else usual
    if old.lower().startswith("0x"):
        return old, hex(int(old, 16) + 1)
    return old, str(int(old) + 1)


def mutants_of(file, text):
    """All mutants of the file with this text, in the order of their places."""
    lines = [line.strip() for line in text.split("\n")]
    twins = [lines[:index].count(line) + 1 for index, line in enumerate(lines)]
    found, seen = [], Counter()
    for token in TOKEN.finditer(code_of(text)):
        old, new = replacement(token)
        index = text.count("\n", 0, token.start())
        seen[index, old] += 1
        found.append(Mutant(file, index + 1, lines[index], old, new, seen[index, old],
                            twins[index], token.start()))
    return found


def read_equivalents(text):
    """The listed equivalent mutants: their keys with the reason of each.

    An entry is three lines, the file, the line as it stands there and the change, and behind them
    the reason, in one line or more. Entries are parted by an empty line; `#` begins a comment."""
    entries, offences = {}, []
    body = "\n".join(line for line in text.splitlines() if not line.startswith("#"))
    for block in re.split(r"\n\s*\n", body.strip()) if body.strip() else []:
        parts = [line.strip() for line in block.splitlines()]
        if len(parts) < 4:
            offences.append(f"not file, line, change and reason: {' | '.join(parts)}")
        elif tuple(parts[:3]) in entries:
            offences.append(f"listed twice: {' | '.join(parts[:3])}")
        else:
            entries[tuple(parts[:3])] = " ".join(parts[3:])
    return entries, offences


def misplaced(entries, mutants):
    """An offence for each listed mutant that there is not."""
    keys = {mutant.key for mutant in mutants}
    return [f"there is no such mutant: {' | '.join(key)}" for key in entries if key not in keys]
