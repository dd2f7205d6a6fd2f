"""Writes small seeds made from the sample resources, its front end and test data: seeds.py RESOURCES CORPUS"""
import json
import pathlib
import random
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
    seed("TextCatalogFuzzer", f"text-{index}", b"\xff".join(compact({url: texts[name].get(url)}) for name in texts))
root = pathlib.Path(__file__).parent.parent
for path in root.glob("tests/rules/svg-*/*/icons/day/*.svg"):
    seed("SvgFuzzer", "-".join(path.parts[-5:-3]), path.read_bytes())
cases = root / "tests/data/QmlAnalysisTest/cases"
component, script = (cases / "dynamic/Icon.qml").read_bytes(), (cases / "dynamic/tools.js").read_bytes()
for path in [*root.glob("Gallery/qml/device/*.qml"), *cases.glob("*/*.qml"), *cases.glob("*/*js")]:
    files = [b"", component, path.read_bytes()] if path.suffix != ".qml" else [path.read_bytes(), component, script]
    seed("QmlFuzzer", f"{path.parent.name}-{path.name}", b"\xff".join(files))
for number in range(200):
    seed("ReplyFuzzer", f"random-{number}", random.Random(number).randbytes(200))
