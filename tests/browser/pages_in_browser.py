#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Opens the pages of the sample backup in a browser without a window.

  pages_in_browser.py PROGRAM BACKUP

The backup is exported and its records are dumped. Every page is then opened from a server on the
loopback address, and must show what the records hold: no missing image, no word on the console, and
as many headings, bubbles, lines and rows. Exits with 77, and says why, where there is no browser.
"""

import json
import shutil
import subprocess
import sys
import tempfile
import threading
from functools import partial
from http.server import SimpleHTTPRequestHandler, ThreadingHTTPServer
from pathlib import Path
from urllib.parse import quote, unquote

SKIPPED = 77
BROWSERS = ("chromium", "chromium-browser", "google-chrome")
PATIENCE = 120  # seconds for all pages together
MESSAGES, NOTES = 0, 27
TABLES = {3, 27, 29, 30}
BOOKMARKS = {33, 34}

# Opens page after page in a frame and reports what it sees.
WATCHER = """<!DOCTYPE html><meta charset="utf-8"><body><script>
const count = (page, selector) => page.querySelectorAll(selector).length;
async function look(address) {
    const frame = document.createElement("iframe");
    frame.width = 1000; frame.height = 800;
    await new Promise(seen => {
        frame.onload = seen; frame.src = address; document.body.append(frame);
    });
    const page = frame.contentDocument;
    const images = [...page.images];
    await Promise.allSettled(images.map(image => image.decode()));
    return {
        address: decodeURIComponent(address), mode: page.compatMode, title: page.title,
        broken: images.filter(i => i.naturalWidth === 0).map(i => i.getAttribute("src")),
        h1: count(page, "h1"), h2: count(page, "h2"), bubbles: count(page, ".msg-box"),
        pictures: count(page, ".main-left > table:not([class]), .main-right > table:not([class])"),
        events: count(page, ".event-msg"), rows: count(page, ".main > table > tbody > tr"),
        heads: count(page, ".main > table > tbody > tr.dark"),
        locked: count(page, "img[src*=crypted]"), deleted: count(page, "img[src*='deleted.png']"),
        width: page.documentElement.scrollWidth,
    };
}
(async () => {
    const pages = await (await fetch("/pages.json")).json(), seen = [];
    for (const address of pages) seen.push(await look(address));
    await fetch("/seen", {method: "POST", body: JSON.stringify(seen)});
})();
</script>"""


class Server(ThreadingHTTPServer):
    def __init__(self, folder, pages):
        super().__init__(("127.0.0.1", 0), partial(Handler, directory=str(folder)))
        self.pages = pages
        self.missing = []
        self.seen = None
        self.done = threading.Event()


class Handler(SimpleHTTPRequestHandler):
    def do_GET(self):
        own = {"/watcher.html": ("text/html", WATCHER),
               "/pages.json": ("application/json", json.dumps(self.server.pages)),
               "/favicon.ico": ("image/x-icon", "")}.get(self.path)
        if own is None:
            super().do_GET()
            return
        self.answer(*own)

    def do_POST(self):
        self.server.seen = json.loads(self.rfile.read(int(self.headers["Content-Length"])))
        self.answer("text/plain", "")
        self.server.done.set()

    def answer(self, kind, text):
        body = text.encode()
        self.send_response(200)
        self.send_header("Content-Type", kind)
        self.send_header("Content-Length", str(len(body)))
        self.end_headers()
        self.wfile.write(body)

    def send_error(self, code, message=None, explain=None):
        self.server.missing.append(unquote(self.path))
        super().send_error(code, message, explain)

    def log_message(self, *_):
        pass


def run(*command):
    subprocess.run([str(word) for word in command], check=True, stdout=subprocess.DEVNULL)


def look_at(browser, folder, pages):
    """What the browser saw of each page, what it asked for in vain, what its console said."""
    with Server(folder, pages) as server, tempfile.TemporaryDirectory() as profile:
        threading.Thread(target=server.serve_forever, daemon=True).start()
        address = f"http://127.0.0.1:{server.server_port}/watcher.html"
        log = Path(profile) / "log"
        with open(log, "wb") as output:
            process = subprocess.Popen(
                [browser, "--headless", "--no-sandbox", "--disable-gpu", "--no-first-run",
                 "--disable-dev-shm-usage", "--enable-logging=stderr", "--lang=en",
                 f"--user-data-dir={profile}/data", "--remote-debugging-port=0", address],
                stdout=output, stderr=output)
            finished = server.done.wait(PATIENCE)
            process.terminate()
            process.wait()
        server.shutdown()
        said = [line for line in log.read_text(errors="replace").splitlines() if "CONSOLE" in line]
        if not finished:
            sys.exit(f"the browser did not report within {PATIENCE} s:\n" + log.read_text()[-2000:])
        return server.seen, server.missing, said


def is_picture(piece, folder):
    """Whether pages show the picture itself."""
    path = piece.get("path")
    if not path:
        return False
    file = folder / path
    head = file.read_bytes()[:8] if file.is_file() else b""
    return head.startswith((b"\xff\xd8\xff", b"\x89PNG", b"GIF8", b"BM"))


def has_icon(piece):
    kinds = ("image", "video", "audio")
    return piece.get("location", False) or any(kind in piece.get("type", "") for kind in kinds)


def expected_of_message(message, folder):
    """Bubbles and pictures of a message that is no event."""
    bubbles = 1 if message.get("content") else 0
    pictures = 0
    for piece in message.get("pieces", []):
        if "text/plain" in piece.get("type", ""):
            bubbles += 1
        else:
            if message.get("subject") and bubbles == 0:
                bubbles += 1
            if is_picture(piece, folder):
                pictures += 1
            elif piece.get("info") or has_icon(piece):
                bubbles += 1
    if message.get("subject") and bubbles == 0:
        bubbles += 1
    return bubbles, pictures


def expected_of_messages(records, folder):
    messages = [m for record in records for m in record.get("chats", [])]
    shown = [expected_of_message(m, folder) for m in messages if m.get("itemType", 0) == 0]
    return {
        "h1": 1, "h2": len(records), "bubbles": sum(b for b, _ in shown),
        "pictures": sum(p for _, p in shown), "events": len(messages) - len(shown), "rows": 0,
    }


def has_flag(record, number):
    return number in record.get("flags", [])


def expected_of_table(records, data_type):
    return {
        "h1": 1, "h2": 0, "bubbles": 0, "heads": 1, "rows": 1 + len(records),
        "deleted": sum(has_flag(record, 1) for record in records)
        + sum(has_flag(record, 1) and has_flag(record, 8) for record in records),
        "locked": sum(has_flag(record, 8) for record in records) if data_type == NOTES else 0,
    }


def expected_of_bookmarks(records):
    groups = {record.get("group", "") for record in records}
    heads = len(groups - {""})
    return {"h1": 1, "h2": 0, "bubbles": 0, "heads": heads, "rows": heads + len(records),
            "deleted": sum(has_flag(record, 1) for record in records)}


def expected(data_set, folder):
    data_type, records = data_set["dataType"], data_set.get("records", [])
    if data_type == MESSAGES:
        return expected_of_messages(records, folder)
    if data_type in TABLES:
        return expected_of_table(records, data_type)
    return expected_of_bookmarks(records)


def complaints(seen, wanted, out):
    """Differences between a page and its records."""
    page = out / seen["address"].lstrip("/")
    for name, value in wanted.items():
        if seen[name] != value:
            yield f"{seen[name]} {name}, and the records hold {value}"
    if seen["h2"] == 0 and seen["rows"] == 0:
        yield "nothing is on it"
    for source in seen["broken"]:
        image = page.parent / unquote(source)
        # Pictures that fit are written as empty files; all others are there.
        if not image.is_file() or image.stat().st_size != 0:
            yield f"the image {source} is not shown"


def names_of(program, folder):
    """Name of each data type, from the list of categories that an unknown one is answered by."""
    answer = subprocess.run([program, "export", "x", str(folder / "x"), "--only", "?"],
                            capture_output=True, text=True, check=False)
    words = [line.split(None, 1) for line in answer.stderr.splitlines() if line.startswith("  ")]
    return {int(number): name for number, name in words}


def main():
    program, backup = sys.argv[1:3]
    browser = next(filter(None, map(shutil.which, BROWSERS)), None)
    if browser is None:
        print("skipped: there is no browser (./dev setup installs chromium)")
        return SKIPPED

    failures = 0
    with tempfile.TemporaryDirectory() as folder:
        work = Path(folder)
        out, dump = work / "out", work / "dump.json"
        run(program, "export", backup, out, "--language", "en", "--quiet")
        run(program, "dump", backup, dump)
        sets = json.loads(dump.read_text())["sets"]
        names = names_of(program, work)
        pages = {}  # address -> the set that it shows
        for data_set in sets:
            for page in sorted((out / names[data_set["dataType"]]).glob("*.html")):
                pages["/" + str(page.relative_to(out))] = data_set
        for data_type in (MESSAGES, *sorted(TABLES | BOOKMARKS)):
            if all(data_set["dataType"] != data_type for data_set in pages.values()):
                failures += 1
                print(f"{names[data_type]}: there is no page")

        all_seen, missing, said = look_at(browser, out, [quote(page) for page in pages])
        for seen in all_seen:
            found = list(complaints(seen, expected(pages[seen["address"]], work), out))
            failures += len(found)
            print(f"{seen['address']}: {'; '.join(found) or 'as the records hold it'}")
        for line in [f"asked for in vain: {path}" for path in missing] + said:
            failures += 1
            print(line)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
