# Shared by the scripts of this folder, which source it and set `here` to its name.

fail() {
  echo "FAILED: $*"
  exit 1
}

# Makes FOLDER an empty folder.
empty_folder() { # FOLDER
  rm -rf "$1"
  mkdir -p "$1"
}

# Runs a command and shows its output if it fails.
quietly() { # COMMAND...
  local log
  log=$(mktemp)
  if ! "$@" >"$log" 2>&1; then
    cat "$log"
    rm -f "$log"
    fail "$*"
  fi
  rm -f "$log"
}

# Runs a command, expects its exit status, and leaves its output in the files `out` and `err`.
run() { # STATUS COMMAND...
  local expected=$1 status=0
  shift
  "$@" >out 2>err || status=$?
  [[ $status == "$expected" ]] || fail "exit status $status, not $expected: $* ($(cat err))"
}

# Expects text in one of those files.
says() { # TEXT FILE
  grep -qF -- "$1" "$2" || fail "\"$1\" is not in $2: $(cat "$2")"
}

# Compares the files below FOLDER with the names on standard input.
expect_files() { # FOLDER
  diff - <(cd "$1" && find . ! -type d | sed 's|^\./||' | LC_ALL=C sort) ||
    fail "< is missing in, > does not belong into $1"
}

# The CMake files of a package hold no absolute path.
expect_relocatable() { # PACKAGE
  local found
  found=$(grep -nE '(^|[" ;])(/[A-Za-z]|[A-Za-z]:[\\/])' "$1"/lib/cmake/Brennet/*.cmake) || return 0
  fail "an absolute path in the package: $found"
}

# Configuring the project in consumer/, or another one given by -S, has to fail with a message.
expect_refused() { # MESSAGE BUILD_FOLDER ARGUMENT...
  local message=$1 build=$2
  shift 2
  if cmake -G Ninja -S "$here/consumer" -B "$build" "$@" >refused 2>&1; then
    fail "a package was accepted: $*"
  fi
  # CMake breaks its messages into lines.
  [[ $(tr -s '\n ' ' ' <refused) == *"$message"* ]] || fail "no \"$message\" in: $(cat refused)"
}

# Builds the host that the contract links, with the contract's lines for CMake: contract/my-host.
build_contract_host() { # CMAKE_ARGUMENT...
  local checkout=$here/../..
  local block=("$checkout/tests/docs/block.sh" "$checkout/sdk/CONTRACT.md")
  mkdir contract-sources
  {
    echo '#include <brennet/IBrennet.h>'
    "${block[@]}" cpp 1
    echo 'int main() { return GetBrennetPtr() == GetBrennetPtr() ? 0 : 1; }'
  } >contract-sources/host.cpp
  {
    echo 'cmake_minimum_required(VERSION 3.22)'
    echo 'project(Contract LANGUAGES CXX)'
    echo 'add_executable(my-host host.cpp)'
    "${block[@]}" cmake 1
  } >contract-sources/CMakeLists.txt
  quietly cmake -G Ninja -S contract-sources -B contract -DCMAKE_CXX_STANDARD=11 "$@"
  quietly cmake --build contract
}
