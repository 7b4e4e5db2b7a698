"""Reads a document from standard input and holds it against a JSON Schema; says in what it differs from it."""

import json
import sys

import jsonschema

with open(sys.argv[1], encoding="utf-8") as file:
    schema = json.load(file)
document = json.load(sys.stdin)
errors = [f"{error.json_path}: {error.message}" for error in jsonschema.Draft202012Validator(schema).iter_errors(document)]
print("\n".join(errors))
sys.exit(1 if errors else 0)
