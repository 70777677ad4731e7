#!/usr/bin/env python3
"""Turns the guide into a page for a browser, as no Windows opens its source: headings, paragraphs, lists, tables, code, pictures
and links within the page. guide_html.py GUIDE > PAGE. Ends with 1 when a picture or a place that is linked to isn't there."""

import html
import os
import re
import sys

HEAD = """<!DOCTYPE html>
<html lang="en"><head><meta charset="utf-8"><title>%s</title>
<style>body{font:16px/1.45 sans-serif;max-width:56em;margin:2em auto;padding:0 1em}img{max-width:100%%}
pre,code{font:14px/1.4 monospace;background:#eee}pre{padding:.6em;overflow:auto}td,th{padding:.2em .8em .2em 0;text-align:left;vertical-align:top}
</style></head><body>
"""


def anchor(text):
    return re.sub(r"[^a-z0-9 -]", "", text.lower()).replace(" ", "-")


def inline(text):
    """Code is left alone by what else there is in a line."""
    parts = re.split(r"(``.+?``|`[^`]+`)", text)
    for i, part in enumerate(parts):
        if i % 2:
            parts[i] = "<code>%s</code>" % html.escape(part.strip("`"))
            continue
        part = html.escape(part, quote=False)
        part = re.sub(r"!\[([^\]]*)\]\(([^)]+)\)", r'<img src="\2" alt="\1">', part)
        part = re.sub(r"\[([^\]]+)\]\(([^)]+)\)", r'<a href="\2">\1</a>', part)
        part = re.sub(r"\*\*(.+?)\*\*", r"<b>\1</b>", part)
        parts[i] = re.sub(r"\*(\w.*?)\*", r"<i>\1</i>", part)
    return "".join(parts)


def listed(tag, lines):
    items = re.split(r"^(?:- |\d+\. )", "\n".join(lines), flags=re.M)[1:]
    return "<%s>%s</%s>" % (tag, "".join("<li>%s</li>" % inline(item.strip()) for item in items), tag)


def table(lines):
    rows = [[inline(cell.strip()) for cell in line.strip("|").split("|")] for line in lines if not line.startswith("|---")]
    cells = ["".join("<%s>%s</%s>" % (tag, cell, tag) for cell in row) for row, tag in zip(rows, ["th"] + ["td"] * len(rows))]
    return "<table>%s</table>" % "".join("<tr>%s</tr>" % row for row in cells)


def block(text):
    lines = text.split("\n")
    if text.startswith("#"):
        level, title = re.match(r"(#+) (.*)", text).groups()
        return '<h%d id="%s">%s</h%d>' % (len(level), anchor(title), inline(title), len(level))
    if text.startswith("    "):
        return "<pre>%s</pre>" % html.escape("\n".join(line[4:] for line in lines))
    if text.startswith("|"):
        return table(lines)
    if re.match(r"- ", text):
        return listed("ul", lines)
    if re.match(r"\d+\. ", text):
        return listed("ol", lines)
    return "<p>%s</p>" % inline(text)


def page(source):
    blocks = [block(text.strip("\n")) for text in re.split(r"\n\n+", source) if text.strip()]
    return HEAD % html.escape(source.split("\n")[0].lstrip("# ")) + "\n".join(blocks) + "\n</body></html>\n"


def missing(text, folder):
    """What the page leads to, and isn't there."""
    places = set(re.findall(r'id="([^"]+)"', text))
    for target in re.findall(r'(?:src|href)="([^"]+)"', text):
        there = target[1:] in places if target.startswith("#") else os.path.isfile(os.path.join(folder, target))
        if not there:
            yield target


def pictures(text):
    return sorted(set(re.findall(r'<img src="([^"]+)"', text)))


def main():
    with open(sys.argv[1], encoding="utf-8") as source:
        text = page(source.read())
    lost = list(missing(text, os.path.dirname(sys.argv[1])))
    for target in lost:
        print("guide: there is no " + target, file=sys.stderr)
    sys.stdout.write(text)
    return 1 if lost else 0


if __name__ == "__main__":
    sys.exit(main())
