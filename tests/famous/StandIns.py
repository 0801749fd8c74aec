# SPDX-FileCopyrightText: 2026 The Quillmark authors
# SPDX-License-Identifier: GPL-3.0-or-later

"""Stand-ins on this computer for the encyclopedia's feed and for the rest of the network."""

import http.server
import json
import pathlib
import threading


class Server(http.server.ThreadingHTTPServer):
    """Records what it is asked for, as "METHOD target"."""

    def __init__(self, handler):
        super().__init__(("127.0.0.1", 0), handler)
        self.asked = []
        threading.Thread(target=self.serve_forever, daemon=True).start()

    @property
    def address(self):
        return f"http://127.0.0.1:{self.server_port}/"

    def stop(self):
        self.shutdown()
        self.server_close()


class Handler(http.server.BaseHTTPRequestHandler):
    def log_message(self, *_):
        pass

    def answer(self, status, body, kind):
        self.send_response(status)
        self.send_header("Content-Type", kind)
        self.send_header("Content-Length", str(len(body)))
        self.send_header("Access-Control-Allow-Origin", "*")
        self.end_headers()
        self.wfile.write(body)


class Feed(Server):
    """Answers for each day ("03/07") with (status, body): births as a list, or raw bytes. None never answers,
    and a status alone stalls after its head."""

    def __init__(self):
        self.days = {}
        self.headers = []
        self.ended = threading.Event()
        super().__init__(FeedHandler)

    def stop(self):
        self.ended.set()
        super().stop()


class FeedHandler(Handler):
    def do_GET(self):
        self.server.asked.append(f"GET {self.path}")
        self.server.headers.append(dict(self.headers))
        answer = self.server.days.get(self.path.lstrip("/"), (404, b"{}"))
        if answer is None:
            self.server.ended.wait()
        elif isinstance(answer, int):
            self.send_response(answer)
            self.send_header("Content-Length", "1000")
            self.send_header("Access-Control-Allow-Origin", "*")
            self.end_headers()
            self.wfile.write(b'{"births": [')
            self.server.ended.wait()
        elif isinstance(answer[1], bytes):
            self.answer(*answer, "application/json")
        else:
            self.answer(answer[0], json.dumps({"births": answer[1]}).encode(), "application/json")


class Proxy(Server):
    """The rest of the network: nothing there but the pages themselves, under http://pages.test/."""

    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        super().__init__(ProxyHandler)


class ProxyHandler(Handler):
    def do_GET(self):
        self.server.asked.append(f"GET {self.path}")
        path = self.server.folder / self.path.split("?")[0].rsplit("/", 1)[-1]
        if self.path.startswith("http://pages.test/") and path.is_file():
            self.answer(200, path.read_bytes(), "text/html")
        else:
            self.answer(502, b"", "text/plain")

    def do_CONNECT(self):
        self.server.asked.append(f"CONNECT {self.path}")
        self.answer(502, b"", "text/plain")
