# Torvanbridge: the two everyday commands are `make run` and `make test`.

BUILD_DIR ?= build
BUILD_TYPE ?= RelWithDebInfo
JOBS ?= $(shell nproc 2>/dev/null || echo 2)
EXAMPLE ?= examples/harbour-lights.tbf

CMAKE_FLAGS = -S . -B $(BUILD_DIR) -G Ninja -DCMAKE_BUILD_TYPE=$(BUILD_TYPE)

.PHONY: all deps configure build run test bench package install format clean

all: build

deps:
	@scripts/install-deps.sh

configure: deps
	@cmake $(CMAKE_FLAGS) -DTB_BUILD_TESTS=ON >/dev/null

build: configure
	@cmake --build $(BUILD_DIR) -j $(JOBS)

run: build
	$(BUILD_DIR)/src/app/torvanbridge $(EXAMPLE)

test: build
	ctest --test-dir $(BUILD_DIR) --output-on-failure -j $(JOBS)

bench: deps
	@cmake -S . -B build-bench -G Ninja -DCMAKE_BUILD_TYPE=Release -DTB_BUILD_TESTS=OFF -DTB_BUILD_BENCH=ON >/dev/null
	@cmake --build build-bench -j $(JOBS) --target tbbench
	build-bench/bench/tbbench --benchmark_min_time=0.2

# A Debian package in build-package/ (see scripts/build-package.sh).
package:
	@scripts/build-package.sh

# Installs the build under PREFIX (default /usr/local); DESTDIR stages it elsewhere.
PREFIX ?= /usr/local
install: build
	DESTDIR=$(DESTDIR) cmake --install $(BUILD_DIR) --prefix $(PREFIX)

format:
	@git ls-files '*.cpp' '*.h' | xargs clang-format -i

clean:
	rm -rf $(BUILD_DIR) build-bench build-package
