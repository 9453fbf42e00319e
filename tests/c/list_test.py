"""Compares docs/zeldata.json with zeldata.h, with the interfaces' slot lists and with the other C++
headers: nothing is missing, and every name and argument follows from the C++ operation.

The environment names ROOT, the project's folder."""

import json
import os
import re
import sys
import unittest
from pathlib import Path

ROOT = Path(os.environ["ROOT"])
sys.path.insert(0, str(ROOT / "tests/abi"))

from public_operations import argument_types, of_header
from slot_lists import read_file, split

SLOTS = ROOT / "tests/abi/slots"
HEADERS = ROOT / "include/ZelInterchangeData"
LIST = json.loads((ROOT / "docs/zeldata.json").read_text(encoding="ascii"))
FUNCTIONS = {function["name"]: function for function in LIST["functions"]}
LEFT_OUT = {entry["operation"] for entry in LIST["left_out"]}

# Each interface, its handle, and the words that the names of its operations lose.
INTERFACES = {
    "i_ZelInterchangeDataCore": ("document", ["Data"]),
    "i_ZelDataHeader": ("header", ["Header"]),
    "i_ZelDataCaptions": ("captions", ["Captions", "Caption"]),
    "i_ZelDataCaptionItem": ("caption_item", []),
    "i_ZelDataToc": ("toc", ["Toc"]),
    "i_ZelDataTocItem": ("toc_item", []),
    "i_ZelDataScreenText": ("screen_text", ["ScreenText"]),
    "i_ZelDataScreenTextItem": ("screen_text_item", []),
    "i_ZelDataHeaderFormatter": ("header_formatter", []),
    "i_ZelDataCaptionFormatter": ("caption_formatter", []),
    "i_ZelDataTocFormatter": ("toc_formatter", []),
    "i_ZelDataScreenTextFormatter": ("screen_text_formatter", []),
}
HANDLES = {interface: f"zeldata_{handle}*" for interface, (handle, _) in INTERFACES.items()}

TYPES = {
    "const std::string&": ["const char*", "size_t"],
    "std::string&": ["zeldata_string*"],
    "const std::vector<std::string>&": ["const zeldata_strings*"],
    "std::vector<std::string>&": ["zeldata_strings*"],
    "std::vector<ZelDataFinding>&": ["zeldata_findings*"],
    "bool": ["int32_t"], "bool&": ["int32_t*"], "int&": ["int32_t*"],
    "float": ["float"], "float&": ["float*"],
    "long": ["int64_t"], "long*": ["int64_t"],
    "long long": ["int64_t"], "long long&": ["int64_t*"],
    "unsigned long": ["uint64_t"], "unsigned long&": ["uint64_t*"],
    "unsigned long long": ["uint64_t"], "unsigned long long&": ["uint64_t*"],
    "ZelDataResult_tags": ["uint32_t"], "ZelDataFormatType_tags": ["uint32_t"],
    "ZelAlignment_tags": ["uint32_t"], "ZelAlignment_tags&": ["uint32_t*"],
    "ZelDataFinding_tags": ["uint32_t"],
}
ENUMERATORS = (("ZelDataFindingSeverity_", "FINDING_SEVERITY_"), ("ZelDataFindingSubject_", "FINDING_SUBJECT_"),
               ("ZelDataFinding_", "FINDING_"), ("ZelDataFormat_", "FORMAT_"), ("ZelData_", ""),
               ("ZelAlign", "ALIGN_"))

# What a constant can be besides a number of 32 bits; the largest size depends on the platform.
LIMITS = {"SIZE_MAX": "SIZE_MAX", "UINT64_MAX": 2**64 - 1}


def words(name):
    """A C++ name in lower case with underscores."""
    for unusual in ("IDs", "IPod", "UTF8"):
        name = name.replace(unusual, unusual.capitalize())
    return "_".join(re.findall(r"[A-Z]?[a-z0-9]+", name)).lower()


def c_types(cpp):
    """The types of the C parameters for a C++ argument."""
    named = re.fullmatch(r"(const )?(i_\w+)(&|\*\*)", cpp)
    if named:
        return [(named[1] or "") + HANDLES[named[2]] + ("*" if named[3] == "**" else "")]
    return TYPES[cpp]


def without_comments(path):
    return re.sub(r"//.*", "", path.read_text(encoding="ascii"))


def declared():
    """The functions in the C header, as the list has them."""
    found = {}
    for result, name, parameters in re.findall(
            r"^ZELINTERCHANGEDATA_API ([\w *]+?)\s*\b(zeldata_\w+)\(([^)]*)\);",
            re.sub(r"\n +", " ", re.sub(r"API (\w+)\n", r"API \1 ", without_comments(HEADERS / "zeldata.h"))),
            re.MULTILINE):
        pairs = [list(re.fullmatch(r"(.*?) ?(\w+)", one.strip()).groups())
                 for one in re.sub(r"\s+", " ", parameters).split(",") if one.strip() != "void"]
        found[name] = (result, pairs)
    return found


def operations_of(interface):
    """The class that declares each operation of the interface, the operation's name, its argument
    types and whether it is const; base classes first, without the destructor."""
    keys, lines = read_file(SLOTS / f"{interface}.txt")
    if "extends" in keys:
        yield from operations_of(keys["extends"])
    for line in lines:
        if line != "~":
            _, name, rest = split(line)
            arguments = rest.removesuffix(" const")
            yield interface, name, argument_types(arguments), rest != arguments


def signature(owner, name, types):
    return f"{owner}::{name}({', '.join(types)})" if owner else f"{name}({', '.join(types)})"


def short_name(interface, owner, name):
    """The operation in the name of a C function, without what the handle says already."""
    if owner == interface:
        for word in INTERFACES[interface][1]:
            if re.search(word + r"([A-Z]|s?[A-Z]|s?$)", name):
                name = name.replace(word, "", 1)
                break
    return words(name.removesuffix("At"))


def expected_functions(interface):
    """The names and the C types that the operations of an interface lead to; None for what is left
    out."""
    handle = INTERFACES[interface][0]
    for owner, name, types, is_const in operations_of(interface):
        operation = signature(owner, name, types)
        if {operation, signature(interface, name, types)} & LEFT_OUT:
            continue
        reads = is_const or name.startswith("get")
        this = ("const " if reads else "") + HANDLES[interface]
        if operation == "i_ZelDataLanguage::copyFrom(const i_ZelDataLanguage&)":
            for source in ("header", "captions", "toc"):
                yield (f"zeldata_{handle}_copy_languages_from_{source}", operation,
                       [this, f"const zeldata_{source}*"])
            continue
        if name.startswith("does"):  # the text is not changed
            types = [kind.replace("std::string&", "const std::string&") for kind in types]
        yield (f"zeldata_{handle}_{short_name(interface, owner, name)}", operation,
               [this] + [kind for one in types for kind in c_types(one)])


def parameter_types(function):
    return [kind for kind, _ in function["parameters"]]


class TheList(unittest.TestCase):
    maxDiff = None

    def test_it_has_the_functions_of_the_header_with_their_parameters(self):
        self.assertEqual({name: (one["result"], one["parameters"]) for name, one in FUNCTIONS.items()},
                         declared())
        self.assertEqual(len(FUNCTIONS), len(LIST["functions"]))

    def test_it_has_the_handles_of_the_header(self):
        text = without_comments(HEADERS / "zeldata.h")
        self.assertEqual(re.findall(r"typedef struct (\w+) \1;", text), LIST["handles"])

    def test_it_has_the_constants_of_the_header(self):
        defined = re.findall(r"#define (ZELDATA_\w+) (?:UINT32_C\()?(\w+)",
                             (HEADERS / "zeldata.h").read_text(encoding="ascii"))
        self.assertEqual({name: LIMITS.get(value) or int(value, 0) for name, value in defined}, LIST["constants"])

    def test_each_enumerator_has_a_constant(self):
        expected = {}
        for header in HEADERS.glob("*_tags.h"):
            for name, value in re.findall(r"\b(Zel\w+) = (0x[0-9A-F]+|\d+)", without_comments(header)):
                prefix, short = next(pair for pair in ENUMERATORS if name.startswith(pair[0]))
                expected["ZELDATA_" + short + words(name.removeprefix(prefix)).upper()] = int(value, 0)
        self.assertGreater(len(expected), 50)
        others = {"ZELDATA_TERMINATED", "ZELDATA_NO_ITEM"}
        self.assertEqual({name: LIST["constants"][name] for name in LIST["constants"].keys() - others}, expected)

    def test_only_what_the_interfaces_have_is_left_out_and_each_has_a_reason(self):
        known = {signature(owner, name, types) for interface in INTERFACES
                 for declaring, name, types, _ in operations_of(interface) for owner in (declaring, interface)}
        known.add("ZelDataUtilities::getValueString(unsigned long)")
        self.assertEqual(LEFT_OUT - known, set())
        self.assertTrue(all(entry["reason"] for entry in LIST["left_out"]))
        self.assertEqual(LEFT_OUT & {function.get("operation") for function in FUNCTIONS.values()}, set())


class Interfaces(unittest.TestCase):
    def test_each_interface_has_a_handle(self):
        bases = {"i_ZelDataResult", "i_ZelDataLanguage", "i_ZelDataFormatterBase"}
        self.assertEqual({path.stem for path in SLOTS.glob("i_*.txt")} - bases, set(INTERFACES))

    def test_each_operation_has_the_function_that_follows_from_it(self):
        for interface in INTERFACES:
            for name, operation, types in expected_functions(interface):
                with self.subTest(name):
                    self.assertEqual(FUNCTIONS[name].get("operation"), operation)
                    if not name.endswith("_get_last_error"):
                        self.assertEqual(parameter_types(FUNCTIONS[name]), types)

    def test_a_handle_has_no_other_function_of_an_interface(self):
        expected = {name for interface in INTERFACES for name, *_ in expected_functions(interface)}
        slots = {signature(owner, name, types) for interface in INTERFACES
                 for owner, name, types, _ in operations_of(interface)}
        self.assertEqual({name for name, one in FUNCTIONS.items() if one.get("operation") in slots}, expected)

    def test_each_handle_is_made_and_destroyed(self):
        for handle in LIST["handles"]:
            with self.subTest(handle):
                self.assertEqual(parameter_types(FUNCTIONS[f"{handle}_create"])[0], f"{handle}**")
                self.assertEqual(parameter_types(FUNCTIONS[f"{handle}_destroy"]), [f"{handle}*"])

    def test_the_name_of_a_function_tells_whether_it_gives_a_handle_to_destroy(self):
        self.assertEqual({name for name, one in FUNCTIONS.items()
                          if any(kind.endswith("**") and place == "out" for kind, place in one["parameters"])},
                         {name for name in FUNCTIONS if re.search("_create(_|$)|_get_item$", name)})


class OtherFunctions(unittest.TestCase):
    def exported(self):
        """The static and the free functions of the C++ headers."""
        for header in sorted(HEADERS.glob("*.h")):
            if header.stem in ("ZelDataStandardLibrary", "zeldata"):
                continue
            yield from (signature(owner, name, types)
                        for owner, found in (of_header(r"\bstatic", header.stem, header),
                                             of_header(r"^ZELINTERCHANGEDATA_API", "", header))
                        for name, types in found)

    def test_each_exported_function_has_a_counterpart(self):
        exported = set(self.exported())
        self.assertGreater(len(exported), 30)
        operations = {function.get("operation") for function in FUNCTIONS.values()}
        self.assertEqual(exported - operations - LEFT_OUT, set())

    def test_a_static_function_gives_its_function_the_name(self):
        named = [(name, function["operation"]) for name, function in FUNCTIONS.items()
                 if function.get("operation", "").startswith("ZelDataUtilities::")]
        self.assertGreater(len(named), 20)
        for name, operation in named:
            method = re.match(r"ZelDataUtilities::(\w+)", operation)[1]
            if method.startswith("create"):
                self.assertRegex(name, r"_create$")
            else:
                self.assertRegex(name, rf"^zeldata_{words(method)}(_float|_uint64|_now)?$")

    def test_each_field_of_a_finding_has_a_function(self):
        struct = without_comments(HEADERS / "ZelDataFinding.h").partition("@endcond")[0]
        fields = re.findall(r"^    [\w:]+(?: long)*(?: long)? (\w+)(?: = [^;]+)?;$", struct, re.MULTILINE)
        self.assertEqual(len(fields), 11)
        for field in fields:
            place = "_index" if field in ("item", "laterItem") else ""
            self.assertEqual(FUNCTIONS[f"zeldata_findings_get_{words(field)}{place}"]["operation"],
                             f"ZelDataFinding::{field}")


class Types(unittest.TestCase):
    ALLOWED = r"(const )?(char|zeldata_\w+)\*{1,2}|u?int(32|64)_t\*?|float\*?|size_t\*?|const void\*"

    def test_only_types_of_c_with_a_fixed_width_cross_the_boundary(self):
        for function in FUNCTIONS.values():
            self.assertRegex(function["result"], r"^(u?int32_t|void|size_t|const char\*)$")
            for kind in parameter_types(function):
                self.assertRegex(kind, rf"^({self.ALLOWED})$")

    def test_each_text_has_a_length(self):
        for function in FUNCTIONS.values():
            for index, (kind, name) in enumerate(function["parameters"]):
                if kind == "const char*":
                    self.assertEqual(function["parameters"][index + 1], ["size_t", f"{name}_length"])


if __name__ == "__main__":
    unittest.main()
