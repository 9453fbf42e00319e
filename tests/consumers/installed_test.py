"""Builds projects that use an installed library: find_package, pkg-config and a plain compiler line."""

import os
import re
import shutil
import subprocess
import unittest
from pathlib import Path

from support import (ABSOLUTE, CONSUMERS, CXX, CXXFLAGS, PREFIX, RELEASE_TREE, SOURCE, VERSION,
                     ChecksOfPrograms, build, configure, fresh_folder, install,
                     make_with_pkg_config, run)

RELEASE_LIBRARY = "libZelInterchangeData.so.1"
DEBUG_LIBRARY = "libZelInterchangeDatad.so.1"
C_PROGRAM = SOURCE / "tests/c/calls.c"
SHARED = "ZelInterchangeData"
STATIC = "ZelInterchangeDataStatic"

STRICT = ["-Wall", "-Wextra", "-Wpedantic", "-Wshadow", "-Wconversion", "-Wsign-conversion",
          "-Wold-style-cast", "-Woverloaded-virtual", "-Wnon-virtual-dtor", "-Wundef", "-Werror",
          "-fvisibility=hidden", "-fvisibility-inlines-hidden"]
BESIDE = SOURCE / "build/beside/clang-16/usr/bin"  # where scripts/setup unpacks what conflicts
STANDARDS = ("c++17", "c++20", "c++2b") # the oldest of the compilers know C++23 as C++2b
# The headers that throw, and what the compiler must say about each where exceptions are off.
THROWING = re.compile(r"ZelData(Call|Check.*|Face|Factories|Files|Items|Reasons)\.h")
BARE_LANGUAGE = ["-fno-exceptions", "-fno-rtti"]
NO_EXCEPTIONS = "Without them, include ZelInterchangeData/ZelInterchangeData.h"
# Returns 0 if it has written the packet of a header.
BARE_PROGRAM = """
#include "ZelInterchangeData/ZelInterchangeData.h"

using namespace ZelInterchangeData;

int main()
{
    i_ZelDataHeader* header = nullptr;
    if (failed(ZelDataUtilities::createHeaderData(&header))) return 1;
    const auto document = ZELDataCreator::createInterchangeData();
    std::string packet;
    const bool isWritten = !failed(header->setTitle("Intro")) &&
                           !failed(header->setVideoLength(1)) && !failed(header->setVideoWidth(1)) &&
                           !failed(header->setVideoHeight(1)) &&
                           !failed(document->setDataHeader(*header)) &&
                           !failed(document->writeString(packet, ZelDataFormat_Xmp, false));
    delete document;
    delete header;
    return isWritten && packet.find("Intro") != std::string::npos ? 0 : 1;
}
"""
COMPLETE_DOCUMENT = (SOURCE / "tests/face/data/complete_document.xmp").read_text(encoding="utf-8")


def find_package_project(name, library, build_type, prefix=PREFIX):
    """Builds the find_package project; returns its program."""
    folder = fresh_folder(name)
    configure(CONSUMERS / "find_package", folder, f"-DCMAKE_PREFIX_PATH={prefix}",
              f"-DCONSUMER_LIBRARY={library}", f"-DCMAKE_BUILD_TYPE={build_type}")
    build(folder)
    return folder / "consumer"


def written_by(program, folder, library_folder):
    """The packet that examples/complete_document writes into the folder, without its date."""
    run(program, cwd=folder, env=dict(os.environ, LD_LIBRARY_PATH=str(library_folder)))
    packet = (folder / "intro.xmp").read_text(encoding="utf-8")
    return re.sub(r'dc:date="[^"]+"', 'dc:date=""', packet) + "\n"


class FindPackage(ChecksOfPrograms, unittest.TestCase):
    def check(self, library, build_type, *needed):
        program = find_package_project(self.id(), library, build_type)
        self.assert_needs(program, *needed)
        self.assert_works(program)

    def test_shared_release(self):
        self.check(SHARED, "Release", RELEASE_LIBRARY)

    def test_shared_debug(self):
        self.check(SHARED, "Debug", DEBUG_LIBRARY)

    def test_static_release(self):
        self.check(STATIC, "Release")

    def test_static_debug(self):
        self.check(STATIC, "Debug")

    def test_other_build_types_link_the_release_library(self):
        for build_type in ("", "RelWithDebInfo", "Special"):
            with self.subTest(build_type):
                self.check(SHARED, build_type, RELEASE_LIBRARY)

    def test_each_build_type_links_its_own_static_library(self):
        for build_type, file in (("Release", "libZelInterchangeData.a"),
                                 ("Debug", "libZelInterchangeDatad.a")):
            with self.subTest(build_type):
                program = find_package_project(self.id(), STATIC, build_type)
                rules = (program.parent / "build.ninja").read_text(encoding="utf-8")
                self.assertIn(f"{PREFIX}/lib/{file}", rules)

    def test_incompatible_versions_are_refused(self):
        folder = fresh_folder(self.id())
        project = (CONSUMERS / "find_package" / "CMakeLists.txt").read_text(encoding="utf-8")
        for wanted in ("2.0", "0.9", "1.1000"):
            with self.subTest(wanted):
                (folder / "CMakeLists.txt").write_text(project.replace(" 1.0 ", f" {wanted} "),
                                                       encoding="utf-8")
                with self.assertRaisesRegex(AssertionError, f"version: {VERSION}"):
                    configure(folder, folder / "build", f"-DCMAKE_PREFIX_PATH={PREFIX}",
                              f"-DCONSUMER_LIBRARY={SHARED}")


class PkgConfig(ChecksOfPrograms, unittest.TestCase):
    def check(self, library_folder, module, needed, **options):
        program = make_with_pkg_config(fresh_folder(self.id()), library_folder / "pkgconfig",
                                       module, **options)
        self.assert_needs(program, *needed)
        self.assert_works(program, library_folder)

    def test_relative_folders(self):
        self.check(PREFIX / "lib", "ZelInterchangeData", [RELEASE_LIBRARY])

    def test_relative_folders_debug(self):
        self.check(PREFIX / "lib", "ZelInterchangeDatad", [DEBUG_LIBRARY])

    def test_relative_folders_static(self):
        for module in ("ZelInterchangeData", "ZelInterchangeDatad"):
            with self.subTest(module):
                self.check(PREFIX / "lib", module, [], static=True)

    def check_c(self, *command):
        """Adds the flags of pkg-config to a command, which links a C program, and runs the program."""
        environment = dict(os.environ, PKG_CONFIG_PATH=str(PREFIX / "lib/pkgconfig"))
        kind = ["--static"] if "-static" in command else []
        flags = run("pkg-config", *kind, "--cflags", "--libs", "ZelInterchangeData", env=environment).split()
        folder = fresh_folder(self.id())
        run(*command, *flags, "-o", folder / "program")
        run(folder / "program", folder / "packet.xmp", env=dict(os.environ, LD_LIBRARY_PATH=str(PREFIX / "lib")))

    def test_a_c_compiler_is_enough_for_the_shared_library(self):
        for compiler in ("gcc", "clang"):
            with self.subTest(compiler):
                self.check_c(compiler, "-std=c99", "-Werror", C_PROGRAM)

    def test_the_static_library_is_linked_into_a_c_program_by_the_cxx_compiler(self):
        made = fresh_folder(f"{self.id()}.object") / "program.o"
        run("gcc", "-std=c99", "-DZELINTERCHANGEDATA_STATIC", "-I", PREFIX / "include", "-c", C_PROGRAM, "-o", made)
        self.check_c(CXX, *CXXFLAGS, "-static", made)

    def test_the_list_of_the_c_functions_is_installed(self):
        installed = PREFIX / "share/ZelInterchangeData/zeldata.json"
        self.assertEqual(installed.read_bytes(), (SOURCE / "docs/zeldata.json").read_bytes())

    def test_only_a_static_link_defines_the_static_macro(self):
        environment = dict(os.environ, PKG_CONFIG_PATH=str(PREFIX / "lib/pkgconfig"))
        for options, defined in (((), False), (("--static",), True)):
            with self.subTest(options):
                flags = run("pkg-config", *options, "--cflags", "ZelInterchangeData", env=environment)
                self.assertEqual("-DZELINTERCHANGEDATA_STATIC" in flags.split(), defined)

    def test_absolute_folders(self):
        self.assertFalse((ABSOLUTE / "prefix" / "lib").exists())
        self.check(ABSOLUTE / "lib", "ZelInterchangeData", [RELEASE_LIBRARY])

    def test_absolute_folders_static(self):
        self.check(ABSOLUTE / "lib", "ZelInterchangeData", [], static=True)

    def test_pkg_config_names_the_version_of_the_project(self):
        for module in ("ZelInterchangeData", "ZelInterchangeDatad"):
            answer = run("pkg-config", "--modversion", module,
                         env=dict(os.environ, PKG_CONFIG_PATH=str(PREFIX / "lib/pkgconfig")))
            self.assertEqual(answer.strip(), VERSION)


class OtherFolders(unittest.TestCase):
    """Checks the .pc file for nested folders, and with one of the two folders absolute."""

    def variables(self, libdir, includedir):
        folder = fresh_folder(self.id())
        configure(SOURCE, folder / "tree", "-DZELINTERCHANGEDATA_TESTS=OFF",
                  "-DZELINTERCHANGEDATA_EXAMPLES=OFF", "-DCMAKE_INSTALL_PREFIX=/opt/made",
                  f"-DCMAKE_INSTALL_LIBDIR={libdir}", f"-DCMAKE_INSTALL_INCLUDEDIR={includedir}")
        place = folder / "place" / "lib" / "triplet" / "pkgconfig"
        place.mkdir(parents=True)
        (folder / "tree" / "ZelInterchangeData.pc").rename(place / "ZelInterchangeData.pc")
        environment = dict(os.environ, PKG_CONFIG_PATH=str(place))
        return folder / "place", [
            os.path.normpath(run("pkg-config", f"--variable={name}", "ZelInterchangeData",
                                 env=environment).strip())
            for name in ("libdir", "includedir")]

    def test_nested_relative_folders_are_relative_to_the_file(self):
        place, found = self.variables("lib/triplet", "include/zel")
        self.assertEqual(found, [f"{place}/lib/triplet", f"{place}/include/zel"])

    def test_an_absolute_include_folder_stays(self):
        place, found = self.variables("lib/triplet", "/elsewhere/include")
        self.assertEqual(found, [f"{place}/lib/triplet", "/elsewhere/include"])

    def test_an_absolute_library_folder_keeps_the_configured_prefix(self):
        _, found = self.variables("/elsewhere/lib", "include")
        self.assertEqual(found, ["/elsewhere/lib", "/opt/made/include"])


class CompilerLine(ChecksOfPrograms, unittest.TestCase):
    def test_the_plain_compiler_line(self):
        folder = fresh_folder(self.id())
        # The compiler searches system prefixes by default; here the environment makes it search ours.
        environment = dict(os.environ, CPATH=str(PREFIX / "include"),
                           LIBRARY_PATH=str(PREFIX / "lib"))
        run(CXX, *CXXFLAGS, "-std=c++17", CONSUMERS / "program" / "main.cpp",
            "-lZelInterchangeData", "-o", folder / "consumer", env=environment)
        self.assert_needs(folder / "consumer", RELEASE_LIBRARY)
        self.assert_works(folder / "consumer", PREFIX / "lib")


class StrictConsumer(ChecksOfPrograms, unittest.TestCase):
    """A consumer that treats warnings as errors and hides its own symbols."""

    def test_the_headers_raise_no_warning(self):
        folder = fresh_folder(self.id())
        installed = sorted((PREFIX / "include" / "ZelInterchangeData").iterdir())
        self.assertEqual([path.name for path in installed],
                         sorted(path.name for path in
                                (SOURCE / "include" / "ZelInterchangeData").iterdir()))
        for header in installed:
            name = f"ZelInterchangeData/{header.name}"
            source = folder / f"{header.stem}.cpp"
            source.write_text(f'#include "{name}"\n', encoding="utf-8")
            for standard in STANDARDS:
                with self.subTest(f"{name} {standard}"):
                    run(CXX, *CXXFLAGS, f"-std={standard}", *STRICT, "-I", PREFIX / "include",
                        "-fsyntax-only", source)

    def test_without_exceptions_and_type_information(self):
        """All headers but those that throw compile; these name the one to use instead."""
        folder = fresh_folder(self.id())
        for header in sorted((PREFIX / "include" / "ZelInterchangeData").iterdir()):
            source = folder / f"{header.stem}.cpp"
            source.write_text(f'#include "ZelInterchangeData/{header.name}"\n', encoding="utf-8")
            with self.subTest(header.name):
                checked = subprocess.run(
                    [CXX, *CXXFLAGS, "-std=c++17", *STRICT, *BARE_LANGUAGE, "-I", PREFIX / "include",
                     "-fsyntax-only", source], capture_output=True, text=True, check=False)
                if THROWING.fullmatch(header.name):
                    errors = re.findall("error:.*", checked.stderr)
                    self.assertIn(NO_EXCEPTIONS, errors[0] if errors else "no error")
                else:
                    self.assertEqual((checked.returncode, checked.stderr), (0, ""))

    def test_the_version_header_compiles_as_c(self):
        source = fresh_folder(self.id()) / "version.c"
        source.write_text('#include "ZelInterchangeData/ZelDataVersion.h"\n'
                          "int version = ZELINTERCHANGEDATA_VERSION;\n", encoding="utf-8")
        run(CXX, "-x", "c", "-I", PREFIX / "include", "-fsyntax-only", source)

    def test_exceptions_cross_the_boundary_with_hidden_visibility(self):
        program = make_with_pkg_config(fresh_folder(self.id()), PREFIX / "lib" / "pkgconfig",
                                       "ZelInterchangeData", flags=STRICT)
        self.assert_needs(program, RELEASE_LIBRARY)
        self.assert_works(program, PREFIX / "lib")


class Compilers(ChecksOfPrograms, unittest.TestCase):
    """Consumers in each standard, compiled by each compiler that is installed or unpacked beside."""

    def check(self, name):
        compiler = shutil.which(name, path=f"{os.environ['PATH']}:{BESIDE}")
        if compiler is None:
            self.skipTest(f"{name} is not installed")
        self.folder = fresh_folder(self.id())
        headers = sorted(path.name for path in (PREFIX / "include/ZelInterchangeData").iterdir()
                         if not THROWING.fullmatch(path.name))
        bare = self.folder / "bare.cpp"
        bare.write_text("".join(f'#include "ZelInterchangeData/{name}"\n' for name in headers) +
                        BARE_PROGRAM, encoding="utf-8")
        for standard in STANDARDS:
            with self.subTest(standard):
                self.assert_works(self.compiled(compiler, standard, CONSUMERS / "program/main.cpp"),
                                  PREFIX / "lib")
                for flags in ([], ["-fno-rtti"]):
                    face = self.compiled(compiler, standard,
                                         SOURCE / "examples/complete_document/main.cpp", *flags)
                    self.assertEqual(written_by(face, self.folder, PREFIX / "lib"), COMPLETE_DOCUMENT)
                run(self.compiled(compiler, standard, bare, *BARE_LANGUAGE),
                    env=dict(os.environ, LD_LIBRARY_PATH=str(PREFIX / "lib")))

    def compiled(self, compiler, standard, source, *flags):
        program = self.folder / "program"
        run(compiler, *CXXFLAGS, f"-std={standard}", *STRICT, *flags, source,
            "-I", PREFIX / "include", "-L", PREFIX / "lib", "-lZelInterchangeData", "-o", program)
        return program

    def test_g_11(self):
        self.check("g++-11")

    def test_g_12(self):
        self.check("g++-12")

    def test_clang_14(self):
        self.check("clang++-14")

    def test_clang_16(self):
        self.check("clang++-16")


class RebuiltLibrary(unittest.TestCase):
    """Runs a program, without rebuilding it, with a library built without optimisation and with one
    built by the other compiler."""

    def setUp(self):
        self.folder = fresh_folder(self.id())
        run(CXX, *CXXFLAGS, "-std=c++17", SOURCE / "examples/complete_document/main.cpp",
            "-I", PREFIX / "include", "-L", PREFIX / "lib", "-lZelInterchangeData",
            "-o", self.folder / "program")
        other_tree = Path(os.environ["OTHER_COMPILERS_TREE"]).resolve()
        self.rebuilt = {"debug": PREFIX / "lib" / DEBUG_LIBRARY,
                        "other_compiler": other_tree / "src" / RELEASE_LIBRARY}
        for name, library in self.rebuilt.items():
            (self.folder / name).mkdir()
            (self.folder / name / RELEASE_LIBRARY).symlink_to(library)

    def written_with(self, library_folder):
        """The libraries that the loader lists for the program, and the packet that it writes."""
        environment = dict(os.environ, LD_LIBRARY_PATH=str(library_folder))
        loaded = run(self.folder / "program", env=dict(environment, LD_TRACE_LOADED_OBJECTS="1"))
        return loaded, written_by(self.folder / "program", self.folder, library_folder)

    def test_a_program_that_was_not_rebuilt_writes_the_same(self):
        for library_folder in (PREFIX / "lib", *(self.folder / name for name in self.rebuilt)):
            with self.subTest(library_folder.name):
                loaded, written = self.written_with(library_folder)
                self.assertIn(f"{RELEASE_LIBRARY} => {library_folder}/", loaded)
                self.assertEqual(written, COMPLETE_DOCUMENT)


class MovedPrefix(ChecksOfPrograms, unittest.TestCase):
    def setUp(self):
        folder = fresh_folder(self.id())
        self.before = folder / "before"
        self.after = folder / "after"
        install(RELEASE_TREE, self.before)
        self.before.rename(self.after)

    def test_find_package_works(self):
        for library in (SHARED, STATIC):
            with self.subTest(library):
                program = find_package_project(f"{self.id()}.{library}", library, "Release",
                                               self.after)
                self.assert_works(program)

    def test_pkg_config_works(self):
        program = make_with_pkg_config(fresh_folder(f"{self.id()}.project"),
                                       self.after / "lib" / "pkgconfig", "ZelInterchangeData")
        self.assert_works(program, self.after / "lib")

    def test_no_file_names_the_old_prefix(self):
        found = subprocess.run(["grep", "-rl", "-e", str(self.before), str(self.after)],
                               capture_output=True, text=True, check=False)
        self.assertEqual((found.returncode, found.stdout), (1, ""))


if __name__ == "__main__":
    unittest.main()
