"""Makes each allocation of every function of the list fail in turn, alone and with all after it: the
function returns ZELDATA_OUT_OF_MEMORY or what it returns otherwise, a failed call has a message, and nothing leaks.

failing_new.cpp must be preloaded. The environment names LIBRARY."""

import ctypes
import os
import tempfile
import unittest

from binding import CODES, CONSTANTS, Library
from world import World, has_message, of_code

LIBRARY = Library(os.environ["LIBRARY"])
PRELOADED = ctypes.CDLL(None)
OUT_OF_MEMORY = CONSTANTS["ZELDATA_OUT_OF_MEMORY"]
OK = CONSTANTS["ZELDATA_OK"]

# Longer than a std::string holds without an allocation. The first is a language ID, too.
TEXT, NO_UTF8 = b"en-" + b"x" * 60, b"\xFF" * 60

FROM_THEN_ON, ONCE = PRELOADED.failing_new_grant, PRELOADED.failing_new_fail


def outcome(function, granted, prepare=lambda world: None, fail=FROM_THEN_ON, text=TEXT):
    """The code and the message of a call of which an allocation fails after this many, and the blocks
    that it leaks."""
    before = PRELOADED.failing_new_alive()
    world = World(LIBRARY, text)
    prepare(world)
    arguments = [world.good(kind) for kind, _ in function["parameters"]]
    fail(granted)
    code = LIBRARY.function(function["name"])(*arguments)
    fail(-1)
    message = LIBRARY.message(arguments[0]) if has_message(function) else None
    if code != OK and any(place.value for _, place in world.made):
        raise AssertionError(f"{function['name']} failed and stored a handle")
    world.close()
    return code, message, PRELOADED.failing_new_alive() - before


class Memory(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()  # for the files that are written
        self.addCleanup(folder.cleanup)
        self.addCleanup(os.chdir, os.getcwd())
        os.chdir(folder.name)

    def sweep(self, function, prepare=lambda world: None, text=TEXT):
        """Returns how often memory ran out at an allocation and all after it."""
        self.sweep_each(function, prepare, ONCE, text)
        return self.sweep_each(function, prepare, FROM_THEN_ON, text)

    def sweep_each(self, function, prepare, fail, text):
        expected, wanted, leaked = outcome(function, -1, prepare, fail, text)
        self.assertEqual(leaked, 0)
        for granted in range(2000):
            code, message, leaked = outcome(function, granted, prepare, fail, text)
            self.assertIn(code, (OUT_OF_MEMORY, expected))
            self.assertEqual(leaked, 0, granted)
            if message is not None:
                self.assertIn(message, self.messages(code, wanted), granted)
            if code == expected and message == wanted:
                return granted
        raise AssertionError("does not end")

    def messages(self, code, wanted):
        """What a call may say that says @p wanted with enough memory: all of it, or what the code means."""
        if code == OK:
            return [""]
        meaning = LIBRARY.function("zeldata_result_describe")(code).decode()
        return [meaning] if code == OUT_OF_MEMORY else [wanted, meaning]

    def test_every_function_survives_every_allocation_that_fails(self):
        swept = 0
        for function in of_code():
            with self.subTest(function["name"]):
                swept += self.sweep(function) > 0
                self.sweep(function, text=NO_UTF8)
        self.assertGreater(swept, 80)

    def test_so_does_the_writing_of_a_whole_document(self):
        for function in of_code():
            if function["name"].startswith("zeldata_document_"):
                with self.subTest(function["name"]):
                    self.sweep(function, World.fill)

    def test_so_does_the_message_of_a_file_that_cannot_be_written(self):
        os.rmdir(os.getcwd())
        function = next(one for one in of_code() if one["name"] == "zeldata_document_replace_file")
        code, message, _ = outcome(function, -1, World.fill)
        self.assertEqual(CODES[code], "ZELDATA_FILE_OPEN_FAILED")
        self.assertIn("No such file or directory", message)
        self.assertGreater(self.sweep(function, World.fill), 10)

    def test_a_collection_that_cannot_give_an_item_stores_that_memory_ran_out(self):
        for kind in ("captions", "toc", "screen_text"):
            for fail in (ONCE, FROM_THEN_ON):
                codes = []
                while not codes or codes[-1] != OK:
                    world = World(LIBRARY, TEXT)
                    collection, place = world.handles[f"zeldata_{kind}"], ctypes.c_void_p()
                    fail(len(codes))
                    codes.append(LIBRARY.code(f"{kind}_get_item", collection, ctypes.byref(place), 0))
                    fail(-1)
                    self.assertEqual(LIBRARY.code(f"{kind}_get_last_error", collection), codes[-1])
                    self.assertEqual(place.value is None, codes[-1] != OK)
                    LIBRARY.function(f"zeldata_{kind.removesuffix('s')}_item_destroy")(place)
                    world.close()
                self.assertGreater(codes.count(OUT_OF_MEMORY), 1)

    def test_a_failure_without_memory_for_its_message_has_the_meaning_of_its_code(self):
        function = next(one for one in of_code() if one["name"] == "zeldata_header_is_valid")
        code, message, _ = outcome(function, 0)
        self.assertEqual(CODES[code], "ZELDATA_INVALID_ARGUMENT")
        self.assertEqual(message, LIBRARY.function("zeldata_result_describe")(code).decode())


if __name__ == "__main__":
    unittest.main()
