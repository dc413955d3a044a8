# Two commands do everything on a fresh Debian 12 machine:
#   make run    installs what is missing, builds, and runs the main job
#   make test   the same set-up, then every test
PRESET ?= release
BUILD_DIR := build/$(PRESET)
CLI := $(BUILD_DIR)/src/cli/svgfigurer
APP := $(BUILD_DIR)/src/app/desktop/svgfigurer-app
JOBS ?= $(shell nproc)

.PHONY: all deps configure build test run asan-test tsan-test fuzz bench format clean \
        coverage swift-check package package-check

all: build

deps:
	./scripts/install-deps

configure: deps
	cmake --preset $(PRESET)

build: configure
	cmake --build --preset $(PRESET) -j $(JOBS)

test: build
	ctest --preset $(PRESET) -j $(JOBS)

# The main job: the desktop program when there is a display; without one, the default
# document's SwiftUI source. Builds only what it runs.
run: configure
	@if [ -n "$$DISPLAY$$WAYLAND_DISPLAY" ]; then \
	  cmake --build --preset $(PRESET) -j $(JOBS) --target svgfigurer-app && $(APP); \
	else \
	  cmake --build --preset $(PRESET) -j $(JOBS) --target svgfigurer && \
	  $(CLI) convert samples/default.svg && \
	  echo "make run: no display, so the window was not opened. In a desktop session run" \
	       "'make run' or '$(APP)'; headless: 'xvfb-run -a $(APP)'." >&2; \
	fi

asan-test:
	$(MAKE) test PRESET=asan

# The engine and the concurrency tests under ThreadSanitizer.
tsan-test:
	$(MAKE) test PRESET=tsan

fuzz: deps
	cmake --preset fuzz
	cmake --build --preset fuzz -j $(JOBS)

bench: configure
	cmake --build --preset $(PRESET) -j $(JOBS) --target svgfigurer_bench svgfigurer_synthetic svgfigurer
	$(BUILD_DIR)/bench/svgfigurer_bench

# Line and branch coverage of src/ by the whole suite; reports in build/coverage/.
coverage: deps
	cmake --preset coverage
	cmake --build --preset coverage -j $(JOBS)
	find build/coverage -name '*.gcda' -delete
	ctest --preset coverage -j $(JOBS)
	gcovr -r . --filter 'src/' --object-directory build/coverage --gcov-ignore-parse-errors \
	  --print-summary --txt build/coverage/coverage.txt --html-details build/coverage/index.html

# The generated Swift parsed with the tree-sitter Swift grammar (needs Node and npm).
swift-check: build
	./scripts/swift-syntax-check $(CLI)

# The Debian package from the release build, installing under /usr.
package: build
	cmake -S . -B $(BUILD_DIR) -DCMAKE_INSTALL_PREFIX=/usr
	cmake --build $(BUILD_DIR) -j $(JOBS) --target package
package-check: package
	./scripts/package-check $$(ls -t $(BUILD_DIR)/svgfigurer_*.deb | head -1)

format:
	clang-format -i $$(git ls-files '*.cpp' '*.h')

clean:
	rm -rf build
