"""A headless browser, driven over its driver's HTTP interface (W3C WebDriver)."""
import base64
import contextlib
import json
import re
import subprocess
import time
import urllib.error
import urllib.request

from support import PATIENCE, need, wait_until

ELEMENT = "element-6066-11e4-a52e-4f735466cecf"
PHONE = dict(width=390, height=844, pixelRatio=2, touch=True)
TABLET = dict(width=1024, height=768, pixelRatio=1, touch=True)


def need_browser():
    need("chromium", "chromedriver")


class Browser(contextlib.ExitStack):
    """One page of a browser whose window has the size of a device."""

    def __init__(self, stage, screen):
        super().__init__()
        process = stage.start(["chromedriver", "--port=0"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        port = None
        for line in process.stdout:
            found = re.search(r"successfully on port (\d+)", line)
            if found:
                port = found.group(1)
                break
        if not port:
            raise AssertionError("the browser's driver did not start")
        self.base = f"http://127.0.0.1:{port}"
        options = {"args": ["--headless=new", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage", "--no-first-run",
                            "--disable-background-networking", "--no-proxy-server", "--lang=zh-CN",
                            "--user-data-dir=" + stage.folder(f"browser-{time.monotonic_ns()}")],
                   "mobileEmulation": {"deviceMetrics": screen}}
        answer = self.call("POST", "/session", {"capabilities": {"alwaysMatch": {"browserName": "chrome",
                                                                                 "goog:chromeOptions": options,
                                                                                 "goog:loggingPrefs": {"browser": "ALL"}}}})
        self.base += "/session/" + answer["sessionId"]
        self.callback(self.call, "DELETE", "")

    def call(self, method, path, body=None):
        data = None if method != "POST" else json.dumps(body or {}).encode()
        request = urllib.request.Request(self.base + path, data, {"Content-Type": "application/json"}, method=method)
        try:
            with urllib.request.urlopen(request, timeout=PATIENCE) as reply:
                return json.load(reply)["value"]
        except urllib.error.HTTPError as error:
            raise AssertionError(f"{method} {path}: {error.read().decode(errors='replace')[:600]}") from None

    def open(self, url):
        self.call("POST", "/url", {"url": url})

    def run(self, script, *arguments):
        return self.call("POST", "/execute/sync", {"script": script, "args": list(arguments)})

    def text(self, selector):
        return self.run("const e=document.querySelector(arguments[0]);return e?e.textContent:''", selector)

    def click(self, selector):
        """As a finger does: scrolled into view, and refused by the driver when something lies over it."""
        found = self.call("POST", "/element", {"using": "css selector", "value": selector})
        self.call("POST", f"/element/{found[ELEMENT]}/click")

    def keys(self, text):
        """Typed to what has the focus."""
        actions = [step for key in text for step in ({"type": "keyDown", "value": key}, {"type": "keyUp", "value": key})]
        self.call("POST", "/actions", {"actions": [{"type": "key", "id": "keyboard", "actions": actions}]})

    def wait(self, script, what, seconds=PATIENCE):
        return wait_until(lambda: self.run("return " + script), seconds, what)

    def errors(self):
        """What the page's own script has done wrong; a refused request is not among it."""
        entries = self.call("POST", "/se/log", {"type": "browser"})
        return [entry["message"] for entry in entries if entry["level"] == "SEVERE" and entry["source"] != "network"]

    def tree(self):
        """Role, name and description of everything that a screen reader is told of."""
        nodes = self.call("POST", "/goog/cdp/execute", {"cmd": "Accessibility.getFullAXTree", "params": {}})["nodes"]
        return [(node.get("role", {}).get("value"), node.get("name", {}).get("value", "")) for node in nodes if not node.get("ignored")]

    def media(self, **features):
        self.call("POST", "/goog/cdp/execute", {"cmd": "Emulation.setEmulatedMedia", "params": {
            "features": [{"name": name.replace("_", "-"), "value": value} for name, value in features.items()]}})

    def picture(self, path):
        with open(path, "wb") as file:
            file.write(base64.b64decode(self.call("GET", "/screenshot")))
