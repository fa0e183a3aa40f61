"""A long evening: a thousand track changes and two hundred sessions leave the program as it was."""
import os
import subprocess
import unittest

import support
from support import Stage


class Soak(unittest.TestCase):
    def test_memory_descriptors_and_threads_stay(self):
        with Stage() as stage:
            first, _ = stage.make("flac", "one.flac", seconds=600, signal="silence")
            second, _ = stage.make("flac", "two.flac", seconds=600, signal="silence")
            done = subprocess.run([os.path.join(support.BUILD, "soak_test"), first, second], capture_output=True, text=True,
                                  env={**stage.env, "KELP_GUI_LOG": stage.path("gui.log")}, timeout=1700)
            print(done.stdout)
            self.assertEqual(done.returncode, 0, done.stdout + done.stderr[-3000:])


if __name__ == "__main__":
    support.main()
