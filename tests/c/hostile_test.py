"""Calls every function of the list with null pointers, bad texts, bad numbers and bad indexes: no call
crashes, and a null pointer gives ZELDATA_INVALID_ARGUMENT.

The environment names LIBRARY."""

import ctypes
import os
import tempfile
import unittest

from binding import CODES, CONSTANTS, FUNCTIONS, TERMINATED, Library
from world import World, has_message, of_code

LIBRARY = Library(os.environ["LIBRARY"])
OK = CONSTANTS["ZELDATA_OK"]
INVALID = CONSTANTS["ZELDATA_INVALID_ARGUMENT"]

# Terminated, so that every length up to the size is right.
TEXTS = [b"", b"en", b"\xff\xfe", b"\xf0\x9f\x8d", b"a\0b", b"<&>\"'", b"x" * 100000]
LENGTHS = [TERMINATED, TERMINATED - 1, TERMINATED // 2 + 1, TERMINATED // 4 + 1, TERMINATED // 8]
NUMBERS = {
    "int32_t": [-2**31, -1, 0, 1, 2**31 - 1],
    "uint32_t": [0, 1, 2, 2**31, 2**32 - 1],
    "int64_t": [-2**63, -1, 0, 1, 2**32, 2**63 - 1],
    "uint64_t": [0, 1, 2**32 - 1, 2**32, 2**63, 2**64 - 1],
    "float": [0.0, -1.0, float("nan"), float("inf"), -float("inf"), 1e-45],
    "size_t": [0],
}


class Hostile(unittest.TestCase):
    def setUp(self):
        self.world = World(LIBRARY)
        self.addCleanup(self.world.close)

    def arguments(self, function):
        return [self.world.good(kind) for kind, _ in function["parameters"]]

    def call(self, function, arguments):
        return LIBRARY.function(function["name"])(*arguments)

    def test_each_null_pointer_gives_invalid_argument(self):
        self.assertGreater(len(of_code()), 250)
        for function in of_code():
            for index, (kind, name) in enumerate(function["parameters"]):
                if "*" in kind:
                    with self.subTest(f"{function['name']} {name}"):
                        arguments = self.arguments(function)
                        arguments[index] = None
                        self.assertEqual(self.call(function, arguments), INVALID)

    def test_all_null_pointers_give_invalid_argument(self):
        for function in of_code():
            with self.subTest(function["name"]):
                arguments = [None if "*" in kind else good for (kind, _), good
                             in zip(function["parameters"], self.arguments(function))]
                self.assertEqual(self.call(function, arguments), INVALID)

    def test_a_null_pointer_is_no_handle_to_the_functions_without_a_code(self):
        others = [function for function in FUNCTIONS if function not in of_code()]
        self.assertGreater(len(others), 20)
        for function in others:
            with self.subTest(function["name"]):
                result = self.call(function, [None if "*" in kind else 1 for kind, _ in function["parameters"]])
                if function["result"] == "const char*":
                    self.assertIsInstance(result, bytes)

    def test_a_place_that_is_not_empty_is_refused_and_stays(self):
        found = 0
        for function in of_code():
            for index, (kind, _) in enumerate(function["parameters"]):
                if kind.endswith("**"):
                    found += 1
                    place = ctypes.c_void_p(12345)
                    arguments = self.arguments(function)
                    arguments[index] = ctypes.byref(place)
                    with self.subTest(function["name"]):
                        self.assertEqual(self.call(function, arguments), INVALID)
                        self.assertEqual(place.value, 12345)
        self.assertGreater(found, 20)

    def test_a_failed_call_has_a_message_and_the_next_one_that_succeeds_has_none(self):
        for function in of_code():
            if not has_message(function):
                continue
            for index, (kind, name) in enumerate(function["parameters"][1:], 1):
                if "*" not in kind:
                    continue
                with self.subTest(f"{function['name']} {name}"):
                    arguments = self.arguments(function)
                    self.call(function, arguments)
                    arguments[index] = None
                    self.assertEqual(self.call(function, arguments), INVALID)
                    self.assertIn("ZelData_InvalidArgument (0x80000003)", LIBRARY.message(arguments[0]))
                    code = self.call(function, self.arguments(function))
                    self.assertEqual(LIBRARY.message(arguments[0]) == "", code == OK)

    def test_the_last_message_is_a_text_like_any_other(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(os.chdir, os.getcwd())
        os.chdir(folder.name)
        folder.cleanup()  # no file can be written here
        last_message = ctypes.CFUNCTYPE(ctypes.c_void_p, ctypes.c_void_p)(
            ("zeldata_last_message", LIBRARY.loaded))
        for function in of_code():
            if not has_message(function):
                continue
            for index, (kind, name) in enumerate(function["parameters"]):
                if kind != "const char*":
                    continue
                with self.subTest(f"{function['name']} {name}"):
                    results = []
                    for pass_on in (lambda handle: ctypes.cast(last_message(handle), ctypes.c_char_p),
                                    lambda handle: LIBRARY.message(handle).encode()):
                        self.setUp()  # a new world
                        self.world.fill()
                        arguments = self.arguments(function)
                        arguments[index] = None
                        self.assertEqual(self.call(function, arguments), INVALID)
                        arguments[index] = pass_on(arguments[0])
                        results.append((self.call(function, arguments), LIBRARY.message(arguments[0])))
                    self.assertEqual(*results)

    def each_hostile_call(self, function):
        """The arguments with one of them replaced by each hostile one of its type."""
        kinds = [kind for kind, _ in function["parameters"]]
        for index, kind in enumerate(kinds):
            for value in NUMBERS.get(kind, []):
                # The length of a text, or the size of a buffer.
                if kind == "size_t" and kinds[index - 1] != "const char*" and value:
                    continue
                yield index, [value]
            if kind == "const char*":
                for text in TEXTS:
                    yield from ((index, [text, length]) for length in (len(text), TERMINATED))
                yield from ((index, [b"en", length]) for length in LENGTHS)

    def test_no_hostile_argument_crashes_or_gives_an_unknown_code(self):
        calls = 0
        for function in of_code():
            if function["name"].endswith("_get_last_error"):
                continue  # returns what was stored
            for index, hostile in self.each_hostile_call(function):
                if function["name"].endswith("_file"):
                    continue  # the next test
                arguments = self.arguments(function)
                arguments[index:index + len(hostile)] = hostile
                with self.subTest(f"{function['name']} {index} {str(hostile)[:60]}"):
                    self.assertIn(self.call(function, arguments), CODES)
                    calls += 1
        self.assertGreater(calls, 1000)

    def test_no_hostile_path_crashes_or_writes_a_file(self):
        for name in ("zeldata_document_write_file", "zeldata_document_replace_file"):
            function = next(one for one in FUNCTIONS if one["name"] == name)
            for index, hostile in self.each_hostile_call(function):
                arguments = self.arguments(function)  # the document has no header
                arguments[index:index + len(hostile)] = hostile
                self.assertNotEqual(self.call(function, arguments), OK)
        self.assertFalse(os.path.exists("en"))

    def test_a_length_that_no_text_can_have_is_refused(self):
        header = self.world.handles["zeldata_header"].handle
        for length in LENGTHS[1:4]:
            self.assertIn(LIBRARY.function("zeldata_header_set_title")(header, b"en", length),
                          (INVALID, CONSTANTS["ZELDATA_OUT_OF_MEMORY"]))


if __name__ == "__main__":
    unittest.main()
