"""What the script does with mutants, without a compiler.

The environment names ROOT, the project's folder."""

import contextlib
import importlib.util
import io
import os
import sys
import tempfile
import types
import unittest
from importlib.machinery import SourceFileLoader
from pathlib import Path
from unittest import mock

sys.dont_write_bytecode = True
loader = SourceFileLoader("mutate_script", str(Path(os.environ["ROOT"]) / "scripts" / "mutate"))
mutate = importlib.util.module_from_spec(importlib.util.spec_from_loader(loader.name, loader))
loader.exec_module(mutate)


def mutants_in(room, count):
    return mutate.mutation.mutants_of(f"src/{room}/A.cpp", "f(1);\n" * count)


class Choice(unittest.TestCase):
    def test_the_tests_of_the_own_room_come_first_and_the_slowest_last(self):
        programs = mutate.programs_for("src/toc/ZelDataToc.cpp")
        self.assertEqual((programs[0], programs[-1]), ("toc_tests", mutate.LAST[-1]))

    def test_the_model_comes_first_for_a_header(self):
        programs = mutate.programs_for("src/toc/ZelDataToc.h")
        self.assertEqual(programs[:2], ["model_driver", "toc_tests"])

    def test_every_file_gets_all_programs(self):
        programs = mutate.programs_for("src/toc/ZelDataToc.cpp")
        self.assertEqual(len(programs), len(set(programs)))
        self.assertEqual(sorted(programs), sorted(mutate.programs_for("src/util/A.h")))

    def test_a_sample_takes_from_all_rooms_in_turn(self):
        sample = mutate.sample_of(mutants_in("util", 20) + mutants_in("toc", 20), 10, 1)
        rooms = [mutant.file.split("/")[1] for mutant in sample]
        self.assertEqual((rooms.count("util"), rooms.count("toc")), (5, 5))

    def test_a_sample_may_be_all(self):
        everything = mutants_in("util", 3) + mutants_in("toc", 9)
        sample = mutate.sample_of(everything, 99, 1)
        self.assertEqual(len(sample), 12)
        self.assertEqual(set(sample), set(everything))

    def test_the_same_seed_gives_the_same_sample(self):
        everything = mutants_in("util", 50)
        self.assertEqual(mutate.sample_of(everything, 9, 4), mutate.sample_of(everything, 9, 4))
        self.assertNotEqual(mutate.sample_of(everything, 9, 4), mutate.sample_of(everything, 9, 5))


class Results(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.path = Path(folder.name) / "log.txt"
        self.mutants = mutants_in("util", 40)

    def log(self, code_sum="one"):
        return mutate.Log(self.path, {"src/util/A.cpp": code_sum})

    def fill(self, *results):
        log = self.log()
        with contextlib.redirect_stderr(io.StringIO()):
            for mutant, result in zip(self.mutants, results):
                log.add(mutant, result, "")
        return log

    def report(self, *results):
        log = self.fill(*results)
        with contextlib.redirect_stdout(io.StringIO()) as out:
            noticed = mutate.report(self.mutants[:len(results)], log, 2)
        return noticed, out.getvalue()

    def test_a_log_is_read_again(self):
        self.fill("noticed", "survived")
        log = self.log()
        self.assertEqual([log.result(mutant) for mutant in self.mutants[:3]],
                         ["noticed", "survived", "not run"])

    def test_an_entry_about_other_code_does_not_count(self):
        self.fill("noticed")
        self.assertEqual(self.log("another").result(self.mutants[0]), "not run")

    def test_a_new_comment_changes_no_result(self):
        with tempfile.TemporaryDirectory() as folder, mock.patch.object(mutate, "ROOT", Path(folder)):
            source = Path(folder) / "src" / "util" / "A.cpp"
            source.parent.mkdir(parents=True)
            source.write_text("f(1);\n", encoding="utf-8")
            before, before_sums = mutate.all_mutants()
            source.write_text("// Calls f.\n\nf(1);\n", encoding="utf-8")
            after, after_sums = mutate.all_mutants()
            self.assertEqual(after_sums, before_sums)
            self.assertEqual(after[0].key, before[0].key)
            source.write_text("f(2);\n", encoding="utf-8")
            self.assertNotEqual(mutate.all_mutants()[1], before_sums)

    def test_survivors_are_listed_with_place_change_and_line(self):
        text = self.report("noticed", "survived")[1]
        self.assertIn("src/util/A.cpp:2: 1 -> 2\n    f(1);\n", text)
        self.assertIn("2 mutants, 0 not compiled, 1 noticed, 1 survived, 0 not run: 50.0 % noticed",
                      text)

    def test_what_is_not_compiled_is_neither_noticed_nor_survived(self):
        self.assertEqual(self.report("noticed", "not compiled", "not compiled")[0], 100.0)

    def test_a_share_is_not_rounded_up(self):
        results = ["noticed"] * 37 + ["survived"] * 2
        self.assertEqual(self.report(*results)[0], 94.8)


class Verdicts(unittest.TestCase):
    """A workplace with fake build and test steps."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.place = mutate.Workplace(Path(folder.name), 1.0)
        self.path = self.place.tree / "src" / "util" / "A.cpp"
        self.path.parent.mkdir(parents=True)
        self.path.write_text("f(1);\n", encoding="utf-8")
        self.mutant, = mutants_in("util", 1)
        self.seen = []

    def verdict(self, make=lambda program: None, test=lambda program: 0):
        def made(program):
            self.seen.append(self.path.read_text(encoding="utf-8"))
            return make(program)

        def tested(program):
            status = test(program)
            return None if status is None else types.SimpleNamespace(returncode=status)

        self.place.make, self.place.test = made, tested
        return self.place.verdict(self.mutant)

    def test_the_change_is_there_while_the_tests_are_built_and_gone_afterwards(self):
        self.verdict()
        self.assertEqual(set(self.seen), {"f(2);\n"})
        self.assertEqual(self.path.read_text(encoding="utf-8"), "f(1);\n")

    def test_the_models_driver_is_not_built_for_each_mutant(self):
        self.verdict(make=lambda program: self.assertNotEqual(program, mutate.MODEL))

    def test_what_all_programs_let_pass_has_survived(self):
        self.assertEqual(self.verdict(), ("survived", ""))
        self.assertEqual(len(self.seen), len(mutate.programs_for(self.mutant.file)))

    def test_the_first_program_that_fails_has_noticed(self):
        result = self.verdict(test=lambda program: int(program == "header_tests"))
        self.assertEqual((result, len(self.seen)), (("noticed", "header_tests"), 4))

    def test_a_program_that_runs_too_long_has_noticed(self):
        self.assertEqual(self.verdict(test=lambda program: None), ("noticed", "util_tests, time limit"))

    def test_what_the_compiler_refuses_is_not_compiled(self):
        output = "[1/9] x\nFAILED: src/CMakeFiles/zel_objects.dir/util/A.cpp.o \nerror\n"
        self.assertEqual(self.verdict(make=lambda program: output), ("not compiled", ""))

    def test_what_only_the_linker_refuses_is_noticed(self):
        output = "[9/9] x\nFAILED: tests/util_tests \nerror\n"
        self.assertEqual(self.verdict(make=lambda program: output), ("noticed", "the linker"))


if __name__ == "__main__":
    unittest.main()
