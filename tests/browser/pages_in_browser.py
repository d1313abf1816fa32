#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Opens the pages of the sample backup in a browser without a window, and those of chats and chat
contacts of a record set.

  pages_in_browser.py PROGRAM BACKUP RECORDS

Both are exported and their records are dumped. Every page is then opened from a server on the
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
CHATS, CHAT_CONTACTS = 5, 16
SAMPLE_CHATS = {9, 11, 14, 17}

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
        locked: count(page, "img[src*=crypted]"), cards: count(page, ".main-top"), deleted: count(page, "img[src*='deleted.png']"),
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


def expected_of_chats(records, folder):
    shown = [m for r in records for m in r.get("messages", [])
             if m.get("checked", True) or not has_flag(r, 16)]
    with_icon = {1, 2, 3, 4, 5, 8}
    bubbles = [m for m in shown if m.get("type", 0) != 6 and (
        m.get("content") or m.get("type", 0) in with_icon
        or is_picture({"path": m.get("media")}, folder))]
    return {"h1": 1, "h2": len(records), "bubbles": len(bubbles), "pictures": 0, "rows": 0}


def expected_of_chat_contacts(records):
    rows = [4 * len(r.get("members", [])) if r.get("room") else 8 for r in records]
    return {"h1": 1, "h2": 0, "cards": len(records), "rows": sum(rows),
            "deleted": sum(has_flag(record, 1) for record in records)}


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
    if data_type == CHATS or data_type in SAMPLE_CHATS:
        return expected_of_chats(records, folder)
    if data_type == CHAT_CONTACTS:
        return expected_of_chat_contacts(records)
    if data_type in TABLES:
        return expected_of_table(records, data_type)
    return expected_of_bookmarks(records)


def complaints(seen, wanted, work):
    """Differences between a page and its records."""
    page = work / seen["address"].lstrip("/")
    for name, value in wanted.items():
        if seen[name] != value:
            yield f"{seen[name]} {name}, and the records hold {value}"
    if seen["h2"] + seen["rows"] + seen["cards"] == 0:
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


def exported_pages(program, source, out, wanted):
    """Address of each page of the source -> the set that it shows."""
    dump = out.with_suffix(".json")
    run(program, "export", source, out, "--language", "en", "--quiet")
    run(program, "dump", source, dump)
    names = names_of(program, out.parent)
    pages = {}
    for data_set in json.loads(dump.read_text())["sets"]:
        if data_set["dataType"] in wanted:
            folder = out / names[data_set["dataType"]]
            for page in sorted(folder.glob("**/*.html")):
                pages["/" + str(page.relative_to(out.parent))] = data_set
    without = wanted - {data_set["dataType"] for data_set in pages.values()}
    if without:
        sys.exit("there is no page of " + ", ".join(names[number] for number in sorted(without)))
    return pages


def main():
    program, backup, records = sys.argv[1:4]
    browser = next(filter(None, map(shutil.which, BROWSERS)), None)
    if browser is None:
        print("skipped: there is no browser (./dev setup installs chromium)")
        return SKIPPED

    failures = 0
    with tempfile.TemporaryDirectory() as folder:
        work = Path(folder)
        pages = exported_pages(
            program, backup, work / "backup",
            {MESSAGES, CHAT_CONTACTS} | SAMPLE_CHATS | TABLES | BOOKMARKS)
        pages |= exported_pages(program, records, work / "records", {CHATS, CHAT_CONTACTS})
        all_seen, missing, said = look_at(browser, work, [quote(page) for page in pages])
        for seen in all_seen:
            found = list(complaints(seen, expected(pages[seen["address"]], work), work))
            failures += len(found)
            print(f"{seen['address']}: {'; '.join(found) or 'as the records hold it'}")
        for line in [f"asked for in vain: {path}" for path in missing] + said:
            failures += 1
            print(line)
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
