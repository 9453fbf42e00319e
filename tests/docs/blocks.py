"""Reads the fenced blocks of the project's Markdown files, and makes samples of them.

A C++ block is a program or the body of `main`; a body follows the document's includes, the block
marked `cpp preamble`. A `text` or `xml` block after it shows what the program prints, or with
`file=NAME` what it writes into that file. An `xml` block shows one line with line breaks added for
the reader; a `text` block shows every byte. The date of a packet may be any date, or empty. A C++
block may be a copy of a project file (`source=PATH`), and a project file may hold what it writes
(`writes=NAME expected=PATH`).

A CMake block is a project, or the part of one after the lines that every project begins with.

An `sh` block is a script; a `text` block after it shows what the script prints. The scripts of a
document run one after the other in one folder.

`name=NAME` after the language names a block; other blocks are numbered."""

import re
from dataclasses import dataclass
from pathlib import Path

FENCE = re.compile(r"^ {0,3}(`{3,}|~{3,})[ \t]*([^\n`]*)$")
OUTPUT_LANGUAGES = ("text", "xml")

PROJECT = """cmake_minimum_required(VERSION 3.22)
project(documented LANGUAGES CXX)
"""
EXECUTABLE = "add_executable(my_program main.cpp)\n"


@dataclass
class Block:
    language: str
    words: list
    text: str
    line: int

    def option(self, name, default=None):
        """The value of `name=VALUE` after the language."""
        values = [word.split("=", 1)[1] for word in self.words if word.startswith(name + "=")]
        return values[0] if values else default


@dataclass
class Sample:
    """A block that the tests build, and the blocks that show its output."""
    name: str
    block: Block
    outputs: list


def blocks_of(text):
    """All fenced blocks, in order. Raises ValueError for a block that is not closed."""
    blocks, lines = [], enumerate(text.splitlines(), 1)
    for number, line in lines:
        fence = FENCE.match(line)
        if not fence:
            continue
        closing = re.compile(rf"^ {{0,3}}{re.escape(fence[1])}{re.escape(fence[1][0])}*[ \t]*$")
        content = []
        for _, inner in lines:
            if closing.match(inner):
                break
            content.append(inner + "\n")
        else:
            raise ValueError(f"line {number}: the block is not closed")
        words = fence[2].split() or [""]
        blocks.append(Block(words[0], words[1:], "".join(content), number))
    return blocks


def outputs_after(blocks, index):
    """The output blocks that directly follow the block at this index."""
    outputs = []
    for block in blocks[index + 1:]:
        if block.language not in OUTPUT_LANGUAGES:
            break
        outputs.append(block)
    return outputs


def samples_of(document, blocks, language):
    """The named blocks of a language, without the preamble."""
    samples = []
    for index, block in enumerate(blocks):
        if block.language == language and "preamble" not in block.words:
            name = block.option("name", f"{language}-{len(samples) + 1}")
            samples.append(Sample(f"{document}.{name}", block, outputs_after(blocks, index)))
    if len({sample.name for sample in samples}) < len(samples):
        raise ValueError(f"{document}: two samples have the same name")
    return samples


def preamble_of(blocks):
    """The text of the document's preamble, or None."""
    preambles = [block.text for block in blocks if "preamble" in block.words]
    if len(preambles) > 1:
        raise ValueError("more than one preamble")
    return preambles[0] if preambles else None


def is_program(text):
    return re.search(r"^int main\(", text, re.MULTILINE) is not None


def program_of(sample, preamble):
    """The sample as a complete source file."""
    if is_program(sample.block.text):
        return sample.block.text
    if preamble is None:
        raise ValueError(f"{sample.name}: a body of main needs a preamble")
    return f"{preamble}\nint main()\n{{\n{sample.block.text}}}\n"


def project_of(block):
    """The block as a CMakeLists.txt."""
    text = block.text
    if not re.search(r"^add_executable\(", text, re.MULTILINE):
        text = EXECUTABLE + text
    return text if re.search(r"^project\(", text, re.MULTILINE) else PROJECT + text


def rows_below(text, heading):
    """The rows of the first table below a heading, without the table's header."""
    section = text.split(f"\n{heading}\n", 1)[1].split("\n## ", 1)[0]
    table = re.search(r"(?:^\|.*\n)+", section, re.MULTILINE)[0]
    return [[cell.strip() for cell in line.strip("|").split("|")]
            for line in table.splitlines()[2:]]


def document_name(path):
    return Path(path).stem


def read_blocks(path):
    return blocks_of(Path(path).read_text(encoding="utf-8"))
