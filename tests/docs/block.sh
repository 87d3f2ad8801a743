#!/usr/bin/env bash
# Prints a block of code of a document, so that tests build what the document says:
# block.sh DOCUMENT LANGUAGE NUMBER    (the first of the language is 1)
# With --count in place of the number, prints how many there are.
set -euo pipefail

awk -v language="$2" -v wanted="${3/--count/0}" '
  /^```/ && inside { inside = 0; next }
  /^```/ { inside = 1; is_wanted = $0 == "```" language && ++count == wanted; next }
  is_wanted && inside { print; printed = 1 }
  END {
    if (wanted == 0) print count + 0
    else if (!printed) { print "there is no such block" >"/dev/stderr"; exit 1 }
  }' "$1"
