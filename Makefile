# The way in. Every goal first installs what it needs, see tools/setup.sh.

SETTINGS ?=
FUZZ_SECONDS ?= 60
HOURS ?= 4
CTEST_ARGS ?=
ROWS ?=
ROUNDS ?= 100000
UPDATE ?=
RUNS ?= 1
MUTANTS ?= 600
SEED ?= 1
FOLDERS ?=
JOBS ?= $(shell nproc)

.DEFAULT_GOAL := help
.PHONY: help run run-windows test test-anywhere asan faults soak odr windows test-windows sdk reproducible bench bench-build bench-count bench-windows fuzz fuzz-build fuzz-long fuzz-merge fuzz-coverage mutation shots translations update format lint lint-windows clean

help: ## show this list
	@sed -n 's/^\([a-z-]*\):.* ## \(.*\)/  make \1\t\2/p' $(MAKEFILE_LIST) | expand -t 24

run: ## load the sample settings and show what the library does (SETTINGS=path for others)
	@tools/setup.sh build
	@test -f build/native/build.ninja || cmake --preset native -DBRENNET_BUILD_TESTS=OFF
	@cmake --build --preset native -j $(JOBS) --target brennet brennet-host brennet-program
	@tools/run.sh build/native/bin/brennet-host build/native/lib/libbrennet.so "$(SETTINGS)"

test: ## build everything and run all tests
	@tools/setup.sh build test
	@cmake --preset native -DBRENNET_BUILD_TESTS=ON
	@cmake --build --preset native -j $(JOBS)
	@ctest --preset native -j $(JOBS) $(CTEST_ARGS)

test-anywhere: ## run all tests as others would, elsewhere (ROWS="path random" for some of it)
	@tools/setup.sh build test anywhere
	@tools/test_anywhere.sh $(ROWS)

asan: ## build and run the native tests under the address and undefined-behaviour sanitizers
	@tools/setup.sh build test
	@cmake --preset asan
	@cmake --build --preset asan -j $(JOBS)
	@ctest --preset asan -j $(JOBS)

faults: ## fail every call, allocation and moment on the way of a player's files (some hours)
	@tools/setup.sh build test
	@cmake --preset native -DBRENNET_BUILD_TESTS=ON
	@cmake --build --preset native -j $(JOBS)
	@BRENNET_TEST_FAULTS=all ctest --preset native -j $(JOBS) --timeout 20000 -R "Faults|OutOfMemory"

soak: ## have many processes save, read and replace the same files, ROUNDS (100000) times
	@tools/setup.sh build test
	@cmake --preset native -DBRENNET_BUILD_TESTS=ON
	@cmake --build --preset native -j $(JOBS) --target brennet-soak
	@build/native/bin/brennet-soak $(ROUNDS)

odr: ## look for two definitions of one name in the library and in test programs
	@tools/setup.sh build test
	@cmake --preset odr
	@cmake --build --preset odr -j $(JOBS) --target brennet host_tests model_tests ui_tests

windows: ## build the 32-bit Windows library, the sample host and all test programs
	@tools/setup.sh build windows
	@tools/windows/qt.sh
	@tools/windows/configure.sh
	@cmake --build --preset windows -j $(JOBS)

test-windows: ## run all tests as Windows programs, under Wine
	@tools/windows/wine.sh
	@$(MAKE) --no-print-directory windows
	@tools/setup.sh build test
	@cmake --preset native -DBRENNET_BUILD_TESTS=ON
	@cmake --build --preset native -j $(JOBS) --target agreement_dump
	@ctest --preset windows -j $(JOBS)

run-windows: windows ## do what "run" does with the Windows library, under Wine
	@tools/windows/wine.sh
	@tools/windows/demo.sh build/windows

sdk: windows ## write the package for embedders, build/sdk/brennet-sdk-<version>.zip
	@tools/sdk.sh build/windows build/sdk

reproducible: ## build the package twice, in two folders, and compare every byte
	@tools/setup.sh windows
	@tools/windows/qt.sh
	@tools/reproducible.sh

bench-build:
	@tools/setup.sh build bench
	@cmake --preset bench
	@cmake --build --preset bench -j $(JOBS)

bench: bench-build ## measure against other libraries (RUNS=3 BENCH_ARGS="--benchmark_filter=setDoc")
	@tools/setup.sh report
	@RUNS=$(RUNS) tools/bench.sh build/bench

bench-windows: ## the same for 32-bit Windows, under Wine, with what of the others runs there
	@tools/setup.sh build bench report windows
	@tools/windows/wine.sh
	@tools/windows/qt.sh
	@tools/windows/peers.sh
	@tools/windows/configure.sh bench-windows
	@cmake --build --preset bench-windows -j $(JOBS)
	@RUNS=$(RUNS) tools/bench.sh build/bench-windows tools/windows/run.sh

bench-count: bench-build ## compare counted instructions with bench/counts.json (UPDATE=1 rewrites it)
	@bench/count/count.py $(if $(UPDATE),--update) build/bench/bin/brennet-count bench/counts.json

fuzz-build:
	@tools/setup.sh build fuzz
	@cmake --preset fuzz
	@cmake --build --preset fuzz -j $(JOBS) --target fuzzers

fuzz: fuzz-build ## run each fuzz target for FUZZ_SECONDS (60), two at a time
	@tools/fuzz.sh build/fuzz build/fuzz-corpus $(FUZZ_SECONDS)

fuzz-long: fuzz-build ## run all fuzz targets for HOURS (4) together, two at a time
	@tools/fuzz.sh build/fuzz build/fuzz-corpus $(HOURS)h

fuzz-merge: fuzz-build ## bring what runs have found back to fuzz/corpus/
	@tools/fuzz_merge.sh build/fuzz build/fuzz-corpus

fuzz-coverage: ## tell which lines and branches the inputs in fuzz/corpus/ reach
	@tools/setup.sh build fuzz
	@cmake --preset fuzz-coverage
	@cmake --build --preset fuzz-coverage -j $(JOBS) --target fuzzers
	@tools/fuzz_coverage.sh build/fuzz-coverage

mutation: ## plant MUTANTS (600) small faults of SEED (1), and tell which no test finds (FOLDERS="model")
	@tools/setup.sh build test
	@nice -n 10 tools/mutation/mutate.py --mutants $(MUTANTS) --seed $(SEED) --jobs $(JOBS) $(FOLDERS)

translations: ## bring the catalogues up to date with the texts of the windows
	@tools/setup.sh build
	@tools/translations.sh

update: ## rewrite all files that are made from the code or by running it; then look at the difference
	@tools/setup.sh build test
	@cmake --preset native -DBRENNET_BUILD_TESTS=ON
	@cmake --build --preset native -j $(JOBS) --target golden
	@tools/update.sh build/native

shots: ## take pictures of all windows in both languages, build/shots/
	@tools/setup.sh build test
	@cmake --preset native -DBRENNET_BUILD_TESTS=ON
	@cmake --build --preset native -j $(JOBS) --target brennet-shots
	@build/native/bin/brennet-shots build/shots 2>/dev/null
	@echo "The pictures are in build/shots/"

format: ## put all C++ sources into the house's format
	@tools/setup.sh lint
	@tools/format.sh

lint: ## check the format and run clang-tidy
	@tools/setup.sh build test lint
	@tools/format.sh --check
	@cmake --preset native -DBRENNET_BUILD_TESTS=ON
	@cmake --build --preset native -j $(JOBS) --target brennet_ui_autogen
	@tools/lint.sh native build/native

lint-windows: windows ## run clang-tidy over what only the Windows build has
	@tools/setup.sh lint
	@tools/lint.sh windows build/windows

clean: ## remove everything that was built
	@rm -rf build
