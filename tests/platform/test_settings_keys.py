"""Keys of settings are spelt in one place: the table. Everything else names the constant."""
import os
import re
import sys
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))), "support"))
from source_tree import read, sources  # noqa: E402

TABLE = "platform/settings_table.h"
LITERAL = re.compile(r'"((?:[^"\\\n]|\\.)*)"')
CONSTANT = re.compile(r'inline constexpr Setting<\w+> (\w+)\{"([^"]+)"_L1')
# A literal that begins like this is a key, or the beginning of one, whether or not the table knows it.
GROUPS = ("param/", "ui/", "play/", "fx/", "engine/", "ui-language/")
# Include lines, and paths of resources and sources, look like groups and are none.
INCLUDE = re.compile(r"^\s*#\s*include\b")
FILE_ENDINGS = (".h", ".cpp", ".svg", ".png", ".md", ".qm", ".css", ".qss", ".html")


def spelt(text, keys):
    """The keys that a source spells, with their lines."""
    for number, line in enumerate(text.split("\n"), 1):
        if INCLUDE.match(line):
            continue
        # Comments may tell of keys.
        for literal in LITERAL.findall(line.split("//")[0]):
            if literal in keys or (literal.startswith(GROUPS) and not literal.endswith(FILE_ENDINGS)):
                yield number, literal


class SettingsKeys(unittest.TestCase):
    def setUp(self):
        self.constants = CONSTANT.findall(read(TABLE))
        self.keys = {key for _, key in self.constants}

    def test_the_table_is_read(self):
        self.assertGreater(len(self.keys), 100)
        self.assertEqual(len(self.keys), len(self.constants))

    def test_every_constant_stands_in_the_list_of_all_in_the_same_order(self):
        listed = re.findall(r"rowOf\((\w+)\)", read(TABLE))
        self.assertEqual(listed, [name for name, _ in self.constants])

    def test_no_other_source_spells_a_key(self):
        for path in sources(without=[TABLE]):
            for number, literal in spelt(read(path), self.keys):
                self.fail(f'{path}:{number}: "{literal}" is a key of a setting; name its constant in {TABLE}')

    def test_the_check_finds_a_key(self):
        for line in ('x.value("param/vol")', 'u"param/unknown"_s', '"fx/" + name', '"lastPlayed"_L1', '"devices"'):
            self.assertEqual(len(list(spelt(line, self.keys))), 1, line)
        for line in ('#include "engine/line_cutter.h"', '"engine"', '// the setting "param/vol"', '"ui/theme.qss"'):
            self.assertEqual(list(spelt(line, self.keys)), [], line)


if __name__ == "__main__":
    unittest.main()
