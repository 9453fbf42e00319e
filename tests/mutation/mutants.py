"""Makes the mutants of a source file. Each differs from it in one token, and a test should fail on
each.

A mutant changes a comparison, a boolean connective or value, a whole number or a result code
outside comments, string literals, directives and static assertions. Operators have a space on both
sides, which distinguishes them from template brackets and references."""

import re
from collections import Counter
from dataclasses import dataclass

# Everything that is not code; removed before the search for tokens.
BLANKED = re.compile(
    r"""^\#(?:ifdef[ ]_WIN32|ifndef[ ]__cpp_lib_to_chars)\b.*?^\#(?:else|endif)\b   # other systems
      | //[^\n]*|/\*.*?\*/                      # comments
      | ^[ \t]*\#(?:[^\n\\]|\\.|\\\n)*          # directives
      | \bstatic_assert\b[^;]*;
      | R"(?P<mark>[^(]*)\(.*?\)(?P=mark)"      # string and character literals
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
    """One change: @p new replaces the @p nth @p old in the line. The line is number @p twin of the
    identical lines in the file."""
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
        """The change in words, which depend on the line alone."""
        again = f" ({self.nth})" if self.nth > 1 else ""
        return f"{self.old} -> {self.new or 'nothing'}{again}"

    @property
    def key(self):
        """File, line and change; a number distinguishes identical lines."""
        again = f" [{self.twin}]" if self.twin > 1 else ""
        return self.file, self.line, self.change + again

    def apply(self, text):
        """Returns the file's @p text with the change."""
        return text[:self.begin] + self.new + text[self.begin + len(self.old):]


def code_of(text):
    """The text with spaces in place of everything that is not code, so that positions stay the same."""
    return BLANKED.sub(lambda found: re.sub(r"[^\n]", " ", found.group()), text)


def replacement(token):
    """The old text of a token and its replacement."""
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
    """All mutants of the file with this text, in order of position."""
    code = code_of(text)
    # Up to the end of the code: without the comment that may follow.
    lines = [line[:len(rest.rstrip())].strip()
             for line, rest in zip(text.split("\n"), code.split("\n"))]
    twins = [lines[:index].count(line) + 1 for index, line in enumerate(lines)]
    found, seen = [], Counter()
    for token in TOKEN.finditer(code):
        old, new = replacement(token)
        index = text.count("\n", 0, token.start())
        seen[index, old] += 1
        found.append(Mutant(file, index + 1, lines[index], old, new, seen[index, old],
                            twins[index], token.start()))
    return found


def read_equivalents(text):
    """The keys of the listed equivalent mutants with their reasons, and the offences in the list.

    An entry has one line each for the file, the source line and the change, and one or more for the
    reason. Empty lines separate entries; `#` begins a comment."""
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
    """An offence for each listed mutant that does not exist."""
    keys = {mutant.key for mutant in mutants}
    return [f"there is no such mutant: {' | '.join(key)}" for key in entries if key not in keys]
