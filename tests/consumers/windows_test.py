"""The library for Windows, cross-compiled and installed, and programs that use it, run under Wine."""

import json
import os
import re
import shutil
import subprocess
import sys
import unittest
from pathlib import Path

from support import (CONSUMERS, EXPECTED_OUTPUT, SOURCE, WORK, build, fresh_folder, install,
                     make_with_pkg_config, run)

sys.path.insert(0, str(SOURCE / "tests" / "abi"))
from demangled import shortened  # noqa: E402, from the folder above

PLATFORM = os.environ["PLATFORM"]
TRIPLE, ARCHITECTURE, WINE = {
    "mingw64": ("x86_64-w64-mingw32", "win64", "wine"),
    "mingw32": ("i686-w64-mingw32", "win32", SOURCE / "build/beside/wine32/usr/lib/wine/wine"),
}[PLATFORM]
NEEDED = (f"{TRIPLE}-g++-posix", f"{TRIPLE}-objdump", "clang", WINE)
TREE = WORK / PLATFORM
DLL = "libZelInterchangeData.dll"
DATA = SOURCE / "examples" / "data"
INPUT = "日本é.srt"
OPTIONS = ("--size", "640x480", "--length", "32000", "--title", "Vidéo “日本” 😀 * \\\"")


def cross_configure(source, tree, *definitions):
    run("cmake", "-S", source, "-B", tree, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release",
        f"-DCMAKE_TOOLCHAIN_FILE={SOURCE}/cmake/toolchains/{PLATFORM}.cmake", *definitions)


def empty_folder(name):
    return fresh_folder(f"{PLATFORM}.{name}")


def compilers_folder(library):
    file = run(f"{TRIPLE}-g++-posix", f"-print-file-name={library}").strip()
    return Path(file).resolve().parent


def wine(program, *arguments, libraries, folder):
    """Runs the program, which finds DLLs in these folders."""
    folders = [*libraries, *map(compilers_folder, ("libstdc++-6.dll", "libwinpthread-1.dll"))]
    environment = dict(os.environ, LC_ALL="C.UTF-8", WINEDEBUG="-all", WINEARCH=ARCHITECTURE,
                       WINEPREFIX=f"{TREE}-wine",
                       WINEPATH=";".join(f"Z:{folder}" for folder in folders))
    done = subprocess.run([WINE, program, *arguments], cwd=folder, env=environment,
                          capture_output=True, check=False)
    # The unpacked Wine has no fonts, and says so when it starts.
    done.stderr = re.sub(rb"Wine cannot find the FreeType.*?freetype\.org\n", b"", done.stderr, flags=re.S)
    return done


def imported_libraries(program):
    return re.findall(r"DLL Name: (libZel\S+)", run(f"{TRIPLE}-objdump", "-p", program))


class Windows(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        missing = [program for program in NEEDED if shutil.which(program) is None]
        if missing:
            raise unittest.SkipTest(f"{', '.join(map(str, missing))}: not installed")
        cross_configure(SOURCE, TREE, "-DZELINTERCHANGEDATA_TESTS=OFF", "-DCMAKE_INSTALL_LIBDIR=lib",
                        "-DZELINTERCHANGEDATA_WERROR=ON")
        build(TREE)
        cls.prefix = empty_folder(cls.__name__) / "prefix"
        cls.installed = install(TREE, cls.prefix)

    def test_the_library_is_in_bin_and_what_links_it_in_lib(self):
        files = {path for path in self.installed if not path.startswith(("include/", "lib/cmake/"))}
        self.assertEqual(files, {f"bin/{DLL}", "bin/publish_video.exe", f"lib/{DLL}.a",
                                 "lib/libZelInterchangeData.a", "lib/pkgconfig/ZelInterchangeData.pc",
                                 "share/ZelInterchangeData/zeldata.json",
                                 "share/doc/ZelInterchangeData/preview.html"})
        headers = {f"include/ZelInterchangeData/{path.name}"
                   for path in (SOURCE / "include/ZelInterchangeData").iterdir()}
        self.assertLess(headers, self.installed)

    def test_the_library_exports_the_public_interface_and_nothing_else(self):
        table = run(f"{TRIPLE}-objdump", "-p", self.prefix / "bin" / DLL)
        names = re.findall(r"^\t\[ *\d+\] (\S+)$", table.partition("[Ordinal/Name Pointer]")[2],
                           re.MULTILINE)
        exported = set(map(shortened, run(f"{TRIPLE}-c++filt", "-n", *names).splitlines()))
        listed = (SOURCE / "tests/abi/exports.txt").read_text(encoding="ascii").splitlines()
        # The names of types, which Linux exports too, stay inside.
        self.assertEqual(exported, {name for name in listed
                                    if not name.endswith(":") and not name.startswith("typeinfo name ")})

    def consumer_of(self, library):
        folder = empty_folder(self.id())
        cross_configure(CONSUMERS / "find_package", folder, f"-DCONSUMER_LIBRARY={library}",
                        f"-DZelInterchangeData_DIR={self.prefix}/lib/cmake/ZelInterchangeData")
        build(folder)
        return folder

    def check_consumer(self, folder, imported, expected):
        self.assertEqual(imported_libraries(folder / "consumer.exe"), imported)
        done = wine(folder / "consumer.exe", libraries=[self.prefix / "bin"], folder=folder)
        self.assertEqual(done.stdout.decode().replace("\r\n", "\n"), expected)

    def test_a_consumer_of_the_shared_library(self):
        # A DLL does not call the program's operator new, so the program cannot make it fail.
        self.check_consumer(self.consumer_of("ZelInterchangeData"), [DLL],
                            EXPECTED_OUTPUT.replace("Out of memory", "no exception"))

    def test_a_consumer_of_the_static_library(self):
        self.check_consumer(self.consumer_of("ZelInterchangeDataStatic"), [], EXPECTED_OUTPUT)

    def check_c(self, *command, imported):
        """Links a C program with the command and runs it beside the DLL."""
        folder = empty_folder(self.id())
        run(*command, "-o", folder / "program.exe")
        self.assertEqual(imported_libraries(folder / "program.exe"), imported)
        done = wine(folder / "program.exe", "packet.xmp", libraries=[self.prefix / "bin"], folder=folder)
        self.assertEqual((done.returncode, done.stdout), (0, b""))

    def test_a_c_program_of_each_compiler_uses_the_shared_library(self):
        clang = ["clang", f"--target={TRIPLE}", f"-L{compilers_folder('libgcc.a')}"]
        for compiler in ([f"{TRIPLE}-gcc-posix"], clang):
            with self.subTest(compiler[0]):
                self.check_c(*compiler, "-std=c99", "-Werror", "-I", self.prefix / "include",
                             SOURCE / "tests/c/calls.c", self.prefix / "lib" / f"{DLL}.a", imported=[DLL])

    def test_a_program_loads_the_library_while_it_runs(self):
        self.check_c(f"{TRIPLE}-gcc-posix", "-std=c99", "-Wall", "-Werror", SOURCE / "tests/c/load_library.c", imported=[])

    def test_pkg_config_names_all_that_the_static_library_needs(self):
        folder = empty_folder(self.id())
        make_with_pkg_config(folder, self.prefix / "lib/pkgconfig", "ZelInterchangeData", static=True,
                             compiler=f"{TRIPLE}-g++-posix")
        self.check_consumer(folder, [], EXPECTED_OUTPUT)

    def same(self, *arguments):
        """Runs publish_video on both systems, each in a folder with the same files, and checks that it
        ends, says and writes the same; returns its status and the files."""
        results = []
        for system in ("here", "windows"):
            folder = empty_folder(self.id()) / system
            folder.mkdir()
            shutil.copy(DATA / "paper-boat.en.srt", folder / INPUT)
            (folder / "old.xmp").write_text("old", encoding="utf-8")
            if system == "here":
                done = subprocess.run([os.environ["PUBLISH_VIDEO"], *arguments], cwd=folder,
                                      capture_output=True, check=False)
            else:
                program = TREE / "examples/publish_video/publish_video.exe"
                done = wine(program, *arguments, libraries=[TREE / "src"], folder=folder)
            files = {path.name: re.sub(rb'dc:date="[^"]+"', b"", path.read_bytes())
                     for path in folder.iterdir()}
            results.append((done.returncode, done.stdout, done.stderr, files))
        self.assertEqual(results[0], results[1])
        status, output, message, files = results[1]
        self.assertTrue(output or message)
        return status, files

    def test_publish_video_writes_the_same_packet_under_any_name(self):
        for name in ("vidéo-日本.xmp", "old.xmp", "./-"):
            with self.subTest(name):
                status, files = self.same("-o", name, *OPTIONS, f"en={INPUT}")
                name = name.removeprefix("./")
                self.assertEqual((status, set(files)), (0, {name, "old.xmp", INPUT}))
                self.assertIn("日本” 😀".encode(), files[name])

    def test_publish_video_writes_the_same_report(self):
        status, files = self.same("-o", "old.xmp", "--report", "é.json", *OPTIONS, f"en={INPUT}")
        self.assertEqual(status, 0)
        kinds = [problem["kind"] for problem in json.loads(files["é.json"])["problems"]]
        self.assertIn("too-short", kinds)

    def test_publish_video_does_not_overwrite_what_it_reads(self):
        status, files = self.same("-o", f"./{INPUT}", *OPTIONS, f"en={INPUT}")
        self.assertEqual((status, files[INPUT]), (2, (DATA / "paper-boat.en.srt").read_bytes()))

    def test_publish_video_writes_to_standard_output(self):
        folder = empty_folder(self.id())
        done = wine(TREE / "examples/publish_video/publish_video.exe", "-o", "-", *OPTIONS,
                    libraries=[TREE / "src"], folder=folder)
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertTrue(done.stdout.startswith(b'<?xml version="1.0" encoding="utf-8" ?><x:xmpmeta '))
        self.assertTrue(done.stdout.endswith(b"</x:xmpmeta>"))
        self.assertEqual(list(folder.iterdir()), [])

    def test_publish_video_prints_the_same_help(self):
        self.assertEqual(self.same("--help")[0], 0)

    def test_publish_video_fails_in_the_same_way(self):
        for arguments in (("-o", "old.xmp", *OPTIONS, "en=missing.srt"),
                          ("-o", "missing/x.xmp", *OPTIONS),
                          ("-o", ".", *OPTIONS),
                          ("-o", "old.xmp", "--size", "日本")):
            with self.subTest(arguments):
                status, files = self.same(*arguments)
                self.assertEqual((status, set(files)), (2, {"old.xmp", INPUT}))
                self.assertEqual(files["old.xmp"], b"old")

    def test_publish_video_leaves_a_file_that_is_read_only(self):
        folder = empty_folder(self.id())
        output = folder / "out.xmp"
        output.write_text("old", encoding="utf-8")
        output.chmod(0o444)
        done = wine(TREE / "examples/publish_video/publish_video.exe", "-o", output.name, *OPTIONS,
                    libraries=[TREE / "src"], folder=folder)
        self.assertEqual(done.stderr, b"publish_video: out.xmp: cannot be written: Permission denied\n"
                                      b"Try 'publish_video --help'.\n")
        self.assertEqual((done.returncode, output.read_text(encoding="utf-8")), (2, "old"))
        self.assertEqual(list(folder.iterdir()), [output])


if __name__ == "__main__":
    unittest.main()
