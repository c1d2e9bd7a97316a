"""Checks the links of all Markdown pages of a folder: files must exist, and anchors must be headings there.

Usage: check_links.py <folder>. Addresses in the web are left alone. The pages are those that git knows or would add;
without git, all.
"""
import pathlib
import re
import subprocess
import sys

FENCE = re.compile(r"^(```|~~~).*?^\1\s*$", re.M | re.S)
CODE = re.compile(r"`[^`\n]+`")
COMMENT = re.compile(r"<!--.*?-->", re.S)
LINK = re.compile(r"!?\[[^\]]*\]\(\s*([^)\s]*)[^)]*\)")
HEADING = re.compile(r"^#{1,6}\s+(.+?)\s*#*\s*$", re.M)


def anchors(text):
    """The anchors of a page's headings, as the usual Markdown viewers make them."""
    found = {}
    for heading in HEADING.findall(FENCE.sub("", text)):
        plain = re.sub(r"!?\[([^\]]*)\]\([^)]*\)", r"\1", heading).lower()
        name = re.sub(r"[^\w\- ]", "", plain).replace(" ", "-")
        count = found.get(name, 0)
        found[name] = count + 1
        if count:
            found[f"{name}-{count}"] = 1
    return set(found)


def links(text):
    prose = CODE.sub("``", COMMENT.sub("", FENCE.sub("", text)))
    return LINK.findall(prose)


def broken(page, text):
    """The reasons why links of this page lead nowhere."""
    for link in links(text):
        if re.match(r"[a-z]+:", link):
            continue
        path, _, anchor = link.partition("#")
        target = page if not path else page.parent / path
        if not target.exists():
            yield f"{link}: there is no such file"
        elif anchor and anchor not in anchors(target.read_text(encoding="utf-8")):
            yield f"{link}: there is no such heading"


def pages(folder):
    known = subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard", "*.md"], cwd=folder,
                           capture_output=True, text=True, check=False)
    names = known.stdout.splitlines() if known.returncode == 0 else []
    found = [folder / name for name in names] or [p for p in folder.rglob("*.md") if "build" not in p.parts]
    return sorted(page for page in found if page.exists())


def main(folder):
    checked = failed = 0
    for page in pages(folder):
        text = page.read_text(encoding="utf-8")
        checked += len(links(text))
        for reason in broken(page, text):
            failed += 1
            print(f"{page.relative_to(folder)}: {reason}")
    print(f"{checked} links, {failed} broken")
    return 1 if failed or not checked else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1]).resolve()))
