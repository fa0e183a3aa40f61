"""The whole player, driven through an album by curl alone."""
import json
import subprocess
import unittest

import support
from remote import RemotePlayer, make_album
from support import Stage, need, wait_until

TITLES = ["Eins", 'Zwei \\"so\\"', "海带", "Vier"]
SECONDS = 60


class RemoteCurl(unittest.TestCase):
    def setUp(self):
        need("curl", "Xvfb")

    def curl(self, url, *options):
        """Status and body."""
        done = subprocess.run(["curl", "--silent", "--show-error", "--noproxy", "*", "--max-time", "60", "--write-out", "\n%{http_code}",
                               *options, url], capture_output=True, text=True, timeout=support.PATIENCE)
        self.assertEqual(done.returncode, 0, done.stderr)
        body, _, status = done.stdout.rpartition("\n")
        return int(status), body

    def state(self, remote):
        status, body = self.curl(remote.url("/state"))
        self.assertEqual(status, 200, body)
        return json.loads(body)

    def tell(self, remote, **query):
        status, body = self.curl(remote.url("/cmd", **query))
        self.assertEqual(status, 200, body)
        return json.loads(body)

    def wait_track(self, remote, track, **wanted):
        def there():
            state = self.state(remote)
            return state if state["track"] == track and all(state[key] == value for key, value in wanted.items()) else None
        return wait_until(there, what=f"row {track} with {wanted}")

    def test_an_album_from_the_first_track_to_the_last(self):
        with Stage() as stage:
            stage.display()
            stage.sound_server()
            sheet = make_album(stage, [title.replace("\\", "").replace('"', "") for title in TITLES], SECONDS)
            remote = RemotePlayer(stage, sheet)
            state = self.wait_track(remote, 0, playing=True, paused=False)
            remote.player.wait_log(r"OPENED ")
            self.assertEqual(state["total"], len(TITLES))
            self.assertIn("Eins", state["title"])
            self.assertEqual((state["format"], state["volume"], state["muted"]), ("WAV", 80, False))
            self.assertEqual((state["pos"], state["dur"]), (0, 0))

            status, body = self.curl(remote.url("/library"))
            library = json.loads(body)
            self.assertEqual((status, library["total"]), (200, len(TITLES)))
            self.assertEqual([item["i"] for item in library["items"]], list(range(len(TITLES))))
            self.assertEqual([item["current"] for item in library["items"]], [True, False, False, False])
            self.assertIn("海带", library["items"][2]["title"])
            self.assertEqual(len(json.loads(self.curl(remote.url("/library", n=0))[1])["items"]), 1)

            self.assertTrue(self.tell(remote, do="pause")["paused"])
            self.assertTrue(self.tell(remote, do="pause")["paused"])
            self.assertFalse(self.tell(remote, do="play")["paused"])
            self.assertFalse(self.tell(remote, do="play")["paused"])
            self.assertEqual(self.tell(remote, do="vol", v=33)["volume"], 33)
            remote.player.wait_log(r"vol 33")
            self.assertTrue(self.tell(remote, do="vol", v=0)["muted"])

            for row in (1, 2, 3):
                self.assertEqual(self.tell(remote, do="next")["track"], row)
                self.wait_track(remote, row, playing=True)
            self.assertEqual(self.tell(remote, do="next")["track"], 3)
            self.assertEqual(self.tell(remote, do="prev")["track"], 2)
            self.assertEqual(self.tell(remote, do="playat", i=0)["track"], 0)
            self.wait_track(remote, 0, playing=True, paused=False)
            self.assertFalse(self.tell(remote, do="stop")["playing"])
            wait_until(lambda: not self.state(remote)["playing"], what="the stop")
            # With nothing running it starts the current row.
            self.assertTrue(self.tell(remote, do="pause")["playing"])
            self.wait_track(remote, 0, playing=True, paused=False)

    def test_an_album_runs_to_its_end_by_itself(self):
        with Stage() as stage:
            stage.display()
            stage.sound_server()
            remote = RemotePlayer(stage, make_album(stage, ["A", "B"], 8))
            self.wait_track(remote, 0, playing=True)
            self.wait_track(remote, 1, playing=True)
            wait_until(lambda: not self.state(remote)["playing"], what="the end of the album")
            self.assertTrue(self.tell(remote, do="playat", i=0)["playing"], "and it can be started again")

    def test_nothing_but_the_routes_is_answered(self):
        with Stage() as stage:
            remote = RemotePlayer(stage)
            self.assertEqual(self.curl(remote.base + "/hello"), (200, '{"name":"Kelp Player","needToken":true}'))
            required = "token required: open the URL shown on the PC (with ?t=...)"
            for path in ("/", "/index.html", "/state", "/library", "/cmd?do=stop", "/seek", "/etc/passwd", "/state?t=00000000"):
                self.assertEqual(self.curl(remote.base + path, "--path-as-is"), (401, required), path)
            remote.player.wait_log(r"Phone remote: rejected a request without the right token \(/etc/passwd\)")
            for path in ("/State", "/state/", "/../../etc/passwd"):
                self.assertEqual(self.curl(remote.url(path), "--path-as-is"), (404, '{"error":"no such path"}'), path)
            self.assertEqual(self.curl(remote.url("/seek")), (501, '{"error":"seek is not implemented yet"}'))
            self.assertEqual(self.curl(remote.url("/cmd", do="vol", v="101")), (400, '{"error":"v= must be 0..100"}'))
            self.assertEqual(self.curl(remote.url("/cmd", do="vol", v="")), (400, '{"error":"missing v= (0..100)"}'))
            self.assertEqual(self.curl(remote.url("/cmd")), (400, '{"error":"missing do= (play|pause|toggle|stop|next|prev|vol|playat)"}'))
            self.assertEqual(self.state(remote)["track"], -1)
            page = self.curl(remote.url("/"))
            self.assertEqual(page[0], 200)
            self.assertIn(f"const T='{remote.token}';", page[1])
            self.assertEqual(self.curl(remote.url("/index.html"), "--data", "x=y"), page)
            for address in remote.addresses():
                self.assertEqual(self.curl(address), page)


if __name__ == "__main__":
    support.main()
