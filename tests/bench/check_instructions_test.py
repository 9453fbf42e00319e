"""Tests how scripts/check-instructions reads counts and judges ratios."""

import importlib.machinery
import importlib.util
import os
import unittest


def load():
    loader = importlib.machinery.SourceFileLoader("check_instructions",
                                                  os.environ["CHECK_INSTRUCTIONS"])
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader(loader.name, loader))
    loader.exec_module(module)
    return module


check = load()


def counts(write_large=8000):
    result = {}
    for order in check.ORDERS:
        result.update({f"write.{order}.1000": 1000, f"write.{order}.8000": write_large,
                       f"appender.{order}.1000": 500, f"appender.{order}.8000": 4000})
    for alphabet in check.ALPHABETS:
        result.update({f"utf8.{alphabet}": 30, f"utf8.{alphabet}.plain": 60})
    result.update({"escape": 10, "escape.plain": 40, "face": 101, "codes": 100,
                   "fill": 100, "fill.c": 108, "front.pointers.8000": 224})
    for section in check.GROWING:
        result.update({f"{section}.1000": 7, f"{section}.8000": 56})
    return result


class Ratios(unittest.TestCase):
    def test_linear_growth_has_exponent_one(self):
        self.assertAlmostEqual(check.ratios(counts())["growth.tied"], 1)

    def test_quadratic_growth_has_exponent_two(self):
        self.assertAlmostEqual(check.ratios(counts(64000))["growth.reversed"], 2)

    def test_each_ratio_uses_its_own_counts(self):
        measured = check.ratios(counts())
        self.assertEqual(measured["write/appender.shuffled.8000"], 2)
        self.assertEqual(measured["utf8/plain.CJK"], 0.5)
        self.assertEqual(measured["escape/plain"], 0.25)
        self.assertEqual(measured["face/codes"], 1.01)
        self.assertEqual(measured["fill.c/fill"], 1.08)
        for section in check.GROWING:
            self.assertAlmostEqual(measured[f"growth.{section}"], 1)
        self.assertEqual(measured["front/pointers"], 0.25)

    def test_a_missing_section_is_an_error(self):
        incomplete = counts()
        del incomplete["escape"]
        with self.assertRaises(KeyError):
            check.ratios(incomplete)


class Dumps(unittest.TestCase):
    def test_the_name_and_the_total_are_read(self):
        text = ("version: 1\ndesc: Trigger: Client Request: write.tied.1000\nevents: Ir\n"
                "summary: 4711\n\n")
        self.assertEqual(check.dumped_count(text), ("write.tied.1000", 4711))

    def test_the_final_dump_has_no_name(self):
        self.assertIsNone(check.dumped_count("desc: Trigger: Program termination\ntotals: 12\n"))


class Limits(unittest.TestCase):
    def test_written_limits_are_read_back(self):
        text = check.limits_text({"a": 2.0, "b": 0.5}, 1.5)
        self.assertEqual(check.read_limits(text), {"a": 3.0, "b": 0.75})

    def test_a_ratio_within_its_limit_passes(self):
        self.assertEqual(check.offences({"a": 2.0}, {"a": 2.0}), [])

    def test_a_ratio_above_its_limit_is_an_offence(self):
        self.assertEqual(check.offences({"a": 2.1}, {"a": 2.0}),
                         ["a: 2.1000 is above 2.0000"])

    def test_a_ratio_without_a_limit_is_an_offence(self):
        self.assertEqual(check.offences({"a": 2.1}, {}), ["a: 2.1000 has no limit"])

    def test_a_limit_without_a_ratio_is_an_offence(self):
        self.assertEqual(check.offences({}, {"a": 1.0}), ["a: has a limit, but was not measured"])


if __name__ == "__main__":
    unittest.main()
