"""The documents at the door tell the truth: paths and commands they name exist."""
import os
import re
import sys
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(os.path.dirname(os.path.dirname(os.path.abspath(__file__))), "support"))
from source_tree import ROOT, read  # noqa: E402

DOCUMENTS = ["README.md", "CONTRIBUTING.md", "docs/ARCHITECTURE.md", "player_core/README.md", "licenses/THIRD-PARTY.md"]
# What looks like a path: a word in backticks with a slash or a known ending, without blanks and wild cards.
PATH = re.compile(r"`([A-Za-z0-9_.-]+(?:/[A-Za-z0-9_.-]+)*/?)`")
MADE_BY_BUILDING = ("build/", "build-")


class Documents(unittest.TestCase):
    def test_they_exist(self):
        for document in DOCUMENTS:
            self.assertTrue(os.path.isfile(os.path.join(ROOT, document)), document)

    def test_paths_they_name_exist(self):
        named = 0
        for document in DOCUMENTS:
            for path in PATH.findall(read(document)):
                known = "/" in path or path.endswith((".md", ".txt", ".json", ".cmake", ".py"))
                if not known or path.startswith(MADE_BY_BUILDING):
                    continue
                named += 1
                self.assertTrue(os.path.exists(os.path.join(ROOT, path)), f"{document} names {path}, which does not exist")
        self.assertGreater(named, 20)

    def test_the_readme_names_every_folder_of_the_program(self):
        table = read("README.md")
        for folder in sorted(os.listdir(ROOT)):
            if os.path.isfile(os.path.join(ROOT, folder, "CMakeLists.txt")) and not os.path.isfile(os.path.join(ROOT, folder, "CMakeCache.txt")):
                self.assertIn(f"`{folder}/`", table, folder)

    def test_links_lead_somewhere(self):
        for document in DOCUMENTS:
            for link in re.findall(r"\]\(([^)#:]+)\)", read(document)):
                target = os.path.normpath(os.path.join(ROOT, os.path.dirname(document), link))
                self.assertTrue(os.path.exists(target), f"{document} links to {link}, which does not exist")

    def test_commands_at_the_root_can_be_run(self):
        for document in DOCUMENTS:
            for command in set(re.findall(r"(?:^|[`\s])\./(run|test|tools/[a-z-]+)", read(document))):
                self.assertTrue(os.access(os.path.join(ROOT, command), os.X_OK), f"{document}: ./{command}")

    def test_every_library_that_is_linked_has_a_notice(self):
        notices = read("licenses/THIRD-PARTY.md").lower()
        for library in ("Qt", "FFmpeg", "ALSA", "PulseAudio", "libsoxr", "FFTW", "D-Bus", "GoogleTest", "Google Benchmark",
                        "Inter", "DejaVu"):
            self.assertIn(library.lower(), notices, library)


if __name__ == "__main__":
    unittest.main()
