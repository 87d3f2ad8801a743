#!/usr/bin/env bash
# Fails unless the documents have the examples that tests build and run, and no others:
# examples.sh CHECKOUT
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
cd "$1"

# document:language:how many, and where they are tested
known=(
  README.md:cpp:1          # tests/docs/readme.sh, a host for Windows
  docs/embedding.md:cpp:1  # tests/docs/embedding.sh
  sdk/CONTRACT.md:cpp:2    # tests/sdk/lib.sh, and a host for Windows in tests/sdk/linked.sh
  sdk/CONTRACT.md:cmake:1  # tests/sdk/lib.sh
)

found=$(for document in ./*.md docs/*.md sdk/*.md; do
  for language in cpp cmake; do
    count=$("$here/block.sh" "$document" "$language" --count)
    [[ $count == 0 ]] || echo "${document#./}:$language:$count"
  done
done)
diff <(printf '%s\n' "${known[@]}" | sort) <(sort <<<"$found") ||
  { echo '< is tested, > is in the documents' && exit 1; }
