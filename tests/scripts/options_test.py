"""Checks that every script prints its usage for --help, and refuses an unknown option."""

import os
import subprocess
import unittest
from pathlib import Path

SCRIPTS = Path(os.environ["SCRIPTS"])


def run(script, option):
    return subprocess.run([script, option], capture_output=True, text=True, check=False, timeout=60,
                          stdin=subprocess.DEVNULL)


class Options(unittest.TestCase):
    def setUp(self):
        others = ("__pycache__", "support")
        self.scripts = sorted(path for path in SCRIPTS.iterdir() if path.name not in others)
        self.assertGreater(len(self.scripts), 5)

    def test_every_script_is_executable(self):
        for script in self.scripts:
            with self.subTest(script.name):
                self.assertTrue(script.is_file() and os.access(script, os.X_OK))

    def test_every_script_prints_its_usage(self):
        for script in self.scripts:
            for option in ("--help", "-h"):
                with self.subTest(f"{script.name} {option}"):
                    result = run(script, option)
                    self.assertEqual((result.returncode, result.stderr), (0, ""))
                    self.assertRegex(result.stdout, rf"(?i)^usage: (scripts/)?{script.name}\b")

    def test_every_script_refuses_an_unknown_option(self):
        for script in self.scripts:
            with self.subTest(script.name):
                result = run(script, "--no-such-option")
                self.assertEqual((result.returncode, result.stdout), (2, ""))
                self.assertRegex(result.stderr, r"(?i)^usage: ")


if __name__ == "__main__":
    unittest.main()
