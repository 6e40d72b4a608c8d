"""What pages of the guide show in JavaScript: see guide.py.

    run_javascript(blocks, folder)      what the blocks of one page become; FOLDER is where npm has put the package
    run_documents(blocks, folder)       pairs of a block of text and what the document before it shows in the browser
    in_javascript_package()             the names of the package's functions
"""

import functools
import html
import http.server
import re
import subprocess
import tempfile
import threading
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
SESSION = Path(__file__).with_name("guide_session.mjs")
MEMBER = re.compile(r"^  (?:readonly )?(\w+)[(<:]", re.MULTILINE)
UNSEEN = re.compile(r"<(script|style|title)\b.*?</\1>", re.DOTALL)


class Server(http.server.SimpleHTTPRequestHandler):
    """A folder's files, without a word about each."""

    def log_message(self, *_):  # pylint: disable=arguments-differ
        pass


def run_javascript(blocks, folder):
    if not blocks:
        return []
    with tempfile.TemporaryDirectory() as place:
        files = [Path(place) / f"{number:03}.js" for number in range(len(blocks))]
        for file, block in zip(files, blocks):
            file.write_text(block.body, encoding="utf-8")
        done = subprocess.run(["node", SESSION, folder, *files], cwd=ROOT, capture_output=True, text=True, check=False)
        if done.returncode != 0:
            raise RuntimeError(f"JavaScript: {done.stderr.strip()}")
        return [file.with_suffix(".out").read_text(encoding="utf-8") for file in files]


def shown_by(document, folder):
    """The text of a document that the browser gets from a server of the folder, when its scripts have run."""
    page = folder / "page.html"
    page.write_text(document, encoding="utf-8")
    try:
        with http.server.ThreadingHTTPServer(("127.0.0.1", 0), functools.partial(Server, directory=folder)) as server, \
                tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as profile:
            threading.Thread(target=server.serve_forever, daemon=True).start()
            seen = subprocess.run(
                ["chromium", "--headless", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage", f"--user-data-dir={profile}",
                 "--virtual-time-budget=20000", "--dump-dom", f"http://127.0.0.1:{server.server_port}/page.html"],
                capture_output=True, text=True, timeout=240, check=True).stdout
            server.shutdown()
    finally:
        page.unlink()
    lines = (line.strip() for line in html.unescape(re.sub(r"<[^>]*>", "", UNSEEN.sub("", seen))).splitlines())
    return "".join(line + "\n" for line in lines if line)


def run_documents(blocks, folder):
    for block, shown in zip(blocks, blocks[1:]):
        if block.language == "html" and shown.language == "text":
            yield shown, shown_by(block.body, folder)


def in_javascript_package():
    types = (ROOT / "Bindings/js/src/index.d.ts").read_text(encoding="utf-8")
    return set(MEMBER.findall(types[types.index("export interface VecMat {"):])) | {"Table"}
