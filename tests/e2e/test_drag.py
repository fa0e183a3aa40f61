"""A real pointer drags rows inside the list: they land where they were dropped, and the order is kept."""
import contextlib
import os
import subprocess
import time
import unittest

import support
from support import Stage, need, read_text, wait_until
from test_album import Window


class Drag(unittest.TestCase):
    def setUp(self):
        need("xdotool")
        self.stage = self.enterContext(Stage()) if hasattr(self, "enterContext") else Stage().__enter__()
        if not hasattr(self, "enterContext"):
            self.addCleanup(self.stage.__exit__, None, None, None)
        self.stage.display()
        files = [self.stage.make("wav", name + ".wav", seconds=1)[0] for name in "abcdef"]
        self.window = Window(self.stage, "drag", files, 0, "null", platform="xcb")
        self.window.send("show")
        wait_until(self.pointer_finds_the_list, what="the window on the display")

    def xdotool(self, *arguments):
        return subprocess.run(["xdotool", *map(str, arguments)], env=self.stage.env, capture_output=True, text=True, check=True).stdout

    def place(self, row):
        """Left edge, top, width and height of a row on the screen."""
        count = self.window.log().count(f"[driver] place {row} ") + 1
        self.window.send(f"place {row}")
        return tuple(map(int, self.window.wait_log(rf"\[driver\] place {row} (-?\d+) (-?\d+) (\d+) (\d+)", count=count).groups()))

    def pointer_finds_the_list(self):
        x, y, width, height = self.place(0)
        if width < 20 or x < 0:
            return False
        self.xdotool("mousemove", x + 20, y + height // 2)
        return "WINDOW=" in self.xdotool("getmouselocation", "--shell") and self.xdotool("search", "--onlyvisible", "--name", "Kelp")

    def rows(self):
        name = f"r{time.monotonic_ns()}"
        self.window.send("rows " + name)
        return "".join(file[0] for file in self.window.wait_log(rf"\[driver\] rows {name} (.*)").group(1).split())

    def drag(self, row, target, part):
        """Takes a row and drops it on that part of another one's height; again when a busy machine missed it."""
        before = self.rows()
        for attempt in range(3):
            self.drag_once(row, target, part)
            if row == target:
                return
            with contextlib.suppress(AssertionError):
                return wait_until(lambda: self.rows() != before, 5 + 10 * attempt, "the drop")

    def drag_once(self, row, target, part):
        x, y, _, height = self.place(row)
        to_x, to_y, _, to_height = self.place(target)
        self.xdotool("mousemove", x + 40, y + height // 2, "mousedown", 1)
        end = round(to_y + to_height * part)
        begin = y + height // 2
        for step in range(1, 21):
            self.xdotool("mousemove", x + 40 + (to_x - x) * step // 20, begin + (end - begin) * step // 20)
            time.sleep(0.02)
        time.sleep(0.3)
        self.xdotool("mouseup", 1)

    def saved(self):
        text = read_text(os.path.join(self.stage.path("settings-drag"), "KELP", "KelpPlayer.ini"))
        line = next((line for line in text.splitlines() if line.startswith("playlist=")), "")
        return "".join(part.strip().strip('"')[0] for part in line[len("playlist="):].split(", ") if part)

    def test_rows_land_where_they_are_dropped_and_the_order_is_saved(self):
        self.assertEqual(self.rows(), "abcdef")
        for row, target, part, order in ((0, 3, 0.9, "bcdaef"),  # below a row
                                         (5, 1, 0.1, "bfcdae"),  # above a row
                                         (2, 5, 0.9, "bfdaec")):  # behind the last one
            self.drag(row, target, part)
            wait_until(lambda order=order: self.rows() == order, 30, f"the order {order} in place of {self.rows()}")
            wait_until(lambda order=order: self.saved() == order, 30, f"the saved order {order} in place of {self.saved()}")
        before = self.window.log().count("rows ")
        self.drag(3, 3, 0.8)
        self.assertEqual(self.rows(), "bfdaec", "a row dropped onto itself stays")
        self.assertGreater(self.window.log().count("rows "), before)
        self.window.quit()


if __name__ == "__main__":
    support.main()
