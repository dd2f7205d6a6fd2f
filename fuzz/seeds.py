"""Makes small seeds of the sample resources: seeds.py RESOURCES CORPUS"""
import json
import pathlib
import sys

resources, corpus = map(pathlib.Path, sys.argv[1:])
texts = {name: json.loads((resources / "texts" / f"{name}.json").read_text()) for name in ("de_AT", "de", "en")}
aliases = json.loads((resources / "icons/mapping.json").read_text())


def seed(fuzzer, name, content):
    directory = corpus / fuzzer
    directory.mkdir(parents=True, exist_ok=True)
    (directory / name).write_bytes(content)


def compact(value):
    return json.dumps(value, ensure_ascii=False).encode()


for path in resources.rglob("*.ini"):
    for index, part in enumerate(path.read_text().split("\n\n")):
        seed("IniFuzzer", f"{path.stem}-{index}", part.encode())
for name in list(aliases)[::6]:
    seed("MappingTableFuzzer", name, compact({name: aliases[name]}))
for index, url in enumerate(list(texts["de"])[::6]):
    seed("TextCatalogueFuzzer", f"text-{index}", b"\xff".join(compact({url: texts[name].get(url)}) for name in texts))
# A text ends with a backslash before another character; numbers are taken from the end.
for name, texts_of_reply in {
    "path": ["(bisv)", "", "s", "/usr/share/device/colors.ini"],
    "error": ["(bisv)", "No such table", "s", ""],
    "sizes": ["(bisv)", "", "a((ii)s)", "dimensions/800x480.ini", "dimensions/1024x600.ini"],
    "nested": ["(bisv)", "", "a{sv}", "key", "(yv)", "ay"],
    "other": ["(bs)", "text"],
}.items():
    seed("ReplyFuzzer", name, "\\ ".join(texts_of_reply + [""]).encode() + bytes([2] * 8 + [0] * 16 + [name == "error"]))
