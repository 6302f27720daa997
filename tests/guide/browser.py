"""A headless Chromium that is told what to do over its DevTools pipe."""

import fcntl
import json
import os
import select
import shutil
import subprocess
import tempfile
import time

BOUND = 60.0  # seconds, for everything that is waited for
PROGRAMS = ("chromium", "chromium-browser", "google-chrome")


def find_browser():
    return next(filter(None, map(shutil.which, PROGRAMS)), None)


class Browser:
    """One page in a browser of its own, with a profile of its own; to be used in a with statement."""

    def __init__(self, program):
        self.program = program
        self.events = []
        self.pending = b""
        self.last = 0
        self.session = None

    def __enter__(self):
        self.profile = tempfile.mkdtemp()
        pipes = [os.pipe(), os.pipe()]
        # Chromium reads from 3 and writes to 4; high numbers, so that the two are free in the child.
        (their_in, self.requests), (self.answers, their_out) = [
            [fcntl.fcntl(end, fcntl.F_DUPFD_CLOEXEC, 20) for end in pipe] for pipe in pipes]
        for pipe in pipes:
            for end in pipe:
                os.close(end)

        def place_pipes():
            os.dup2(their_in, 3)
            os.dup2(their_out, 4)

        environment = dict(os.environ, HOME=self.profile, XDG_RUNTIME_DIR=self.profile)
        with open(f"{self.profile}/log", "wb") as log:
            # pylint: disable-next=subprocess-popen-preexec-fn
            self.process = subprocess.Popen(
                [self.program, "--headless", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage", "--no-first-run",
                 "--disable-background-networking", "--disable-component-update", "--force-color-profile=srgb",
                 "--remote-debugging-pipe", f"--user-data-dir={self.profile}", "about:blank"],
                preexec_fn=place_pipes, pass_fds=(3, 4), stdin=subprocess.DEVNULL, stdout=log, stderr=log, env=environment)
        os.close(their_in)
        os.close(their_out)
        try:
            target = self.call("Target.createTarget", url="about:blank")["targetId"]
            self.session = self.call("Target.attachToTarget", targetId=target, flatten=True)["sessionId"]
            for domain in ("Page", "Network", "Runtime"):
                self.call(f"{domain}.enable")
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        if self.process.poll() is None:
            self.process.kill()  # Its helpers end with it: their pipes to it close.
        self.process.wait()
        os.close(self.requests)
        os.close(self.answers)
        shutil.rmtree(self.profile, ignore_errors=True)

    def receive(self, end):
        while b"\0" not in self.pending:
            left = end - time.monotonic()
            if left <= 0 or not select.select([self.answers], [], [], left)[0]:
                raise AssertionError(f"the browser did not answer within {BOUND} s")
            data = os.read(self.answers, 1 << 20)
            if not data:
                with open(f"{self.profile}/log", encoding="utf-8", errors="replace") as log:
                    raise AssertionError(f"the browser has ended: {log.read()}")
            self.pending += data
        message, self.pending = self.pending.split(b"\0", 1)
        return json.loads(message)

    def call(self, method, **parameters):
        """Calls a method of the DevTools protocol; keeps the events that come meanwhile."""
        self.last += 1
        request = {"id": self.last, "method": method, "params": parameters}
        if self.session:
            request["sessionId"] = self.session
        os.write(self.requests, json.dumps(request).encode() + b"\0")
        end = time.monotonic() + BOUND
        while True:
            message = self.receive(end)
            if message.get("id") == self.last:
                if "error" in message:
                    raise AssertionError(f"{method}: {message['error']['message']}")
                return message["result"]
            self.events.append(message)

    def open(self, address):
        """Loads a page, with all that it needs."""
        self.events.clear()
        self.call("Page.navigate", url=address)
        end = time.monotonic() + BOUND
        while not any(event.get("method") == "Page.loadEventFired" for event in self.events):
            self.events.append(self.receive(end))

    def requested(self):
        """The addresses that were asked for since the page was opened."""
        return {event["params"]["request"]["url"] for event in self.events
                if event.get("method") == "Network.requestWillBeSent"}

    def value(self, expression):
        """The value of a JavaScript expression in the page."""
        answer = self.call("Runtime.evaluate", expression=expression, returnByValue=True, awaitPromise=True)
        assert "exceptionDetails" not in answer, answer
        return answer["result"].get("value")

    def resize(self, width, height, scale=1):
        self.call("Emulation.setDeviceMetricsOverride", width=width, height=height, deviceScaleFactor=scale, mobile=False)

    def set_media(self, media="", scheme="light"):
        self.call("Emulation.setEmulatedMedia", media=media, features=[{"name": "prefers-color-scheme", "value": scheme}])
