#!/usr/bin/python3 -B
"""Compares what each command writes with --json with the schema: answers.py PROGRAM CHECKOUT

It runs with the system's own Python, whose packages tools/setup.sh installs.
"""

import json
import os
import shutil
import subprocess
import sys
import tempfile

try:
    import jsonschema
except ImportError:
    sys.exit("FAILED: there is no Python package jsonschema; run tools/setup.sh test")

RUNS = {
    "check": (["{sample}", "{damaged}"], ["{record}"]),
    "show": (["{sample}"], ["{sample}", "--scheme", "1"]),
    "diff": (["{sample}", "{other}"], ["{sample}", "{sample}"], ["{record}", "{record}"]),
    "record": (["{sample}"],),
    "explain": (["{record}"],),
    "apply": (["{other}", "{record}"],),
    "prefs": (["{sample}", "{prefs}"],),
    "repair": (["{sample}"], ["{damaged}"]),
    "keys": ([], ["{sample}"]),
}
DAMAGED = b"""<KeyInfo><LastSaveTime>5</LastSaveTime><Odd/>
<HeroSkillKey><Key id="0">20736</Key><Key id="7">20736</Key></HeroSkillKey>"""


def commands_of(program):
    text = subprocess.run([program, "--help"], capture_output=True, check=True).stdout.decode()
    lines = text.partition("Subcommands:\n")[2].partition("\n\n")[0].splitlines()
    return {line.split()[0] for line in lines}


def main():
    program, checkout = sys.argv[1:]
    with open(os.path.join(checkout, "docs/command-line.schema.json"), encoding="utf-8") as file:
        schema = json.load(file)
    jsonschema.Draft7Validator.check_schema(schema)
    failures = [f"{command}: is in one of program, schema and this test, but not in all"
                for command in commands_of(program) ^ set(schema["definitions"])
                | commands_of(program) ^ set(RUNS)]
    with tempfile.TemporaryDirectory() as folder:
        names = ("damaged", "other", "record", "sample")
        files = {name: os.path.join(folder, name) for name in names}
        # Commands change files.
        shutil.copy(os.path.join(checkout, "samples/data/KeyInfo.xml"), files["sample"])
        files["prefs"] = os.path.join(checkout, "samples/data/War3Preferences.txt")
        with open(files["damaged"], "wb") as file:
            file.write(DAMAGED)
        with open(files["sample"], "rb") as file, open(files["other"], "wb") as other:
            other.write(file.read().replace(b">120<", b">90<"))
        subprocess.run([program, "record", files["sample"], "--output", files["record"]], check=True)
        for command, runs in RUNS.items():
            part = {"$ref": f"#/definitions/{command}", "definitions": schema["definitions"]}
            for arguments in runs:
                given = [argument.format(**files) for argument in arguments]
                done = subprocess.run([program, command, "--json", *given], capture_output=True)
                try:
                    jsonschema.Draft7Validator(part).validate(json.loads(done.stdout))
                except (jsonschema.ValidationError, ValueError) as error:
                    failures.append(f"{command} {' '.join(arguments)}: {error}")
    for failure in failures:
        print("FAILED:", failure)
    sys.exit(1 if failures else 0)


if __name__ == "__main__":
    main()
