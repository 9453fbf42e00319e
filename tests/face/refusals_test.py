"""Compiles calls of the face that must not compile, and looks for the message that says what to write.

The environment names CXX, CXXFLAGS and INCLUDE."""

import os
import subprocess
import unittest

COMMAND = [os.environ["CXX"], *os.environ["CXXFLAGS"].split(), "-std=c++17", "-fsyntax-only",
           "-I", os.environ["INCLUDE"], "-x", "c++", "-"]
PROGRAM = """#include "ZelInterchangeData/ZelDataFace.h"
using namespace ZelInterchangeData;
void user() {{ {} }}
"""


def errors_of(*expressions):
    """The compiler's messages; empty if it compiles the expressions."""
    statements = "".join(f"static_cast<void>({expression});" for expression in expressions)
    result = subprocess.run(COMMAND, input=PROGRAM.format(statements), capture_output=True,
                            text=True, check=False)
    return "" if result.returncode == 0 else result.stderr


class Refusals(unittest.TestCase):
    def test_texts_with_their_languages_are_accepted(self):
        self.assertEqual(errors_of('createTocItem(0, {{"en", "Intro"}})',
                                   'createCaptionItem(0, 1, {{"en", "Hi"}, {"de", "Hallo"}})'), "")

    def test_a_text_without_its_language_stops_with_a_message(self):
        expressions = ('createTocItem(0, "Intro")', 'createTocItem(0, std::string("Intro"))',
                       'createCaptionItem(0, 1, "Hi")')
        # g++ writes a backslash before a quotation mark. It may also quote the line of the source.
        errors = [line for line in errors_of(*expressions).replace("\\", "").splitlines()
                  if "error:" in line]
        self.assertEqual(len(errors), len(expressions), errors)
        for error in errors:
            self.assertIn('A text needs its language: write {{"en", "Intro"}}.', error)

    def test_a_view_of_a_temporary_owner_is_refused(self):
        self.assertRegex(errors_of("checked(createCaptions()).isGood(true)"), "deleted function.*checked")


if __name__ == "__main__":
    unittest.main()
