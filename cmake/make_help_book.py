#!/usr/bin/env python3
"""Makes the help book of one language: make_help_book.py SOURCES LANGUAGE VERSION BOOK

SOURCES is the root of the sources. The book is an archive for the toolkit's help window: a project, its contents, its
index and the pages, from docs/help, whose README.md says how they are written. What the program declares
elsewhere (options, their ranges and defaults, the texts of the window, the messages) is taken from there, so that the
book cannot say something else. Ends with a message where the sources of the book do not fit the program.
"""
import ast
import decimal
import html
import json
import pathlib
import posixpath
import re
import sys
import zipfile

LITERAL = r'"(?:[^"\\]|\\.)*"'
ENTRY = re.compile(rf"^(?:msgctxt ((?:{LITERAL}\s*)+))?msgid ((?:{LITERAL}\s*)+)msgstr ((?:{LITERAL}\s*)+)", re.M)
# A key with its context, and the literals that go on with it.
KEY_IN_SOURCES = re.compile(r'"[\w.-]+::(?:[^"\\\n]|\\.)*"(?:\s*"(?:[^"\\\n]|\\.)*")*')
CONVERSION = re.compile(r"%(?:\d+\$)?[-+ #0]*\d*(?:\.\d+)?[diouxXeEfgGs]")
MACRO = re.compile(r"\{\{(\w+)(?:\s+([^{}]*))?\}\}")
DOMAINS = ["vmrgrlib", "vmrengine", "vmrhost"]
# Where texts of the program are written that no catalogue may have yet.
SOURCES = ["include", "source", "program", "base", "host", "translators"]
PROGRAM = "Crosswalk"
FORMATS = ["STEP", "IGES", "BREP", "STL"]
# The colours of a light desktop; source/nls/sglHelpColours.cpp has those that take their place on a dark one.
PAPER, INK, LINK, HEAD, CELL, LINE = "#FFFFFF", "#202428", "#1A5FB4", "#DCE6F2", "#F5F7FA", "#B9C6D6"
WORDS = {"default": "Default", "values": "Values", "yes": "Yes", "no": "No", "any text": "any text", "empty": "empty",
         "from to": "%s to %s", "or more": "%s or more", "number": "a number", "format": "Format",
         "file names": "File names", "proposed output": "Proposed output", "settings": "Factory settings",
         "input": "input", "output": "output", "used by": "Used by", "option": "Option", "value": "Value"}


def fail(text):
    sys.exit(f"make_help_book.py: {text}")


def unquoted(literals):
    return "".join(ast.literal_eval(literal) for literal in re.findall(LITERAL, literals))


def shown(text):
    """A text of the window as the user reads it, without the marks of its mnemonic."""
    text = re.sub(r"\(&\w\)|&(?=\w)", "", text).replace("&&", "&")
    return re.sub(r"\[\[(?:COMMON-)?PROGRAM-NAME\]\]", PROGRAM, text)


def number(value):
    return format(decimal.Decimal(repr(value)), "f")


class Texts:
    """The texts of the program, in English and in a language."""

    def __init__(self, root, language):
        # The catalogues of this language hold every key there is, but for those that are newer than the last
        # translation: like the program, the book shows these in English.
        self.root, locale, self.uncatalogued = root, root / "data/locale", None
        self.keys = {}
        for domain in DOMAINS:
            for context, text in self.entries(locale / "de" / f"{domain}.po"):
                self.keys[(context, text.rstrip("\n"))] = text.rstrip("\n")
        for domain in DOMAINS:
            for (context, text), translation in self.entries(locale / language / f"{domain}.po").items():
                if translation and language != "en":
                    self.keys[(context, text.rstrip("\n"))] = translation.rstrip("\n")
        self.labels = {}
        for (context, text), translation in sorted(self.keys.items()):
            self.labels.setdefault(shown(text), shown(translation))
            self.labels[f"{context}::{shown(text)}"] = shown(translation)

    @staticmethod
    def entries(path):
        found = {}
        if path.is_file():
            for context, text, translation in ENTRY.findall(path.read_text()):
                found[(unquoted(context), unquoted(text))] = unquoted(translation)
        found.pop(("", ""), None)
        return found

    def of_key(self, key):
        context, _, text = key.partition("::") if "::" in key else ("", "", key)
        if not re.search(r"[^\W\d_]", text):
            return text  # numbers are the same everywhere
        if (context, text) not in self.keys:
            if key not in self.texts_of_sources():
                fail(f"the program has no text {key}")
            self.keys[(context, text)] = text
        return self.keys[(context, text)]

    def texts_of_sources(self):
        if self.uncatalogued is None:
            files = sorted(path for folder in SOURCES for path in self.root.glob(f"{folder}/**/*.cpp"))
            files.append(self.root / "data/resource_layout.txt")
            self.uncatalogued = {unquoted(found).rstrip("\n") for path in files
                                 for found in KEY_IN_SOURCES.findall(path.read_text())}
        return self.uncatalogued

    def label(self, text):
        if text not in self.labels:
            if text in self.texts_of_sources():
                return shown(text.partition("::")[2])
            fail(f"no window has the label {text}")
        return self.labels[text]


class Layout:
    """The pages of the options dialog, from the file that the dialog itself reads."""

    def __init__(self, path):
        self.enums, self.pages = {}, []
        enum = page = group = resource = None
        for line in path.read_text().splitlines():
            word, _, rest = line.strip().partition(" ")
            if word == "start_enum":
                enum = []
            elif word == "end_enum":
                enum = None
            elif word == "start_page":
                page = {"groups": []}
            elif word == "end_page":
                self.pages.append(page)
                page = None
            elif word == "start_group":
                group = {"resources": []}
            elif word == "end_group":
                page["groups"].append(group)
                group = None
            elif word == "start_resource":
                resource = {}
            elif word == "end_resource":
                group["resources"].append(resource)
                resource = None
            elif enum is not None and page is None and line.strip().startswith("VMRNLS"):
                enum.append(self.key(line.strip()))
            elif enum is not None and word == "name":
                self.enums[rest] = enum
            elif rest and word not in {"#"}:
                for place in (resource, group, page):
                    if place is not None:
                        place[word] = self.key(rest)
                        break

    @staticmethod
    def key(text):
        found = re.fullmatch(rf"VMRNLS\(({LITERAL})\)", text)
        return ast.literal_eval(found[1]) if found else text


class Book:
    def __init__(self, root, language, version):
        self.root, self.language, self.version = root, language, version
        self.sources = root / "docs/help"
        self.texts = Texts(root, language)
        self.layout = Layout(root / "data/resource_layout.txt")
        self.formats = {}
        for path in sorted(root.glob("translators/*/*.json")):
            for entry in json.loads(path.read_text())["formats"]:
                self.formats[entry["name"]] = entry
        if sorted(self.formats) != sorted(FORMATS):
            fail(f"the book knows the formats {FORMATS}, and the translators are {sorted(self.formats)}")
        words = self.sources / language / "words.json"
        self.words = WORDS | (json.loads(words.read_text()) if words.is_file() else {})
        self.described = set()  # (format, option) that a page describes
        self.index = []         # (keyword, page with its anchor)
        self.pages = {}

    def source(self, name):
        """The language's own file, or the English one."""
        own = self.sources / self.language / name
        return own if own.is_file() else self.sources / "en" / name

    # What stands in double braces in a page.

    def expand(self, page, text):
        def one(found):
            macro = getattr(self, f"macro_{found[1]}", None)
            if not macro:
                fail(f"{page}: nothing is called {found[1]}")
            return macro(page, re.sub(r"\s+", " ", found[2] or "").strip())
        return MACRO.sub(one, text)

    def macro_label(self, page, text):
        return f"<b>{html.escape(self.texts.label(html.unescape(text)))}</b>"

    def macro_menu(self, page, text):
        return " &gt; ".join(self.macro_label(page, part.strip()) for part in text.split("|"))

    def macro_message(self, page, key):
        text = self.texts.of_key(html.unescape(key).replace("\\n", "\n").rstrip("\n")).replace("[[PROGRAM-NAME]]", PROGRAM)
        text = CONVERSION.sub("\x00", text).replace("%%", "%")
        return "<b>" + html.escape(text).replace("\x00", "<i>...</i>").replace("\n", " ") + "</b>"

    def macro_version(self, page, _):
        return self.version

    def macro_formats(self, page, _):
        head = "".join(f"<th>{self.words[word]}</th>" for word in ("format", "file names", "proposed output", "settings"))
        rows = [f"<tr>{head}</tr>"]
        for name in FORMATS:
            entry = self.formats[name]
            names = " ".join(f".{extension}" for extension in entry["extensions"])
            rows.append(f'<tr><td><a href="page:formats/{name.lower()}.htm">{name}</a></td><td><tt>{names}</tt></td>'
                        f'<td>{entry["default_output"]}</td><td><tt>{entry["resource_file"]}</tt></td></tr>')
        return f"<table>{''.join(rows)}</table>"

    def macro_exports(self, page, _):
        """The systems of the export dialog with the options that they set."""
        lines = (self.root / "data/export_overrides.txt").read_text().splitlines()
        parts, system = [], None
        known = {option["name"] for entry in self.formats.values() for option in entry["resources"]}
        for line in lines:
            if line == "#":
                parts.append("</table>")
                system = None
            elif system is None:
                system = line
                parts.append(f"<h4>{html.escape(system)}</h4><table><tr><th>{self.words['option']}</th>"
                             f"<th>{self.words['value']}</th></tr>")
            else:
                name, value = line.split(None, 1)
                if name not in known:
                    fail(f"no format has the option {name} of the export system {system}")
                label = self.label_of_option(name)
                stored = {"True": self.words["yes"], "False": self.words["no"]}.get(value, value)
                parts.append(f"<tr><td>{label}<br><font size=-1><tt>{name}</tt></font></td><td>{stored}</td></tr>")
        return "".join(parts)

    def label_of_option(self, name):
        for page in self.layout.pages:
            for group in page["groups"]:
                for resource in group["resources"]:
                    if resource["name"] == name:
                        return html.escape(self.texts.of_key(resource["short_description"]))
        fail(f"the options dialog has no option {name}")

    def macro_options(self, page, arguments):
        """{{options STEP input}}: the pages of the options dialog of that side."""
        name, side = arguments.split()
        declared = {option["name"]: option for option in self.formats[name]["resources"]}
        parts = []
        for sheet in self.layout.pages:
            if sheet["type"] not in (side, "both") or sheet.get("requires", "") not in {"", *declared}:
                continue
            parts.append(f"<h4>{html.escape(self.texts.of_key(sheet['name']))}</h4>")
            for group in sheet["groups"]:
                rows = [f"<tr><th colspan=2>{html.escape(self.texts.of_key(group['name']))}</th></tr>"]
                for resource in group["resources"]:
                    if resource["name"] in declared:
                        rows.append(self.option_row(page, name, side, resource, declared[resource["name"]]))
                parts.append(f"<table>{''.join(rows)}</table><br>")
        return "".join(parts)

    def option_row(self, page, name, side, resource, option):
        label = html.escape(self.texts.of_key(resource["short_description"]))
        tip = html.escape(self.texts.of_key(resource["long_description"]))
        anchor = f"{side}-{option['name']}"
        self.described.add((name, option["name"]))
        if not option["name"].startswith("vmr"):
            self.index += [(f"{html.unescape(label)} ({name})", f"{page}#{anchor}"), (option["name"], f"{page}#{anchor}")]
        return (f'<tr><td width="34%"><a name="{anchor}"></a><b>{label}</b><br><font size=-1><tt>{option["name"]}</tt>'
                f"</font></td><td>{tip}<br><font size=-1>{self.facts(resource, option)}</font></td></tr>")

    def facts(self, resource, option):
        """Values and default."""
        kind, default = option["type"], option["default"]
        if kind == "boolean":
            values = f"{self.words['yes']} (<tt>true</tt>), {self.words['no']} (<tt>false</tt>)"
            default = self.words["yes" if default else "no"]
        elif kind == "choice":
            texts = {key.rpartition("::")[2]: self.texts.of_key(key) for key in self.layout.enums[resource["enum"]]}
            if list(texts) != option["values"]:
                fail(f"the list {resource['enum']} of the dialog is not that of {option['name']}")
            values = ", ".join(f"<tt>{value}</tt>" if text == value else f"{html.escape(text)} (<tt>{value}</tt>)"
                               for value, text in texts.items())
            default = html.escape(texts[default])
        elif kind == "text":
            values, default = self.words["any text"], html.escape(default) or self.words["empty"]
        else:
            lowest, highest = option.get("minimum"), option.get("maximum")
            if lowest is not None and highest is not None:
                values = self.words["from to"] % (number(lowest), number(highest))
            else:
                values = self.words["or more"] % number(lowest) if lowest is not None else self.words["number"]
            default = number(default)
        return f"{self.words['values']}: {values}. {self.words['default']}: <b>{default}</b>."

    def macro_general(self, page, _):
        """The options that several formats share, with the sides on which they have an effect."""
        found = {}
        for sheet in self.layout.pages:
            for group in sheet["groups"]:
                for resource in group["resources"]:
                    for name in FORMATS:
                        declared = {option["name"]: option for option in self.formats[name]["resources"]}
                        if resource["name"].startswith("vmr") and resource["name"] in declared and \
                                sheet.get("requires", "") in {"", *declared}:
                            entry = found.setdefault(resource["name"], (resource, declared[resource["name"]], []))
                            entry[2].append((name, sheet["type"]))
        rows = []
        for name, (resource, option, uses) in found.items():
            label = html.escape(self.texts.of_key(resource["short_description"]))
            self.index += [(html.unescape(label), f"{page}#{name}"), (name, f"{page}#{name}")]
            places = ", ".join(f'<a href="page:formats/{used.lower()}.htm#{side}-{name}">{used} {self.words[side]}</a>'
                               for used, side in sorted(set(uses), key=lambda use: (use[1], FORMATS.index(use[0]))))
            rows.append(f'<tr><td width="34%"><a name="{name}"></a><b>{label}</b><br><font size=-1><tt>{name}</tt></font>'
                        f"</td><td>{html.escape(self.texts.of_key(resource['long_description']))}<br><font size=-1>"
                        f"{self.facts(resource, option)}<br>{self.words['used by']}: {places}</font></td></tr>")
        return f"<table>{''.join(rows)}</table>"

    # Pages.

    @staticmethod
    def place(name):
        """Where a page of docs/help stands in the book: the program asks for topics below substituted/source."""
        return name if name == "index.htm" else f"substituted/source/{name}"

    def styled(self, text):
        """What is written plainly in a page, in the little that the toolkit's pages can show."""
        frame = f'border=0 cellspacing=1 cellpadding=6 width="100%" bgcolor="{LINE}"'
        text = re.sub(r"<table>", f"<table {frame}>", text)
        text = re.sub(r"<tr>", f'<tr bgcolor="{CELL}">', text)
        text = re.sub(r"<td(?=[ >])", "<td valign=top", text)
        text = re.sub(r"<th( [^>]*)?>(.*?)</th>",
                      lambda found: f'<td{found[1] or ""} bgcolor="{HEAD}"><b>{found[2]}</b></td>', text, flags=re.S)
        text = re.sub(r"<note>(.*?)</note>", rf'<table {frame}><tr><td bgcolor="{HEAD}">\1</td></tr></table>', text,
                      flags=re.S)
        text = re.sub(r"<pre>\n?(.*?)</pre>", r"<pre><font size=-1>\1</font></pre>", text, flags=re.S)
        # The toolkit leaves no room between a paragraph and a table behind it.
        text = re.sub(r"</p>\s*<table", "</p>\n<p></p><table", text)
        # It breaks lines at blanks alone, which Japanese has none of.
        return re.sub(r"([\u3001\u3002])(?=[^\s<])", r"\1 ", text)

    def make_page(self, name):
        text = self.expand(name, self.source(name).read_text())
        title, _, body = text.partition("\n")
        title = re.fullmatch(r"<title>(.+)</title>", title)
        if not title:
            fail(f"{name} does not begin with its title")
        place = self.place(name)

        def link(found):
            target, hash_mark, anchor = found[1].partition("#")
            return f'href="{posixpath.relpath(self.place(target), posixpath.dirname(place) or ".")}{hash_mark}{anchor}"'
        body = re.sub(r'href="page:([^"]+)"', link, self.styled(body))
        home = posixpath.relpath("index.htm", posixpath.dirname(place) or ".")
        product = f"Crosswalk {self.version}"
        foot = product if name == "index.htm" else f'<a href="{home}">{product}</a>'
        self.pages[place] = (
            '<html><head><meta http-equiv="Content-Type" content="text/html; charset=utf-8">'
            f"<title>{title[1]}</title></head>\n"
            f'<body bgcolor="{PAPER}" text="{INK}" link="{LINK}" vlink="{LINK}">\n'
            f'<table border=0 cellspacing=0 cellpadding=8 width="100%"><tr><td bgcolor="{HEAD}">'
            f"<font size=+2><b>{title[1]}</b></font></td></tr></table>\n{body}\n"
            f"<hr><font size=-1>{foot}</font>\n</body></html>\n")
        return title[1]

    # Contents and index.

    def contents(self, language):
        """(depth, page, title) of each line; without a title the page's own stands."""
        items = []
        for line in (self.sources / language / "contents.txt").read_text().splitlines():
            if line.strip():
                name, _, title = line.strip().partition(" ")
                items.append(((len(line) - len(line.lstrip(" "))) // 2, name, title.strip()))
        return items

    @staticmethod
    def entry(name, page):
        return (f'<li><object type="text/sitemap"><param name="Name" value="{html.escape(name)}">'
                f'<param name="Local" value="{page}"></object>')

    @staticmethod
    def sitemap(body):
        # The project says in which encoding this is. Said here as well, the toolkit would decode it twice.
        return f"<html><body>\n{body}\n</body></html>\n"

    def hhc(self, items):
        lines, depth = ["<ul>"], 0
        for level, name, title in items:
            lines += ["<ul>"] * (level - depth) + ["</ul>"] * (depth - level)
            lines.append(self.entry(title, self.place(name)))
            depth = level
        return self.sitemap("\n".join(lines + ["</ul>"] * (depth + 1)))

    def hhk(self):
        lines = []
        for line in self.source("index.txt").read_text().splitlines():
            if line.strip():
                keyword, _, page = line.partition(" = ")
                self.index.append((keyword.strip(), page.strip()))
        for keyword, page in sorted(set(self.index), key=lambda item: (item[0].lower(), item[1])):
            name, hash_mark, anchor = page.partition("#")
            lines.append(self.entry(keyword, self.place(name) + hash_mark + anchor))
        return self.sitemap("<ul>\n" + "\n".join(lines) + "\n</ul>")

    def make(self):
        items = self.contents("en")
        own = self.contents(self.language)
        if [item[:2] for item in own] != [item[:2] for item in items]:
            fail(f"the contents of {self.language} are not those of the English book")
        titles = {name: self.make_page(name) for _, name, _ in items}
        for name in (path.relative_to(self.sources / "en").as_posix() for path in self.sources.glob("en/**/*.htm")):
            if name not in titles:
                fail(f"{name} does not stand in the contents")
        for name, entry in self.formats.items():
            for option in entry["resources"]:
                if (name, option["name"]) not in self.described:
                    fail(f"the option {option['name']} of {name} stands on no page")
        title = (self.sources / self.language / "title.txt").read_text().strip()
        files = {"vmrdoc.hhp": "[OPTIONS]\nCharset=UTF-8\nContents file=vmrdoc.hhc\nIndex file=vmrdoc.hhk\n"
                               f"Default topic=index.htm\nTitle={title}\n",
                 "vmrdoc.hhc": self.hhc([(level, name, own_title or titles[name]) for level, name, own_title in own]),
                 "vmrdoc.hhk": self.hhk()}
        return files | self.pages


def main():
    root, language, version, target = sys.argv[1:]
    files = Book(pathlib.Path(root), language, version).make()
    with zipfile.ZipFile(target, "w", zipfile.ZIP_DEFLATED) as archive:
        for name, text in files.items():
            # Always the same time: the same sources give the same book.
            archive.writestr(zipfile.ZipInfo(name, (2000, 1, 1, 0, 0, 0)), text, zipfile.ZIP_DEFLATED)


main()
