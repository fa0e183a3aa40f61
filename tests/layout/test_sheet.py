"""The style sheet has rules only for what there is: each is parsed at the start and compared with every widget."""
import os
import re
import sys
import unittest

sys.dont_write_bytecode = True
ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
SHEETS = ["ui/style_sheet.cpp", "ui/style_rules.cpp"]
FOLDERS = ["app", "dsp", "engine", "net", "output", "playback", "ui"]


def read(path):
    with open(os.path.join(ROOT, path), encoding="utf-8") as file:
        return file.read()


def sources():
    for folder in FOLDERS:
        for place, _, names in os.walk(os.path.join(ROOT, folder)):
            for name in names:
                path = os.path.relpath(os.path.join(place, name), ROOT)
                if name.endswith((".cpp", ".h")) and path not in SHEETS:
                    yield path


class Sheet(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        rules = "".join(read(sheet) for sheet in SHEETS)
        cls.objects = set(re.findall(r"Q[A-Za-z]+#(\w+)", rules))
        cls.properties = set(re.findall(r"\[(\w+)=\"", rules))
        cls.words = set()
        for path in sources():
            cls.words.update(re.findall(r'"(\w+)"', read(path)))

    def test_the_rules_were_found(self):
        self.assertGreater(len(self.objects), 50)
        self.assertGreater(len(self.properties), 5)

    def test_every_object_is_named_by_some_widget(self):
        self.assertEqual(sorted(self.objects - self.words), [])

    def test_every_property_is_set_by_somebody(self):
        self.assertEqual(sorted(self.properties - self.words), [])


if __name__ == "__main__":
    unittest.main()
