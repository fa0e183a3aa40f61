"""The phone's page in a real browser, with the whole player behind it."""
import os
import signal
import unittest
import urllib.request

import support
from browser import PHONE, TABLET, Browser, need_browser
from remote import RemotePlayer, make_album
from support import Stage, wait_until

TITLES = ["潮汐", "A title <b>with</b> &amp; marks", "海带森林"] + [f"Track {number}" for number in range(4, 41)]
LONG = "A concerto whose name goes on for as long as its slow movement, " * 3
FOREIGN = "أغنية البحر الطويلة جدا التي لا تنتهي أبدا ولا تتوقف عن الغناء في الليل"
# Where the pictures are kept for whoever wants to look at them.
PICTURES = os.environ.get("KELP_PICTURES")


class RemotePage(unittest.TestCase):
    def setUp(self):
        need_browser()
        self.stage = self.enterContext(Stage())
        self.stage.sound_server()
        # Each so long that none ends by itself while the page is looked at; a low rate keeps the file small.
        self.sheet = make_album(self.stage, TITLES, 90, rate=8000)

    def start(self, screen, **options):
        remote = RemotePlayer(self.stage, self.sheet, **options)
        browser = self.enterContext(Browser(self.stage, screen))
        browser.open(remote.url("/"))
        browser.wait("document.querySelectorAll('#lib button').length===40", "the list")
        browser.wait("document.querySelector('#t').textContent.startsWith('正在播放')", "the state")
        return remote, browser

    def picture(self, browser, name):
        path = os.path.join(PICTURES or self.stage.root, name + ".png")
        browser.picture(path)
        self.assertGreater(os.path.getsize(path), 10_000)

    def width_of(self, browser):
        # Not innerWidth: a phone's browser widens that to whatever sticks out.
        return browser.run("return document.documentElement.scrollWidth")

    def small_targets(self, browser):
        return browser.run("""return [...document.querySelectorAll('button,input')].filter(e=>{
            const r=e.getBoundingClientRect();return r.width<44||r.height<44}).map(e=>e.id||e.textContent)""")

    def test_a_phone_drives_the_player(self):
        remote, browser = self.start(PHONE)
        self.assertEqual(browser.run("return document.title"), "Kelp Player")
        self.assertIn("潮汐", browser.text("#t"))
        self.assertEqual(browser.text("#v"), "80")
        self.assertEqual(browser.text("#lib li.cur span"), browser.text("#lib li:nth-child(1) span"))
        self.assertIn("A title <b>with</b> &amp; marks", browser.text("#lib li:nth-child(2) span"))
        self.assertEqual(browser.run("return document.querySelectorAll('#lib b').length"), 0, "a title is no markup")
        self.picture(browser, "phone")

        browser.click("#toggle")
        browser.wait("document.querySelector('#t').textContent.startsWith('已暂停')", "the pause")
        self.assertEqual(browser.text("#word"), "播放")
        browser.click("#play")
        browser.wait("document.querySelector('#t').textContent.startsWith('正在播放')", "going on")
        browser.click("#next")
        browser.wait("document.querySelector('#lib li:nth-child(2)').classList.contains('cur')", "the next track")
        browser.click("#prev")
        browser.wait("document.querySelector('#lib li:nth-child(1)').classList.contains('cur')", "the previous track")
        browser.run("const r=document.querySelector('#r');r.value=25;r.dispatchEvent(new Event('input'));r.dispatchEvent(new Event('change'))")
        remote.player.wait_log(r"vol 25")
        browser.wait("document.querySelector('#v').textContent==='25'", "the volume")

        # Far down the list: it stays where it is while the page goes on polling.
        browser.run("document.querySelector('#lib').scrollTop=900")
        place = browser.run("return document.querySelector('#lib').scrollTop")
        self.assertGreater(place, 800)
        browser.run("window.first=document.querySelector('#lib li')")
        browser.click("#next")
        browser.wait("document.querySelector('#lib li:nth-child(2)').classList.contains('cur')", "the next track")
        self.assertEqual(browser.run("return document.querySelector('#lib').scrollTop"), place)
        self.assertTrue(browser.run("return window.first===document.querySelector('#lib li')"), "rows are kept")
        browser.click("#lib li:nth-child(20) button")
        browser.wait("document.querySelector('#lib li:nth-child(20)').classList.contains('cur')", "the chosen track")
        self.assertIn("Track 20", browser.text("#t"))
        browser.click("#stop")
        browser.wait("document.querySelector('#t').textContent.startsWith('已停止')", "the stop")
        self.assertEqual(self.small_targets(browser), [])
        self.assertEqual(self.width_of(browser), PHONE["width"], "nothing sticks out")
        self.assertEqual(browser.errors(), [])

    def test_loss_and_return(self):
        remote, browser = self.start(PHONE)
        # A player that hangs looks to the phone like one that has gone away.
        remote.player.process.send_signal(signal.SIGSTOP)
        try:
            browser.wait("document.querySelector('#t').textContent.startsWith('连接已断开')", "the loss")
            self.assertTrue(browser.run("return document.body.classList.contains('off')"))
            self.picture(browser, "phone_lost")
        finally:
            remote.player.process.send_signal(signal.SIGCONT)
        browser.wait("document.querySelector('#t').textContent.startsWith('正在播放')", "the return")
        self.assertFalse(browser.run("return document.body.classList.contains('off')"))

        remote.player.process.terminate()
        remote.player.wait_end()
        browser.wait("document.querySelector('#t').textContent.startsWith('连接已断开，正在重新连接')", "the loss")
        again = RemotePlayer(self.stage, self.sheet, port=remote.port)
        self.assertNotEqual(again.token, remote.token)
        browser.wait("document.querySelector('#t').textContent.includes('请打开电脑上显示的新网址')", "the old token's refusal")
        browser.open(again.url("/"))
        browser.wait("document.querySelector('#t').textContent.startsWith('正在播放')", "the new token's page")

    def test_the_playing_row_is_in_view_when_the_page_opens(self):
        remote, browser = self.start(dict(PHONE, width=844, height=390))
        browser.click("#lib li:nth-child(30) button")
        browser.wait("document.querySelector('#lib li:nth-child(30)').classList.contains('cur')", "the chosen track")
        browser.open(remote.url("/index.html"))
        browser.wait("document.querySelector('#lib li.cur')", "the list")
        seen = browser.run("""const l=document.querySelector('#lib').getBoundingClientRect(),r=document.querySelector('#lib .cur').getBoundingClientRect();
            return r.top>=l.top&&r.bottom<=l.bottom""")
        self.assertTrue(seen)
        # A phone held sideways: all controls are on the screen.
        self.picture(browser, "phone_sideways")
        self.assertTrue(browser.run("return document.querySelector('.pad').getBoundingClientRect().bottom<=innerHeight+1"))
        self.assertEqual(self.small_targets(browser), [])

    def test_long_names_and_names_of_another_direction(self):
        self.sheet = make_album(self.stage, [LONG, FOREIGN] + TITLES[2:], 20)
        remote = None
        for name, screen in (("tablet", TABLET), ("tablet_upright", dict(TABLET, width=768, height=1024)), ("phone", PHONE),
                             ("small_phone", dict(PHONE, width=320, height=568)), ("small_phone_sideways", dict(PHONE, width=640, height=320)),
                             ("wide", dict(TABLET, width=1600, height=900))):
            with self.subTest(name):
                if remote is None:
                    remote, browser = self.start(screen)
                else:
                    browser = self.enterContext(Browser(self.stage, screen))
                    browser.open(remote.url("/"))
                    browser.wait("document.querySelectorAll('#lib button').length===40", "the list")
                self.picture(browser, "names_" + name)
                inside = """const r=document.querySelector(arguments[0]).getBoundingClientRect();
                    return r.left>=0&&r.right<=arguments[1]&&r.top>=0&&r.bottom<=arguments[2]+1"""
                for part in ("#t", "#a", "#n", "#lib", "#prev", "#play", "#r"):
                    self.assertTrue(browser.run(inside, part, screen["width"], screen["height"]), part + " is on the screen")
                self.assertEqual(self.width_of(browser), screen["width"], "nothing sticks out")
                self.assertGreater(browser.run("return document.querySelector('#lib').clientHeight"), 100, "rows of the list are seen")
                self.assertEqual(self.small_targets(browser), [])
                self.assertEqual(browser.run("""return [...document.querySelectorAll('#lib .w span')].slice(0,2)
                    .map(e=>getComputedStyle(e).direction)"""), ["ltr", "rtl"], "a name keeps its beginning")

    def test_the_list_stays_where_it_was_left_when_the_music_begins(self):
        remote, browser = self.start(PHONE)
        browser.click("#stop")
        browser.wait("document.querySelector('#t').textContent.startsWith('已停止')", "the stop")
        browser.open(remote.url("/"))
        browser.wait("document.querySelectorAll('#lib button').length===40&&!document.querySelector('#lib .cur')", "the list")
        browser.run("document.querySelector('#lib').scrollTop=600")
        place = browser.run("return document.querySelector('#lib').scrollTop")
        browser.run("document.querySelector('#lib li:nth-child(14) button').click()")
        browser.wait("document.querySelector('#lib li:nth-child(14)').classList.contains('cur')", "the chosen track")
        self.assertEqual(browser.run("return document.querySelector('#lib').scrollTop"), place, "under the finger nothing moves")

    def test_a_volume_that_was_put_back_follows_the_player_again(self):
        remote, browser = self.start(PHONE)
        moved = "const r=document.querySelector('#r');r.value=arguments[0];r.dispatchEvent(new Event('input'))"
        browser.run(moved, 60)
        # A whole poll while the finger is on it.
        self.assertEqual(browser.call("POST", "/execute/async", {"script": "update().then(arguments[0])", "args": []}), None)
        self.assertEqual(browser.text("#v"), "60", "while the finger is on it")
        # Back to where it began: of that no browser tells as of a change.
        browser.run(moved, 80)
        browser.run("window.dispatchEvent(new Event('pointerup'))")
        with urllib.request.urlopen(remote.url("/cmd", do="vol", v=35)) as reply:
            self.assertEqual(reply.status, 200)
        browser.wait("document.querySelector('#v').textContent==='35'&&document.querySelector('#r').value==='35'", "the player's volume")

    def test_without_the_token_there_is_no_page(self):
        remote = RemotePlayer(self.stage, self.sheet)
        browser = self.enterContext(Browser(self.stage, PHONE))
        browser.open(remote.base + "/")
        self.assertIn("token required: open the URL shown on the PC", browser.text("body"))
        self.assertEqual(browser.text("#lib"), "")
        browser.open(remote.base + "/?t=00000000")
        self.assertIn("token required", browser.text("body"))
        browser.open(remote.url("/"))
        browser.wait("document.querySelectorAll('#lib button').length===40", "the list")
        rejected = remote.player.log().count("rejected a request")
        # The two pages above, each with the icon that a browser wants for a page that names none.
        self.assertLessEqual(rejected, 4)
        browser.open(remote.url("/index.html"))
        browser.wait("document.querySelectorAll('#lib button').length===40", "the list")
        self.assertEqual(remote.player.log().count("rejected a request"), rejected, "the page asks for nothing without the token")

    def test_a_tablet_with_keyboard_and_screen_reader(self):
        remote, browser = self.start(TABLET)
        self.picture(browser, "tablet")
        sides = browser.run("""const a=document.querySelector('.pad').getBoundingClientRect(),b=document.querySelector('.list').getBoundingClientRect();
            return [a.right<=b.left+1,b.bottom<=innerHeight+1,a.bottom<=innerHeight+1]""")
        self.assertEqual(sides, [True, True, True], "two columns that fit")
        self.assertEqual(self.small_targets(browser), [])

        tab, enter = "\ue004", "\ue007"
        reached = []
        for _ in range(7):
            browser.keys(tab)
            reached.append(browser.run("const e=document.activeElement;return e.id||e.tagName"))
        self.assertEqual(reached, ["prev", "next", "toggle", "stop", "play", "r", "BUTTON"])
        self.assertNotEqual(browser.run("return getComputedStyle(document.activeElement).outlineStyle"), "none", "the focus is seen")
        browser.keys(tab + tab + enter)
        browser.wait("document.querySelector('#lib li:nth-child(3)').classList.contains('cur')", "the row that was entered")
        self.assertEqual(browser.run("return document.activeElement.parentNode===document.querySelector('#lib li:nth-child(3)')"), True,
                         "the focus stays where it was")
        self.assertEqual(browser.run("return document.activeElement.getAttribute('aria-current')"), "true")

        tree = browser.tree()
        for expected in (("heading", "Kelp Player"), ("heading", "播放列表"), ("button", "上一首"), ("button", "下一首"),
                         ("button", "暂停"), ("button", "停止"), ("button", "继续"), ("list", "播放列表")):
            self.assertIn(expected, tree)
        self.assertTrue(any(role == "slider" and name.startswith("音量") for role, name in tree), tree)
        self.assertTrue(any(role == "status" for role, _ in tree))
        self.assertTrue(any(role == "button" and "海带森林" in name for role, name in tree))
        self.assertEqual(browser.run("return document.documentElement.lang"), "zh-CN")

        browser.media(prefers_reduced_motion="reduce")
        self.assertEqual(browser.run("return getComputedStyle(document.querySelector('#toggle')).transitionProperty"), "none")
        self.assertEqual(browser.errors(), [])
        remote.player.process.terminate()
        wait_until(lambda: remote.player.process.poll() is not None, what="the player's end")


if __name__ == "__main__":
    support.main()
