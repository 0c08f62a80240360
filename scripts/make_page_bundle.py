#!/usr/bin/python3
"""Writes the settings page's bundle: the files its loader would otherwise
fetch one synchronous request at a time, in one script that fills the map
`page_bundle`, name (as the page asks for it) -> text.

Usage: make_page_bundle.py PAGE_ROOT PATTERN_LIST OUTPUT

PATTERN_LIST holds glob patterns relative to PAGE_ROOT, one a line; blank
lines and lines starting with # are skipped."""
import glob
import json
import os
import sys


def patterns(list_file):
    with open(list_file, encoding="utf-8") as f:
        lines = (line.strip() for line in f)
        return [line for line in lines if line and not line.startswith("#")]


def bundled_names(root, list_file):
    names = set()
    for pattern in patterns(list_file):
        found = glob.glob(pattern, root_dir=root, recursive=True)
        if not found:
            print("make_page_bundle: %s matches no file" % pattern, file=sys.stderr)
        names.update(name for name in found if os.path.isfile(os.path.join(root, name)))
    # The page asks with forward slashes; a stable order keeps rebuilds equal.
    return sorted(name.replace(os.sep, "/") for name in names)


def bundle_text(root, names):
    lines = ["// Made at build time by scripts/make_page_bundle.py from the files below",
             "// html/ that the page's loader reads; edit those, not this.",
             "window.page_bundle = {"]
    for index, name in enumerate(names):
        with open(os.path.join(root, name), encoding="utf-8") as f:
            text = f.read()
        # ASCII escapes keep U+2028 and U+2029 from ending a line early.
        separator = "," if index + 1 < len(names) else ""
        lines.append("%s: %s%s" % (json.dumps(name), json.dumps(text, ensure_ascii=True), separator))
    lines.append("};")
    return "\n".join(lines) + "\n"


def main(argv):
    if len(argv) != 4:
        print(__doc__.split("\n\n")[1], file=sys.stderr)
        return 2
    root, list_file, output = argv[1:]
    text = bundle_text(root, bundled_names(root, list_file))
    os.makedirs(os.path.dirname(os.path.abspath(output)), exist_ok=True)
    # Whole or not at all: a half-written bundle would break the page.
    partial = output + ".partial"
    with open(partial, "w", encoding="utf-8") as f:
        f.write(text)
    os.replace(partial, output)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
