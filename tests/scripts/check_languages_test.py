"""Runs scripts/check-languages, whose path is the first argument, over small trees of sources."""
import pathlib
import subprocess
import sys
import tempfile
import unittest

CHECK = sys.argv.pop(1)
HEADER = 'msgid ""\nmsgstr "Content-Type: text/plain; charset=UTF-8\\n"\n\n'
MENU = """<resource xmlns="http://www.wxwidgets.org/wxxrc"><object class="wxMenu" name="MB_X">
<object class="wxMenuItem" name="A"><label>m__x::_Open</label></object>
<object class="wxMenuItem" name="B"><label>m__x::_Print</label></object>
</object></resource>"""


class CheckLanguages(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        self.write("data/locale/de/vmrgrlib.po", HEADER)
        self.write("data/resource_layout.txt", "")
        self.write("source/nls/sglStringTableRows.cpp", "")

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)

    def translate(self, domain, *entries):
        texts = [f'msgctxt "{context}"\nmsgid "{text}"\nmsgstr "{german}"\n' for context, text, german in entries]
        self.write(f"data/locale/de/{domain}.po", HEADER + "\n".join(texts))

    def check(self):
        done = subprocess.run([CHECK, self.root], capture_output=True, text=True)
        self.assertEqual(done.stderr, "")
        return done.returncode, done.stdout

    def lacks(self, domain, entry):
        status, said = self.check()
        self.assertEqual(status, 1, said)
        self.assertIn(f"de/{domain}.po lacks\n{entry}", said)

    def test_accepts_a_tree_without_texts(self):
        self.assertEqual(self.check(), (0, "0 texts, 0 faults\n"))

    def test_finds_a_key_that_is_written_in_two_pieces(self):
        self.write("base/a.cpp", 'f("engine::The file %s "\n  "is \\"odd\\".\\n");')
        self.lacks("vmrengine", '#, c-format\nmsgctxt "engine"\nmsgid "The file %s is \\"odd\\".\\n"\nmsgstr ""')

    def test_finds_keys_without_a_context_where_they_are_arguments(self):
        self.write("source/a.cpp", 'say("Finished\\n"); gsprintf("vmrgrlib", "Reading :"); other("No key");')
        self.lacks("vmrgrlib", 'msgid "Finished\\n"')
        self.lacks("vmrgrlib", 'msgid "Reading :"')
        self.assertNotIn("No key", self.check()[1])

    def test_finds_the_string_table_and_the_layout(self):
        self.write("source/nls/sglStringTableRows.cpp", '    {1088, "Full Release"},\n')
        self.write("data/resource_layout.txt", '# it\'s a page\n    name VMRNLS("d.res.page::Geometry")\n')
        self.lacks("vmrgrlib", 'msgid "Full Release"')
        self.lacks("vmrgrlib", 'msgctxt "d.res.page"\nmsgid "Geometry"')

    def test_finds_the_texts_that_a_desktop_shows(self):
        self.write("data/desktop/vmr.desktop.in", "[Desktop Entry]\nName=@VMR_PRODUCT_NAME@\nGenericName=Translator\n"
                                                  "Comment=Translate with @VMR_PRODUCT_NAME@\nExec=vmr %F\n")
        self.write("data/desktop/vmr.metainfo.xml.in",
                   "<component><id>com.example</id><name>@VMR_PRODUCT_NAME@</name><summary>Translate\n  all</summary>"
                   "<description><p>In a window</p><ul><li>STL</li></ul></description></component>")
        self.write("data/desktop/vmr.mime.xml",
                   '<mime-info xmlns="http://www.freedesktop.org/standards/shared-mime-info">'
                   '<mime-type type="model/stl">'
                   "<comment>STL mesh</comment><acronym>Short</acronym></mime-type></mime-info>")
        wanted = ["Translator", "Translate with @VMR_PRODUCT_NAME@", "Translate all", "In a window", "STL", "STL mesh"]
        for text in wanted:
            self.lacks("vmrdesktop", f'msgid "{text}"\nmsgstr ""')
        self.assertIn(f"{len(wanted)} texts, {len(wanted)} faults\n", self.check()[1])

        def translate(shown):
            texts = [f'msgid "{text}"\nmsgstr "{german}"\n' for text, german in zip(wanted, shown)]
            self.write("data/locale/de/vmrdesktop.po", HEADER + "\n".join(texts))

        german = ["Konverter", "Mit @VMR_PRODUCT_NAME@ übersetzen", "Alles übersetzen", "Im Fenster", "STL", "STL-Netz"]
        translate(german)
        self.assertEqual(self.check(), (0, "6 texts, 0 faults\n"))
        german[1] = "Übersetzen"
        translate(german)
        status, said = self.check()
        self.assertEqual(status, 1)
        self.assertIn('de: "Übersetzen" has not the variables of "Translate with @VMR_PRODUCT_NAME@"', said)

    def test_reads_xrc_files_as_the_toolkit_does(self):
        self.write("data/xrc/vmrgrlib/menu.xrc", MENU)
        self.lacks("vmrgrlib", 'msgctxt "m_x"\nmsgid "&Open"')

    def test_asks_for_messages_of_translators_with_their_line_end(self):
        self.write("translators/a/a.cpp", 'sdkText("a::%d faces");')
        self.write("translators/a/a.json", '{"formats": [{"name": "A", "filter": "format.filter::A Files"}]}')
        self.lacks("vmrhost", '#, c-format\nmsgctxt "a"\nmsgid "%d faces\\n"')
        self.lacks("vmrhost", 'msgctxt "format.filter"\nmsgid "A Files"')

    def test_asks_for_terms_in_messages_without_a_line_end(self):
        self.write("translators/a/a.cpp", 'sdkText("a::%s", "term::a face");')
        self.lacks("vmrhost", 'msgctxt "term"\nmsgid "a face"')

    def test_leaves_out_what_has_no_words(self):
        self.write("source/a.cpp", 'say("%s\\n\\n"); say("****\\n");')
        self.assertEqual(self.check(), (0, "0 texts, 0 faults\n"))

    def test_takes_an_empty_or_fuzzy_translation_for_none(self):
        self.write("base/a.cpp", 'f("engine::One"); f("engine::Two");')
        self.translate("vmrengine", ("engine", "One", ""))
        self.lacks("vmrengine", 'msgctxt "engine"\nmsgid "One"')
        self.write("data/locale/de/vmrengine.po",
                   HEADER + '#, fuzzy\nmsgctxt "engine"\nmsgid "Two"\nmsgstr "Zwei"\n')
        self.lacks("vmrengine", 'msgctxt "engine"\nmsgid "Two"')

    def test_tells_what_nothing_uses_without_failing(self):
        self.translate("vmrengine", ("engine", "Old", "Alt"))
        self.assertEqual(self.check(), (0, 'de/vmrengine.po: nothing uses "engine::Old"\n0 texts, 0 faults\n'))

    def test_does_not_fail_for_a_language_that_is_not_complete(self):
        self.write("data/locale/xx/vmrgrlib.po", HEADER)
        self.write("source/a.cpp", 'say("cl::Usage");')
        self.translate("vmrgrlib", ("cl", "Usage", "Aufruf"))
        status, said = self.check()
        self.assertEqual(status, 0, said)
        self.assertIn('xx/vmrgrlib.po lacks\nmsgctxt "cl"\nmsgid "Usage"', said)

    def test_refuses_mnemonics_that_are_not_told_apart(self):
        self.write("data/xrc/vmrgrlib/menu.xrc", MENU)
        self.translate("vmrgrlib", ("m_x", "&Open", "Ö&ffnen"), ("m_x", "&Print", "&Drucken"))
        self.assertEqual(self.check()[0], 0)
        self.translate("vmrgrlib", ("m_x", "&Open", "Einle&sen"), ("m_x", "&Print", "Au&sgeben"))
        status, said = self.check()
        self.assertEqual(status, 1)
        self.assertIn("de: MB_X: the mnemonic s stands in Einle&sen, Au&sgeben", said)
        self.translate("vmrgrlib", ("m_x", "&Open", "Lesen"), ("m_x", "&Print", "&Drucken"))
        status, said = self.check()
        self.assertEqual(status, 1)
        self.assertIn('de: "Lesen" has no mnemonic', said)

    def test_finds_mnemonics_that_stand_behind_the_text(self):
        self.write("data/xrc/vmrgrlib/menu.xrc", MENU)
        self.translate("vmrgrlib", ("m_x", "&Open", "開く(&O)"), ("m_x", "&Print", "印刷(&O)..."))
        status, said = self.check()
        self.assertEqual(status, 1)
        self.assertIn("de: MB_X: the mnemonic o stands in 開く(&O), 印刷(&O)...", said)

    def test_refuses_english_mnemonics_that_are_not_told_apart(self):
        self.write("data/xrc/vmrgrlib/menu.xrc", MENU.replace("_Print", "Pr_obe"))
        self.translate("vmrgrlib", ("m_x", "&Open", "Ö&ffnen"), ("m_x", "Pr&obe", "&Prüfen"))
        status, said = self.check()
        self.assertEqual(status, 1)
        self.assertIn("en: MB_X: the mnemonic o stands in &Open, Pr&obe", said)

    def test_compares_the_pages_of_the_main_window_with_its_menu_bar(self):
        def window(kind, name, *children):
            return f'<object class="{kind}" name="{name}">{"".join(children)}</object>'

        def menu(name, label, item):
            return window("wxMenu", name, f"<label>{label}</label>",
                          window("wxMenuItem", "I", f"<label>{item}</label>"))

        def write(page):
            self.write("data/xrc/vmrgrlib/all.xrc",
                       '<resource xmlns="http://www.wxwidgets.org/wxxrc">' +
                       window("wxMenuBar", "MB_PROPERTYSHEET_MENU", menu("M_E", "m__x::_Edit", "m__x::_Paste")) +
                       window("wxPanel", page, window("wxButton", "B", "<label>d.x::_Print</label>")) + "</resource>")

        self.translate("vmrgrlib", ("m_x", "&Edit", "&Bearbeiten"), ("m_x", "&Paste", "&Einfügen"),
                       ("d.x", "&Print", "&Drucken"))
        write("DLG_SINGLE")
        self.assertEqual(self.check()[0], 0)
        self.translate("vmrgrlib", ("m_x", "&Edit", "E&dition"), ("m_x", "&Paste", "&Einfügen"),
                       ("d.x", "&Print", "&Drucken"))
        for page in ["DLG_SINGLE", "DLG_MERGE", "DLG_BATCH_DIALOG"]:
            write(page)
            status, said = self.check()
            self.assertEqual(status, 1)
            self.assertIn(f"de: {page}: the mnemonic d stands in &Drucken, E&dition", said)
        write("DLG_OTHER")
        self.assertEqual(self.check()[0], 0)

    def test_refuses_a_translation_that_lost_a_variable(self):
        self.write("source/a.cpp", 'say("m::About [[PROGRAM-NAME]]");')
        self.translate("vmrgrlib", ("m", "About [[PROGRAM-NAME]]", "Info zu [[PROGRAM-NAME]]"))
        self.assertEqual(self.check()[0], 0)
        self.translate("vmrgrlib", ("m", "About [[PROGRAM-NAME]]", "Info zu [[PROGRAMM-NAME]]"))
        status, said = self.check()
        self.assertEqual(status, 1)
        self.assertIn('de: "Info zu [[PROGRAMM-NAME]]" has not the variables of "About [[PROGRAM-NAME]]"', said)


if __name__ == "__main__":
    unittest.main()
