"""Looks at the desktop files of the build, in the folder of the second argument, made of the sources of the first."""
import ast
import pathlib
import re
import sys
import unittest
import xml.etree.ElementTree as xml

SOURCES, BUILT = map(pathlib.Path, sys.argv[1:3])
del sys.argv[1:3]
LANGUAGE = "{http://www.w3.org/XML/1998/namespace}lang"
LANGUAGES = sorted(path.name for path in (SOURCES / "data/locale").iterdir() if path.is_dir())


def catalogue(language):
    po = (SOURCES / "data/locale" / language / "vmrdesktop.po").read_text()
    pairs = re.findall(r'^msgid (".+")\nmsgstr (".+")$', po, re.M)
    return {ast.literal_eval(text): ast.literal_eval(translation) for text, translation in pairs}


def in_one_line(text):
    return re.sub(r"[ \n]+", " ", text)


class DesktopFiles(unittest.TestCase):
    def translations(self, language, texts):
        """Those that there are; a language that is not complete may lack some."""
        known = catalogue(language)
        if language in {"de", "fr", "ja"}:
            self.assertLessEqual(set(texts), known.keys())
        return [known[text] for text in texts if text in known]

    def check_xml(self, name, tags):
        """That behind each text its translations stand, in elements of the same name."""
        root = xml.parse(BUILT / name).getroot()
        elements = [element for element in root.iter() if element.tag.split("}")[-1] in tags]
        texts = [in_one_line(element.text) for element in elements if LANGUAGE not in element.attrib]
        self.assertGreater(len(texts), 3)
        self.assertIn("de", LANGUAGES)
        for language in LANGUAGES:
            shown = [in_one_line(element.text) for element in elements if element.get(LANGUAGE) == language]
            self.assertEqual(shown, self.translations(language, texts))

    def test_the_entry_in_the_menu_has_all_languages(self):
        lines = (BUILT / "vmr.desktop").read_text().splitlines()
        fields = dict(line.split("=", 1) for line in lines if "=" in line)
        keys = ["GenericName", "Comment", "Keywords"]
        for language in LANGUAGES:
            shown = [fields[f"{key}[{language}]"] for key in keys if f"{key}[{language}]" in fields]
            self.assertEqual(shown, self.translations(language, [fields[key] for key in keys]))

    def test_the_page_in_a_catalogue_of_software_has_all_languages(self):
        self.check_xml("vmr.metainfo.xml", {"summary", "p", "li"})

    def test_the_file_types_have_all_languages(self):
        self.check_xml("vmr.mime.xml", {"comment"})

    def test_the_names_are_filled_in(self):
        for name in ["vmr.desktop", "vmr.metainfo.xml", "vmr.mime.xml"]:
            self.assertNotRegex((BUILT / name).read_text(), "@[A-Z_]+@")
        page = (BUILT / "vmr.metainfo.xml").read_text()
        self.assertRegex(page, r'<release version="[\d.]+" date="\d{4}-\d\d-\d\d"/>')


if __name__ == "__main__":
    unittest.main()
