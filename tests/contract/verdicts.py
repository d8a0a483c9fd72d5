#!/usr/bin/python3
"""What a JSON Schema says of texts: one letter a text.

    verdicts.py SCHEMA < texts      each text a line of hexadecimal digits

y: it is valid; n: it is not; x: it is no JSON to begin with.
"""
import json
import sys

import jsonschema


def refuse(word):
    raise ValueError(word + " is no JSON")


def verdict(validator, text):
    try:
        value = json.loads(text.decode("utf-8-sig"), parse_constant=refuse)
    except (ValueError, RecursionError):
        return "x"
    return "y" if validator.is_valid(value) else "n"


with open(sys.argv[1], encoding="utf-8") as file:
    schema = json.load(file)
jsonschema.Draft202012Validator.check_schema(schema)
validator = jsonschema.Draft202012Validator(schema)
for line in sys.stdin:
    print(verdict(validator, bytes.fromhex(line)))
