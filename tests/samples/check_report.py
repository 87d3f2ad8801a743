#!/usr/bin/env -S python3 -B
"""Checks the sample host's JSON report of a successful load: check_report.py FILE"""

import json
import sys

RECORD_SIZE = 1807


def main():
    with open(sys.argv[1], encoding="utf-8") as file:
        report = json.load(file)
    assert report["loaded"] and report["enabled"] and not report["refusals"], report
    assert not report["blockChanges"] and not report["registryChanges"], report
    end = 0
    for field in report["block"]:
        assert field["offset"] == end, field
        end += len(field["bytes"]) // 2
    assert end == RECORD_SIZE, end


if __name__ == "__main__":
    main()
