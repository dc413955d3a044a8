# Two commands do everything on a fresh Debian 12 machine:
#   make run    installs what is missing, builds, and runs the main job
#   make test   the same set-up, then every test
PRESET ?= release
BUILD_DIR := build/$(PRESET)
CLI := $(BUILD_DIR)/src/cli/svgfigurer
JOBS ?= $(shell nproc)

.PHONY: all deps configure build test run asan-test tsan-test fuzz bench format clean

all: build

deps:
	./scripts/install-deps

configure: deps
	cmake --preset $(PRESET)

build: configure
	cmake --build --preset $(PRESET) -j $(JOBS)

test: build
	ctest --preset $(PRESET) -j $(JOBS)

# The main job: convert the default document to SwiftUI source.
run: build
	$(CLI) convert samples/default.svg

asan-test:
	$(MAKE) test PRESET=asan

# The engine and the concurrency tests under ThreadSanitizer.
tsan-test:
	$(MAKE) test PRESET=tsan

fuzz: deps
	cmake --preset fuzz
	cmake --build --preset fuzz -j $(JOBS)

bench: build
	$(BUILD_DIR)/bench/svgfigurer_bench

format:
	clang-format -i $$(git ls-files '*.cpp' '*.h')

clean:
	rm -rf build
