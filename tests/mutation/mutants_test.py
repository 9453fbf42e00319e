"""Tests the mutants of made-up sources, and compares the list of equivalent ones with the sources.

The environment names ROOT, the project's folder."""

import os
import unittest
from pathlib import Path

import mutants

ROOT = Path(os.environ["ROOT"])


def changes(text):
    return [mutant.change for mutant in mutants.mutants_of("src/util/A.cpp", text)]


class Mutants(unittest.TestCase):
    def test_a_comparison_loses_or_gains_equality(self):
        for old, new in (("<", "<="), ("<=", "<"), (">", ">="), (">=", ">"), ("==", "!="),
                         ("!=", "==")):
            with self.subTest(old):
                self.assertEqual(changes(f"return a {old} b;"), [f"{old} -> {new}"])

    def test_code_of_other_systems_is_skipped(self):
        text = "#ifdef _WIN32\nf(1);\n#else\nf(2);\n#endif\nf(3);\n"
        self.assertEqual(changes(text), ["2 -> 3", "3 -> 4"])

    def test_and_becomes_or_and_back(self):
        self.assertEqual(changes("return a && b || c;"), ["&& -> ||", "|| -> &&"])

    def test_a_connective_at_the_end_of_a_line_counts(self):
        self.assertEqual(changes("return a &&\n       b;"), ["&& -> ||"])

    def test_a_negation_is_removed(self):
        found, = mutants.mutants_of("f", "if (!a) b();")
        self.assertEqual((found.change, found.apply("if (!a) b();")),
                         ("! -> nothing", "if (a) b();"))

    def test_true_and_false_are_swapped(self):
        self.assertEqual(changes("f(true, false);"), ["true -> false", "false -> true"])

    def test_a_number_becomes_the_next_one_and_keeps_its_suffix(self):
        text = "f(0, 0xFFU, 10UL);"
        found = mutants.mutants_of("f", text)
        self.assertEqual([mutant.apply(text) for mutant in found],
                         ["f(1, 0xFFU, 10UL);", "f(0, 0x100U, 10UL);", "f(0, 0xFFU, 11UL);"])

    def test_a_result_code_becomes_another_error(self):
        self.assertEqual(changes("return ZelData_Ok;"), ["ZelData_Ok -> ZelData_InternalError"])
        self.assertEqual(changes("return ZelData_InternalError;"),
                         ["ZelData_InternalError -> ZelData_InvalidArgument"])

    def test_text_that_is_not_code_has_no_mutant(self):
        for text in ("// a < b, 1, true", "/* a < b\n && 1 */", 'f("a < 1 && true");',
                     "f('1');", 'f(R"(a "< 1" b)");', "#if 1 < 2", "#define A(x) \\\n  x < 1",
                     "static_assert(a < 1 &&\n b);", "f(\"\\\"1\", '\\'');"):
            with self.subTest(text):
                self.assertEqual(changes(text), [])

    def test_code_after_a_string_literal_has_mutants(self):
        self.assertEqual(changes('f("1 < 2", 3); // 4'), ["3 -> 4"])

    def test_template_brackets_and_references_are_not_operators(self):
        self.assertEqual(changes("template <class T>\nvoid f(std::vector<T>&& a, T&& b);"), [])
        self.assertEqual(changes("Node& operator<(long long* verb);"), [])

    def test_digits_in_names_and_fractions_are_not_numbers(self):
        self.assertEqual(changes("utf8Text(list3, 0.5F, 1.0);"), [])

    def test_the_same_change_twice_in_a_line_is_numbered(self):
        text = "return a < b && c < d;"
        found = mutants.mutants_of("f", text)
        self.assertEqual([mutant.change for mutant in found],
                         ["< -> <=", "&& -> ||", "< -> <= (2)"])
        self.assertEqual(found[2].apply(text), "return a < b && c <= d;")

    def test_a_mutant_knows_its_line(self):
        found, = mutants.mutants_of("f", "\n\n    return 1;\n")
        self.assertEqual((found.number, found.line), (3, "return 1;"))


class Equivalents(unittest.TestCase):
    entry = "src/a.cpp\nif (a < b)\n< -> <=\nthe two are\nnever equal\n"

    def test_an_entry_has_a_file_a_line_a_change_and_a_reason(self):
        entries, offences = mutants.read_equivalents("# what this is\n\n" + self.entry)
        self.assertEqual(entries, {("src/a.cpp", "if (a < b)", "< -> <="):
                                   "the two are never equal"})
        self.assertEqual(offences, [])

    def test_an_empty_list_is_valid(self):
        self.assertEqual(mutants.read_equivalents("# nothing yet\n"), ({}, []))

    def test_an_entry_without_a_reason_is_refused(self):
        entries, offences = mutants.read_equivalents("src/a.cpp\nif (a < b)\n< -> <=\n")
        self.assertEqual((entries, len(offences)), ({}, 1))

    def test_a_duplicate_entry_is_refused(self):
        offences = mutants.read_equivalents(self.entry + "\n" + self.entry)[1]
        self.assertEqual(offences, ["listed twice: src/a.cpp | if (a < b) | < -> <="])

    def misplaced(self, text):
        entries = mutants.read_equivalents(self.entry)[0]
        return mutants.misplaced(entries, mutants.mutants_of("src/a.cpp", text))

    def test_an_entry_for_an_existing_mutant_passes(self):
        self.assertEqual(self.misplaced("    if (a < b)\n"), [])

    def test_an_entry_for_a_line_that_changed_is_refused(self):
        self.assertEqual(self.misplaced("    if (a < c)\n"),
                         ["there is no such mutant: src/a.cpp | if (a < b) | < -> <="])

    def test_identical_lines_are_numbered(self):
        found = mutants.mutants_of("f", "if (a < b)\nx();\n    if (a < b)\n")
        self.assertEqual([mutant.key for mutant in found],
                         [("f", "if (a < b)", "< -> <="), ("f", "if (a < b)", "< -> <= [2]")])


class Sources(unittest.TestCase):
    def test_every_listed_mutant_exists(self):
        found = []
        for path in sorted((ROOT / "src").rglob("*")):
            if path.suffix in (".h", ".cpp"):
                found += mutants.mutants_of(str(path.relative_to(ROOT)),
                                            path.read_text(encoding="utf-8"))
        self.assertGreater(len(found), 500)
        listed = (ROOT / "tests/mutation/equivalents.txt").read_text(encoding="utf-8")
        entries, offences = mutants.read_equivalents(listed)
        self.assertEqual(offences + mutants.misplaced(entries, found), [])


if __name__ == "__main__":
    unittest.main()
