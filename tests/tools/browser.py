"""A headless browser, and the script server that macro pages expect on port 7776: it serves the stub library, and one
page after the other to the one window."""

import contextlib
import errno
import http.server
import json
import queue
import re
import subprocess
import threading
import time

import harness

PORT = 7776
START = 60  # seconds
LIBRARY = re.compile(r"/APISDK/ijLibrary/(\w+)\.js$")


def library():
    """The library's source: classes of the program's own model, which has the drawing of RECORDING."""
    web = harness.SOURCE / "src/view/web"
    texts = {file.name: file.read_text(encoding="utf-8") for file in web.glob("*.txt")}
    names = (web / "scripts.list").read_text(encoding="utf-8").split()
    scripts = [(web / name).read_text(encoding="utf-8") for name in names]
    last = (harness.STUBS / "javascript/library.js").read_text(encoding="utf-8")
    return "\n".join([f"const TEXTS = {json.dumps(texts)};", *scripts, last])


class _Handler(http.server.BaseHTTPRequestHandler):
    def do_GET(self):
        browser = self.server.browser
        script = LIBRARY.match(self.path)
        if self.path == "/next":
            page = browser.pages.get()
            self._answer(200, "text/html; charset=utf-8", page) if page else self._answer(200, "text/html", "done")
        elif self.path == "/press.js":
            self._answer(200, "text/javascript; charset=utf-8", browser.press)
        elif script and script[1] in browser.scripts:
            self._answer(200, "text/javascript; charset=utf-8", browser.scripts[script[1]])
        else:
            self._answer(404, "text/plain", "")

    def do_POST(self):
        body = self.rfile.read(int(self.headers["Content-Length"]))
        self.server.browser.results.put(json.loads(body))
        self._answer(200, "text/plain", "")

    def _answer(self, status, kind, text):
        body = text.encode("utf-8")
        self.send_response(status)
        self.send_header("Content-Type", kind)
        self.send_header("Content-Length", str(len(body)))
        self.send_header("Cache-Control", "max-age=600" if kind.startswith("text/javascript") else "no-store")
        self.end_headers()
        with contextlib.suppress(BrokenPipeError):  # a page that stops at once waits for no script
            self.wfile.write(body)

    def log_message(self, *_):
        pass


class _Server(http.server.ThreadingHTTPServer):
    daemon_threads = True


def _serve():
    """Waits for the port: another run of this check may hold it."""
    deadline = time.monotonic() + START
    while True:
        try:
            return _Server(("127.0.0.1", PORT), _Handler)
        except OSError as error:
            if error.errno != errno.EADDRINUSE or time.monotonic() > deadline:
                raise
            time.sleep(0.5)


class Browser:
    """Use as a context: `run` loads a page and presses its button."""

    def __init__(self, executable, folder):
        self._executable, self._folder = executable, folder
        names = (harness.STUBS / "javascript/library.txt").read_text(encoding="utf-8").split()
        self.scripts = dict.fromkeys(names, "")
        self.scripts["ijConnect"] = library()
        self.press = (harness.STUBS / "javascript/press.js").read_text(encoding="utf-8")
        self.pages, self.results = queue.Queue(), queue.Queue()
        self._answers = True

    def __enter__(self):
        self._server = _serve()
        self._server.browser = self
        threading.Thread(target=self._server.serve_forever, daemon=True).start()
        self._messages = open(self._folder / "browser.log", "w+", encoding="utf-8", errors="replace")
        # Without a sandbox, since that needs rights which a container does not give.
        self._process = subprocess.Popen(
            [self._executable, "--headless", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage",
             "--disable-extensions", "--disable-background-networking", "--no-first-run", "--no-proxy-server",
             f"--user-data-dir={self._folder / 'profile'}", f"http://localhost:{PORT}/next"],
            stdin=subprocess.DEVNULL, stdout=self._messages, stderr=subprocess.STDOUT)
        return self

    def run(self, page, recording):
        """The first error of a page, which finds the drawing of that recording."""
        # In the page's first line, so that the numbers of the lines stay.
        first, rest = page.split("\n", 1)
        text = json.dumps(recording.read_text(encoding="utf-8-sig")).replace("<", "\\u003c")
        self.pages.put(f'{first}<script>var RECORDING = {text};</script><script src="/press.js"></script>\n{rest}')
        try:
            return self.results.get(timeout=START if self._answers else 0.1)
        except queue.Empty:
            self._answers = False
            self._messages.seek(0)
            return {"message": f"no answer\n{self._messages.read()[-2000:]}", "line": 0}

    def __exit__(self, *_):
        self.pages.put("")
        self._process.terminate()
        try:
            self._process.wait(10)
        except subprocess.TimeoutExpired:
            self._process.kill()
        self._messages.close()
        self._server.shutdown()
        self._server.server_close()
