"""Tests how the coverage script reads gcov's counts, with made-up ones.

The environment names COVERAGE, the script."""

import contextlib
import importlib.util
import io
import os
import sys
import unittest
from collections import defaultdict
from importlib.machinery import SourceFileLoader

sys.dont_write_bytecode = True
loader = SourceFileLoader("coverage_script", os.environ["COVERAGE"])
coverage = importlib.util.module_from_spec(importlib.util.spec_from_loader(loader.name, loader))
loader.exec_module(coverage)


def edge(count, throw=False, fallthrough=False):
    return {"count": count, "throw": throw, "fallthrough": fallthrough}


def call(count):
    """The edges of a call that can throw."""
    return [edge(count, fallthrough=True), edge(0, throw=True)]


def decision(first, second):
    return [edge(first, fallthrough=True), edge(second)]


def line(number, count, branches=(), function="f"):
    return {"line_number": number, "count": count, "branches": list(branches),
            "function_name": function}


def document(lines, file="src/core/A.cpp", functions=(("f", 1, 1),)):
    begins = [{"name": name, "start_line": start, "start_column": column}
              for name, start, column in functions]
    return {"current_working_directory": "/project/build",
            "files": [{"file": f"../{file}", "functions": begins, "lines": lines}]}


def rows(text, *documents):
    """The rows of the table for documents about a file of this text."""
    files = defaultdict(coverage.Counts)
    for each in documents:
        coverage.add_document(files, each, "/project")
    return [coverage.Row(name, counts, text) for name, counts in files.items()]


def figures(row):
    return row.reached, row.lines, row.taken, row.branches


class Lines(unittest.TestCase):
    def row(self, text, *lines):
        return rows(text, document(lines))[0]

    def test_a_line_that_ran_is_reached(self):
        self.assertEqual(figures(self.row("a();\nb();\n", line(1, 3), line(2, 0))), (1, 2, 0, 0))

    def test_a_line_that_did_not_run_is_named(self):
        self.assertEqual(self.row("a();\nb();\n", line(1, 3), line(2, 0)).missing, ["2"])

    def test_lines_with_only_braces_do_not_count(self):
        row = self.row("a();\n}\n} // end\n});\n", line(1, 1), *(line(i, 0) for i in (2, 3, 4)))
        self.assertEqual((figures(row), row.missing), ((1, 1, 0, 0), []))

    def test_a_line_in_several_functions_counts_once(self):
        row = rows("a();\n", document([line(1, 0, function="f"), line(1, 2, function="g")]))[0]
        self.assertEqual(figures(row), (1, 1, 0, 0))

    def test_files_outside_the_library_do_not_count(self):
        self.assertEqual(rows("", document([line(1, 1)], "tests/core/ATest.cpp")), [])
        self.assertEqual(rows("", document([line(1, 1)], "../usr/include/vector")), [])


class Branches(unittest.TestCase):
    def row(self, *documents):
        return rows("if (a) b();\n", *documents)[0]

    def test_both_branches_of_a_decision_count(self):
        row = self.row(document([line(1, 2, decision(2, 0))]))
        self.assertEqual((figures(row), row.missing), ((1, 1, 1, 2), ["1 (1 of 2 branches)"]))

    def test_the_edges_of_a_call_do_not_count(self):
        row = self.row(document([line(1, 2, call(2) + decision(1, 1) + call(1))]))
        self.assertEqual(figures(row), (1, 1, 2, 2))

    def test_a_decision_before_a_call_is_not_mistaken_for_one(self):
        edges = [edge(1, fallthrough=True), edge(1), *call(1)]
        self.assertEqual(figures(self.row(document([line(1, 1, edges)]))), (1, 1, 2, 2))

    def test_a_branch_taken_in_one_template_instance_is_taken(self):
        places = (("f<int>", 1, 1), ("f<char>", 1, 1))
        lines = [line(1, 1, decision(1, 0), "f<int>"), line(1, 1, decision(0, 1), "f<char>")]
        self.assertEqual(figures(self.row(document(lines, functions=places))), (1, 1, 2, 2))

    def test_functions_on_one_line_count_their_branches_separately(self):
        places = (("f", 1, 1), ("lambda", 1, 9))
        lines = [line(1, 1, decision(1, 0), "f"), line(1, 1, decision(0, 1), "lambda")]
        self.assertEqual(figures(self.row(document(lines, functions=places))), (1, 1, 2, 4))

    def test_a_branch_taken_in_another_program_is_taken(self):
        row = self.row(document([line(1, 1, decision(1, 0))]),
                       document([line(1, 1, decision(0, 1))]))
        self.assertEqual(figures(row), (1, 1, 2, 2))


class Markers(unittest.TestCase):
    def row(self, text, *lines):
        return rows(text, document(lines))[0]

    def test_a_marked_line_does_not_count(self):
        row = self.row("a(); // uncovered line: nobody calls it\n", line(1, 0, decision(0, 0)))
        self.assertEqual((figures(row), row.excluded, row.offences), ((0, 0, 0, 0), 1, []))

    def test_a_marked_branch_does_not_count_but_its_line_does(self):
        row = self.row("if (a) b(); // uncovered branch: always\n", line(1, 1, decision(1, 0)))
        self.assertEqual((figures(row), row.excluded, row.offences), ((1, 1, 0, 0), 1, []))

    def test_a_marker_above_a_block_covers_the_block(self):
        row = self.row("// uncovered lines: nobody asks\na();\nb();\n\nc();\n",
                       line(2, 0), line(3, 0), line(5, 0))
        self.assertEqual((row.missing, row.excluded, row.offences), (["5"], 2, []))

    def test_a_marker_without_a_reason_is_refused(self):
        for marker in ("uncovered line", "uncovered line:", "uncovered: why not", "uncovered"):
            with self.subTest(marker):
                row = self.row(f"a(); // {marker}\n", line(1, 0))
                self.assertEqual(row.offences, ["src/core/A.cpp:1: the marker must say what is "
                                                "uncovered and why"])
                self.assertEqual(row.missing, ["1"])

    def test_a_marker_on_reached_code_is_refused(self):
        for text, count, edges in (("a(); // uncovered line: x\n", 1, []),
                                   ("a(); // uncovered branch: x\n", 1, decision(1, 1)),
                                   ("// uncovered lines: x\na();\n", 1, [])):
            with self.subTest(text):
                number = text.count("\n")
                row = self.row(text, line(number, count, edges))
                self.assertEqual(row.offences, [f"src/core/A.cpp:{number}: marked, but reached"])


class Gate(unittest.TestCase):
    def offences(self, reached, lines, taken, branches):
        edges = [edge(1)] * taken + [edge(0)] * (branches - taken)
        text = "a();\n" * lines
        counts = [line(i + 1, int(i < reached), edges if i == 0 else ()) for i in range(lines)]
        table = rows(text, document(counts))
        with contextlib.redirect_stdout(io.StringIO()):
            return coverage.offences(table, *coverage.print_table(table))

    def test_all_lines_and_19_of_20_branches_pass(self):
        self.assertEqual(self.offences(1000, 1000, 19, 20), [])

    def test_one_missed_line_in_a_thousand_is_refused(self):
        self.assertEqual(self.offences(999, 1000, 19, 20),
                         ["99.9 % of lines reached, 100.0 % required"])

    def test_percentages_are_not_rounded_up(self):
        self.assertEqual(self.offences(9999, 10000, 18999, 20000),
                         ["99.9 % of lines reached, 100.0 % required",
                          "94.9 % of branches taken, 95.0 % required"])

    def test_an_empty_count_is_refused(self):
        self.assertEqual(coverage.offences([], 100.0, 100.0), ["nothing was counted"])


if __name__ == "__main__":
    unittest.main()
