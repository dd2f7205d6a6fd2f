#!/usr/bin/env python3
"""Validates a SARIF file against the parts of the format that the checker writes: validate-sarif.py FILE"""
import json
import pathlib
import sys

import jsonschema

schema = json.loads(pathlib.Path(__file__).with_name("sarif-2.1.0-subset.json").read_text(encoding="utf-8"))
log = json.loads(pathlib.Path(sys.argv[1]).read_text(encoding="utf-8"))
jsonschema.validate(log, schema, jsonschema.Draft7Validator)
for run in log["runs"]:
    rules = [rule["id"] for rule in run["tool"]["driver"]["rules"]]
    assert len(set(rules)) == len(rules), "a rule is listed twice"
    for result in run["results"]:
        assert rules[result["ruleIndex"]] == result["ruleId"], f"wrong ruleIndex: {result}"
