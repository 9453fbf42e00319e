"""Runs the include checker on small made-up trees."""

import os
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

CHECKER = Path(os.environ["CHECK_INCLUDES"])


class CheckIncludes(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        self.write("include/ZelInterchangeData/Thing.h", "#include <string>\n")

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def run_checker(self):
        return subprocess.run([sys.executable, CHECKER, self.root], capture_output=True, text=True,
                              check=False)

    def assert_accepted(self):
        result = self.run_checker()
        self.assertEqual((result.returncode, result.stderr), (0, ""))

    def assert_refused(self, offence):
        result = self.run_checker()
        self.assertEqual(result.returncode, 1, result.stdout)
        self.assertEqual(result.stderr, offence + "\n")

    def test_own_room_and_lower_rooms_are_accepted(self):
        self.write("src/toc/A.cpp", '#include "toc/A.h"\n#include "sets/B.h"\n#include "xml/C.h"\n'
                                    '#include "util/D.h"\n#include "ZelInterchangeData/Thing.h"\n'
                                    "#include <vector>\n")
        self.assert_accepted()

    def test_an_upward_include_is_refused(self):
        self.write("src/xml/A.cpp", '#include "xml/A.h"\n#include "core/B.h"\n')
        self.assert_refused('src/xml/A.cpp:2: "core/B.h" reaches upward from xml')

    def test_a_sideways_include_is_refused(self):
        self.write("src/toc/A.h", '#include "captions/B.h"\n')
        self.assert_refused('src/toc/A.h:1: "captions/B.h" reaches sideways from toc')

    def test_a_public_header_may_not_include_an_internal_one(self):
        self.write("include/ZelInterchangeData/Other.h", '#include "util/D.h"\n')
        self.assert_refused('include/ZelInterchangeData/Other.h:1: "util/D.h" reaches upward from '
                            "ZelInterchangeData")

    def test_no_set_room_may_include_another(self):
        sets = ("captions", "header", "screentext", "toc")
        for room in sets:
            for other in sets:
                with self.subTest(room=room, other=other):
                    self.write(f"src/{room}/A.cpp", f'#include "{other}/B.h"\n')
                    self.assertEqual(self.run_checker().returncode, 0 if room == other else 1)
            self.write(f"src/{room}/A.cpp", "")

    def test_spaces_do_not_hide_an_include(self):
        self.write("src/xml/A.cpp", '  #  include   "core/B.h"\n')
        self.assert_refused('src/xml/A.cpp:1: "core/B.h" reaches upward from xml')

    def test_angle_brackets_do_not_hide_an_include(self):
        self.write("src/xml/A.cpp", "#include <core/B.h>\n")
        self.assert_refused(
            "src/xml/A.cpp:1: <core/B.h> belongs to the project, so write it in quotes")

    def test_a_name_without_its_room_is_refused(self):
        self.write("src/xml/A.cpp", '#include "A.h"\n')
        self.assert_refused(
            'src/xml/A.cpp:1: "A.h" is not written from the root of src/ or include/')

    def test_a_path_that_leaves_its_folder_is_refused(self):
        self.write("src/xml/A.cpp", '#include "xml/../core/B.h"\n')
        self.assert_refused('src/xml/A.cpp:1: "xml/../core/B.h" leaves its folder')

    def test_a_macro_as_the_file_name_is_refused(self):
        self.write("src/xml/A.cpp", "#include CORE_HEADER\n")
        self.assert_refused(
            "src/xml/A.cpp:1: the #include line must name the file itself")

    def test_a_file_in_an_unknown_room_is_refused(self):
        self.write("src/attic/A.cpp", "")
        self.assert_refused("src/attic/A.cpp:1: is in no room of the table")

    def test_a_file_directly_in_src_is_refused(self):
        self.write("src/A.cpp", "")
        self.assert_refused("src/A.cpp:1: is in no room of the table")

    def test_an_example_may_include_only_public_headers(self):
        self.write("examples/a.cpp", '#include "ZelInterchangeData/Thing.h"\n#include "own.h"\n')
        self.assert_accepted()
        self.write("examples/a.cpp", '#include "util/Text.h"\n')
        self.assert_refused('examples/a.cpp:1: "util/Text.h" is internal; an example may '
                            "include only public headers")

    def test_a_header_that_is_too_new_is_refused(self):
        self.write("src/xml/A.h", "#include <memory_resource>\n")
        self.assert_refused("src/xml/A.h:1: <memory_resource> is not in every macOS")

    def test_names_that_are_too_new_are_refused(self):
        self.write("src/xml/A.cpp", "std::pmr::string name; // std::pmr\n")
        self.assert_refused("src/xml/A.cpp:1: std::pmr is not in every macOS")
        self.write("src/xml/A.cpp", "")
        self.write("include/ZelInterchangeData/B.h", "inline auto f = std :: chars_format::fixed;\n")
        self.assert_refused("include/ZelInterchangeData/B.h:1: std::chars_format is not in every macOS")

    def test_a_feature_macro_allows_its_names_and_no_others(self):
        self.write("src/util/A.cpp", "#ifdef __cpp_lib_to_chars\n#if X\nstd::chars_format a;\n"
                                     "#else\nstd::chars_format b;\n#endif\n#endif\n")
        self.assert_accepted()
        self.write("src/util/A.cpp", "#ifdef __cpp_lib_to_chars\nstd::pmr::string a;\n#endif\n")
        self.assert_refused("src/util/A.cpp:2: std::pmr is not in every macOS")
        for guard in ("#ifdef OTHER\n", "#ifndef __cpp_lib_to_chars\n",
                      "#ifdef __cpp_lib_to_chars\n#else\n",
                      "#ifdef __cpp_lib_to_chars\n#endif\n#ifdef OTHER\n"):
            with self.subTest(guard=guard):
                self.write("src/util/A.cpp", guard + "std::chars_format a;\n#endif\n")
                self.assert_refused(f"src/util/A.cpp:{guard.count(chr(10)) + 1}: "
                                    "std::chars_format is not in every macOS")

    def test_conversions_of_numbers_are_left_to_two_files(self):
        for name in ("to_chars", "from_chars"):
            call = f"std::{name}(a, b, number);\n"
            self.write("src/util/A.h", "")
            self.write("src/util/TextBlock.h", f"static_assert(std::is_integral_v<T>);\n{call}")
            self.assert_accepted()
            self.write("src/util/TextBlock.h", call)
            self.assert_refused(f"src/util/TextBlock.h:1: std::{name} needs "
                                "static_assert(std::is_integral_v<…> before it")
            self.write("src/util/TextBlock.h", "")
            self.write("src/util/A.h", f"std::{name}(a, b, number);\n")
            self.assert_refused(f"src/util/A.h:1: std::{name} is left to "
                                "src/util/TextBlock.h and src/util/ValueStrings.cpp")

    def test_an_assertion_serves_one_conversion(self):
        self.write("src/util/TextBlock.h", "static_assert(std::is_integral_v<T>);\n"
                                           "std::to_chars(a, b, number);\nstd::from_chars(a, b, d);\n")
        self.assert_refused("src/util/TextBlock.h:3: std::from_chars needs "
                            "static_assert(std::is_integral_v<…> before it")

    def test_the_standard_library_gets_no_other_name(self):
        for line in ("using namespace std;", "namespace s = std;", "namespace s = ::std;",
                     "#define S std"):
            with self.subTest(line):
                self.write("src/util/A.cpp", f"{line}\n")
                self.assert_refused("src/util/A.cpp:1: std gets no other name, so that this script "
                                    "finds its names")
        self.write("src/util/A.cpp", "namespace fs = std::filesystem;\nusing namespace std::chrono;\n")
        self.assert_accepted()

    def test_comments_strings_and_line_ends_hide_nothing(self):
        for code in ("std::\npmr::string a;", "std::/**/pmr::string a;", '"http://x"; std::pmr::string a;',
                     "/* // */ std::pmr::string a;", "std::__1::pmr::string a;", "std:: \\\npmr::string a;",
                     '"/*"; std::pmr::string a;', 'R"x(")x"; std::pmr::string a;'):
            with self.subTest(code):
                self.write("src/util/A.cpp", f"{code}\n")
                self.assert_refused("src/util/A.cpp:1: std::pmr is not in every macOS")
        self.write("src/util/A.cpp", "#/**/include <experimental/memory_resource>\n")
        self.assert_refused("src/util/A.cpp:1: <experimental/memory_resource> is not in every macOS")

    def test_comments_and_strings_are_no_code(self):
        self.write("src/util/A.cpp", '/* std::pmr\n#endif */\n// std\nauto a = "std::pmr";\n'
                                     'auto b = R"(" std::pmr)";\n')
        self.assert_accepted()

    def test_a_file_of_another_kind_is_refused(self):
        self.write("src/util/A.hpp", "")
        self.assert_refused("src/util/A.hpp:1: is neither a header (.h) nor a source (.cpp)")

    def test_an_empty_tree_is_refused(self):
        (self.root / "include/ZelInterchangeData/Thing.h").unlink()
        self.assert_refused("check-includes: no C++ file found")


if __name__ == "__main__":
    unittest.main()
