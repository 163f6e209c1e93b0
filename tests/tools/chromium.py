"""A headless browser that is told by messages through a pipe what to do, and tells what happens in its pages."""

import base64
import fcntl
import json
import os
import select
import struct
import subprocess
import sys
import tempfile
import time
import zlib

PATIENCE = 60  # seconds
# Gives the browser the ends of the pipe as the descriptors that it has them by, and becomes it.
BEGIN = "import os, sys; [os.dup2(int(sys.argv[i]), i + 2) for i in (1, 2)]; os.execv(sys.argv[3], sys.argv[3:])"
HIGH = 20  # above these

# Without a sandbox, since that needs rights which a container does not give.
OPTIONS = ["--headless", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage", "--disable-extensions",
           "--disable-background-networking", "--no-first-run", "--no-proxy-server", "--hide-scrollbars",
           "--remote-debugging-pipe"]
SHIFT = 8
KEYS = {"Tab": 9, "Enter": 13, "Escape": 27, " ": 32, "PageUp": 33, "PageDown": 34, "End": 35, "Home": 36,
        "ArrowLeft": 37, "ArrowUp": 38, "ArrowRight": 39, "ArrowDown": 40}


def _high(end):
    moved = fcntl.fcntl(end, fcntl.F_DUPFD_CLOEXEC, HIGH)
    os.close(end)
    return moved


class BrowserError(Exception):
    """What the browser refuses, or an exception in a page."""


class Chromium:
    """Use as a context: `open` gives pages."""

    def __init__(self, executable):
        self._executable = executable
        self._number, self._rest, self._answers = 0, b"", {}
        self._pages = {}  # by the sessions of them and of their frames

    def __enter__(self):
        self._profile = tempfile.TemporaryDirectory(prefix="inkmacro-browser-", ignore_cleanup_errors=True)
        told, self._tell, self._hear, tells = (_high(end) for end in (*os.pipe(), *os.pipe()))
        words = [self._executable, *OPTIONS, f"--user-data-dir={self._profile.name}", "about:blank"]
        self._process = subprocess.Popen([sys.executable, "-c", BEGIN, str(told), str(tells), *words],
                                         pass_fds=(told, tells), stdin=subprocess.DEVNULL,
                                         stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(told)
        os.close(tells)
        return self

    def __exit__(self, *_):
        os.close(self._tell)
        self._process.terminate()
        try:
            self._process.wait(10)
        except subprocess.TimeoutExpired:
            self._process.kill()
            self._process.wait()
        os.close(self._hear)
        self._profile.cleanup()

    def begin(self, method, session=None, **parameters):
        """Sends a message; its answer has the number that this gives."""
        self._number += 1
        message = {"id": self._number, "method": method, "params": parameters}
        text = json.dumps(message | ({"sessionId": session} if session else {})).encode() + b"\0"
        while text:
            text = text[os.write(self._tell, text):]
        return self._number

    def ask(self, method, session=None, **parameters):
        number = self.begin(method, session, **parameters)
        deadline = time.monotonic() + PATIENCE
        while number not in self._answers:
            if not self.listen(deadline - time.monotonic()):
                raise BrowserError(f"{method}: no answer")
        answer = self._answers.pop(number)
        if "error" in answer:
            raise BrowserError(f"{method}: {answer['error']['message']}")
        return answer["result"]

    def listen(self, seconds):
        """Hears what there is to hear within that time; whether anything was."""
        if not select.select([self._hear], [], [], max(seconds, 0))[0]:
            return False
        heard = os.read(self._hear, 1 << 20)
        if not heard:
            raise BrowserError("the browser has ended")
        *messages, self._rest = (self._rest + heard).split(b"\0")
        for message in map(json.loads, messages):
            if "method" not in message:
                self._answers[message["id"]] = message
            elif page := self._pages.get(message.get("sessionId")):
                page.hear(message["method"], message["params"], message["sessionId"])
        # Answers that nobody waits for.
        if len(self._answers) > 1000:
            self._answers.clear()
        return True

    def adopt(self, session, page):
        """From here on the page hears what happens in the session."""
        self._pages[session] = page
        for method in ("Runtime.enable", "Log.enable", "Network.enable", "Page.enable", "Audits.enable"):
            self.begin(method, session)
        self.begin("Target.setAutoAttach", session, autoAttach=True, waitForDebuggerOnStart=True, flatten=True)
        self.begin("Runtime.runIfWaitingForDebugger", session)

    def open(self, url, **view):
        """A page that is loaded, in a window that `view` tells as Page.show does."""
        target = self.ask("Target.createTarget", url="about:blank")["targetId"]
        page = Page(self, target, self.ask("Target.attachToTarget", targetId=target, flatten=True)["sessionId"])
        page.show(**view)
        page.load(url)
        return page


class Page:
    """One tab. `complaints` has what its console, its policy and its scripts complained of, in itself and its frames,
    `requests` the addresses that were asked for, and `dialogs` what it asked its user."""

    def __init__(self, browser, target, session):
        self._browser, self._target, self._session = browser, target, session
        self.complaints, self.requests, self.dialogs, self.frames = [], [], [], 0
        self._is_loaded = False
        browser.adopt(session, self)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._browser.ask("Target.closeTarget", targetId=self._target)

    def hear(self, event, told, session):
        if event == "Target.attachedToTarget":
            self.frames += 1
            self._browser.adopt(told["sessionId"], self)
        elif event == "Page.loadEventFired" and session == self._session:
            self._is_loaded = True
        elif event == "Page.javascriptDialogOpening":
            self.dialogs.append(told["message"])
            self._browser.begin("Page.handleJavaScriptDialog", session, accept=True)
        elif event == "Network.requestWillBeSent":
            self.requests.append(told["request"]["url"])
        elif event == "Log.entryAdded":
            self.complaints.append(f"{told['entry']['level']}: {told['entry']['text']}")
        elif event == "Runtime.exceptionThrown":
            details = told["exceptionDetails"]
            self.complaints.append(details.get("exception", {}).get("description") or details["text"])
        elif event == "Runtime.consoleAPICalled" and told["type"] in ("error", "warning", "assert"):
            self.complaints.append(" ".join(str(one.get("value", one.get("description"))) for one in told["args"]))
        elif event == "Audits.issueAdded" and told["issue"]["code"] == "ContentSecurityPolicyIssue":
            self.complaints.append(json.dumps(told["issue"]))

    def do(self, method, **parameters):
        return self._browser.ask(method, self._session, **parameters)

    def load(self, url):
        self._is_loaded = False
        self.do("Page.navigate", url=url)
        deadline = time.monotonic() + PATIENCE
        while not self._is_loaded:
            if not self._browser.listen(deadline - time.monotonic()):
                raise BrowserError(f"{url} does not load")

    def show(self, width=1440, height=900, scheme="light"):
        self.do("Emulation.setDeviceMetricsOverride", width=width, height=height, deviceScaleFactor=1, mobile=False)
        self.do("Emulation.setEmulatedMedia", features=[{"name": "prefers-color-scheme", "value": scheme}])

    def evaluate(self, expression):
        """The value of an expression, of a promise what it becomes."""
        result = self.do("Runtime.evaluate", expression=expression, returnByValue=True, awaitPromise=True)
        if "exceptionDetails" in result:
            details = result["exceptionDetails"]
            raise BrowserError(details.get("exception", {}).get("description") or details["text"])
        return result["result"].get("value")

    def wait_for(self, condition):
        """Until an expression is true; gives its value."""
        deadline = time.monotonic() + PATIENCE
        while not (value := self.evaluate(condition)):
            if time.monotonic() > deadline:
                raise BrowserError(f"it does not come to be that {condition}")
            time.sleep(0.02)
        return value

    def key(self, key, shift=False):
        """Presses and lets go of a key by its name, or that of a letter."""
        code = KEYS.get(key) or ord(key.upper())
        text = {"Enter": "\r"}.get(key) or (key if len(key) == 1 else None)
        said = {"key": key, "windowsVirtualKeyCode": code, "modifiers": SHIFT * shift}
        self.do("Input.dispatchKeyEvent", type="keyDown", **said, **({"text": text} if text else {}))
        self.do("Input.dispatchKeyEvent", type="keyUp", **said)

    def click(self, x, y):
        for kind in ("mouseMoved", "mousePressed", "mouseReleased"):
            self.do("Input.dispatchMouseEvent", type=kind, x=x, y=y, button="left", clickCount=1)

    def screenshot(self, x, y, width, height):
        """The pixels of an area, as rows of (red, green, blue)."""
        clip = {"x": x, "y": y, "width": width, "height": height, "scale": 1}
        return pixels(base64.b64decode(self.do("Page.captureScreenshot", format="png", clip=clip)["data"]))

    def pdf(self, **options):
        return base64.b64decode(self.do("Page.printToPDF", **options)["data"])


def pixels(png):
    """Of a picture with eight bits a color, with or without opacity, as browsers write it."""
    at, data, width, channels = 8, b"", 0, 0
    while at < len(png):
        length, kind = struct.unpack(">I4s", png[at:at + 8])
        chunk = png[at + 8:at + 8 + length]
        if kind == b"IHDR":
            width, channels = struct.unpack(">I", chunk[:4])[0], {2: 3, 6: 4}[chunk[9]]
        data += chunk if kind == b"IDAT" else b""
        at += length + 12
    data, size, rows = zlib.decompress(data), width * channels, []
    above = bytes(size)
    for start in range(0, len(data), size + 1):
        row = bytearray(data[start + 1:start + 1 + size])
        for i in range(size):
            left, up, corner = (row[i - channels], above[i], above[i - channels]) if i >= channels else (0, above[i], 0)
            row[i] = row[i] + _predicted(data[start], left, up, corner) & 255
        rows.append([tuple(row[i:i + 3]) for i in range(0, size, channels)])
        above = bytes(row)
    return rows


def _predicted(kind, left, up, corner):
    if kind == 4:
        guess = left + up - corner
        return min((left, up, corner), key=lambda one: abs(guess - one))
    return (0, left, up, (left + up) // 2)[kind]
