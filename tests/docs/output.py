"""Compares what a sample prints and writes with what its document shows."""

import os
import re
import subprocess
from pathlib import Path

from blocks import Block

DATE = re.compile(r'dc:date="\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d[-+]\d{1,2}:00"')


def in_one_line(block):
    """The shown packet as written: no space between two tags, one before an attribute."""
    lines = [line.strip() for line in block.splitlines()]
    text = lines[0]
    for line in lines[1:]:
        text += line if text.endswith(">") and line.startswith("<") else " " + line
    return text


def masked(text):
    """The text with DATE for the date of a packet."""
    return DATE.sub('dc:date="DATE"', text)


def same(actual, block):
    """Whether the text is the one shown, regardless of a line feed after a printed packet."""
    # A date shown as empty matches any date.
    shown = masked(block.text).replace('dc:date=""', 'dc:date="DATE"')
    if block.language == "xml":
        return masked(actual).removesuffix("\n") == in_one_line(shown)
    return masked(actual) == shown


def outputs_of(sample):
    """The output blocks of the sample, and the project file that its first line names."""
    expected = sample.block.option("expected")
    if not expected:
        return sample.outputs
    text = Path(os.environ["ROOT"], expected).read_text(encoding="utf-8")
    return sample.outputs + [Block("xml", ["file=" + sample.block.option("writes")], text, 0)]


def source_objections(sample):
    """Says whether a sample that names a project file as its source differs from it."""
    source = sample.block.option("source")
    if not source:
        return []
    same_text = Path(os.environ["ROOT"], source).read_text(encoding="utf-8") == sample.block.text
    return [] if same_text else [f"differs from {source}"]


def run(command, folder):
    """Runs a sample in the folder."""
    return subprocess.run(command, cwd=folder, capture_output=True, text=True, encoding="utf-8",
                          check=False, timeout=120)


def failure(result):
    """Says whether a sample failed or wrote to standard error."""
    if (result.returncode, result.stderr) == (0, ""):
        return []
    return [f"exit status {result.returncode}, standard error: {result.stderr!r}"]


def print_objections(outputs, text):
    """The difference between what a sample printed and what the document shows."""
    printed = [block for block in outputs if not block.option("file")]
    found = ["the document shows two outputs"] if len(printed) > 1 else []
    if not printed and text:
        found.append(f"prints what is not shown: {text!r}")
    return found + [f"prints {text!r}" for block in printed if not same(text, block)]


def objections(sample, command, folder):
    """What a built sample does differently from what the document shows."""
    result = run(command, folder)
    if found := failure(result):
        return found
    found, outputs = source_objections(sample), outputs_of(sample)
    if not outputs:
        found.append("the document shows no output")
    return found + print_objections(outputs, result.stdout) + file_objections(outputs, folder)


def file_objections(outputs, folder):
    """The differences between the files written and those shown."""
    shown = {block.option("file"): block for block in outputs if block.option("file")}
    written = {path.name: path.read_text(encoding="utf-8") for path in folder.iterdir()}
    found = [f"writes {name}, which is not shown" for name in sorted(written.keys() - shown.keys())]
    for name, block in shown.items():
        if name not in written:
            found.append(f"does not write {name}")
        elif not same(written[name], block):
            found.append(f"writes {written[name]!r} into {name}")
    return found
