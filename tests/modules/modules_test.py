"""Tests programs with plug-ins, with several copies and versions of the library in one process, and
programs compiled with other settings than the library."""

import os
import re
import shutil
import sys
import unittest
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

FOLDER = Path(__file__).resolve().parent
sys.path.insert(0, str(FOLDER.parent / "consumers"))
from support import CXX, CXXFLAGS, MAJOR, NUMBER, SOURCE, WORK, fresh_folder, run  # noqa: E402

LIBRARY = Path(os.environ["LIBRARY"])
STATIC_LIBRARY = Path(os.environ["STATIC_LIBRARY"])
OBJECTS = [Path(line) for line in
           Path(os.environ["OBJECTS"]).read_text(encoding="utf-8").splitlines()]
INCLUDE = SOURCE / "include"
ROOMS = ("header", "captions", "toc", "screentext")
COMPILERS = ("g++", "clang++")
NODE = "ZELINTERCHANGEDATA_1.0"

PACKET = (SOURCE / "tests/face/data/complete_document.xmp").read_text(encoding="utf-8")
OUR_NAME = re.compile(r"_Z(?:T[A-Z]|G[VR])?N?[KVRO]*18ZelInterchangeData")


def compiled(output, *sources, compiler=CXX, flags=(), include=INCLUDE):
    """Compiles and links with warnings as errors; returns the output file."""
    own_flags = CXXFLAGS if compiler == CXX else []
    run(compiler, *own_flags, "-std=c++17", "-Wall", "-Wextra", "-Werror", "-I", include, *sources,
        *flags, "-o", output)
    return output


def linked_with(library):
    return [library, f"-Wl,-rpath,{library.parent}"]


def plug_in(folder, name, library=LIBRARY, flags=(), **options):
    """Builds a plug-in from one of the sources, linked with the library."""
    return compiled(folder / f"{name}.so", FOLDER / f"{name}.cpp",
                    flags=["-shared", "-fPIC", *linked_with(library), *flags], **options)


def host(folder, *parts, flags=(), **options):
    return compiled(folder / "host", FOLDER / "host.cpp", *parts, flags=["-ldl", *flags], **options)


def symbols(file, *options):
    """Kind and name of each symbol that the file defines."""
    lines = run("nm", "--defined-only", *options, file).splitlines()
    return [(line.split()[-2], line.split()[-1]) for line in lines if len(line.split()) == 3]


def exported(file):
    return symbols(file, "--dynamic")


class Modules(unittest.TestCase):
    def setUp(self):
        self.folder = fresh_folder(self.id())

    def answers(self, program, how, *plug_ins):
        """What the program prints, with the dates removed."""
        printed = run(program, how, *plug_ins, cwd=self.folder)
        return re.sub(r'dc:date="[^"]+"', 'dc:date=""', printed)

    def written(self, number=NUMBER):
        """The expected answer of the writer."""
        return f"{number} {PACKET}"


class SecondCopy(Modules):
    """A program that exports the names of a copy of the library with different internal class layouts."""

    @classmethod
    def setUpClass(cls):
        cls.copy = fresh_folder(cls.__name__)
        shutil.copytree(SOURCE / "src", cls.copy / "src")
        for header in (path for room in ROOMS for path in (cls.copy / "src" / room).glob("*.h")):
            text = header.read_text(encoding="utf-8")
            header.write_text(text.replace("private:\n", "private:\n    long long added_[9] = {};\n"),
                              encoding="utf-8")
        sources = sorted(path for room in ROOMS for path in (cls.copy / "src" / room).glob("*.cpp"))
        with ThreadPoolExecutor(os.cpu_count()) as pool:
            changed = list(pool.map(cls.object_of, sources))
        kept = [path for path in OBJECTS if path.parent.name not in ROOMS]
        assert len(kept) + len(changed) == len(OBJECTS)
        archive = cls.copy / "libcopy.a"
        run("ar", "rcs", archive, *changed, *kept)
        # The program contains only the parts that it uses, or everything.
        cls.copies = {"a part": [archive],
                      "all": ["-Wl,--whole-archive", archive, "-Wl,--no-whole-archive"]}

    @classmethod
    def object_of(cls, source):
        return compiled(source.with_suffix(".o"), source, flags=[
            "-c", "-fPIC", "-fvisibility=hidden", "-I", cls.copy / "src"])

    def hosts(self, *parts):
        """A program for each copy."""
        for extent, copy in self.copies.items():
            program = host(self.folder, *copy, *parts, flags=["-DWITH_A_COPY", "-rdynamic"])
            factories = [name for _, name in exported(program)
                         if re.search(r"ZelDataUtilities\d+create", name)]
            self.assertEqual(len(factories), {"a part": 7, "all": 11}[extent])
            yield extent, program

    def test_a_plug_in_works_in_the_local_and_in_the_global_scope(self):
        plug = plug_in(self.folder, "writer")
        for extent, program in self.hosts():
            for how in ("local", "global"):
                with self.subTest(copy=extent, how=how):
                    self.assertEqual(self.answers(program, how, plug), self.written())

    def test_a_program_linked_with_the_copy_and_the_library_works(self):
        plug = plug_in(self.folder, "writer")
        for extent, program in self.hosts("-Wl,--no-as-needed", *linked_with(plug),
                                          *linked_with(LIBRARY)):
            with self.subTest(copy=extent):
                self.assertEqual(self.answers(program, "linked"), self.written())


class StaticLibrary(Modules):
    def test_the_program_exports_no_name_of_the_library(self):
        program = host(self.folder, "-Wl,--whole-archive", STATIC_LIBRARY, "-Wl,--no-whole-archive",
                       flags=["-rdynamic", "-DZELINTERCHANGEDATA_STATIC"])
        self.assertIn("main", [name for _, name in exported(program)])
        self.assertGreater(len([name for _, name in symbols(program) if OUR_NAME.match(name)]), 500)
        self.assertEqual([name for _, name in exported(program) if "18ZelInterchangeData" in name],
                         [])

    def test_a_program_without_the_definition_exports_none_either(self):
        program = host(self.folder, STATIC_LIBRARY, flags=["-rdynamic", "-DWITH_A_COPY"])
        self.assertEqual([name for _, name in exported(program) if OUR_NAME.match(name)], [])

    def test_a_class_that_holds_interfaces_compiles_without_a_warning(self):
        source = self.folder / "holder.cpp"
        source.write_text("""#include "ZelInterchangeData/ZelDataFace.h"
            struct Holder {
                std::unique_ptr<ZelInterchangeData::i_ZelDataCaptions> captions;
                ZelInterchangeData::i_ZelDataToc* toc;
                std::vector<ZelInterchangeData::ZelDataFinding> findings;
                ZelInterchangeData::ZelDataError error;
            };\n""", encoding="utf-8")
        for form in ((), ("-DZELINTERCHANGEDATA_STATIC",)):
            with self.subTest(form):
                compiled(self.folder / "holder.o", source, flags=["-c", *form])


class SecondVersion(Modules):
    """A library of the next major version, made from the same sources."""

    NEXT = MAJOR + 1

    def next_library(self):
        include = self.folder / "include"
        shutil.copytree(INCLUDE, include)
        header = include / "ZelInterchangeData/ZelDataVersion.h"
        text = header.read_text(encoding="utf-8")
        major = "#define ZELINTERCHANGEDATA_VERSION_MAJOR "
        self.assertIn(f"{major}{MAJOR}\n", text)
        header.write_text(text.replace(f"{major}{MAJOR}\n", f"{major}{self.NEXT}\n"),
                          encoding="utf-8")
        exports = (SOURCE / "cmake/exports.map").read_text(encoding="utf-8")
        self.assertIn(NODE, exports)
        (self.folder / "exports.map").write_text(
            exports.replace(NODE, f"ZELINTERCHANGEDATA_{self.NEXT}.0"), encoding="utf-8")
        soname = f"libZelInterchangeData.so.{self.NEXT}"
        kept = [path for path in OBJECTS if path.name != "ZelDataVersion.cpp.o"]
        return compiled(self.folder / soname, SOURCE / "src/core/ZelDataVersion.cpp", *kept,
                        include=include,
                        flags=["-shared", "-fPIC", f"-Wl,-soname,{soname}",
                               "-Wl,-Bsymbolic-functions",
                               f"-Wl,--version-script={self.folder / 'exports.map'}"])

    def test_each_plug_in_runs_with_its_own_library(self):
        library = self.next_library()
        first = plug_in(self.folder, "writer")
        (self.folder / "next").mkdir()
        second = plug_in(self.folder / "next", "writer", library=library)
        expected = {first: self.written(), second: self.written(NUMBER + 10000)}
        program = host(self.folder, *linked_with(LIBRARY))
        for how in ("local", "global"):
            for order in ((first, second), (second, first)):
                with self.subTest(how=how, order=order):
                    self.assertEqual(self.answers(program, how, *order),
                                     "".join(expected[plug] for plug in order))

    def test_a_program_does_not_start_with_the_next_major_version(self):
        """Without symbol versions, it would start and could call the wrong slots."""
        library = self.next_library()
        program = host(self.folder, *linked_with(LIBRARY))
        wrong = self.folder / "wrong"
        wrong.mkdir()
        name = LIBRARY.name.split(".so")[0]
        (wrong / f"{name}.so.{MAJOR}").symlink_to(library)
        with self.assertRaisesRegex(AssertionError, f"version `{NODE}' not found"):
            run(program, "local", env=dict(os.environ, LD_LIBRARY_PATH=str(wrong)))


class HeaderTraces(Modules):
    """The symbols that the headers add to a plug-in."""

    # These flags compile every inline function, used or not.
    EVERY_INLINE_FUNCTION = {"g++": "-fkeep-inline-functions", "clang++": "-femit-all-decls"}

    def every_header(self):
        """A header that instantiates what these flags do not compile: the members of templates, and the
        implicit members of classes derived from ours."""
        names = sorted(path.name for path in (INCLUDE / "ZelInterchangeData").glob("*.h"))
        text = "".join((INCLUDE / "ZelInterchangeData" / name).read_text(encoding="utf-8")
                       for name in names)
        views = re.findall(r"^template <class Object>\nclass (\w+).*?using Interface = (\w+);", text,
                           re.DOTALL | re.MULTILINE)
        classes = re.findall(r"^(?:class ZELINTERCHANGEDATA_API|struct) (\w+) [:{]", text, re.MULTILINE)
        self.assertEqual((len(views), len(classes)), (12, 21))
        lines = [f'#include "ZelInterchangeData/{name}"' for name in names]
        lines += ["namespace ours = ZelInterchangeData;"]
        lines += [f"template class ours::{view}<ours::{interface}>;" for view, interface in views]
        for name in classes:
            own = f"Own_{name}"
            members = [("", f"{own}(const {own}&)"), (f"{own}&", f"operator=(const {own}&)"),
                       ("", f"{own}({own}&&)"), (f"{own}&", f"operator=({own}&&)")]
            if name.startswith("i_"):
                members.append(("", f"{own}()"))
            lines += [f"struct {own} : ours::{name} {{",
                      *(f"    {result} {member};" for result, member in members), "};",
                      *(f"{result} {own}::{member} = default;" for result, member in members)]
        header = self.folder / "every_header.h"
        header.write_text("\n".join(lines) + "\n", encoding="utf-8")
        return header

    def writer(self, compiler, *flags):
        folder = self.folder / compiler
        folder.mkdir(exist_ok=True)
        return plug_in(folder, "writer", compiler=compiler, flags=["-O0", *flags])

    def test_a_plug_in_exports_no_symbol_of_ours(self):
        header = self.every_header()
        for compiler in COMPILERS:
            with self.subTest(compiler):
                plug = self.writer(compiler, self.EVERY_INLINE_FUNCTION[compiler],
                                   "-include", header)
                inside = {name for _, name in symbols(plug) if OUR_NAME.match(name)}
                self.assertGreater(len(inside), 500)
                self.assertEqual([name for _, name in exported(plug) if OUR_NAME.match(name)], [])

    def test_a_plug_in_can_be_unloaded(self):
        program = host(self.folder, *linked_with(LIBRARY))
        for compiler in COMPILERS:
            with self.subTest(compiler):
                plug = self.writer(compiler)
                self.assertEqual([name for kind, name in exported(plug) if kind == "u"], [])
                self.assertEqual(self.answers(program, "local", plug), self.written())

    def headers_with_codes(self, *names):
        """Copies the headers and adds these codes after the last one."""
        include = self.folder / "".join(["include", *names])
        shutil.copytree(INCLUDE, include)
        for name, place, addition in (
                ("ZelDataResult_tags.h", "ZelData_UnsupportedFormat = 0x8000000E",
                 ", {name} = 0x{number:X}"),
                ("ZelDataResultText.h", '"The format is not supported."},',
                 ' {{{name}, "{name}", "New."}},')):
            path = include / "ZelInterchangeData" / name
            text = path.read_text(encoding="utf-8")
            self.assertEqual(text.count(place), 1)
            added = "".join(addition.format(name=code, number=0x8000000F + index)
                            for index, code in enumerate(names))
            path.write_text(text.replace(place, place + added), encoding="utf-8")
        return include

    def test_each_header_version_knows_its_own_codes(self):
        program = host(self.folder, *linked_with(LIBRARY))
        for compiler in COMPILERS:
            expected = {}
            for names in ((), ("First",), ("First", "Second")):
                folder = self.folder / f"{compiler}{len(names)}"
                folder.mkdir()
                include = self.folder / "".join(["include", *names])
                if not include.exists():
                    self.headers_with_codes(*names)
                plug = plug_in(folder, "code_name", compiler=compiler, include=include, flags=["-O0"])
                known = ["ZelData_UnsupportedFormat", *names, "ZelData_Unknown", "ZelData_Unknown"]
                expected[plug] = " ".join(known[:3]) + "\n"
            for how in ("local", "global"):
                with self.subTest(compiler=compiler, how=how):
                    self.assertEqual(self.answers(program, how, *expected),
                                     "".join(expected.values()))


class ErrorsOfPlugIns(Modules):
    def test_the_program_catches_the_error_of_a_plug_in(self):
        for outer in COMPILERS:
            folder = self.folder / outer
            folder.mkdir()
            program = host(folder, *linked_with(LIBRARY), compiler=outer)
            for inner in COMPILERS:
                with self.subTest(program=outer, plug_in=inner):
                    plug = plug_in(folder, "thrower", compiler=inner)
                    self.assertEqual(self.answers(program, "local", plug),
                                     f"ZelDataError run {0x8000000D}\n")

    def test_only_the_library_has_the_type_information_of_the_error(self):
        described = re.compile(r"_ZT[VIS]N18ZelInterchangeData12ZelDataErrorE")
        for compiler in COMPILERS:
            with self.subTest(compiler):
                plug = plug_in(self.folder, "thrower", compiler=compiler)
                self.assertEqual([name for _, name in symbols(plug) if described.match(name)], [])
        self.assertEqual(len({name.partition("@")[0] for _, name in exported(LIBRARY)
                              if described.match(name)}), 3)


class OtherSettings(Modules):
    """Programs whose std::string or std::vector is not that of the library do not link."""

    NAME = "library_was_built_with_another_std_string_or_vector"
    PROGRAMS = {
        "creator": """#include "ZelInterchangeData/ZELDataCreator.h"
            int main() { return ZelInterchangeData::ZELDataCreator::createInterchangeData() == nullptr; }
            """,
        "factory": """#include "ZelInterchangeData/ZelDataUtilities.h"
            int main()
            {
                ZelInterchangeData::i_ZelDataToc* toc = nullptr;
                return ZelInterchangeData::ZelDataUtilities::createTocData(&toc);
            }
            """}
    # Makes the linker drop unreferenced symbols, which must not drop the check.
    DROPPING = ("-O2", "-ffunction-sections", "-fdata-sections", "-Wl,--gc-sections")

    def link(self, name, compiler, *flags):
        source = self.folder / f"{name}.cpp"
        source.write_text(self.PROGRAMS[name], encoding="utf-8")
        return compiled(self.folder / name, source, compiler=compiler,
                        flags=[*flags, *linked_with(LIBRARY)])

    def check_refused(self, setting, *compilers):
        for compiler in compilers:
            for name in self.PROGRAMS:
                for flags in ((), self.DROPPING):
                    with self.subTest(name=name, compiler=compiler, flags=flags):
                        with self.assertRaisesRegex(AssertionError,
                                                    f"undefined reference to .*{self.NAME}"):
                            self.link(name, compiler, *flags, setting)

    def test_a_program_with_the_same_settings_links_and_runs(self):
        for compiler in COMPILERS:
            for name in self.PROGRAMS:
                for flags in ((), self.DROPPING, ("-no-pie", "-O2")):
                    with self.subTest(name=name, compiler=compiler, flags=flags):
                        run(self.link(name, compiler, *flags))

    def test_a_program_with_the_older_string_does_not_link(self):
        self.check_refused("-D_GLIBCXX_USE_CXX11_ABI=0", *COMPILERS)

    def test_a_program_with_the_debug_mode_vector_does_not_link(self):
        self.check_refused("-D_GLIBCXX_DEBUG", *COMPILERS)

    def test_a_program_with_libcxx_does_not_link(self):
        self.check_refused("-stdlib=libc++", "clang++")


if __name__ == "__main__":
    unittest.main()
