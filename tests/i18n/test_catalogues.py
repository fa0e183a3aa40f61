"""The check of the catalogues finds each kind of fault, and the update fills rows in."""
import importlib.machinery
import importlib.util
import os
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
sys.path.insert(0, os.path.join(ROOT, "tools"))
import catalogues  # noqa: E402


def load(name):
    loader = importlib.machinery.SourceFileLoader(name.replace("-", "_"), os.path.join(ROOT, "tools", name))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader(loader.name, loader))
    loader.exec_module(module)
    return module


check = load("check-catalogues")
update = load("update-catalogues")

FILE = """<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="{language}" sourcelanguage="zh_CN">
<context>
    <name>Log</name>
{messages}
</context>
</TS>
"""


def message(source, translation, state="", comment=""):
    kind = f' type="{state}"' if state else ""
    note = f"<comment>{comment}</comment>" if comment else ""
    return f"<message><source>{source}</source>{note}<translation{kind}>{translation}</translation></message>"


def plural(source, *forms):
    inner = "".join(f"<numerusform>{form}</numerusform>" for form in forms)
    return f'<message numerus="yes"><source>{source}</source><translation>{inner}</translation></message>'


class Check(unittest.TestCase):
    def faults(self, code, *messages, wanted=None, language=None):
        with tempfile.TemporaryDirectory() as folder:
            ts = os.path.join(folder, f"kelp_{code}.ts")
            with open(ts, "w", encoding="utf-8") as file:
                file.write(FILE.format(language=language or catalogues.LANGUAGES[code], messages="\n".join(messages)))
            return check.check_catalogue(code, ts, wanted)

    def assertFault(self, words, code, *messages, **more):
        found = self.faults(code, *messages, **more)
        self.assertEqual(len(found), 1, found)
        self.assertIn(words, found[0])

    def test_whole_catalogues_pass(self):
        self.assertEqual(self.faults("en", message("设备 %1 的 &lt;b&gt;采样率&lt;/b&gt;", "&lt;b&gt;Rate&lt;/b&gt; of %1")), [])
        self.assertEqual(self.faults("ja", message("停止", "停止"), message("设备", "デバイス")), [])
        self.assertEqual(self.faults("hant", message("停止", "停止"), message("设备：%1", "裝置：%1")), [])
        self.assertEqual(self.faults("ru", plural("%n 首", "%n трек", "%n трека", "%n треков")), [])

    def test_a_missing_file_and_a_broken_one_are_named(self):
        self.assertIn("does not exist", check.check_catalogue("en", "/nowhere/kelp_en.ts", None)[0])
        self.assertFault("cannot be read", "en", "<message>")

    def test_a_missing_row(self):
        self.assertFault("is missing", "en", wanted={("Log", "停止", "")})

    def test_a_vanished_row(self):
        self.assertFault("has vanished", "en", message("停止", "Stop"), wanted=set())

    def test_the_comment_tells_rows_apart(self):
        rows = (message("停止", "Stop"), message("停止", "Stopped", comment="state"))
        self.assertEqual(self.faults("en", *rows, wanted={("Log", "停止", ""), ("Log", "停止", "state")}), [])

    def test_rows_that_are_not_translated(self):
        self.assertFault("is not translated", "de", message("停止", "Stopp", "unfinished"))
        self.assertFault("is not translated", "de", message("停止", ""))
        self.assertFault("is not translated", "ru", plural("%n 首", "%n трек", "", "%n треков"))
        self.assertFault("left over", "de", message("停止", "Stopp", "vanished"))
        self.assertFault("left over", "de", message("停止", "Stopp", "obsolete"))

    def test_placeholders(self):
        self.assertFault("placeholders", "fr", message("%1 到 %2", "%1 à %1"))
        self.assertFault("placeholders", "fr", message("%1 到 %2", "de %1"))
        self.assertFault("placeholders", "fr", message("停止", "Arrêter %1"))
        self.assertFault("placeholders", "fr", message("&lt;b&gt;停止&lt;/b&gt;", "&lt;b&gt;Arrêter"))
        self.assertEqual(self.faults("fr", message("%1 到 %2", "vers %2 depuis %1")), [])
        self.assertEqual(self.faults("fr", message("占 80%", "80 % du total")), [])

    def test_plural_forms(self):
        self.assertEqual(self.faults("pl", plural("%n 首", "jeden utwór", "%n utwory", "%n utworów")), [])
        self.assertFault("no number", "pl", plural("%n 首", "%n utwór", "%n utwory", "utwory"))
        self.assertFault("placeholders", "pl", plural("%1: %n 首", "%1: %n utwór", "%n utwory", "%1: %n utworów"))

    def test_characters_of_another_language(self):
        for code in ("en", "ru", "de", "fr", "es", "pt", "ar", "pl", "ko"):
            self.assertFault("does not write (停止)", code, message("停止", "停止"))
        self.assertFault("does not write (：)", "de", message("设备：", "Gerät："))
        self.assertFault("does not write (设备)", "ja", message("设备", "设备"))
        self.assertFault("does not write (设备)", "hant", message("设备", "设备"))

    def test_blanks_at_the_ends(self):
        self.assertFault("blank", "en", message(" 停止", "Stop"))

    def test_the_language_of_the_file(self):
        self.assertFault("the language is", "de", message("停止", "Stopp"), language="fr_FR")


class Update(unittest.TestCase):
    def setUp(self):
        for tool in ("lupdate", "lconvert"):
            if not catalogues.qt_tool(tool):
                self.skipTest(f"{tool} of Qt is not installed, so catalogues cannot be made here")
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = folder.name
        os.makedirs(os.path.join(self.root, "app"))
        os.makedirs(os.path.join(self.root, "i18n"))
        self.ts = catalogues.path_of("ru", self.root)
        former = catalogues.path_of
        update.catalogues.path_of = lambda code, root=self.root: former(code, root)
        self.addCleanup(setattr, update.catalogues, "path_of", former)

    def write(self, path, text):
        with open(os.path.join(self.root, path), "w", encoding="utf-8") as file:
            file.write(text)
        return os.path.join(self.root, path)

    def update_sources(self, text):
        self.write("app/a.cpp", text)
        self.assertEqual(catalogues.lupdate(self.ts, "ru_RU", self.root), "")

    def rows(self):
        return {row.source: row for row in catalogues.read_rows(self.ts)[1]}

    def test_rows_come_in_are_filled_survive_and_go(self):
        both = 'auto a = QCoreApplication::translate("Log", "停止\\n%1");\n' \
               'auto b = QCoreApplication::translate("Log", "%n 首", nullptr, 3);\n'
        self.update_sources(both)
        self.assertEqual({row.state for row in self.rows().values()}, {"unfinished"})
        rows = self.write("rows.tsv", "# a comment\nLog\t停止\\n%1\tСтоп \"и\" <b>\\n%1\nLog\t%n 首\t%n трек\t%n трека\t%n треков\n")
        self.assertEqual(update.fill("ru", [rows]), [])
        self.assertEqual(self.rows()["停止\n%1"].forms, ['Стоп "и" <b>\n%1'])
        self.assertEqual(self.rows()["%n 首"].forms, ["%n трек", "%n трека", "%n треков"])
        with open(self.ts, encoding="utf-8") as file:
            filled = file.read()
        self.update_sources(both)
        with open(self.ts, encoding="utf-8") as file:
            self.assertEqual(file.read(), filled)
        self.update_sources("")
        self.assertEqual(self.rows(), {})

    def test_lines_that_cannot_be_used_are_named(self):
        self.update_sources('auto b = QCoreApplication::translate("Log", "%n 首", nullptr, 3);\n')
        rows = self.write("rows.tsv", "Log\t没有\tнет\nLog\t%n 首\t%n трек\n")
        problems = update.fill("ru", [rows])
        self.assertEqual(len(problems), 2)
        self.assertIn("no source has this text", problems[0])
        self.assertIn("needs 3 form(s)", problems[1])
        with self.assertRaises(ValueError):
            list(catalogues.read_tsv(self.write("short.tsv", "Log\t停止\n")))

    def test_escapes_of_a_list(self):
        self.assertEqual(catalogues.unescape(r"a\nb\tc\\n\x"), "a\nb\tc\\n\\x")


class Tree(unittest.TestCase):
    def test_the_languages_are_those_of_the_program(self):
        self.assertEqual(len(catalogues.LANGUAGES) + 1, 12)


if __name__ == "__main__":
    unittest.main()
