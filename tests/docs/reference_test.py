"""Checks that scripts/docs makes the reference of the headers, and refuses an undocumented symbol.

The environment names ROOT, the project's folder."""

import os
import re
import shutil
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

ROOT = Path(os.environ["ROOT"])
HEADERS = Path("include", "ZelInterchangeData")


def undescribed_enumerators(tree):
    """The enumerators without a comment, which Doxygen accepts, and the number of all enumerators."""
    settings = "GENERATE_HTML = NO\nGENERATE_XML = YES\nWARN_AS_ERROR = NO\nOUTPUT_DIRECTORY = .\n"
    subprocess.run(["doxygen", "-"], cwd=tree, check=True, text=True, stderr=subprocess.DEVNULL,
                   input=(tree / "docs" / "Doxyfile").read_text(encoding="utf-8") + settings)
    values = [value for page in (tree / "xml").glob("*.xml")
              for value in ElementTree.parse(page).iter("enumvalue")]
    return [value.findtext("name") for value in values
            if not any("".join(value.find(part).itertext()).strip()
                       for part in ("briefdescription", "detaileddescription"))], len(values)


class Reference(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.tree, self.result = Path(folder.name, "tree"), Path(folder.name, "result")
        for name in ("include", "docs"):
            shutil.copytree(ROOT / name, self.tree / name)
        (self.tree / "scripts").mkdir()
        shutil.copy(ROOT / "scripts" / "docs", self.tree / "scripts")

    def make(self):
        return subprocess.run([self.tree / "scripts" / "docs", self.result], capture_output=True,
                              text=True, check=False)

    def add(self, addition):
        header = self.tree / HEADERS / "ZELDataCreator.h"
        text = header.read_text(encoding="utf-8")
        end = "} // namespace ZelInterchangeData\n"
        self.assertEqual(text.count(end), 1)
        header.write_text(text.replace(end, addition + end), encoding="utf-8")

    def assert_refused(self, addition, complaint):
        self.add(addition)
        made = self.make()
        self.assertNotEqual(made.returncode, 0)
        self.assertIn(complaint, made.stderr)

    def test_the_reference_is_made_without_a_warning_and_shows_every_header(self):
        made = self.make()
        self.assertEqual((made.returncode, made.stderr), (0, ""))
        pages = {path.name for path in (self.result / "reference").iterdir()}
        headers = [path.stem for path in (ROOT / HEADERS).glob("*.h")]
        self.assertGreater(len(headers), 20)
        for header in headers:
            self.assertIn(header.replace("_", "__") + "_8h.html", pages)

    def test_the_first_page_leads_to_the_guide_the_face_and_the_findings(self):
        self.make()
        pages = self.result / "reference"
        links = set(re.findall('href="([^"#]+)', (pages / "index.html").read_text(encoding="utf-8")))
        self.assertLessEqual({"guide.md", "ZelDataFace_8h.html", "ZelDataFindings_8h.html",
                              "ZelDataReplaceFile_8h.html"}, links)
        here = [link for link in links if not link.startswith("https:")]
        self.assertEqual([link for link in here if not (pages / link).exists()], [])

    def test_a_function_without_a_comment_is_refused(self):
        self.assert_refused("void undescribed();\n", "undescribed() (function)")

    def test_a_member_without_a_comment_is_refused(self):
        self.assert_refused("/// A class.\nclass Described {\npublic:\n    int member();\n};\n",
                            "member() (function) of class")

    def test_every_enumerator_has_a_comment(self):
        undescribed, count = undescribed_enumerators(self.tree)
        self.assertEqual(undescribed, [])
        self.assertGreater(count, 20)

    def test_an_enumerator_without_a_comment_is_found(self):
        self.add("/// Values.\nenum Values {\n    undescribed\n};\n")
        self.assertEqual(undescribed_enumerators(self.tree)[0], ["undescribed"])

    def test_a_broken_link_is_refused(self):
        self.assert_refused("/// Gives #ZelData_Nothing.\nint described();\n", "ZelData_Nothing")

    def test_a_parameter_that_does_not_exist_is_refused(self):
        self.assert_refused("/// @param other missing.\nint described(int value);\n", "other")


if __name__ == "__main__":
    unittest.main()
