# Torvanbridge: the two everyday commands are `make run` and `make test`.

BUILD_DIR ?= build
BUILD_TYPE ?= RelWithDebInfo
JOBS ?= $(shell nproc 2>/dev/null || echo 2)
EXAMPLE ?= examples/harbour-lights.tbf

CMAKE_FLAGS = -S . -B $(BUILD_DIR) -G Ninja -DCMAKE_BUILD_TYPE=$(BUILD_TYPE)

.PHONY: all deps configure build run test bench package install format clean fuzz test-asan

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
	rm -rf $(BUILD_DIR) build-bench build-package build-asan build-fuzz

# Fuzzing: builds the libFuzzer targets with clang in build-fuzz/ and runs each for
# SECONDS seconds (make fuzz SECONDS=1800).
SECONDS ?= 60
fuzz:
	@scripts/fuzz.sh $(SECONDS)

# The whole test suite built with the address and undefined-behaviour sanitizers in
# build-asan/; the first report stops the test that made it.
ASAN_FLAGS = -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer
test-asan: deps
	@cmake -S . -B build-asan -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTB_BUILD_TESTS=ON \
		$$(command -v ccache >/dev/null && echo -DCMAKE_CXX_COMPILER_LAUNCHER=ccache) \
		$$(command -v mold >/dev/null && echo -DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=mold -DCMAKE_SHARED_LINKER_FLAGS=-fuse-ld=mold) \
		"-DCMAKE_CXX_FLAGS=$(ASAN_FLAGS)" "-DCMAKE_C_FLAGS=$(ASAN_FLAGS)" >/dev/null
	@cmake --build build-asan -j $(JOBS)
	ASAN_OPTIONS=detect_leaks=0:abort_on_error=0:halt_on_error=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
		ctest --test-dir build-asan --output-on-failure -j $(JOBS)
