# SPDX-FileCopyrightText: 2026 The Quillmark authors
# SPDX-License-Identifier: GPL-3.0-or-later

"""Headless Chromium, driven over its debugging pipe."""

import json
import os
import select
import shutil
import subprocess
import tempfile
import time


class Browser:
    """A browser of its own, whose every request to another computer goes to the given proxy."""

    def __init__(self, proxy):
        program = shutil.which("chromium")
        if program is None:
            raise RuntimeError("Chromium is not installed (see packages.txt)")
        self._profile = tempfile.TemporaryDirectory(prefix="famous-", ignore_cleanup_errors=True)
        command_read, self._commands = os.pipe()
        self._answers, answer_write = os.pipe()
        # The program reads from 3 and writes to 4; the detour keeps one from overwriting the other.
        redirect = 'exec 3<&"$0" 4>&"$1"; shift; exec "$@"'
        self._process = subprocess.Popen(
            ["bash", "-c", redirect, str(command_read), str(answer_write), program,
             "--headless=new", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage",
             "--disable-background-networking", "--disable-component-update", "--disable-breakpad",
             "--disable-sync", "--no-first-run", "--no-default-browser-check", "--hide-scrollbars",
             f"--proxy-server={proxy}", "--remote-debugging-pipe", f"--user-data-dir={self._profile.name}",
             "about:blank"],
            pass_fds=(command_read, answer_write), stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(command_read)
        os.close(answer_write)
        self._number = 0
        self._rest = b""
        self._results = {}
        self.pages = {}

    def close(self):
        try:
            self.call("Browser.close")
            self._process.wait(20)
        except (OSError, RuntimeError, subprocess.TimeoutExpired):
            self._process.kill()
            self._process.wait()
        os.close(self._commands)
        os.close(self._answers)
        self._profile.cleanup()

    def call(self, method, session=None, **params):
        self._number += 1
        number = self._number
        message = {"id": number, "method": method, "params": params}
        if session:
            message["sessionId"] = session
        os.write(self._commands, json.dumps(message).encode() + b"\0")
        end = time.monotonic() + 60
        while number not in self._results:
            self._read(end)
        answer = self._results.pop(number)
        if "error" in answer:
            raise RuntimeError(f"{method}: {answer['error']}")
        return answer["result"]

    def _read(self, end):
        ready, _, _ = select.select([self._answers], [], [], max(0, end - time.monotonic()))
        if not ready:
            raise RuntimeError("The browser does not answer")
        data = os.read(self._answers, 1 << 16)
        if not data:
            raise RuntimeError("The browser has ended")
        *messages, self._rest = (self._rest + data).split(b"\0")
        for message in map(json.loads, messages):
            if "id" in message:
                self._results[message["id"]] = message
            elif message.get("sessionId") in self.pages:
                self.pages[message["sessionId"]].note(message["method"], message["params"])

    def open(self, address, width=900, height=900):
        target = self.call("Target.createTarget", url="about:blank")["targetId"]
        session = self.call("Target.attachToTarget", targetId=target, flatten=True)["sessionId"]
        page = Page(self, target, session)
        self.pages[session] = page
        for domain in ("Network", "Page", "Runtime"):
            page.call(f"{domain}.enable")
        page.resize(width, height)
        page.go(address)
        return page


class Page:
    """One page, and what it asked for."""

    def __init__(self, browser, target, session):
        self._browser = browser
        self._target = target
        self._session = session
        self._loads = 0
        self.requests = []
        self.dialogs = []

    def call(self, method, **params):
        return self._browser.call(method, self._session, **params)

    def note(self, method, params):
        if method == "Network.requestWillBeSent":
            self.requests.append(params["request"]["url"])
        elif method == "Page.javascriptDialogOpening":
            self.dialogs.append(params["message"])
        elif method == "Page.loadEventFired":
            self._loads += 1

    def go(self, address):
        before = self._loads
        self.call("Page.navigate", url=address)
        end = time.monotonic() + 30
        while self._loads == before:
            self._browser.call("Target.getTargets")
            if time.monotonic() > end:
                raise RuntimeError("The page does not load")
            time.sleep(0.02)

    def resize(self, width, height):
        self.call("Emulation.setDeviceMetricsOverride", width=width, height=height, deviceScaleFactor=1, mobile=False)

    def evaluate(self, script):
        answer = self.call("Runtime.evaluate", expression=script, returnByValue=True, awaitPromise=True)
        if "exceptionDetails" in answer:
            raise RuntimeError(f"{script}: {answer['exceptionDetails']}")
        return answer["result"].get("value")

    def wait(self, script, seconds=20):
        end = time.monotonic() + seconds
        while not self.evaluate(f"Boolean({script})"):
            if time.monotonic() > end:
                raise AssertionError(f"never came true: {script}\n{self.evaluate('document.body.innerText')}")
            time.sleep(0.02)

    def press(self, key, code, text=""):
        self.call("Input.dispatchKeyEvent", type="keyDown", key=key, code=key, windowsVirtualKeyCode=code, text=text)
        self.call("Input.dispatchKeyEvent", type="keyUp", key=key, code=key, windowsVirtualKeyCode=code)

    def click(self, selector):
        place = self.evaluate(
            f"(() => {{ const e = document.querySelector({json.dumps(selector)}); e.scrollIntoView({{block: 'nearest'}});"
            " const r = e.getBoundingClientRect(); return [r.x + r.width / 2, r.y + r.height / 2]; })()")
        for kind in ("mousePressed", "mouseReleased"):
            self.call("Input.dispatchMouseEvent", type=kind, x=place[0], y=place[1], button="left", clickCount=1)

    def close(self):
        self._browser.call("Target.closeTarget", targetId=self._target)
