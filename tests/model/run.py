#!/usr/bin/env python3
"""Compares the library with the model, answer by answer, over random scripts.

run.py --seeds A..B --driver PATH [--length N] [--keep-going] [--no-shrink] [--long-bits N]
    [--first-instant SECONDS] [--quiet-nans] [--only-c] [--emulator WORD...]

At the first difference, it removes from the script what the difference does not need, and shows the
rest with both answers. The exit status is 1 if there is a difference.
"""

import argparse
import os
import re
import subprocess
import sys
import tempfile
import time

sys.dont_write_bytecode = True

from c_driver import offered
from generator import Generator, MAX
from packet import DATE
from session import Session
import text as texts

# Fixed offsets, so that the model needs no rules for daylight saving time. POSIX reverses the sign.
ZONES = [("UTC0", 0), ("AAA-2", 7200), ("BBB5", -18000), ("CCC-5:30", 19800)]
ZONES += [("DDD-14", 50400), ("EEE12", -43200)]

DATE_PATTERN = re.compile(rb"(\d{4})-(\d\d)-(\d\d)T(\d\d):(\d\d):(\d\d)([+-]\d+):00")


def word(value):
    """A value in the form that the driver reads."""
    if value is None:
        return "now"
    if isinstance(value, bytes):
        return "s" + value.hex()
    if isinstance(value, list):
        return " ".join([str(len(value))] + [word(one) for one in value])
    return str(value)


def line_of(operation):
    return " ".join(word(part) for part in operation)


# The first element of a packet, in an answer.
PACKET = b"<x:xmpmeta ".hex()


class Moment:
    """Allows the dates that the clock can have shown while the driver ran."""

    def __init__(self, zone):
        self.zone = zone
        self.first = int(time.time()) - 1

    def allows(self, found):
        now = int(time.time()) + 1
        return any(found == texts.date(second, self.zone) for second in range(self.first, now + 1))


def same_word(expected, actual, moment):
    if expected == actual:
        return True
    if DATE.hex() not in expected:
        return False
    want, got = bytes.fromhex(expected[1:].rstrip("]")), bytes.fromhex(actual[1:].rstrip("]"))
    before, _, after = want.partition(DATE)
    found = DATE_PATTERN.match(got, len(before))
    if not found or not moment.allows(found.group()):
        return False
    return got == before + found.group() + after


def same(expected, actual, moment):
    wanted, got = expected.split(), actual.split()
    return len(wanted) == len(got) and all(same_word(w, g, moment) for w, g in zip(wanted, got))


def answers(driver, script, zone_name):
    """The lines that the driver, a command, prints, one for each operation, and one more if it crashed."""
    with tempfile.TemporaryDirectory() as folder:
        done = subprocess.run(
            [*driver, folder],
            input="".join(line_of(operation) + "\n" for operation in script).encode(),
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
            env={**os.environ, "TZ": zone_name},
            check=False,
        )
    lines = done.stdout.decode().splitlines()
    if done.returncode != 0:
        lines.append("ended with %d: %s" % (done.returncode, done.stderr.decode(errors="replace")))
    return lines


def first_difference(driver, script, expected, zone):
    """The index of the first answer that differs and the driver's answer, or None."""
    moment = Moment(zone[1])
    lines = answers(driver, script, zone[0])
    for index, want in enumerate(expected):
        got = lines[index] if index < len(lines) else "nothing"
        if not same(want, got, moment):
            return index, got
    if len(lines) > len(expected):
        return len(expected) - 1, lines[-1]
    return None


def expected_of(script, zone):
    session = Session(zone[1])
    return [session.run(operation) for operation in script]


def shrunk(driver, script, zone):
    """The script without what the difference does not need."""

    def differs(candidate):
        return first_difference(driver, candidate, expected_of(candidate, zone), zone)

    found = differs(script)
    if not found:
        return script
    script = script[: found[0] + 1]
    size = len(script) // 2
    while size:
        at = 0
        while at < len(script):
            candidate = script[:at] + script[at + size :]
            found = differs(candidate) if candidate else None
            if found:
                script = candidate[: found[0] + 1]
            else:
                at += size
        size //= 2
    return script


def readable(answer):
    """The answer with its texts decoded."""
    words = []
    for one in answer.split(" "):
        if re.fullmatch(r"s([0-9a-f]{2})+\]?", one):
            words.append(repr(bytes.fromhex(one[1:].rstrip("]"))))
        else:
            words.append(one)
    return " ".join(words)


def show(driver, script, zone):
    expected = expected_of(script, zone)
    found = first_difference(driver, script, expected, zone)
    print("  TZ=%s" % zone[0])
    for operation in script:
        parts = [repr(part) if isinstance(part, (bytes, list)) else str(part) for part in operation]
        print("  " + " ".join(parts))
    if found:
        print("  model:  " + readable(expected[found[0]]))
        print("  driver: " + readable(found[1]))


def arguments():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--seeds", required=True, help="first and last seed, as in 1..100")
    parser.add_argument("--length", type=int, default=400, help="operations in a script")
    parser.add_argument("--no-shrink", action="store_true", help="show no script, only its seed")
    parser.add_argument("--keep-going", action="store_true", help="show every script that differs")
    parser.add_argument("--driver", required=True, help="path of the driver program")
    parser.add_argument("--long-bits", type=int, default=64, help="how many bits a long has")
    parser.add_argument("--first-instant", type=int, default=-MAX - 1,
                        help="the first instant that the system converts, in seconds since 1970")
    parser.add_argument("--quiet-nans", action="store_true",
                        help="the processor copies each NaN as a quiet one, as x87 does")
    parser.add_argument("--only-c", action="store_true", help="leave out what the C face does not offer")
    parser.add_argument("--emulator", nargs=argparse.REMAINDER, default=[],
                        help="what runs the driver; all words that follow")
    return parser.parse_args()


def main():
    options = arguments()
    driver = [*options.emulator, options.driver]
    first, _, last = options.seeds.partition("..")
    operations = packets = differences = 0
    for seed in range(int(first), int(last or first) + 1):
        zone = ZONES[seed % len(ZONES)]
        script, expected = Generator(seed, zone[1], options.length, options.long_bits,
                                     options.first_instant, options.quiet_nans).make()
        if options.only_c:
            script = list(offered(script))
            expected = expected_of(script, zone)
        operations += len(script)
        packets += sum(PACKET in answer for answer in expected)
        if first_difference(driver, script, expected, zone):
            differences += 1
            print("seed %d differs" % seed)
            if not options.no_shrink:
                show(driver, shrunk(driver, script, zone), zone)
            if not options.keep_going:
                break
    print("%d operations and %d packets compared, %d scripts differ"
          % (operations, packets, differences))
    return 1 if differences else 0


if __name__ == "__main__":
    sys.exit(main())
