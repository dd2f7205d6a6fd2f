"""Turns Breeze's icon themes and color schemes into a resource directory: breeze_resources.py SHARE DIRECTORY"""

import json
import pathlib
import shutil
import sys


def icons(share, target):
    mapping = {}
    for theme, context in (("breeze", "defaultContext"), ("breeze-dark", "nightMode")):
        source = share / "icons" / theme
        shutil.copytree(source, target / theme, symlinks=True)
        for path in sorted(source.rglob("*.svg")):
            alias = str(path.relative_to(source).with_suffix(""))
            mapping.setdefault(alias, {})[context] = f"{theme}/{path.relative_to(source)}"
    (target / "mapping.json").write_text(json.dumps(mapping, indent=1))
    return len(mapping)


def colors(share, target):
    lines = []
    for path in sorted((share / "color-schemes").glob("*.colors")):
        for line in path.read_text().splitlines():
            lines.append(f"[{path.stem} {line[1:]}" if line.startswith("[") else line)
    target.write_text("\n".join(lines) + "\n")


def main(share, target):
    (target / "dimensions").mkdir(parents=True, exist_ok=True)
    (target / "texts").mkdir(exist_ok=True)
    (target / "fonts.ini").write_text("[Text]\nFamily=Noto Sans\nNormal=14\n")
    (target / "dimensions" / "1920x1080.ini").write_text("[Icon]\nsmall=16\nlarge=48\n")
    (target / "texts" / "en.json").write_text('{"text://Breeze/Name": "Breeze"}\n')
    colors(share, target / "colors.ini")
    print(f"{icons(share, target / 'icons')} aliases", file=sys.stderr)


main(pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]))
