#!/usr/bin/env python3
"""Writes the seeds of the fuzz targets: the same files every time.

Targets that read numbers from their input get random bytes, in some of which useful texts and plans
are likely; targets that read a text get texts."""

import argparse
import random
import shutil
import sys
from pathlib import Path

SEEDS = Path(__file__).resolve().parent / "seeds"

TEXTS = [
    b"", b"plain", b"a\nb\n", b"\n", b"a\tb\r\nc", b"<a href='x'>&</a> \"q\"", b"&amp;lt;x&",
    b"&am", b"&a", b"&ax&nbsp;&quot", b"&apos;&gt;&lt;&quot; ", b"en", b"EN-us", b"zz", b"ug", b"lu-x",
    "Käse, 茶, 🙂, שלום".encode(), b"\xc0\x80", b"\xed\xa0\x80", b"\xf4\x90\x80\x80",
    b"\xf8\x88\x80\x80\x80", b"\xfc\x84\x80\x80\x80\x80", b"\xfe\xff", b"\xc3",
    b"\xef\xbf\xbe\xef\xbf\xbf", b"\xef\xbb\xbfmark", bytes(range(32)) + b"\x7f", b"x" * 400 + b"&" * 40,
]

SUBTITLES = [
    b"1\n00:00:01,000 --> 00:00:02,500\nHello\n\n2\n00:00:03,000 --> 00:00:04,000\nTwo\nlines \n",
    b"WEBVTT\n\nNOTE nothing\n\n00:01.5 --> 00:02.25 align:start\n<v Ann>Hi &amp; bye</v>\n\n",
    b"WEBVTT - title\r\n\r\nintro\r\n1:00:00.000 --> 1:00:01.000\r\n{\\an8}Top {\\i1}x\r\n",
    b"\xef\xbb\xbfWEBVTT\rx\r0:1.1-->0:2.22\rtext\r0:2.1\t-->\t0:3.1\tsettings\r\r",
    b"00:00:02,000 --> 00:00:01,000\nbackwards\n\n00:61:00,000 --> 00:62:00,000\nsixty\n",
    b"9223372036854:00:00.000 --> 99999999999999999999:00:00.0\nlate\n\n"
    b"2562047788015:12:55.806 --> 2562047788015:12:55.807\nlast moment\n",
    b"0:0.1 --> 0:0.2\n\xef\xbf\xbe \xef\xbf\xbf\n \t\n--> arrow\nlost\n",
    b"0:0.1 --> 0:0.2\n<never closed {\\never &lt;&nbsp;&lrm;&rlm; &gt\n<b\nover lines>kept\n",
    "0:0.1 --> 0:0.2\n日本語 🙂 العربية\n".encode(),
    b"0:0.1 --> 0:0.2\n\xff\n", b"\xef\xbb\xbf", b"", b"WEBVTT", b"-->", b"WEBVTT x --> y\n",
]


def random_bytes(rng, size):
    return bytes(rng.randrange(256) for _ in range(size))


def argument_bytes(rng):
    """A few bytes in the form of arguments: words, numbers, short and long texts."""
    kind = rng.randrange(4)
    if kind == 0:
        return bytes([rng.randrange(17)])
    if kind == 1:
        text = rng.choice(TEXTS)[:120]
        return bytes([128 + rng.randrange(96), len(text)]) + text
    if kind == 2:
        return bytes([230, 3]) + b"abc" + bytes([rng.randrange(64)])
    return bytes([5 + rng.randrange(3), rng.randrange(256)])


def calls(rng, number):
    """Calls, each with a plan; in half of the files, nothing fails at first."""
    sequence = b""
    for call in range(10 + 4 * number):
        fails = number % 2 == 0 or call > 2 * number
        plan = 4 * rng.randrange(12) + (rng.randrange(4) if fails else 0)
        sequence += bytes([rng.randrange(256), plan, rng.randrange(256)])
        sequence += b"".join(argument_bytes(rng) for _ in range(rng.randrange(4)))
    return sequence


def filled(rng, number):
    return b"".join(argument_bytes(rng) + random_bytes(rng, rng.randrange(4))
                    for _ in range(6 * number))


def structured(rng, number):
    return random_bytes(rng, 12 + 24 * number) if number % 2 else filled(rng, number)


def foreign(rng, number):
    """One input, for a kind of object, a route and a way to fail."""
    kind, route = number % 7, number // 7
    return bytes([kind, route, rng.randrange(12), number % 10, rng.randrange(7), 1, 0,
                  rng.randrange(2)]) + filled(rng, 12)


def text(rng, number):
    chosen = TEXTS[number]
    return random_bytes(rng, 24) + bytes([rng.randrange(17), 1, 38]) + chosen


def subtitles(_rng, number):
    return SUBTITLES[number]


TARGETS = {
    "calls": (calls, 40),
    "document": (structured, 30),
    "foreign": (foreign, 49),
    "subtitles": (subtitles, len(SUBTITLES)),
    "text": (text, len(TEXTS)),
    "tree": (structured, 24),
}


def all_seeds():
    """Yields the path, below the folder of seeds, and the bytes of each."""
    for target, (make, count) in TARGETS.items():
        for number in range(count):
            yield Path(target, f"{number:02}"), make(random.Random(f"{target} {number}"), number)


def offences():
    seeds = dict(all_seeds())
    found = {path.relative_to(SEEDS) for path in SEEDS.rglob("*") if path.is_file()}
    yield from (f"{path}: is missing" for path in sorted(seeds.keys() - found))
    yield from (f"{path}: is not one of the seeds" for path in sorted(found - seeds.keys()))
    yield from (f"{path}: differs" for path in sorted(found & seeds.keys())
                if (SEEDS / path).read_bytes() != seeds[path])


def write():
    shutil.rmtree(SEEDS, ignore_errors=True)
    for path, seed in all_seeds():
        (SEEDS / path).parent.mkdir(parents=True, exist_ok=True)
        (SEEDS / path).write_bytes(seed)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--check", action="store_true",
                        help="write nothing; exit with status 1 if a seed differs")
    if not parser.parse_args().check:
        write()
        return 0
    found = list(offences())
    for offence in found:
        print(f"seeds/{offence}", file=sys.stderr)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
