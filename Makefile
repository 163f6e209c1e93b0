# Commands for everyday work. JOBS=n limits the number of compilers run at once.

PRESET := release
BUILD  := build/$(PRESET)
DEMO   := build/demo
# How long `make fuzz` looks for faults.
SECONDS := 60
# What a scenario expects is made, not written.
SOURCES = $(shell find src tests bench fuzz -path tests/scenarios -prune -o \( -name '*.h' -o -name '*.cpp' \) -print)

.DEFAULT_GOAL := help
.PHONY: help setup build program demo test package bench fuzz format format-check tidy clean

help:
	@echo "make demo          build the program, convert every recording in examples/ and show where the macros are"
	@echo "make test          build and run every test"
	@echo "make package       make Debian packages in $(BUILD)/packages"
	@echo "make bench         build and run the benchmarks"
	@echo "make fuzz          build the fuzzers and run them for SECONDS=$(SECONDS)"
	@echo "make format        format all C++ sources"
	@echo "make format-check  fail if a C++ source is not formatted"
	@echo "make tidy          check the sources with clang-tidy"
	@echo "make clean         remove everything that was built"

setup:
	@scripts/setup test

build: setup
	cmake --preset $(PRESET)
	cmake --build --preset $(PRESET) $(if $(JOBS),--parallel $(JOBS))

# The program alone, with no more than it needs.
program:
	@scripts/setup build
	cmake --preset program
	cmake --build --preset program $(if $(JOBS),--parallel $(JOBS))

demo: program
	@scripts/demo $(BUILD)/bin/inkmacro $(DEMO)

test: build
	ctest --preset $(PRESET)

package:
	@scripts/setup package
	@$(MAKE) program
	rm -rf $(BUILD)/packages
	cpack --config $(BUILD)/CPackConfig.cmake
	lintian --allow-root --fail-on error $(BUILD)/packages/*.deb

bench: build
	@scripts/setup bench
	scripts/bench

fuzz: setup
	cmake --preset asan
	cmake --build --preset asan $(if $(JOBS),--parallel $(JOBS)) --target recording_fuzz convert_fuzz import_fuzz
	scripts/fuzz $(SECONDS)

format:
	@clang-format -i $(SOURCES)

format-check:
	@clang-format --dry-run -Werror $(SOURCES)

# Without precompiled headers, which clang-tidy cannot read when another compiler made them.
tidy: setup
	cmake --preset $(PRESET) -B build/tidy -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON
	run-clang-tidy -quiet -p build/tidy -extra-arg=-Wno-unknown-warning-option $(if $(JOBS),-j $(JOBS)) '$(CURDIR)/src/.*'

clean:
	rm -rf build
