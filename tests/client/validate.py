#!/usr/bin/env python3
"""Holds a JSON Schema against each line of some files; at least one line has to be there."""

import json
import sys

import jsonschema


def main():
    with open(sys.argv[1], encoding="utf-8") as file:
        schema = json.load(file)
    jsonschema.Draft202012Validator.check_schema(schema)
    validator = jsonschema.Draft202012Validator(schema)
    lines = failures = 0
    for name in sys.argv[2:]:
        with open(name, encoding="utf-8") as file:
            for line in file:
                lines += 1
                for error in validator.iter_errors(json.loads(line)):
                    failures += 1
                    error = jsonschema.exceptions.best_match([error])
                    print(f"{name}: {error.json_path}: {error.message}\n  {line}", file=sys.stderr)
    print(f"{lines} lines, {failures} failures")
    return 0 if lines > 0 and failures == 0 else 1


if __name__ == "__main__":
    sys.exit(main())
