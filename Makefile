# Front door of the project: `make demo` and `make test` on a fresh Debian 12.
BUILD      ?= build
BUILD_TYPE ?= Debug
WERROR     ?= OFF
JOBS       ?= $(shell nproc)
CMAKE_ARGS ?=
SCREENSHOT ?= $(abspath $(BUILD))/tessaro-demo.png
PREFIX     ?= /usr/local

.PHONY: all deps configure build demo test sanitize docs translations bench fuzz icons install clean

all: build

deps:
	@scripts/install-deps.sh

configure: deps
	cmake -S . -B $(BUILD) -DCMAKE_BUILD_TYPE=$(BUILD_TYPE) \
	      -DTESSARO_WARNINGS_AS_ERRORS=$(WERROR) $(CMAKE_ARGS)

build: configure
	cmake --build $(BUILD) -j $(JOBS)

# With a display the demo opens its window; without one it renders a screenshot.
demo: configure
	cmake --build $(BUILD) -j $(JOBS) --target tessaro-demo
	@if [ -n "$$DISPLAY" ] || [ -n "$$WAYLAND_DISPLAY" ]; then \
	    $(BUILD)/apps/demo/tessaro-demo; \
	else \
	    xvfb-run -a -s "-screen 0 1600x1000x24" $(BUILD)/apps/demo/tessaro-demo --screenshot $(SCREENSHOT) && \
	    echo "Screenshot: $(SCREENSHOT)"; \
	fi

test: build
	cd $(BUILD) && ctest --output-on-failure -j $(JOBS)

# The whole suite in a tree built with AddressSanitizer (leaks included) and
# UndefinedBehaviorSanitizer; tests/CMakeLists.txt gives each test the
# sanitizer options. Only allocations of Qt's platform plugin and of system
# libraries are suppressed (scripts/lsan.supp). The install test is left out:
# hosts built without the sanitizers cannot load the libraries.
sanitize:
	@scripts/install-deps.sh
	cmake -S . -B build-sanitize -DCMAKE_BUILD_TYPE=Debug -DTESSARO_SANITIZE=address,undefined \
	      -DTESSARO_WARNINGS_AS_ERRORS=$(WERROR) $(CMAKE_ARGS)
	cmake --build build-sanitize -j $(JOBS)
	cd build-sanitize && ctest --output-on-failure -j $(JOBS) -E '^tst_install_'

# The HTML API reference (Doxygen), from the comments of the public headers.
docs: configure
	cmake --build $(BUILD) --target docs

# Brings translations/*.ts up to date with the texts in the sources.
translations: configure
	cmake --build $(BUILD) --target translations

bench:
	@scripts/install-deps.sh
	cmake -S . -B build-bench -DCMAKE_BUILD_TYPE=Release -DTESSARO_BUILD_BENCH=ON \
	      -DTESSARO_BUILD_TESTS=OFF -DTESSARO_BUILD_DEMO=OFF $(CMAKE_ARGS)
	cmake --build build-bench -j $(JOBS)
	scripts/run-benchmarks.sh build-bench

fuzz:
	@scripts/install-deps.sh --fuzz
	cmake -S . -B build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ \
	      -DTESSARO_BUILD_FUZZ=ON -DTESSARO_BUILD_TESTS=OFF -DTESSARO_BUILD_DEMO=OFF $(CMAKE_ARGS)
	cmake --build build-fuzz -j $(JOBS)

# Redraws the committed icons in src/resources from their generator.
icons: deps
	cmake -S . -B build-icons -DCMAKE_BUILD_TYPE=Release -DTESSARO_BUILD_ICONGEN=ON \
	      -DTESSARO_BUILD_TESTS=OFF -DTESSARO_BUILD_DEMO=OFF $(CMAKE_ARGS)
	cmake --build build-icons -j $(JOBS) --target tessaro-icongen
	build-icons/src/resources/icongen/tessaro-icongen src/resources --sheet build-icons/icons-sheet.png
	@echo "Icons written to src/resources (enlarged sheet: build-icons/icons-sheet.png)"

install: build
	cmake --install $(BUILD) --prefix $(PREFIX)

clean:
	rm -rf $(BUILD) build-bench build-fuzz build-icons build-sanitize
