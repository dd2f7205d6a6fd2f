#!/usr/bin/env python3
"""Applies the fixes of a SARIF file, as an editor does: apply-sarif.py FILE"""
import json
import pathlib
import sys
import urllib.parse

replacements = []
for run in json.loads(pathlib.Path(sys.argv[1]).read_text(encoding="utf-8"))["runs"]:
    for result in run["results"]:
        for fix in result.get("fixes", []):
            for change in fix["artifactChanges"]:
                path = urllib.parse.unquote(change["artifactLocation"]["uri"].replace("file://", ""))
                for replacement in change["replacements"]:
                    region = replacement["deletedRegion"]
                    start = region["startLine"], region["startColumn"]
                    end = region["endLine"], region["endColumn"]
                    replacements.append((path, start, end, replacement.get("insertedContent", {}).get("text", "")))


def offset(text, place):
    """Columns count UTF-16 code units."""
    lines = text.split("\n")
    before = lines[place[0] - 1].encode("utf-16-le")[: 2 * place[1] - 2].decode("utf-16-le")
    return sum(len(line) + 1 for line in lines[: place[0] - 1]) + len(before)


assert len(set(replacements)) == len(replacements), "a fix is listed twice"
for path, start, end, text in sorted(replacements, reverse=True):
    file = pathlib.Path(path)
    content = file.read_bytes().decode("utf-8")
    content = content[: offset(content, start)] + text + content[offset(content, end) :]
    file.write_bytes(content.encode("utf-8"))
