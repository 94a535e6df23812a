"""Presses the buttons of pages in headless Chromium and collects the calls that they make.

The pages load the script library from port 7776 of this machine. A server at any free port plays it: the browser is told
to go there in its place, so that tests that run at the same time don't meet.
"""
import json
import os
import queue
import subprocess
import tempfile
import threading
from http.server import BaseHTTPRequestHandler, ThreadingHTTPServer
from pathlib import Path

import api

LIBRARY = "/APISDK/kjLibrary/"
ENDPOINT = "http://localhost:7776"
FLAGS = ("--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
         "--disable-background-networking", "--disable-component-update", "--disable-sync", "--no-proxy-server",
         "--disable-dev-shm-usage")


class Handler(BaseHTTPRequestHandler):
    def do_GET(self):
        name = self.path.rpartition("/")[2]
        if self.path.startswith(LIBRARY):
            self.server.asked.append(name)
            self.answer(self.server.library.get(name), "text/javascript")
        else:
            self.answer(self.server.pages.get(self.path), "text/html")

    def do_POST(self):
        recorded = json.loads(self.rfile.read(int(self.headers["Content-Length"])))
        self.server.recorded.put(recorded)
        rest = self.server.order[self.server.order.index(recorded["page"]) + 1:]
        self.answer(rest[0] if rest else "", "text/plain")

    def answer(self, text, kind):
        self.send_response(404 if text is None else 200)
        self.send_header("Content-Type", f"{kind}; charset=utf-8")
        self.end_headers()
        self.wfile.write((text or "").encode())

    def log_message(self, *_):
        """Says nothing: the tests tell what matters."""


def run_pages(pages, stand_ins):
    """What each page recorded, and the library files that were asked for: ([{"calls", "errors"}], [names])."""
    server = ThreadingHTTPServer(("127.0.0.1", 0), Handler)
    server.recorded, server.asked = queue.Queue(), []
    # One file has everything; a file of the others is there when its class is.
    server.library = {f"kv{name}.js": "" for name in api.classes()}
    server.library["kjConnect.js"] = stand_ins
    server.pages = {f"/{number}.html": Path(page).read_text(encoding="utf-8") for number, page in enumerate(pages)}
    server.order = list(server.pages)
    threading.Thread(target=server.serve_forever, daemon=True).start()
    with tempfile.TemporaryDirectory(prefix="replay-browser-", ignore_cleanup_errors=True) as profile:
        chromium = subprocess.Popen(
            ["chromium", *FLAGS, f"--user-data-dir={profile}", "--remote-debugging-port=0",
             f"--host-resolver-rules=MAP localhost:7776 127.0.0.1:{server.server_port}",
             ENDPOINT + server.order[0]], env={**os.environ, "TMPDIR": profile}, stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL)
        try:
            return [server.recorded.get(timeout=120) for _ in pages], server.asked
        finally:
            chromium.terminate()
            chromium.wait(timeout=30)
            server.shutdown()
            server.server_close()
