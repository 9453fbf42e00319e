"""Checks the hardening of the Release shared library: in the file where it leaves a trace, otherwise
in the compile commands."""

import json
import platform
import re
import subprocess
import unittest

from support import PREFIX, RELEASE_TREE

LIBRARY = PREFIX / "lib" / "libZelInterchangeData.so"
X86 = platform.machine() in ("x86_64", "AMD64", "i686")
ENDBR64 = bytes.fromhex("f30f1efa")


def readelf(*options):
    return subprocess.run(["readelf", "--wide", *options, LIBRARY], capture_output=True, text=True,
                          check=True).stdout


def exported_functions():
    """Address and name of each function that the library exports."""
    pattern = re.compile(r"^\s*\d+: ([0-9a-f]+)\s+\d+ FUNC\s+(?:GLOBAL|WEAK)\s+DEFAULT\s+\d+ (\S+)",
                         re.MULTILINE)
    return [(int(address, 16), name) for address, name in pattern.findall(readelf("--dyn-syms"))]


def file_offset(address):
    """The file offset of the byte that is loaded at the address."""
    pattern = re.compile(r"^\s*LOAD\s+0x([0-9a-f]+) 0x([0-9a-f]+) 0x[0-9a-f]+ 0x([0-9a-f]+)",
                         re.MULTILINE)
    for segment in pattern.findall(readelf("--program-headers")):
        offset, begin, size = (int(number, 16) for number in segment)
        if begin <= address < begin + size:
            return offset + address - begin
    raise AssertionError(f"no segment is loaded at {address:x}")


class Hardening(unittest.TestCase):
    def test_relocations_are_read_only_before_the_program_runs(self):
        self.assertRegex(readelf("--program-headers"), r"(?m)^\s*GNU_RELRO\s")
        self.assertRegex(readelf("--dynamic"), r"\(FLAGS_1\).*\bNOW\b")

    def test_the_stack_cannot_be_executed(self):
        self.assertRegex(readelf("--program-headers"),
                         r"(?m)^\s*GNU_STACK(?:\s+0x[0-9a-f]+){5} RW\s")

    def test_no_segment_is_writable_and_executable(self):
        self.assertNotRegex(readelf("--program-headers"), r"(?m)^\s*LOAD.*\bRWE\b")

    def test_functions_have_stack_protectors(self):
        self.assertIn("__stack_chk_fail", readelf("--dyn-syms"))

    @unittest.skipUnless(X86, "ENDBR64 is an x86 instruction")
    def test_every_exported_function_begins_with_endbr64(self):
        code = LIBRARY.read_bytes()
        functions = exported_functions()
        self.assertGreater(len(functions), 50)
        for address, name in functions:
            with self.subTest(name):
                offset = file_offset(address)
                self.assertEqual(code[offset:offset + len(ENDBR64)], ENDBR64)

    def test_every_source_is_compiled_with_the_hardening_flags(self):
        commands = json.loads((RELEASE_TREE / "compile_commands.json").read_text(encoding="utf-8"))
        self.assertGreater(len(commands), 40)
        flags = ["-fstack-protector-strong", "-D_FORTIFY_SOURCE=2"]
        flags += ["-fcf-protection=full"] if X86 else []
        for command in commands:
            for flag in flags:
                with self.subTest(file=command["file"], flag=flag):
                    self.assertIn(flag, command["command"].split())


if __name__ == "__main__":
    unittest.main()
