#!/usr/bin/env python3
"""Validates a SARIF file against the parts of the format that the checker writes: validate-sarif.py FILE"""
import json
import pathlib
import sys

import jsonschema

schema = json.loads((pathlib.Path(__file__).parent / "sarif-2.1.0-subset.json").read_text())
log = json.loads(pathlib.Path(sys.argv[1]).read_text(encoding="utf-8"))
errors = [f"{error.json_path}: {error.message}" for error in jsonschema.Draft7Validator(schema).iter_errors(log)]
if not errors:
    for run in log["runs"]:
        rules = [rule["id"] for rule in run["tool"]["driver"]["rules"]]
        if len(set(rules)) < len(rules):
            errors.append("a rule is listed twice")
        for result in run["results"]:
            if rules[result["ruleIndex"]:][:1] != [result["ruleId"]]:
                errors.append(f"ruleIndex {result['ruleIndex']} is not that of {result['ruleId']}")
print("\n".join(errors), end="\n" if errors else "")
sys.exit(1 if errors else 0)
