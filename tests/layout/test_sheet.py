"""The style sheet has rules only for what there is: each is parsed at the start and compared with every widget."""
import os
import re
import sys
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))), "support"))
from source_tree import read, sources  # noqa: E402

SHEETS = ["ui/style_sheet.cpp", "ui/style_rules.cpp"]


class Sheet(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        rules = "".join(read(sheet) for sheet in SHEETS)
        cls.objects = set(re.findall(r"Q[A-Za-z]+#(\w+)", rules))
        cls.properties = set(re.findall(r"\[(\w+)=\"", rules))
        cls.words = set()
        for path in sources(without=SHEETS):
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
