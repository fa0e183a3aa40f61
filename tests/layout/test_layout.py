"""The plan of the house: the tree keeps it, and the check finds each kind of breach."""
import importlib.machinery
import importlib.util
import os
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
loader = importlib.machinery.SourceFileLoader("check_layout", os.path.join(ROOT, "tools", "check-layout"))
spec = importlib.util.spec_from_loader("check_layout", loader)
check_layout = importlib.util.module_from_spec(spec)
loader.exec_module(check_layout)

WINDOW = {"ui/window/player_gui_window.h": "#pragma once\n"}


class Layout(unittest.TestCase):
    def breaches(self, files):
        with tempfile.TemporaryDirectory() as root:
            for path, text in files.items():
                os.makedirs(os.path.join(root, os.path.dirname(path)), exist_ok=True)
                with open(os.path.join(root, path), "w", encoding="utf-8") as file:
                    file.write(text)
            return check_layout.check(root)

    def assertBreach(self, files, words):
        found = self.breaches(files)
        self.assertTrue(any(words in line for line in found), f"{words!r} not among {found}")

    def test_this_tree_keeps_the_plan(self):
        self.assertEqual(check_layout.check(ROOT), [])

    def test_the_check_reads_this_tree(self):
        self.assertGreater(len(list(check_layout.sources(ROOT))), 100)

    def test_window_and_app_files_may_include_the_window(self):
        files = {"playback/window/a.cpp": '#include "ui/window/player_gui_window.h"\n',
                 "app/main.cpp": '#include "ui/window/player_gui_window.h"\n', **WINDOW}
        self.assertEqual(self.breaches(files), [])

    def test_others_may_not_include_the_window(self):
        self.assertBreach({"playback/a.cpp": '#include "ui/window/player_gui_window.h"\n', **WINDOW}, "only files in */window/")

    def test_a_lower_folder_may_not_include_a_higher_one(self):
        self.assertBreach({"engine/a.h": '#pragma once\n#include "playback/b.h"\n', "playback/b.h": "#pragma once\n"},
                          "engine/ stands below playback/")

    def test_circles_are_found(self):
        self.assertBreach({"player_core/a/x.h": '#pragma once\n#include "player_core/b/y.h"\n',
                           "player_core/b/y.h": '#pragma once\n#include "player_core/a/x.h"\n'}, "in a circle")

    def test_the_front_end_knows_only_the_engines_two_functions(self):
        self.assertBreach({"engine/a.cpp": '#include "player_core/dsp/x.h"\n', "player_core/dsp/x.h": "#pragma once\n"},
                          "no header of the engine")
        self.assertEqual(self.breaches({"engine/a.cpp": '#include "kelp_player_core.h"\n',
                                        "player_core/include/kelp_player_core.h": "#ifndef X\n#define X\n#endif\n"}), [])

    def test_the_engine_knows_nothing_of_the_front_end(self):
        self.assertBreach({"player_core/a/x.cpp": '#include "engine/b.h"\n', "engine/b.h": "#pragma once\n"},
                          "nothing of the front end")

    def test_the_own_header_comes_first(self):
        self.assertBreach({"engine/a.cpp": '#include <vector>\n#include "engine/a.h"\n', "engine/a.h": "#pragma once\n"},
                          "own header first")

    def test_a_long_file_is_named(self):
        self.assertBreach({"engine/a.cpp": "\n" * 700}, "more than 600 lines")

    def test_two_types_of_one_name_are_named(self):
        text = "#pragma once\nnamespace n {\nstruct Facts\n{\n};\n}\n"
        self.assertBreach({"player_core/a/x.h": text, "player_core/b/y.h": text}, "the type Facts is defined at player_core/a/x.h:3 too")

    def test_a_header_without_guard_is_named(self):
        self.assertBreach({"engine/a.h": "int x;\n"}, "no guard")


if __name__ == "__main__":
    unittest.main()
