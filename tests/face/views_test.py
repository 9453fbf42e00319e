"""Compares the checked views with the slot lists: each operation of an interface is in its view, and
each function of a view calls the operation of the same name and puts this name in the exception."""

import os
import re
import unittest
from pathlib import Path

HEADERS = Path(os.environ["HEADERS"])
SLOTS = Path(os.environ["SLOTS"])

# i_ZelDataResult has no view: the exception carries the code, so you need no last error.
VIEWS = {
    "i_ZelDataLanguage": "ZelDataCheckedLanguage",
    "i_ZelDataHeader": "ZelDataCheckedHeader",
    "i_ZelDataCaptionItem": "ZelDataCheckedCaptionItem",
    "i_ZelDataCaptions": "ZelDataCheckedCaptions",
    "i_ZelDataTocItem": "ZelDataCheckedTocItem",
    "i_ZelDataToc": "ZelDataCheckedToc",
    "i_ZelDataScreenTextItem": "ZelDataCheckedScreenTextItem",
    "i_ZelDataScreenText": "ZelDataCheckedScreenText",
    "i_ZelDataFormatterBase": "ZelDataCheckedFormatter",
    "i_ZelDataHeaderFormatter": "ZelDataCheckedHeaderFormatter",
    "i_ZelDataCaptionFormatter": "ZelDataCheckedCaptionFormatter",
    "i_ZelDataTocFormatter": "ZelDataCheckedTocFormatter",
    "i_ZelDataScreenTextFormatter": "ZelDataCheckedScreenTextFormatter",
    "i_ZelInterchangeDataCore": "ZelDataCheckedDocument",
}
FUNCTION = re.compile(r"\b(\w+)\(([^{}();]*)\) const\s*\{(.*?)\n?\s*\}", re.DOTALL)
# A function that only passes a default to another function of the view.
FORWARDED = re.compile(r"\n\s+writeString\(out, format, false\);")


def listed(interface):
    """The operations that the interface declares itself, in slot order, without the destructor."""
    lines = (SLOTS / f"{interface}.txt").read_text(encoding="ascii").splitlines()
    operations = [re.match(r"ZelDataResult_tags (\w+)\(", line) for line in lines]
    return [operation[1] for operation in operations if operation]


def functions(view):
    """Name and body of each function of the view that calls an operation."""
    text = (HEADERS / f"{view}.h").read_text(encoding="utf-8").replace("color = {}", "color")
    body = text[text.index("/// @{"):text.index("/// @}")]
    return [(name, code) for name, _, code in FUNCTION.findall(body)
            if not FORWARDED.search(code) and name != "isGood"]


def answers(view):
    """The parameters and the body of isValid and isGood, if the view has them."""
    text = (HEADERS / f"{view}.h").read_text(encoding="utf-8")
    found = {name: (parameters, code) for name, parameters, code in FUNCTION.findall(text)}
    return found.get("isValid"), found.get("isGood")


class Views(unittest.TestCase):
    def test_every_interface_has_a_view(self):
        interfaces = {path.stem for path in SLOTS.glob("i_*.txt")} - {"i_ZelDataResult"}
        self.assertEqual(interfaces, set(VIEWS))

    def test_a_view_has_the_operations_of_its_interface_in_order(self):
        for interface, view in VIEWS.items():
            with self.subTest(view):
                self.assertEqual([name for name, _ in functions(view)], listed(interface))

    def test_a_function_calls_and_names_the_operation_of_the_same_name(self):
        for view in VIEWS.values():
            for name, code in functions(view):
                with self.subTest(f"{view}::{name}"):
                    called = re.findall(r"&Interface::(\w+)|object\(\)\.(\w+)\(", code)
                    self.assertEqual(["".join(one) for one in called], [name])
                    self.assertEqual(set(re.findall(r'"(\w+)"', code)), {name})

    def test_a_view_with_isValid_answers_isGood_with_it(self):
        for view in VIEWS.values():
            with self.subTest(view):
                valid, good = answers(view)
                self.assertEqual(valid is None, good is None)
                if good:
                    self.assertEqual(good[0], valid[0])
                    self.assertIn(f'"isValid", this->object().isValid({good[0].removeprefix("bool ")})',
                                  good[1])


if __name__ == "__main__":
    unittest.main()
