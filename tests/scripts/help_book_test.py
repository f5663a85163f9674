"""Looks through the built help books: help_book_test.py SOURCES FOLDER-OF-THE-BOOKS PROGRAM"""
import html
import html.parser
import json
import os
import pathlib
import posixpath
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
import zipfile

ROOT, BOOKS, PROGRAM = (pathlib.Path(argument).resolve() for argument in sys.argv[1:])
del sys.argv[1:]
LANGUAGES = {"en": "vmrdoc.htb", "de": "vmrdoc_de.htb", "fr": "vmrdoc_fr.htb", "ja": "vmrdoc_ja.htb"}
# What the toolkit's window shows.
TAGS = {"html", "head", "meta", "title", "body", "p", "br", "hr", "b", "i", "tt", "font", "a", "ul", "ol", "li", "table",
        "tr", "td", "h3", "h4", "pre"}
UNCLOSED = {"meta", "br", "hr"}
SAMPLE = pathlib.Path("/usr/share/opencascade/data/step/screw.step")


class Page(html.parser.HTMLParser):
    def __init__(self, text):
        super().__init__()
        self.title, self.links, self.anchors, self.tags, self.colours, self.words = "", [], set(), [], set(), ""
        self.open, self.faults = [], []
        self.feed(text)

    def handle_starttag(self, tag, attributes):
        self.tags.append(tag)
        values = dict(attributes)
        if "href" in values:
            self.links.append(values["href"])
        if tag == "a" and "name" in values:
            self.anchors.add(values["name"])
        self.colours |= {value for value in values.values() if value and value.startswith("#")}
        if tag not in UNCLOSED:
            self.open.append(tag)

    def handle_endtag(self, tag):
        if not self.open or self.open.pop() != tag:
            self.faults.append(f"</{tag}> closes what is not open")

    def handle_data(self, data):
        self.words += data
        if self.open and self.open[-1] == "title":
            self.title += data


class Book:
    def __init__(self, path):
        with zipfile.ZipFile(path) as archive:
            self.files = {name: archive.read(name).decode("utf-8") for name in archive.namelist()}
        self.pages = {name: Page(text) for name, text in self.files.items() if name.endswith(".htm")}

    def entries(self, name):
        """(name, page) of the contents or the index."""
        found = re.findall(r'<param name="Name" value="([^"]+)"><param name="Local" value="([^"]+)">', self.files[name])
        return [(html.unescape(title), page) for title, page in found]


def text_of(page):
    return re.sub(r"\s+", " ", page.words)


class HelpBook(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.books = {language: Book(BOOKS / name) for language, name in LANGUAGES.items()}
        cls.english = cls.books["en"]

    def each_page(self):
        for language, book in self.books.items():
            for name, page in book.pages.items():
                yield book, f"{language} {name}", name, page

    def check_target(self, book, target, where):
        name, _, anchor = target.partition("#")
        self.assertIn(name, book.pages, where)
        if anchor:
            self.assertIn(anchor, book.pages[name].anchors, where)

    def test_has_every_topic_that_the_program_asks_for(self):
        topics = set()
        for folder in ("source", "program"):
            for path in (ROOT / folder).rglob("*.cpp"):
                topics.update(re.findall(r'"(source/[\w/]+\.htm)"', path.read_text()))
        self.assertGreaterEqual(topics, {"source/resources/resourcevalues.htm", "source/new/new.htm",
                                         "source/pages/single.htm", "source/pages/merge.htm", "source/pages/batch.htm",
                                         "source/dialogs/progress.htm", "source/dialogs/report.htm",
                                         "source/resources/exportto.htm"})
        for language, book in self.books.items():
            for topic in topics:
                self.assertIn(f"substituted/{topic}", book.files, language)

    def test_has_links_that_lead_somewhere(self):
        for book, where, name, page in self.each_page():
            for link in page.links:
                target = posixpath.normpath(posixpath.join(posixpath.dirname(name), link)) if link[0] != "#" else name + link
                self.check_target(book, target, where)

    def test_is_written_in_what_the_window_shows(self):
        palette = (ROOT / "source/nls/sglHelpColours.cpp").read_text()
        light = set(re.findall(r'\{"(#\w+)", "#\w+"\}', palette))
        used = set()
        for _, where, _, page in self.each_page():
            self.assertLessEqual(set(page.tags), TAGS, where)
            self.assertEqual(page.faults, [], where)
            self.assertLessEqual(page.colours, light, where)
            self.assertTrue(page.title, where)
            self.assertNotIn("{{", page.words, where)
            used |= page.colours
        self.assertEqual(used, light)

    def test_names_existing_pages_in_contents_and_index(self):
        for book in self.books.values():
            contents = book.entries("vmrdoc.hhc")
            self.assertEqual({page for _, page in contents}, set(book.pages))
            self.assertEqual(len(contents), len(book.pages))
            self.assertGreater(len(book.entries("vmrdoc.hhk")), 150)
            for _, page in contents + book.entries("vmrdoc.hhk"):
                self.check_target(book, page, "contents and index")
            for name in ("vmrdoc.hhc", "vmrdoc.hhk"):
                self.assertEqual(book.files[name].count("<ul>"), book.files[name].count("</ul>"))
                self.assertNotIn("charset", book.files[name], "the toolkit would decode the entries twice")
            self.assertIn("Default topic=index.htm\n", book.files["vmrdoc.hhp"])

    def test_has_contents_of_its_own_in_each_language(self):
        titles = {language: [name for name, _ in book.entries("vmrdoc.hhc")] for language, book in self.books.items()}
        self.assertIn("Wenn etwas nicht klappt", titles["de"])
        self.assertIn("En cas de problème", titles["fr"])
        self.assertIn("うまくいかないとき", titles["ja"])
        for language, book in self.books.items():
            self.assertEqual([page for _, page in book.entries("vmrdoc.hhc")],
                             [page for _, page in self.english.entries("vmrdoc.hhc")])
            self.assertIn(f"Title={book.pages['index.htm'].title}\n", book.files["vmrdoc.hhp"])
            self.assertEqual(len(set(titles[language])), len(titles[language]))

    def test_describes_every_option_with_its_default(self):
        for path in ROOT.glob("translators/*/*.json"):
            for entry in json.loads(path.read_text())["formats"]:
                page = f"substituted/source/formats/{entry['name'].lower()}.htm"
                text = self.english.files[page]
                for option in entry["resources"]:
                    rows = re.findall(rf'<a name="\w+-{option["name"]}"></a>.*?</tr>', text, re.S)
                    self.assertTrue(rows, f"{option['name']} of {entry['name']}")
                    default = option["default"]
                    if option["type"] == "boolean":
                        default = "Yes" if default else "No"
                    elif option["type"] in ("real", "integer"):
                        self.assertEqual(float(re.search(r"Default: <b>([\d.]+)</b>", rows[0])[1]), default)
                        continue
                    self.assertIn(f"Default: <b>{default or 'empty'}</b>", rows[0])
                    if option["type"] == "choice":
                        self.assertEqual(re.findall(r"<tt>([^<]+)</tt>", rows[0])[1:], option["values"])
                    indexed = [page for name, page in self.english.entries("vmrdoc.hhk") if name == option["name"]]
                    self.assertTrue(indexed, option["name"])

    def test_shows_the_grammar_that_the_program_prints(self):
        with tempfile.TemporaryDirectory() as home:
            environment = {"HOME": home, "PATH": os.environ["PATH"], "LC_ALL": "C"}
            said = subprocess.run([PROGRAM, "-help"], capture_output=True, text=True, env=environment).stdout
        grammar = said[said.index("vmr [-h"):said.index("Decrypting")].strip()
        page = self.english.pages["substituted/source/commandline/grammar.htm"]
        self.assertIn(grammar, page.words)
        for word in set(re.findall(r"-\w+", grammar)) - {"-in", "-out"}:
            self.assertIn(word, page.words)

    def test_shows_what_its_example_prints(self):
        if not SAMPLE.is_file():
            self.skipTest(f"there is no {SAMPLE}")
        page = self.english.pages["substituted/source/commandline/examples.htm"]
        line = re.search(r"^vmr (screw\.step .*)$", page.words, re.M)[1]
        with tempfile.TemporaryDirectory() as folder:
            shutil.copy(SAMPLE, folder)
            environment = {"HOME": folder, "PATH": os.environ["PATH"], "LC_ALL": "C"}
            done = subprocess.run([PROGRAM, *line.split()], capture_output=True, text=True, cwd=folder, env=environment)
            self.assertEqual(done.returncode, 0, done.stdout)
            self.assertTrue((pathlib.Path(folder) / "screw.stl").read_text().startswith("solid"))
        # How far the row of dots is when a message comes, and whether it begins with reading or writing, is another
        # matter each time, and so is the folder.
        checked = 0
        for line in done.stdout[done.stdout.index("****"):].replace(folder, "/home/jane").splitlines():
            said = re.sub(r"\.{2,}|\d+0%", "", line).strip(".")
            if said and not said.startswith(("Resource file", "Reading :", "Writing :")):
                self.assertIn(said, page.words)
                checked += 1
        self.assertGreater(checked, 10)

    def test_says_what_each_message_means_in_the_words_of_the_program(self):
        page = text_of(self.books["de"].pages["substituted/source/guide/troubleshooting.htm"])
        self.assertIn("ist leer; exportieren oder kopieren Sie die Datei noch einmal", page)
        page = text_of(self.english.pages["substituted/source/guide/troubleshooting.htm"])
        self.assertIn("... is empty; export or copy it again", page)


class Maker(unittest.TestCase):
    """The program that makes the books, over a changed copy of the sources."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        for name in ("docs/help", "data/locale", "base", "host", "include", "program", "source", "translators"):
            shutil.copytree(ROOT / name, self.root / name)
        for name in ("data/resource_layout.txt", "data/export_overrides.txt"):
            shutil.copy(ROOT / name, self.root / name)

    def make(self, language="en"):
        book = self.root / "book.htb"
        done = subprocess.run([sys.executable, ROOT / "cmake/make_help_book.py", self.root, language, "1.2.3", book],
                              capture_output=True, text=True)
        return done.returncode, done.stderr, book

    def change(self, name, old, new):
        path = self.root / name
        text = path.read_text()
        self.assertIn(old, text)
        path.write_text(text.replace(old, new, 1))

    def refuses(self, complaint, language="en"):
        status, said, _ = self.make(language)
        self.assertNotEqual(status, 0)
        self.assertIn(complaint, said)

    def test_gives_the_same_book_for_the_same_sources(self):
        first = self.make()[2].read_bytes()
        self.assertEqual(self.make()[2].read_bytes(), first)
        self.assertIn("1.2.3", Book(self.make()[2]).files["index.htm"])

    def test_takes_range_and_default_from_the_manifest(self):
        self.change("translators/iges/iges.json", '"maximum": 10, "default": 0.01', '"maximum": 25, "default": 0.125')
        text = Book(self.make()[2]).files["substituted/source/formats/iges.htm"]
        self.assertIn("Values: 0.0000001 to 25. Default: <b>0.125</b>", text)

    def test_refuses_an_option_that_no_page_describes(self):
        self.change("translators/stl/stl.json", '"resources": [',
                    '"resources": [{"name": "stlNew", "type": "boolean", "default": true},')
        self.refuses("the option stlNew of STL stands on no page")

    def test_refuses_labels_and_messages_that_the_program_does_not_have(self):
        self.change("docs/help/en/pages/single.htm", "{{label Translate}}", "{{label Convert}}")
        self.refuses("no window has the label Convert")
        self.change("docs/help/en/pages/single.htm", "{{label Convert}}", "{{message host::%s is lost}}")
        self.refuses("the program has no text host::%s is lost")

    def test_shows_in_english_what_has_not_been_translated_yet(self):
        self.change("data/resource_layout.txt", "d.res.vmrOptOutputUnits::Unit of length", "d.res.vmrOptOutputUnits::Yardstick")
        (self.root / "host/hostNew.cpp").write_text('say(sdkText("host::%d of the "\n    "shapes are blue", 3));\n')
        self.change("docs/help/en/pages/single.htm", "{{label Translate}}", "{{message host::%d of the shapes are blue}}")
        status, said, book = self.make("de")
        self.assertEqual(status, 0, said)
        pages = Book(book).pages
        self.assertIn("Yardstick", text_of(pages["substituted/source/formats/step.htm"]))
        self.assertIn("... of the shapes are blue", text_of(pages["substituted/source/pages/single.htm"]))

    def test_refuses_a_page_outside_the_contents_and_contents_that_differ(self):
        self.change("docs/help/de/contents.txt", "new/new.htm Neues in dieser Version\n", "")
        self.refuses("the contents of de are not those of the English book", "de")
        self.change("docs/help/en/contents.txt", "new/new.htm\n", "")
        self.refuses("new/new.htm does not stand in the contents")

    def test_prefers_the_pages_of_the_language(self):
        (self.root / "docs/help/de/new").mkdir()
        (self.root / "docs/help/de/new/new.htm").write_text("<title>Neu</title>\n<p>{{label Translate}}</p>\n")
        book = Book(self.make("de")[2])
        page = book.pages["substituted/source/new/new.htm"]
        self.assertEqual(page.title, "Neu")
        self.assertIn("Übersetzen", page.words)


if __name__ == "__main__":
    unittest.main()
