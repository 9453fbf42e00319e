"""Writes a C++ test that asks the compiler for the slot of every operation of the slot lists.

Usage: make_slot_tests.py SLOT_FOLDER OUTPUT"""

import sys
from pathlib import Path

from slot_lists import read_slot_lists, slots, split

HEAD = """\
// Written by make_slot_tests.py from the lists in slots/.

#include "abi/SlotOf.h"

{includes}

#include <gtest/gtest.h>

using namespace ZelInterchangeData;
"""

TEST = """
TEST(CompiledSlots, {name}IsInTheListedOrder)
{{
    using Class = {name};
{checks}
}}
"""

CHECK = """\
    EXPECT_EQ(slotOf(static_cast<{result} (Class::*){rest}>(&Class::{operation})), {slot}U);"""


def checks(slot_list):
    for slot, operation in slots(slot_list.operations):
        if operation != "~":  # no pointer can point to a destructor; vtables_test.py checks it
            result, name, rest = split(operation)
            yield CHECK.format(result=result, rest=rest, operation=name, slot=slot)


def main():
    slot_lists = read_slot_lists(Path(sys.argv[1]))
    headers = sorted({slot_list.header for slot_list in slot_lists})
    text = HEAD.format(includes="\n".join(f'#include "{header}"' for header in headers))
    for slot_list in slot_lists:
        text += TEST.format(name=slot_list.name, checks="\n".join(checks(slot_list)))
    Path(sys.argv[2]).write_text(text, encoding="ascii")


if __name__ == "__main__":
    main()
